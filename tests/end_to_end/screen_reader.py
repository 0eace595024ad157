#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader finds of Kestrill on the accessibility bus.

front: the name of the window in front. place NAME: where a control lies whose name is that, or begins with it and a
colon, as "left top width height". places: where each control lies, as "role, name, left, top, width, height" with tabs
between. walk: the window and each control in it that is shown, as "role | name | description | states", with "~" for
what moves with the date. What has no name, or takes no focus, ends with status 1. listen: says on and on what is read
out unasked, each notification that is shown."""

import calendar
import re
import sys

import pyatspi

BARE = {"filler", "panel", "scroll pane", "viewport", "separator", "scroll bar", "table cell", "list item", "label"}
STATES = ("editable", "multi-line", "read-only", "checkable", "default")
DATES = re.compile(r"\b(?:%s)\b" % "|".join([r"\d+", "AM", "PM", *calendar.month_name[1:], *calendar.day_name]))
TAKEN = {"push button", "check box", "radio button", "text", "password text", "combo box", "table"}
# What newer versions of the bus and of the toolkit tell besides.
UNTOLD = {("combo box", "editable"), ("check box", "checkable"), ("radio button", "checkable")}


def role_of(item):
    """In the words of the older versions, which call a button a push button and a framed control a frame."""
    role = item.getRoleName()
    if role == "panel" and item.description.strip():
        return "frame"
    return {"button": "push button"}.get(role, role)


def front():
    for program in pyatspi.Registry.getDesktop(0):
        for window in program if program and program.name == "Kestrill" else ():
            if window and window.getState().contains(pyatspi.STATE_ACTIVE):
                return window
    sys.exit("no window of Kestrill is in front")


def name_of(item, role):
    """Its label's words, where it has a label: so does a screen reader. An option has words of its own beside it, and
    what a list calls its name is the item that is chosen."""
    own = "" if role == "combo box" else item.name.strip()
    for relation in item.getRelationSet():
        if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY:
            label = relation.getTarget(0).name.strip()
            return f"{label}: {own}" if role == "radio button" else label
    return own


def shown(item):
    """Each that is in sight in it, with its role and its name."""
    for inner in item if role_of(item) not in ("combo box", "table") else ():
        if inner.getState().contains(pyatspi.STATE_SHOWING):
            role = role_of(inner)
            yield inner, role, name_of(inner, role)
            yield from shown(inner)


def tell(item, role, name):
    states = {pyatspi.stateToString(state) for state in item.getState().getStates()}
    if not name:
        sys.exit(f"a {role} in {item.parent.getRoleName()} {item.parent.name!r} has no name: {item.description!r}")
    if role in TAKEN and "enabled" in states and "focusable" not in states:
        sys.exit(f"the focus can't be moved to {role} {name!r}")
    told = " ".join(state for state in STATES if state in states and (role, state) not in UNTOLD)
    words = (role, name, item.description.strip(), told)
    print(DATES.sub("~", " | ".join(words).rstrip(" |")))


def place(wanted):
    found = [
        (role == "label", item)
        for item, role, name in shown(window)
        if name == wanted or name.startswith(wanted + ": ")
    ]
    if not found:
        sys.exit(f"nothing has the name {wanted!r}")
    _, item = min(found, key=lambda each: each[0])  # before its label, which has the same name
    print(*item.queryComponent().getExtents(pyatspi.DESKTOP_COORDS))


def listen():
    def hears(event):
        if event.detail1 and event.source.getRole() == pyatspi.ROLE_NOTIFICATION:
            print(event.source.name, flush=True)

    pyatspi.Registry.registerEventListener(hears, "object:state-changed:showing")
    pyatspi.Registry.start()


if sys.argv[1] == "listen":
    listen()
window = front()
if sys.argv[1] == "front":
    print(window.name.strip())
elif sys.argv[1] == "place":
    place(sys.argv[2])
elif sys.argv[1] == "places":
    for item, role, name in shown(window):
        if role in TAKEN or role not in BARE:
            print(role, " ".join(name.split()), *item.queryComponent().getExtents(pyatspi.DESKTOP_COORDS), sep="\t")
else:
    tell(window, window.getRoleName(), window.name.strip())
    for item, role, name in shown(window):
        size = item.queryComponent().getSize()
        if role == "scroll bar" and size[0] > size[1]:
            sys.exit("it has to be scrolled sideways")
        told = role not in BARE or (role == "label" and window.getRoleName() == "alert")
        if told and (name or role != "frame"):  # a frame without a name is a line around others
            tell(item, role, name)
