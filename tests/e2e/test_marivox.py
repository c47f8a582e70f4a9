# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Marivox played as a blind player meets it: the real program in a private desktop session,
heard through a recording speech service and a recording sound server, read through the
accessibility bus. Nothing here knows where the ships are: outcomes are read from what the
game says. Delays are checked only from below (the computer never answers sooner than it
should), so a slow machine cannot fail a test, only a wrong program can.
"""

import os
import re
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import harness  # noqa: E402

PROMPT = [" press f 1 for help  ", " press f 2 for status  ",
          " it is your turn, and you are located at A 1 "]
CELL = r"[A-I]  [1-9]"
SHIPS = r"(air craft carrier|Battle ship|cruiser|destroyer|patrol boat|submarine)"
PLAYER_RESULT = re.compile(r"^%s was (a miss|a hit on my %s)  $|^ You sank my %s  $"
                           % (CELL, SHIPS, SHIPS))
TARGETING = re.compile(r"^It is my turn targeting (%s)$" % CELL)
COMPUTER_RESULT = re.compile(r"^%s was (a miss|a hit on your %s)  $|^ I sank your %s  $"
                             % (CELL, SHIPS, SHIPS))


class GameTest(unittest.TestCase):
    stored_reader = "JFW"
    session_options = {}

    def setUp(self):
        self.session = self.new_session()

    def new_session(self):
        session = harness.Session(stored_reader=self.stored_reader,
                                  **self.session_options).__enter__()
        self.addCleanup(session.close)
        return session

    def start(self):
        self.session.launch()
        self.window = self.session.window_id()
        self.session.wait_for_text(PROMPT[-1])

    def settings_text(self):
        with open(self.session.settings_path()) as conf:
            return conf.read()


class StartUp(GameTest):
    stored_reader = None

    def test_first_start_asks_for_the_reader_and_stores_the_choice(self):
        self.session.launch()
        dialog = self.session.window_id("Screen Reader")
        self.assertEqual(self.session.texts(), [])  # nothing speaks before the choice
        tree = "\n".join(self.session.accessible_tree())
        self.assertIn("list item|JAWS For Windows", tree)
        self.assertIn("list item|Window-Eyes", tree)
        self.session.keys("Return", window=dialog)
        self.session.wait_for_text(PROMPT[-1])
        self.assertEqual(self.session.texts()[:3], PROMPT)
        self.assertRegex(self.settings_text(), r"(?m)^Reader=JFW$")
        harness.wait_until(lambda: "sonar" in self.session.sounds_heard(), 5)
        self.assertEqual(self.session.sounds_heard()[:2], ["begin", "sonar"])


class StoredChoice(GameTest):
    def test_a_later_start_asks_nothing_and_prompts_once(self):
        self.start()
        self.session.keys("F2", window=self.window)
        self.session.wait_for_count(len(PROMPT) + 2)
        self.assertEqual(self.session.texts()[:len(PROMPT) + 1],
                         PROMPT + [" You have sank  0 of my ships.  "])
        tree = "\n".join(self.session.accessible_tree())
        self.assertNotIn("dialog|Screen Reader", tree)

    def test_cursor_moves_name_each_cell(self):
        self.start()
        # A key silences what is still being said, so each move is heard out before the next.
        for count, key in enumerate(["Down", "Right", "Right", "Up"], len(PROMPT) + 1):
            self.session.keys(key, window=self.window)
            self.session.wait_for_count(count)
        self.assertEqual(self.session.texts()[len(PROMPT):], ["B  1", "B  2", "B  3", "A  3"])

    def test_status_at_the_start_is_two_counts_of_nothing(self):
        self.start()
        self.session.keys("F2", window=self.window)
        self.session.wait_for_count(len(PROMPT) + 2)
        self.assertEqual(self.session.texts()[len(PROMPT):],
                         [" You have sank  0 of my ships.  ", " I have sank  0 of your ships.  "])


class TurnCycle(GameTest):
    def fire_and_hear(self, cell):
        """Fires at the cursor cell and returns (when, what) the game answered."""
        heard = len(self.session.texts())
        self.session.keys("Return", window=self.window)
        shot = harness.wait_until(lambda: self.session.spoken()[heard:], 10)
        self.assertTrue(shot, "no answer to the shot at " + cell)
        when, result = shot[0]
        self.assertRegex(result, PLAYER_RESULT)
        if not result.startswith(" You sank"):
            self.assertTrue(result.startswith(cell + " was "), result)
        return when, result

    def test_a_shot_and_the_computers_whole_turn(self):
        self.start()
        # Down the diagonal until a shot misses; every answer is checked on the way.
        for step in range(10):
            cell = "ABCDEFGHI"[step] + "  " + str(step + 1)
            if step > 0:
                self.session.keys("Down", "Right", window=self.window)
            self.session.wait_for_text(cell if step > 0 else PROMPT[-1])
            shot_time, result = self.fire_and_hear(cell)
            if result == cell + " was a miss  ":
                break
            self.session.wait_for_text("It is your turn and you are located at " + cell, 15)
        else:
            self.fail("ten hits in a row: the fleet cannot be laid that way")
        reminder = "It is your turn and you are located at " + cell
        announcement_time = harness.wait_until(
            lambda: next((t for t, s in self.session.spoken()
                          if t > shot_time and TARGETING.match(s)), None), 10)
        announcement = next(s for t, s in self.session.spoken()
                            if t > shot_time and TARGETING.match(s))
        target = TARGETING.match(announcement).group(1)
        self.assertGreaterEqual(announcement_time - shot_time, 1.9)

        # A miss sounds the same from either side: the answer is what follows the announcement.
        answer = harness.wait_until(
            lambda: next(((t, s) for t, s in self.session.spoken()
                          if t > announcement_time and COMPUTER_RESULT.match(s)), None), 10)
        self.assertGreaterEqual(answer[0] - announcement_time, 2.4)
        if not answer[1].startswith(" I sank"):
            self.assertTrue(answer[1].startswith(target + " was "), answer[1])

        after_shot = self.session.texts().index(result)
        reminder_time = self.session.wait_for_text(reminder, 10, after=after_shot)
        self.assertGreaterEqual(reminder_time - answer[0], 1.9)
        texts = self.session.texts()
        self.assertEqual(texts[texts.index(announcement) + 1], answer[1])
        self.assertLess(texts.index(announcement), texts.index(reminder))

        sounds = self.session.sounds_heard()
        self.assertEqual(sounds[:3], ["begin", "sonar", "shoot"])

    @staticmethod
    def computers_answer(spoken):
        """When the computer's shot was answered, after its announcement; None before."""
        announced = next((i for i, (_, s) in enumerate(spoken) if TARGETING.match(s)), None)
        if announced is None:
            return None
        return next((t for t, s in spoken[announced + 1:] if COMPUTER_RESULT.match(s)), None)

    def test_a_key_in_the_reminder_window_drops_the_reminder(self):
        self.start()
        self.session.keys("Return", window=self.window)
        # A miss sounds the same from either side: the computer's is after its announcement.
        fired = harness.wait_until(lambda: self.computers_answer(self.session.spoken()), 15)
        self.assertTrue(fired, self.session.texts())
        # Within the two seconds before the reminder.
        self.session.keys("shift", window=self.window)
        self.session.wait_past(fired, 4)
        self.session.keys("F2", window=self.window)
        self.session.wait_for_text(" You have sank  0 of my ships.  ")
        self.assertFalse(any(s.startswith("It is your turn and") for s in self.session.texts()))


