# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Marivox in a hostile environment: damaged or odd settings, a settings folder it cannot
write, missing or damaged files, a speech service or sound server that is missing or dies
in the middle. Each time: no crash, no hang, the behaviour the game promises (or a clear
report), and the stored choice never lost.
"""

import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import harness  # noqa: E402
import test_marivox  # noqa: E402
from test_marivox import PROMPT  # noqa: E402


class Hostile(test_marivox.GameTest):
    def fresh_session(self):
        """A new session in place of the current one, for one more case of a test."""
        self.session.close()
        self.session = self.new_session()
        return self.session

    def write_settings(self, content):
        path = self.session.settings_path()
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as conf:
            conf.write(content)
        return path

    def wait_for_the_game_to_begin(self):
        """A game begins with its two sounds, after any report of the start-up and about a
        second after the opening prompt would have been spoken."""
        if not harness.wait_until(lambda: "sonar" in self.session.sounds_heard(), 20):
            self.fail("no game began; boxes open: %r" % self.session.alerts())


class Settings(Hostile):
    stored_reader = None

    def test_odd_stored_choices_are_read_as_they_stand_and_left_alone(self):
        # Lower case chooses nothing: the game is silent, asks nothing, and keeps the value.
        for value, speaks in ((b"jfw", False), (b" WE ", True), (b"\x01\xfe binary", False)):
            with self.subTest(value=value):
                session = self.fresh_session()
                self.write_settings(b"[StartUp]\nReader=" + value + b"\n")
                before = self.settings_bytes()
                session.launch()
                window = session.window_id()
                self.wait_for_the_game_to_begin()
                self.assertEqual(self.session.alerts(), [])
                self.assertEqual(session.texts()[:3] == PROMPT, speaks, session.texts())
                self.exit_game(window)
                self.assertEqual(self.settings_bytes(), before)

    def test_a_huge_value_is_a_choice_of_nothing_and_stays(self):
        content = b"[StartUp]\nReader=" + b"A" * 1_000_000 + b"\n"
        self.write_settings(content)
        self.session.launch()
        window = self.session.window_id(timeout=20)
        self.wait_for_the_game_to_begin()
        self.assertEqual((self.session.alerts(), self.session.texts()), ([], []))
        self.exit_game(window)
        self.assertEqual(self.settings_bytes(), content)

    def test_a_damaged_file_asks_again_and_is_kept_aside_whole(self):
        content = bytes(range(256)) * 64
        self.write_settings(content)
        self.session.launch()
        self.session.keys("Return", window=self.session.window_id("Screen Reader"))
        self.session.wait_for_text(PROMPT[-1])
        self.assertEqual(self.session.alerts(), [])
        self.exit_game(self.session.window_id())
        self.assertEqual(self.settings_bytes(), b"[StartUp]\nReader=JFW\n")
        with open(self.session.settings_path() + ".damaged", "rb") as aside:
            self.assertEqual(aside.read(), content)

    def test_an_unreadable_settings_file_is_reported_and_kept(self):
        session = self.session
        # As root nothing is unreadable by its permissions; a folder in the file's place is.
        os.makedirs(session.settings_path())
        session.launch()
        self.assertTrue(harness.wait_until(self.session.alerts, 10))
        reports = self.session.answer_alerts()
        window = session.window_id()
        self.assertTrue(any(r.endswith("; GetScreenReader()") and "Marivox.conf" in r
                            for r in reports), reports)
        self.assertTrue(os.path.isdir(session.settings_path()))
        self.exit_game(window)

    def test_a_settings_folder_that_cannot_be_written_is_reported_and_play_goes_on(self):
        session = self.session
        with open(os.path.join(session.dir, "config", "Marivox"), "w") as blocker:
            blocker.write("a file where the settings folder should be")
        session.launch()
        dialog = session.window_id("Screen Reader")
        session.keys("Return", window=dialog)
        self.assertTrue(harness.wait_until(self.session.alerts, 10))
        reports = self.session.answer_alerts()
        self.assertTrue(any(r.endswith("; SaveScreenReader()") for r in reports), reports)
        # The choice made still speaks for this run.
        session.wait_for_text(PROMPT[-1])
        self.exit_game(session.window_id())


class Files(Hostile):
    def test_a_missing_or_damaged_sound_is_reported_and_the_game_goes_on(self):
        self.session.program_copy(leave_out=("begin.wav",), damage=("sonar.wav",))
        self.session.launch()
        self.assertTrue(harness.wait_until(self.session.alerts, 10))
        reports = self.session.answer_alerts()
        window = self.session.window_id()  # the boxes bear the game's title too
        self.assertEqual(len(reports), 2, reports)
        self.assertTrue(reports[0].startswith("Error: 3002 ") and "begin.wav" in reports[0]
                        and reports[0].endswith(" in PlaySound()"), reports[0])
        self.assertTrue("sonar.wav" in reports[1] and reports[1].endswith(" in PlaySound()"))
        self.session.wait_for_text(PROMPT[-1])
        self.exit_game(window)

    def test_a_missing_help_document_is_said_in_the_help_window(self):
        self.session.program_copy(leave_out=("marvox.hlp",))
        self.start()
        self.session.keys("F1", window=self.window)
        self.session.window_id("Marivox Help", timeout=10)
        tree = "\n".join(self.session.accessible_tree())
        self.assertIn("text contents|The Marivox help could not be opened.", tree)
        self.session.keys("F2", window=self.window)
        self.session.wait_for_text(" You have sank  0 of my ships.  ")

    def test_a_help_viewer_that_cannot_start_is_reported_and_play_goes_on(self):
        self.session.program_copy(leave_out=("marivox-help",))
        self.start()
        self.session.keys("F1", window=self.window)
        self.assertTrue(harness.wait_until(self.session.alerts, 10))
        reports = self.session.answer_alerts()
        self.assertEqual(len(reports), 1, reports)
        self.assertRegex(reports[0], r"^The help viewer .*marivox-help could not be started"
                                     r" in RunHelp\(\)$")
        heard = len(self.session.texts())
        self.session.keys("F2", window=self.window)
        self.session.wait_for_text(" You have sank  0 of my ships.  ", after=heard)
        self.exit_game(self.window)


class Services(Hostile):
    def test_speech_service_dying_mid_game_is_reported_once_per_word_then_found_again(self):
        self.start()
        self.session.kill_speech()
        self.session.keys("F2", window=self.window)
        self.assertTrue(harness.wait_until(self.session.alerts, 10))
        reports = self.session.answer_alerts()
        self.assertTrue(reports and all("speech service" in r for r in reports), reports)
        self.session.start_speech()
        self.session.keys("F2", window=self.window)
        self.session.wait_for_text(" You have sank  0 of my ships.  ")
        self.assertEqual(self.session.alerts(), [])
        self.exit_game(self.window)

    def test_sound_server_dying_mid_sound_leaves_the_game_playing(self):
        self.start()
        self.session.kill_audio()  # the sonar is still playing
        self.session.keys("Return", window=self.window)
        harness.wait_until(lambda: any(t.startswith("A  1 was") or t.startswith(" You sank")
                                       for t in self.session.texts()), 10)
        self.session.wait_for_text("It is your turn and you are located at A  1", timeout=15)
        self.assertEqual(self.session.alerts(), [])
        self.exit_game(self.window)


if __name__ == "__main__":
    unittest.main()
