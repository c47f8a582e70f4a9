# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Windows board as a player who sees a little sees it, under Wine on a 1920 by 1080
screen: maximised, zoomed to 400% and in high contrast, and so again after a restart. The
cursor cell is found by its yellow frame in the screenshot, and measured there."""

import os
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
sys.path.insert(0, os.path.join(os.path.dirname(HERE), "e2e"))
import harness  # noqa: E402
import pixels  # noqa: E402
from test_windows import PROMPT, STANDINS, WindowsGame  # noqa: E402

BLACK, WHITE, YELLOW = (0, 0, 0), (255, 255, 255), (255, 255, 0)


class Display(WindowsGame):
    screen = "1920x1080x24"
    seed = "5"

    def hear(self, keys, text):
        heard = len(self.said())
        self.keys(*keys)
        self.wait_for_text(text, after=heard)

    def cursor_cell(self, picture):
        """The cursor cell, by its yellow frame (the headings' yellow letters make no long
        runs): left, top, width, height."""
        left, top, right, bottom = [int(n) for line in self.windows()
                                    if line.startswith("board|") for n in line[6:].split()]
        def longest_run(y):
            run = best = 0
            for x in range(left, right):
                run = run + 1 if picture.pixel(x, y) == YELLOW else 0
                best = max(best, run)
            return best
        edges = [y for y in range(top, bottom) if longest_run(y) >= 60]
        row = [x for x in range(left, right) if picture.pixel(x, edges[0]) == YELLOW]
        return row[0], edges[0], row[-1] - row[0] + 1, edges[-1] - edges[0] + 1

    def test_maximised_zoomed_and_in_high_contrast_the_board_reads_large_and_clear(self):
        self.start()
        self.wait_for_text(PROMPT[-1])
        self.hear(["Return"], "It is your turn and you are located at A  1")  # a miss at A 1
        self.hear(["Down", "Right", "Return"], "It is your turn and you are located at B  2")
        self.hear(["ctrl+h"], "High contrast on")
        self.wine(os.path.join(STANDINS, "readwindows.exe"), "maximize")
        harness.wait_until(lambda: False, 1)  # the board drawn afresh
        maximised = pixels.screen(self.session, "windows-maximised.png")
        self.assertGreaterEqual(self.cursor_cell(maximised)[3], 80, "a maximised cell")
        self.wine(os.path.join(STANDINS, "readwindows.exe"), "restore")
        for percent in (125, 150, 175, 200, 250, 300, 400):
            self.hear(["ctrl+plus"], "Zoom %d percent" % percent)
        harness.wait_until(lambda: False, 1)
        picture = pixels.screen(self.session, "windows-high-contrast.png")
        x, y, width, height = self.cursor_cell(picture)
        inside = (x + 8, y + 8, width - 16, height - 16)
        background, mark, tall = pixels.ink(picture, *inside)
        self.assertGreaterEqual(tall, 48, "the mark's height at 400%")
        self.assertGreaterEqual(pixels.contrast(background, mark), 7)
        self.assertGreaterEqual(pixels.thickness(picture, x + width // 2, y, YELLOW), 4)
        # A 1, up and left of the cursor, and the heading above it.
        background, mark, _ = pixels.ink(picture, x - width + 8, y - height + 8, width - 16,
                                         height - 16)
        self.assertEqual(mark, WHITE)
        self.assertGreaterEqual(pixels.contrast(background, mark), 7)
        board_top = [int(n) for line in self.windows() if line.startswith("board|")
                     for n in line[6:].split()][1]
        background, heading, _ = pixels.ink(picture, x - width + 4, board_top + 4, width - 8,
                                            y - height - board_top - 8)
        self.assertGreaterEqual(pixels.contrast(background, heading), 7)

        # Both outlive the program.
        self.keys("alt+g", "x")
        self.wait_for_window("text|There is a game in progress.")
        self.keys("Return", window=self.session.window_id())
        self.assertTrue(self.session.game_ended(20), self.session.state())
        heard = len(self.said())
        self.start()
        self.wait_for_text(PROMPT[-1], after=heard)
        self.assertGreaterEqual(self.cursor_cell(pixels.screen(self.session))[3], 3 * 17)


if __name__ == "__main__":
    unittest.main()
