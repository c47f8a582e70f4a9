# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Prints the accessible tree of the running Marivox, one object a line: depth, role, name;
with --focused, only the objects that say they have the keyboard focus; with --places, each
line ends in where the object lies on the screen: "|x y width height"."""

import sys

import pyatspi


def one_line(text):
    return text.replace("\r", "\\r").replace("\n", "\\n")


def text_of(node, limit=600):
    """The start of what a screen reader would read inside a text object, if any."""
    try:
        text = node.queryText()
    except NotImplementedError:
        return ""
    contents = text.getText(0, min(text.characterCount, limit))
    return "" if contents == node.name else contents


def place(node):
    try:
        box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    except NotImplementedError:
        return "|"
    return "|%d %d %d %d" % (box.x, box.y, box.width, box.height)


def walk(node, depth, out, limit=4000, focused_only=False):
    if node is None or len(out) > limit:
        return
    try:
        name = one_line(node.name)
        if not focused_only or node.getState().contains(pyatspi.STATE_FOCUSED):
            out.append("%d|%s|%s%s" % (depth, node.getRoleName(), name,
                                       place(node) if "--places" in sys.argv else ""))
        contents = "" if focused_only else text_of(node)
        if contents:
            out.append("%d|text contents|%s" % (depth + 1, one_line(contents)))
        for index in range(node.childCount):
            walk(node.getChildAtIndex(index), depth + 1, out, limit, focused_only)
    except Exception as error:  # an object that vanished while we looked
        out.append("%d|error|%s" % (depth, error))


def main():
    desktop = pyatspi.Registry.getDesktop(0)
    lines = []
    for index in range(desktop.childCount):
        application = desktop.getChildAtIndex(index)
        if application is not None and application.name.lower().startswith("marivox"):
            walk(application, 0, lines, focused_only="--focused" in sys.argv)
    if lines:
        print("\n".join(lines))
    return 0 if lines else 1


if __name__ == "__main__":
    sys.exit(main())
