# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The review keys in the real program: a cell typed by name, the row read out, the last
thing said again, and the player's own fleet once the computer has hit it. As elsewhere,
nothing here knows where the ships are; what is expected follows from what the game said."""

import os
import re
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import harness  # noqa: E402
from test_marivox import COMPUTER_RESULT, PLAYER_RESULT, GameTest  # noqa: E402

REMINDER = "It is your turn and you are located at "


def short(cell):
    """A cell as the reviews write it: "E  5" becomes "E 5"."""
    return cell.replace("  ", " ")


class Review(GameTest):
    def fire(self, letter, digit):
        """Jumps to a cell by typing its name, fires, and waits for the turn to come back;
        the player's result and the computer's."""
        cell = "%s  %s" % (letter.upper(), digit)
        heard = len(self.session.texts())
        self.session.keys(letter, digit, window=self.window)
        self.session.wait_for_text(cell, after=heard)
        self.session.keys("Return", window=self.window)
        self.session.wait_for_text(REMINDER + cell, 20, after=heard)
        said = self.session.texts()[heard:]
        # A miss reads the same from either side: the computer's follows its announcement.
        announced = next(i for i, s in enumerate(said) if s.startswith("It is my turn targeting"))
        mine = next(s for s in said[:announced] if PLAYER_RESULT.match(s))
        theirs = next(s for s in said[announced:] if COMPUTER_RESULT.match(s))
        return mine, theirs

    def test_jump_fire_review_repeat_and_hear_the_fleet_after_the_computers_first_hit(self):
        self.start()
        mine, theirs = self.fire("e", "5")
        self.assertTrue(mine.startswith("E  5 was "), mine)
        hit = re.search(r"a hit on my (.*?)  $", mine)
        mark = ("hit on the %s at 5" % hit.group(1).lower().replace("battle ship", "battleship")
                if hit else "miss at 5")

        heard = len(self.session.texts())
        self.session.keys("F3", window=self.window)
        row = harness.wait_until(lambda: next(
            (s for s in self.session.texts()[heard:] if s.startswith("Row E: ")), None), 10)
        self.assertEqual(row, "Row E: %s, 8 cells not fired at." % mark)
        self.session.keys("F5", window=self.window)
        self.session.wait_for_count(heard + 2)
        self.assertEqual(self.session.texts()[heard:], [row, row])

        # The computer hits about one shot in three; the player fires down the columns meanwhile.
        cells = [(r, c) for c in "123456789" for r in "abcdefghi" if (r, c) != ("e", "5")]
        while " a hit on your " not in theirs:
            self.assertTrue(cells, "the computer never hit")
            _, theirs = self.fire(*cells.pop(0))
        target, ship = re.match(r"^([A-I]  [1-9]) was a hit on your (.*?)  $", theirs).groups()
        ship = ship.lower().replace("battle ship", "battleship")

        heard = len(self.session.texts())
        self.session.keys("F6", window=self.window)
        self.session.wait_for_count(heard + 6)
        fleet = self.session.texts()[heard:]
        self.assertEqual(len(fleet), 6, fleet)
        report = next(s for s in fleet if s.startswith("Your %s, " % ship))
        self.assertRegex(report, r"^Your %s, [A-I] [1-9] to [A-I] [1-9], hit at %s\.$"
                         % (ship, short(target)))
        self.assertEqual(sum(" hit at " in s for s in fleet), 1, fleet)


if __name__ == "__main__":
    unittest.main()
