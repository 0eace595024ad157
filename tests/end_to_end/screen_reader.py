#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader finds of Kestrill on the accessibility bus.

front: the name of the window in front. walk: that window and each control in it that is shown, as "role | name |
description | states", with "~" for what moves with the date. A control without a name ends with status 1."""

import calendar
import re
import sys

import pyatspi

BARE = {"filler", "panel", "scroll pane", "viewport", "separator", "scroll bar", "table cell", "list item", "label"}
STATES = ("editable", "multi-line", "read-only", "checkable", "default")
DATES = re.compile(r"\b(?:%s)\b" % "|".join([r"\d+", *calendar.month_name[1:], *calendar.day_name]))
TAKEN = {"push button", "check box", "radio button", "text", "password text", "combo box", "table"}


def windows():
    for program in pyatspi.Registry.getDesktop(0):
        if program and program.name == "Kestrill":
            yield from (window for window in program if window)


def front():
    for window in windows():
        if window.getState().contains(pyatspi.STATE_ACTIVE):
            return window
    return None


def name_of(item):
    """Its label's words, where it has a label: so does a screen reader. An option has words of its own beside it."""
    own = item.name.strip()
    for relation in item.getRelationSet():
        if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY:
            label = relation.getTarget(0).name.strip()
            return f"{label}: {own}" if item.getRoleName() == "radio button" else label
    return own


def line(item):
    states = {pyatspi.stateToString(state) for state in item.getState().getStates()}
    if item.getRoleName() in TAKEN and "enabled" in states and "focusable" not in states:
        sys.exit(f"the focus can't be moved to {item.getRoleName()} {name_of(item)!r}")
    shown = [state for state in STATES if state in states]
    words = (item.getRoleName(), name_of(item), item.description.strip(), " ".join(shown))
    return DATES.sub("~", " | ".join(words).rstrip(" |"))


def walk(item):
    if not item.getState().contains(pyatspi.STATE_SHOWING):
        return
    role = item.getRoleName()
    border = role == "frame" and item.parent.getRoleName() == "filler"  # not a window
    if role not in BARE and not (border and not name_of(item)):
        if not name_of(item):
            sys.exit(f"a {role} in {item.parent.getRoleName()} {item.parent.name!r} has no name")
        print(line(item))
    if role not in ("combo box", "table"):
        for inner in item:
            walk(inner)


window = front()
if not window:
    sys.exit("no window of Kestrill is in front")
if sys.argv[1] == "front":
    print(window.name.strip())
else:
    walk(window)
