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
import time
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
BOARD_READ = re.compile(r"table with 9 rows 9 columns|^[A-I] [1-9]\.$")
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

    def settings_bytes(self):
        with open(self.session.settings_path(), "rb") as conf:
            return conf.read()

    def exit_game(self, window):
        """Closes the window as its close button does and answers Yes: the game ends well."""
        self.session.close_window(window)
        if not harness.wait_until(lambda: any("exit the program" in text
                                              for text in self.session.alerts()), 10):
            self.fail("no exit question after closing window %s; heard: %r; %s"
                      % (window, self.session.texts(), self.session.state()))
        self.session.keys("Return")
        if not self.session.game_ended(15):
            self.fail("the game did not end; boxes open: %r, heard: %r"
                      % (self.session.alerts(), self.session.texts()))
        self.assertEqual(self.session.game.returncode, 0)


class StartUp(GameTest):
    stored_reader = None

    def test_first_start_asks_for_the_reader_and_stores_the_choice(self):
        self.session.launch()
        dialog = self.session.window_id("Screen Reader")
        self.assertEqual(self.session.texts(), [])  # nothing speaks before the choice
        # Escape is refused like no choice: one key must not leave the game silent for good.
        self.session.keys("Escape", window=dialog)
        self.session.wait_for_alert("You must choose the type of screen reader software")
        self.session.answer_alerts()
        tree = "\n".join(self.session.accessible_tree())
        self.assertIn("list item|JAWS For Windows", tree)
        self.assertIn("list item|Window-Eyes", tree)
        self.session.keys("Return", window=dialog)
        self.session.wait_for_text(PROMPT[-1])
        self.assertEqual(self.session.texts()[:3], PROMPT)
        self.assertRegex(self.settings_bytes(), rb"(?m)^Reader=JFW$")
        harness.wait_until(lambda: "sonar" in self.session.sounds_heard(), 5)
        self.assertEqual(self.session.sounds_heard()[:2], ["begin", "sonar"])


class StoredChoice(GameTest):
    def test_a_later_start_asks_nothing_prompts_once_names_each_move_and_the_score(self):
        self.start()
        self.assertNotIn("dialog|Screen Reader", "\n".join(self.session.accessible_tree()))
        # A key silences what is still being said, so each move is heard out before the next.
        for count, key in enumerate(["Down", "Right", "Right", "Up", "F2"], len(PROMPT) + 1):
            self.session.keys(key, window=self.window)
            self.session.wait_for_count(count)
        self.session.wait_for_count(len(PROMPT) + 6)
        self.assertEqual(self.session.texts(), PROMPT + ["B  1", "B  2", "B  3", "A  3"] + [
            " You have sank  0 of my ships.  ", " I have sank  0 of your ships.  "])


class TurnCycle(GameTest):
    def fire_and_hear(self, cell):
        """Fires at the cursor cell; when it fired (at the latest) and what the game answered,
        once the shot's sounds had begun."""
        heard = len(self.session.texts())
        when = time.time() - self.session.started_at
        self.session.keys("Return", window=self.window)
        shot = harness.wait_until(lambda: self.session.spoken()[heard:], 10)
        self.assertTrue(shot, "no answer to the shot at " + cell)
        result = shot[0][1]
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
        announcement_time, announcement = harness.wait_until(
            lambda: next(((t, s) for t, s in self.session.spoken()
                          if t > shot_time and TARGETING.match(s)), None), 10)
        target = TARGETING.match(announcement).group(1)
        self.assertGreaterEqual(announcement_time - shot_time, 1.9)

        # A miss sounds the same from either side: the answer is what follows the announcement.
        answer = harness.wait_until(
            lambda: next(((t, s) for t, s in self.session.spoken()
                          if t > announcement_time and COMPUTER_RESULT.match(s)), None), 10)
        # The turn's timers count from the shot; what is said may wait for sounds, never less.
        self.assertGreaterEqual(answer[0] - shot_time, 4.4)
        if not answer[1].startswith(" I sank"):
            self.assertTrue(answer[1].startswith(target + " was "), answer[1])

        after_shot = self.session.texts().index(result)
        reminder_time = self.session.wait_for_text(reminder, 10, after=after_shot)
        self.assertGreaterEqual(reminder_time - shot_time, 6.4)
        texts = self.session.texts()
        self.assertEqual(texts[texts.index(announcement) + 1], answer[1])
        self.assertLess(texts.index(announcement), texts.index(reminder))

        sounds = self.session.sounds_heard()
        self.assertEqual(sounds[:3], ["begin", "sonar", "shoot"])

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


class NoServices(GameTest):
    """No speech service and no sound server: the game says so in a box and goes on."""

    session_options = {"speech": False, "audio": False}

    def setUp(self):
        super().setUp()
        self.session.env["SPEECHD_ADDRESS"] = "unix_socket:" + os.path.join(
            self.session.dir, "no-speech.sock")
        self.session.env["PULSE_SERVER"] = "unix:" + os.path.join(self.session.dir, "no-pulse")

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
        self.exit_game(window)


