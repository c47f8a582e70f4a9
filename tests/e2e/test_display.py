# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The board as a player who sees a little sees it, on a 1920 by 1080 screen: the window
grown to the screen, zoomed to 400%, in high contrast, and so again after a restart;
measured on the accessible board's places and on the screenshot's pixels."""

import os
import subprocess
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import harness  # noqa: E402
import pixels  # noqa: E402
from test_marivox import GameTest  # noqa: E402

BLACK, YELLOW = (0, 0, 0), (255, 255, 0)


class Display(GameTest):
    session_options = {"screen": "1920x1080x24", "seed": "5"}

    def place(self, role, name):
        """Where an object of the board stands on the screen: x, y, width, height."""
        for line in self.session.accessible_tree("--places"):
            fields = line.split("|")
            if fields[1:3] == [role, name]:
                return tuple(int(n) for n in fields[3].split())
        raise AssertionError("no %s %r" % (role, name))

    def said(self, keys, text):
        heard = len(self.session.texts())
        self.session.keys(*keys, window=self.window)
        self.session.wait_for_text(text, after=heard)

    def size_now(self):
        out = subprocess.run(["xdotool", "getwindowgeometry", "--shell", self.window],
                             env=self.session._base_env(), capture_output=True, text=True).stdout
        values = dict(line.split("=") for line in out.split())
        return int(values["WIDTH"]), int(values["HEIGHT"])

    def window_size(self, width, height):
        subprocess.run(["xdotool", "windowsize", "--sync", self.window, str(width), str(height)],
                       env=self.session._base_env(), check=True)

    def test_grown_zoomed_and_in_high_contrast_the_board_reads_large_and_clear(self):
        self.start()
        normal, normal_size = self.place("table cell", "A 1"), self.size_now()
        self.said(["Return"], "It is your turn and you are located at A  1")  # a miss at A 1
        self.said(["Down", "Right", "Return"], "It is your turn and you are located at B  2")

        self.window_size(1920, 1080)  # as a window manager maximises it
        self.assertTrue(harness.wait_until(
            lambda: self.place("table cell", "A 1, miss")[3] >= 80, 5),
            self.place("table cell", "A 1, miss"))
        pixels.screen(self.session, "maximised.png")
        self.window_size(*normal_size)

        for percent in (125, 150, 175, 200, 250, 300, 400):
            self.said(["ctrl+plus"], "Zoom %d percent" % percent)
        x, y, width, height = self.place("table cell", "A 1, miss")
        zoomed = pixels.screen(self.session, "zoom.png")
        _, mark, tall = pixels.ink(zoomed, x + 6, y + 6, width - 12, height - 12)
        self.assertGreaterEqual(tall, 48, "the mark's height at 400%")

        self.said(["ctrl+h"], "High contrast on")
        self.check_high_contrast()

        # Both outlive the program.
        self.exit_game(self.window)
        self.start()
        self.assertGreaterEqual(self.place("table cell", "A 1")[3], 3 * normal[3])
        x, y, width, height = self.place("table cell", "A 2")
        self.assertEqual(pixels.screen(self.session).pixel(x + width // 2, y + height // 2),
                         BLACK)

    def check_high_contrast(self):
        picture = pixels.screen(self.session, "high-contrast.png")
        for name in ("A 1, miss", "B 2, miss"):  # a mark, and the mark under the cursor
            x, y, width, height = self.place("table cell", name)
            background, mark, _ = pixels.ink(picture, x + 8, y + 8, width - 16, height - 16)
            self.assertGreaterEqual(pixels.contrast(background, mark), 7, (name, background, mark))
        for role, name in (("table column header", "1"), ("table row header", "A")):
            x, y, width, height = self.place(role, name)
            background, text, _ = pixels.ink(picture, x + 2, y + 2, width - 4, height - 4)
            self.assertGreaterEqual(pixels.contrast(background, text), 7, (name, background, text))
        x, y, width, _ = self.place("table cell", "B 2, miss")
        self.assertGreaterEqual(pixels.thickness(picture, x + width // 2, y, YELLOW), 4,
                                "the cursor's frame")


if __name__ == "__main__":
    unittest.main()
