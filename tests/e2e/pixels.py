# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a player who sees a little sees, measured on a screenshot's pixels: how tall a mark
stands, how its colour contrasts with its cell's (WCAG's ratio), how thick a frame is."""

import collections
import os
import re
import shutil
import subprocess


class Picture:
    def __init__(self, path):
        data = subprocess.run(["convert", path, "-depth", "8", "ppm:-"], capture_output=True,
                              check=True).stdout
        header = re.match(rb"P6(?:\s|#[^\n]*\n)+(\d+)(?:\s|#[^\n]*\n)+(\d+)"
                          rb"(?:\s|#[^\n]*\n)+\d+\s", data)
        self.width, self.height = int(header.group(1)), int(header.group(2))
        self.data = data[header.end():]

    def pixel(self, x, y):
        at = 3 * (y * self.width + x)
        return tuple(self.data[at: at + 3])


def screen(session, keep_as=None):
    """The session's screen now; with MARIVOX_PICTURES naming a folder, kept there as
    `keep_as`."""
    path = os.path.join(session.dir, "screen.png")
    session.screenshot(path)
    if keep_as and os.environ.get("MARIVOX_PICTURES"):
        shutil.copy(path, os.path.join(os.environ["MARIVOX_PICTURES"], keep_as))
    return Picture(path)


def luminance(colour):
    def channel(value):
        value /= 255
        return value / 12.92 if value <= 0.03928 else ((value + 0.055) / 1.055) ** 2.4
    red, green, blue = (channel(c) for c in colour)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    light, dark = sorted((luminance(one), luminance(other)), reverse=True)
    return (light + 0.05) / (dark + 0.05)


def ink(picture, left, top, width, height):
    """In a box: its background (its commonest colour), the commonest colour far from it
    (the ink), and the height of the ink's rows."""
    pixels = [(x, y, picture.pixel(x, y)) for y in range(top, top + height)
              for x in range(left, left + width)]
    background = collections.Counter(c for _, _, c in pixels).most_common(1)[0][0]
    inked = [(y, c) for _, y, c in pixels if sum(abs(a - b) for a, b in zip(c, background)) > 150]
    if not inked:
        return background, None, 0
    colour = collections.Counter(c for _, c in inked).most_common(1)[0][0]
    rows = [y for y, c in inked if c == colour]
    return background, colour, max(rows) - min(rows) + 1


def thickness(picture, x, top, colour, limit=40):
    """How many pixels of `colour` stand one under another from the first met below `top`,
    in column x."""
    y = top
    while y < top + limit and picture.pixel(x, y) != colour:
        y += 1
    start = y
    while y < top + limit and picture.pixel(x, y) == colour:
        y += 1
    return y - start