class Menus(GameTest):
    def test_new_game_answered_no_then_yes(self):
        self.start()
        self.session.keys("ctrl+n", window=self.window)
        self.session.wait_for_alert("There is already a game in progress.")
        self.session.keys("Escape")
        self.session.wait_for_text("It is your turn and you are located at A  1")

        self.session.keys("ctrl+n", window=self.window)
        self.session.wait_for_alert("There is already a game in progress.")
        heard = len(self.session.texts())
        self.session.keys("Return")
        self.session.wait_for_text(PROMPT[0], after=heard)

    def test_exit_answered_no_keeps_playing_and_yes_ends_with_the_end_sound(self):
        self.start()
        self.session.keys("alt+g", "x", window=self.window)
        self.session.wait_for_alert("There is a game in progress.")
        self.session.keys("Escape")
        self.session.wait_for_text("It is your turn and you are located at A  1")
        self.session.keys("alt+g", "x", window=self.window)
        self.session.wait_for_alert("There is a game in progress.")
        self.session.keys("Return")
        self.assertTrue(self.session.game_ended(10))
        self.assertEqual(self.session.game.returncode, 0)
        harness.wait_until(lambda: "end" in self.session.sounds_heard(), 5)
        self.assertEqual(self.session.sounds_heard()[-1], "end")

    def test_closing_the_window_asks_like_exit(self):
        self.start()
        self.session.close_window(self.window)
        self.session.wait_for_alert("There is a game in progress.")
        self.session.keys("Return")
        self.assertTrue(self.session.game_ended(10))

    def test_about_box_and_help_window_open_and_can_be_read(self):
        self.start()
        self.session.keys("alt+h", "a", window=self.window)
        about = self.session.window_id("About Marivox", timeout=5)
        tree = "\n".join(self.session.accessible_tree())
        self.assertIn("label|About Marivox", tree)
        self.assertIn("label|Version 1.0.0", tree)
        self.session.keys("Escape", window=about)
        harness.wait_until(lambda: "Version 1.0.0" not in "\n".join(self.session.accessible_tree()),
                           5)

        self.session.keys("F1", window=self.window)
        self.session.window_id("Marivox Help", timeout=10)
        self.session.keys("F2", window=self.window)
        self.session.wait_for_text(" You have sank  0 of my ships.  ")


