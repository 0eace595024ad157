# SPDX-License-Identifier: GPL-3.0-or-later
"""What is known of the windows on the display, and what must never be seen of them."""

import re
import subprocess
import time
from collections import Counter
from pathlib import Path

EARS = Path(__file__).parent.parent / "screen_reader.py"
PATIENCE = 60  # seconds for the program to take what has come
SETTLING = 8  # seconds for a screen to go after the next one has come
HEARING = 20  # seconds for a screen reader
OVER_OTHERS = {"frmCalendar"}  # shown over the screen that has asked for it
# What the toolkit says of its own dialogues and windows, and what comes of nothing.
HARMLESS = (
    "QAccessibleTable::child: Invalid index",  # the files that it suggests
    "QAbstractItemView::commitData called with an editor",  # a file that is being renamed where the folder changes
    "QAbstractItemView::closeEditor called with an editor",
    "QDialog::exec: Recursive call detected",  # "Properties" of a printer, pressed twice before they show
    "qt.qpa.xcb: internal error:  void QXcbWindow::setNetWmStateOnUnmappedWindow()",  # shown again at once
)
# How the program is meant to end: the entry of money takes a "/", and a deletion has no words for what is no amount.
MEANT = re.compile(r"frmAddUpDel\.cmdDelete_Click: Type mismatch: .* is not an amount of money")


class Finding(Exception):
    pass


class Eyes:
    def __init__(self, display):
        self.display = display
        self.known = {}  # the controls of each kind and size of window
        self.deaf_to = Counter()
        self.behind = None

    def front(self):
        window = self.display.active()
        if window and window.kind.startswith("frm"):
            self.behind = window
        return window

    def popups(self):
        return self.display.popups()

    def screen_behind(self):
        self.front()
        return self.behind

    def controls(self, window):
        return self.known.get((window.kind, window.width, window.height), ())

    def learn(self):
        """Has a screen reader tell the controls of the window in front, where they aren't known yet."""
        window = self.front()
        if not window or window.kind in ("frmBW_Splash", "frmExit", "frmProgress"):
            return
        what = (window.kind, window.width, window.height)
        if what in self.known or self.deaf_to[what] > 2 or self.display.popups():
            return
        self.deaf_to[what] += 1
        try:
            told = subprocess.run([EARS, "places"], capture_output=True, text=True, timeout=HEARING, check=True).stdout
        except (subprocess.CalledProcessError, subprocess.TimeoutExpired):
            return
        if self.display.active() == window:
            self.known[what] = list(self._read(window, told))

    @staticmethod
    def _read(window, told):
        for line in told.splitlines():
            role, name, *place = line.split("\t")
            left, top, width, height = map(int, place)
            left -= window.x
            top -= window.y
            if width > 0 and height > 0 and 0 <= left < window.width and 0 <= top < window.height:
                yield role, name, left, top, width, height


class Watch:
    """Looks at one run of the program between bursts."""

    def __init__(self, display, process, printed):
        self.display = display
        self.process = process
        self.printed = printed  # the file that takes what the program prints
        self.seen_last = time.monotonic()
        self.is_over = False  # as it is meant to be

    def has_ended(self):
        return self.is_over or self.process.poll() is not None

    def look(self):
        """Returns the kind of the window in front; raises what is wrong."""
        self.read_printed()
        if self.has_ended():
            return ""
        self.one_screen()
        front = self.display.active()
        return front.kind if front else ""

    def read_printed(self):
        lines = [line for line in self.printed.read_text(errors="replace").splitlines() if line.strip()]
        self.is_over = any(map(MEANT.fullmatch, lines))
        bad = [line for line in lines if not line.startswith(HARMLESS) and not MEANT.fullmatch(line)]
        if bad:
            raise Finding("the program has printed: " + next((line for line in bad if "ERROR" in line), bad[0]))

    def wait_start(self):
        """Until a window is there to do something in."""
        deadline = time.monotonic() + PATIENCE
        while not self.has_ended() and not [each for each in self.display.windows() if each.kind != "frmBW_Splash"]:
            if time.monotonic() > deadline:
                raise Finding(f"no window after {PATIENCE} s")
            time.sleep(0.05)

    def end(self, fine=(0,)):
        """The program has ended: in order?"""
        self.read_printed()
        status = self.process.poll()
        if status not in fine and not self.is_over:
            raise Finding(f"the program ended with status {status}")

    def one_screen(self):
        deadline = time.monotonic() + SETTLING
        while True:
            windows = self.display.windows()
            screens = [each.kind for each in windows if each.kind.startswith("frm") and each.kind not in OVER_OTHERS]
            if windows:
                self.seen_last = time.monotonic()
            if len(screens) < 2 and windows:
                return
            if self.has_ended():
                return
            if len(screens) > 1 and time.monotonic() > deadline:
                raise Finding("screens at once: " + " ".join(sorted(screens)))
            if not windows and time.monotonic() > self.seen_last + PATIENCE:
                raise Finding("no window is shown")
            if len(screens) > 1 and not self.is_settled():
                deadline = time.monotonic() + SETTLING
            time.sleep(0.02)

    def settle(self):
        """Waits until the program has taken all that has come."""
        deadline = time.monotonic() + PATIENCE
        # An answer is given when the question is read; what came before it is delivered by the next one.
        answers = 0
        while answers < 2 and not self.has_ended():
            if time.monotonic() > deadline:
                raise Finding(f"the program has not answered for {PATIENCE} s")
            answers += self.is_settled()

    def is_settled(self):
        windows = self.display.windows()
        if not windows:
            time.sleep(0.02)
            return False
        self.display.ping(windows[-1])
        deadline = time.monotonic() + 1
        while time.monotonic() < deadline and not self.has_ended():
            if self.display.is_answered():
                return True
            time.sleep(0.002)
        return False
