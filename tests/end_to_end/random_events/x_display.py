# SPDX-License-Identifier: GPL-3.0-or-later
"""An X display: its keys and buttons, and the windows on it."""

from collections import namedtuple

import Xlib.display
import Xlib.error
from Xlib import X, XK
from Xlib.ext import xtest
from Xlib.protocol.event import ClientMessage

# What a window is known by: its role, else its title.
Window = namedtuple("Window", "kind x y width height xid")

GONE = Xlib.error.CatchError(Xlib.error.BadWindow)  # a window may have closed in the meantime


class Display:
    def __init__(self):
        self.display = Xlib.display.Display()
        self.root = self.display.screen().root
        self.root.change_attributes(event_mask=X.StructureNotifyMask)  # the answers to pings come here

    # ---- hands

    def key(self, name, is_down):
        code = self.display.keysym_to_keycode(XK.string_to_keysym(name))
        xtest.fake_input(self.display, X.KeyPress if is_down else X.KeyRelease, code)
        self.display.flush()

    def needs_shift(self, name):
        keysym = XK.string_to_keysym(name)
        return self.display.keycode_to_keysym(self.display.keysym_to_keycode(keysym), 0) != keysym

    def button(self, number, is_down):
        xtest.fake_input(self.display, X.ButtonPress if is_down else X.ButtonRelease, number)
        self.display.flush()

    def move(self, x, y):
        xtest.fake_input(self.display, X.MotionNotify, x=x, y=y)
        self.display.flush()

    # ---- eyes

    def windows(self):
        """Those that the window manager knows, as far as they are shown."""
        found = (self._look(self._window(xid)) for xid in self._property(self.root, "_NET_CLIENT_LIST") or ())
        return [window for window in found if window]

    def active(self):
        xid = (self._property(self.root, "_NET_ACTIVE_WINDOW") or [0])[0]
        return self._look(self._window(xid)) if xid else None

    def popups(self):
        """Lists and menus, which have no frame; nor have tool tips, which say what they are."""
        return [window for each in self.root.query_tree().children if (window := self._look_at_popup(each))]

    def _look_at_popup(self, each):
        try:
            tip = self.display.intern_atom("_NET_WM_WINDOW_TYPE_TOOLTIP")
            if (
                not each.get_attributes().override_redirect
                or not each.get_wm_class()
                or tip in (self._property(each, "_NET_WM_WINDOW_TYPE") or ())
            ):
                return None
        except Xlib.error.XError:
            return None
        return self._look(each)

    def _look(self, window):
        try:
            if window.get_attributes().map_state != X.IsViewable:
                return None
            size = window.get_geometry()
            place = self.root.translate_coords(window, 0, 0)
            kind = self._text(window, "WM_WINDOW_ROLE") or self._text(window, "_NET_WM_NAME")
            return Window(kind, place.x, place.y, size.width, size.height, window.id)
        except Xlib.error.XError:
            return None  # it has gone meanwhile

    def _window(self, xid):
        return self.display.create_resource_object("window", xid)

    def _property(self, window, name):
        try:
            found = window.get_full_property(self.display.intern_atom(name), X.AnyPropertyType)
        except Xlib.error.XError:
            return None
        return found.value if found else None

    def _text(self, window, name):
        value = self._property(window, name)
        return value.decode(errors="replace") if isinstance(value, bytes) else value or ""

    def ping(self, window):
        """A question that the program behind the window answers as soon as it reads what comes from the display."""
        data = [self.display.intern_atom("_NET_WM_PING"), X.CurrentTime, window.xid, 0, 0]
        event = ClientMessage(window=window.xid, client_type=self.display.intern_atom("WM_PROTOCOLS"), data=(32, data))
        self._window(window.xid).send_event(event, event_mask=0, onerror=GONE)
        self.display.flush()

    def is_answered(self):
        """True when one of the pings has been answered since the last time that one was."""
        answers = 0
        while self.display.pending_events():
            event = self.display.next_event()
            answers += event.type == X.ClientMessage and event.window == self.root
        return answers > 0
