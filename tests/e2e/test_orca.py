# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Marivox in the voice of the player's Orca: the game's own speech takes Orca's settings,
and the "Orca" choice hands every word to Orca itself where the desktop can announce."""

import os
import re
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import harness  # noqa: E402
from test_marivox import CELL, GameTest, PROMPT  # noqa: E402

# Orca's own scales, rate 0..99 and pitch 0..9, which the Orcas of Debian 12 and 13 give
# speech-dispatcher as 2 * rate - 98 and 20 * pitch - 90.
ORCA_VOICE = {"voices": {"default": {"rate": 70, "average-pitch": 6.0,
                                     "family": {"name": "test-voice", "lang": "en"}}}}
RATE, PITCH = 2 * 70 - 98, 20 * 6 - 90
SERVICE_DEFAULT = (0, 0, 100, "default", "en")


class OrcaVoice(GameTest):
    """The game's speech-dispatcher connection speaks in the voice Orca's settings give,
    and in the service's own when Orca has none."""

    session_options = {"orca_settings": ORCA_VOICE}

    def test_the_game_speaks_at_orcas_rate_pitch_and_voice_and_follows_a_change(self):
        self.start()
        self.assertEqual(self.session.voices()[:3], [(RATE, PITCH, 100, "test-voice", "en")] * 3)
        changed = dict(ORCA_VOICE["voices"]["default"], rate=90)
        self.session.write_orca_settings({"voices": {"default": changed}})
        heard = len(self.session.texts())
        self.session.keys("Right", window=self.window)
        self.session.wait_for_text("A  2", after=heard)
        self.assertEqual(self.session.voices()[heard], (2 * 90 - 98, PITCH, 100, "test-voice", "en"))

    def test_without_orcas_settings_the_service_keeps_its_own_voice(self):
        os.remove(os.path.join(self.session.dir, "home/.local/share/orca/user-settings.conf"))
        self.start()
        self.assertEqual(self.session.voices()[:3], [SERVICE_DEFAULT] * 3)



class OrcaAnnounces(GameTest):
    """The "Orca" choice: the game's words go to Orca as announcements, so Orca says each
    once, at Orca's rate, and shows it on the braille display; the board tells Orca nothing
    of the moves the game announces."""

    stored_reader = "Orca"
    session_options = {"orca": True,
                       "orca_settings": dict(ORCA_VOICE, enableBraille=True,
                                             enableFlashMessages=True, enableKeyEcho=False)}

    def said_until(self, fragment, after):
        """What was said after the first `after` utterances, up to one holding `fragment`."""
        said = harness.wait_until(lambda: next(
            (self.session.texts()[after:after + i + 1]
             for i, s in enumerate(self.session.texts()[after:]) if fragment in s), None), 20)
        self.assertTrue(said, (fragment, self.session.texts()[after:]))
        return said

    def test_orca_says_each_of_the_games_words_once_in_its_own_voice(self):
        orca_started = len(self.session.texts())
        self.session.launch()
        self.window = self.session.window_id()
        # One event's words make one announcement: Orca would cut off one with the next.
        self.assertEqual(self.said_until("press f 1", orca_started),
                         [" ".join(line.strip() for line in PROMPT)])
        # Given the focus, Orca presents the window and reads the board's row; then it is quiet.
        self.session.give_focus(self.window)
        harness.wait_until(lambda: self.session.texts()[-1:] == ["A 9."], 10)
        heard, row, col, cells = len(self.session.texts()), 1, 1, []
        for key in ["Right"] * 8 + ["Down"] * 2:
            row, col = row + (key == "Down"), col + (key == "Right")
            cells.append("ABCDEFGHI"[row - 1] + "  " + str(col))
            self.session.keys(key, window=self.window)
            self.said_until(cells[-1], len(self.session.texts()) - 1)
        self.assertEqual(self.session.texts()[heard:], cells)
        # Orca says them at the rate it gives its own speech, as the game would.
        self.assertEqual({voice[0] for voice in self.session.voices()[heard:]}, {RATE})

        heard = len(self.session.texts())
        self.session.keys("Return", window=self.window)
        turn = self.said_until("It is your turn and you are located at", heard)
        self.assertEqual(len(turn), 4, turn)
        result, aimed, answer, reminder = turn
        self.assertRegex(result, r"^(%s was (a miss|a hit on my .+)|You sank my .+)$" % CELL)
        cell = re.fullmatch(r"It is my turn targeting (%s)" % CELL, aimed).group(1)
        self.assertRegex(answer, r"^(%s was (a miss|a hit on your .+)|I sank your .+)$" % cell)
        heard = len(self.session.texts())
        self.session.keys("F2", window=self.window)
        self.assertEqual(self.said_until("I have sank", heard),
                         ["You have sank  0 of my ships. I have sank  0 of your ships."])
        # Orca shows its messages on the braille display, as its debug log tells.
        with open(self.session.orca_debug, errors="replace") as log:
            shown = log.read()
        self.assertIn("BRAILLE: Display message: '%s'" % result, shown)


if __name__ == "__main__":
    unittest.main()
