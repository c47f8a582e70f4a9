# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Hears what a screen reader is told of the running Marivox, as it is told: one line per
event, "<seconds since the epoch>|<event>|<role>|<name>|<role of the window it lies in>",
written at once. Prints "ready" once it listens."""

import sys
import time

import pyatspi

EVENTS = ("window:create", "window:activate", "focus:", "object:state-changed:focused",
          "object:state-changed:showing")


def window_role(node):
    """The role of the top-level window an object lies in, such as "alert" for a box."""
    while node is not None and node.parent is not None and \
            node.parent.getRole() != pyatspi.ROLE_APPLICATION:
        node = node.parent
    return node.getRoleName() if node is not None else ""


def main():
    out = open(sys.argv[1], "a", buffering=1)

    def heard(event):
        try:
            source = event.source
            if not source.getApplication().name.lower().startswith("marivox"):
                return
            out.write("%.6f|%s|%s|%s|%s\n" % (time.time(), event.type, source.getRoleName(),
                                              source.name.replace("\n", " "),
                                              window_role(source)))
        except Exception:  # an object gone before it could be read
            return

    pyatspi.Registry.registerEventListener(heard, *EVENTS)
    print("ready", flush=True)
    pyatspi.Registry.start()


if __name__ == "__main__":
    main()