class NoServices(GameTest):
    """No speech service and no sound server: the game says so in a box and goes on."""

    def setUp(self):
        self.session = harness.Session(stored_reader="JFW", speech=False, audio=False)
        self.session.env["SPEECHD_ADDRESS"] = "unix_socket:" + os.path.join(
            self.session.dir, "no-speech.sock")
        self.session.env["PULSE_SERVER"] = "unix:" + os.path.join(self.session.dir, "no-pulse")
        self.session.__enter__()
        self.addCleanup(self.session.close)

    def test_starts_reports_the_speech_failure_plays_and_exits(self):
        self.session.launch()
        window = self.session.window_id()
        self.assertTrue(harness.wait_until(self.session.alerts, 15))
        # The opening prompt: speech stopped once, three lines spoken, each failure told once.
        reports = self.session.answer_alerts()
        self.assertEqual([line.rsplit(";", 1)[-1] for line in reports],
                         [" StopSpeech()", " Speak()", " Speak()", " Speak()"])
        self.assertIn("speech service", reports[0])
        # A cursor move: the key handler, the move and the cell's speech each stop speech
        # first, then the cell is spoken; each failure is told once.
        self.session.keys("Down", window=window)
        self.assertEqual([line.rsplit(";", 1)[-1] for line in self.session.answer_alerts()],
                         [" StopSpeech()", " StopSpeech()", " StopSpeech()", " Speak()"])
        self.session.close_window(window)
        self.assertTrue(harness.wait_until(
            lambda: any("exit the program" in line for line in self.session.alerts()), 10))
        self.session.keys("Return")
        self.assertTrue(self.session.game_ended(15))
        self.assertEqual(self.session.game.returncode, 0)


class WithOrca(GameTest):
    """Orca runs beside the game, on the same speech service. The game speaks a cell, with
    what is known of it, the moment the cursor lands there; Orca then reads the cell's
    accessible name (the whole row when the row changes). Neither cuts the other off."""

    session_options = {"orca": True}

    def said_after(self, count):
        return self.session.texts()[count:]

    def test_orca_reads_the_grid_after_the_game_and_reads_boxes(self):
        self.start()
        self.session.keys("Right", window=self.window)  # focus is on the board now
        self.session.wait_for_text("A  2")
        # Orca takes in the window and reads the row it landed in, to its last cell.
        self.session.wait_for_text("A 9.")
        heard = len(self.session.texts())
        self.session.keys("Right", window=self.window)
        orca_cell = lambda said: [s for s in said if s.endswith("A 3.")]  # noqa: E731
        harness.wait_until(lambda: orca_cell(self.said_after(heard)), 10)
        said = self.said_after(heard)
        # The game first; then Orca, once, with the cell's accessible name (after its column
        # header when Orca has had time to take in the change of column).
        self.assertEqual(len(orca_cell(said)), 1, said)
        self.assertLess(said.index("A  3"), said.index(orca_cell(said)[0]))

        heard = len(self.session.texts())
        self.session.keys("Return", window=self.window)
        result = harness.wait_until(
            lambda: [s for s in self.said_after(heard) if s.startswith("A  3 was ")], 10)
        self.assertTrue(result)
        mark = "miss" if "miss" in result[0] else "hit"
        self.session.wait_for_text("It is your turn and you are located at A  3", after=heard)
        heard = len(self.session.texts())
        self.session.keys("Left", window=self.window)
        harness.wait_until(lambda: [s for s in self.said_after(heard) if s.endswith("A 2.")], 10)
        heard = len(self.session.texts())
        self.session.keys("Right", window=self.window)
        harness.wait_until(lambda: any(("A 3, " + mark) in s for s in self.said_after(heard)),
                           10)
        self.assertTrue(any(("A 3, " + mark) in s for s in self.said_after(heard)),
                        self.said_after(heard))

        heard = len(self.session.texts())
        self.session.keys("ctrl+n", window=self.window)
        harness.wait_until(lambda: any("There is already a game in progress" in s
                                       for s in self.said_after(heard)), 10)
        self.session.keys("Escape")
        self.session.wait_for_text("It is your turn and you are located at A  3", after=heard)
        self.assertIsNone(self.session.orca.poll())  # Orca is still running
        self.assertIsNone(self.session.game.poll())


if __name__ == "__main__":
    unittest.main()