class SoundsThenWords(GameTest):
    """Words said after sounds wait until the last of them is heard (a whole game's in
    test_last_shot.py); a key drops those still waiting."""

    def test_a_key_drops_the_words_waiting_behind_a_sound(self):
        self.session.launch()
        self.window = self.session.window_id()
        began = harness.wait_until(lambda: dict((n, t) for t, n in self.session.sound_times())
                                   .get("begin"), 10)
        # The prompt is said 0.1 s into the game and waits for the sonar, a second later.
        self.session.wait_past(began, 0.5)
        pressed = time.time() - self.session.started_at
        self.session.keys("Right", window=self.window)
        self.session.wait_for_text("A  2")
        sonar = harness.wait_until(lambda: dict((n, t) for t, n in self.session.sound_times())
                                   .get("sonar"), 5)
        if pressed > sonar - 0.2:
            self.skipTest("the key came after the sonar had begun: the machine is too slow")
        self.assertEqual([s for s in self.session.texts() if s in PROMPT], [])


class OrcaBeside(GameTest):
    """Orca runs beside the game, on the same speech service."""

    session_options = {"orca": True}

    def orca_reads(self, fragment, heard=0, told=0, timeout=15):
        """Orca says the fragment, or at least hands it to speech (after the first `heard`
        utterances and `told` of Orca's outputs)."""
        self.assertTrue(harness.wait_until(lambda: any(
            fragment in s for s in self.session.texts()[heard:] +
            self.session.orca_outputs()[told:]), timeout), self.session.texts())

    def board_read(self, heard):
        """Whether Orca has told of the board since: Orca 43 names the table, 48 reads the
        row the cursor is in."""
        return any(BOARD_READ.search(s) for s in self.session.texts()[heard:])

    def board_taken_back(self, heard):
        self.session.give_focus(self.window)
        return harness.wait_until(lambda: self.board_read(heard), 2)

    def focus_the_board(self):
        """Orca takes in the window and the board when they get the focus, and is then quiet."""
        heard = len(self.session.texts())
        self.session.keys("shift", window=self.window)
        self.assertTrue(harness.wait_until(lambda: self.board_read(heard), 15),
                        self.session.texts())
        self.session.wait_quiet(1)


class WithOrca(OrcaBeside):
    """While the game speaks for itself, the board does not also announce moves to Orca,
    which still reads what the game does not voice."""

    def test_each_move_is_heard_once_from_the_game_and_orca_reads_the_rest(self):
        self.start()
        self.focus_the_board()
        heard, row, col, cells = len(self.session.texts()), 1, 1, []
        for count, key in enumerate(["Right"] * 8 + ["Down"] + ["Left"] * 8 + ["Down"] * 3,
                                    heard + 1):
            row, col = row + (key == "Down"), col + (key == "Right") - (key == "Left")
            cells.append("ABCDEFGHI"[row - 1] + "  " + str(col))
            self.session.keys(key, window=self.window)  # each heard out: a key silences
            self.session.wait_for_count(count)
        self.session.keys("Return", window=self.window)
        result = harness.wait_until(lambda: [s for s in self.session.texts()[heard:]
                                             if PLAYER_RESULT.match(s)], 10)
        self.assertTrue(result, self.session.texts()[heard:])
        said = self.session.texts()[heard:]
        # Up to the shot's result only the game spoke; Orca at most echoed the Enter key.
        self.assertEqual([s for s in said[:said.index(result[0])] if s != "return "], cells)
        # Asked, the board still says where its cursor is and what the cell shows.
        focus = "table cell|%s %d, " % ("ABCDEFGHI"[row - 1], col)
        self.assertTrue(harness.wait_until(
            lambda: [f for f in self.session.focused() if f.startswith(focus)], 10),
            self.session.focused())

        for keys, fragment, answer in ((["ctrl+n"], "There is already a game", "Escape"),
                                       (["alt+g", "s"], "Screen Reader dialog", "Return"),
                                       (["alt+h", "a"], "About Marivox", "Escape")):
            heard, told = len(self.session.texts()), len(self.session.orca_outputs())
            self.session.keys(*keys, window=self.window)
            self.orca_reads(fragment, heard, told)
            heard = len(self.session.texts())
            self.session.keys(answer)
            # With no window manager, the test gives the game window the focus back, as one
            # would once the box has gone, and sends the next command when Orca tells of the
            # board again.
            self.assertTrue(harness.wait_until(lambda: self.board_taken_back(heard), 20),
                            self.session.texts()[heard:])
        self.assertIsNone(self.session.orca.poll())  # Orca is still running
        self.assertIsNone(self.session.game.poll())


class OrcaAlone(OrcaBeside):
    """A choice that names no reader here (one made on Windows) leaves the reading to Orca:
    the board announces each move as any table does, and the game says nothing of its own."""

    stored_reader = "NVDA"

    def test_orca_reads_each_move_and_the_game_is_silent(self):
        self.session.launch()
        self.window = self.session.window_id()
        self.focus_the_board()
        self.session.keys("Right", window=self.window)
        self.orca_reads("A 9.")  # Orca reads the row it lands in, to its end
        heard = len(self.session.texts())
        self.session.keys("Right", window=self.window)
        self.orca_reads("A 3.", heard)
        self.assertFalse([s for s in self.session.texts() if re.match(CELL, s)])


if __name__ == "__main__":
    unittest.main()
