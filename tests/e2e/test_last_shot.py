# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""A whole game to its last shot, as a player hears it and as a screen reader is told of it:
the sixth sinking is said once its sound has begun and before the fanfare, the play-again
box reaches the screen reader only after the fanfare has begun, and No, answered as soon as
the box is there, ends the program after the sinking was said.

The player reads the board as a screen reader does (each cell's mark) and fires with a click,
which works in either turn, hearing each shot's words out before the next. A fixed seed
deals the same fleets every run, so the game is the same game each time."""

import os
import re
import subprocess
import sys
import time
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import harness  # noqa: E402
import hunt  # noqa: E402
from test_marivox import GameTest  # noqa: E402

LENGTHS = {"air craft carrier": 5, "cruiser": 4, "destroyer": 4, "battleship": 4,
           "patrol boat": 3, "submarine": 2}
MARKED = re.compile(r"^\d+\|table cell\|([A-I]) ([1-9]), (miss|hit (.+))$")


class LastShot(GameTest):
    block = 0.02  # the recording places a sound's start up to one block late
    session_options = {"seed": "20261125"}

    def board(self):
        """The cells fired at, and the cells hit of each ship, as the board tells them."""
        fired, hits = set(), {}
        for line in self.session.accessible_tree():
            marked = MARKED.match(line)
            if marked:
                cell = ("ABCDEFGHI".index(marked.group(1)) + 1, int(marked.group(2)))
                fired.add(cell)
                if marked.group(4):
                    hits.setdefault(marked.group(4), []).append(cell)
        return fired, hits

    def fire(self, target):
        """Clicks the target cell; the first thing said of the shot, and when."""
        heard = len(self.session.texts())
        x, y, width, height = self.places[target]
        self.session.mouse_clicks(x + width // 2, y + height // 2)
        name = "ABCDEFGHI"[target[0] - 1] + "  " + str(target[1]) + " was "
        said = harness.wait_until(lambda: [(t, s) for t, s in self.session.spoken()[heard:]
                                           if s.startswith(name) or s.startswith(" You sank my ")],
                                  10)
        self.assertTrue(said, "no answer to the shot at %s: %s" % (name, self.session.texts()))
        return said[0]

    def test_the_last_sinking_is_said_before_the_fanfare_and_the_box_after_it(self):
        self.start()
        events = os.path.join(self.session.dir, "events.log")
        listener = self.session._spawn(
            "events", ["/usr/bin/python3", os.path.join(harness.HERE, "a11y_events.py"), events],
            env=self.session._base_env(), stdout=subprocess.PIPE, text=True)
        self.assertEqual(listener.stdout.readline().strip(), "ready")
        self.places = {("ABCDEFGHI".index(cell[0]) + 1, int(cell[2])): tuple(map(int, where.split()))
                       for _, role, cell, where in (line.split("|") for line in
                                                    self.session.accessible_tree("--places"))
                       if role == "table cell"}
        afloat, last = True, None
        for _ in range(81):
            fired, hits = self.board()
            afloat = {ship: cells for ship, cells in hits.items()
                      if len(cells) < LENGTHS[ship]}
            if len(hits) == 6 and not afloat:
                break
            last = self.fire(hunt.next_target(fired, afloat))
        self.assertFalse(afloat, "the fleet still afloat after every cell")
        said, sinking = last
        self.assertRegex(sinking, r"^ You sank my .+  $")

        box = harness.wait_until(lambda: self.told_of_box(events), 10)
        self.assertTrue(box, "no box told; %s" % self.session.state())
        self.session.keys("Escape")  # No, at once
        answered = time.time() - self.session.started_at
        self.assertTrue(self.session.game_ended(10), self.session.state())
        self.assertEqual(self.session.game.returncode, 0)

        sounds = harness.wait_until(lambda: self.last_sounds(), 5)
        self.assertTrue(sounds, self.session.sound_times()[-6:])
        sink, youwin1, youwin2 = sounds
        self.assertGreaterEqual(said, sink - self.block, "said before its sound")
        self.assertLess(said, youwin1, "said after the fanfare had begun")
        self.assertGreaterEqual(box, youwin2 - self.block, "the box before the fanfare")
        self.assertLess(said, box)
        self.assertLess(said, answered)
        self.assertEqual(self.session.texts().count(sinking), 1)

    def told_of_box(self, events):
        """When the screen reader was first told of the play-again box."""
        try:
            with open(events) as log:
                lines = [line.rstrip("\n").split("|") for line in log]
        except FileNotFoundError:
            return None
        return next((float(line[0]) - self.session.started_at for line in lines
                     if len(line) == 5 and line[4] == "alert"
                     and line[3].startswith("Congradulations, you win!")), None)

    def last_sounds(self):
        """When the last sink, and the fanfare after it, began to be heard."""
        wanted, found = ["youwin2", "youwin1", "sink"], []
        for when, name in reversed(self.session.sound_times()):
            if wanted and name == wanted[0]:
                found.insert(0, when)
                wanted.pop(0)
        return None if wanted else found

if __name__ == "__main__":
    unittest.main()
