"""Prints the accessible tree of the running Marivox, one object a line: depth, role, name."""

import sys

import pyatspi


def walk(node, depth, out, limit=4000):
    if node is None or len(out) > limit:
        return
    try:
        name = node.name.replace("\n", "\\n")
        out.append("%d|%s|%s" % (depth, node.getRoleName(), name))
        for index in range(node.childCount):
            walk(node.getChildAtIndex(index), depth + 1, out, limit)
    except Exception as error:  # an object that vanished while we looked
        out.append("%d|error|%s" % (depth, error))


def main():
    desktop = pyatspi.Registry.getDesktop(0)
    lines = []
    for index in range(desktop.childCount):
        application = desktop.getChildAtIndex(index)
        if application is not None and application.name.lower().startswith("marivox"):
            walk(application, 0, lines)
    print("\n".join(lines))
    return 0 if lines else 1


if __name__ == "__main__":
    sys.exit(main())
