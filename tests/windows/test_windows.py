# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Windows game played by ear under Wine, in the same private session as on Linux (Xvfb,
a recording PulseAudio, which Wine plays into): the real marivox.exe, with stand-ins for the
screen readers (JAWS's library, the automation objects, NVDA's controller) that write down
every call they get. What the windows hold is read as a screen reader would, by a small
Windows program of the tests' own (readwindows.exe)."""

import os
import re
import subprocess
import sys
import time
import unittest
import zipfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(os.path.dirname(HERE), "e2e"))
import harness  # noqa: E402

BUILD = harness.BUILD
STANDINS = os.environ.get("MARIVOX_STANDINS", os.path.join(BUILD, "tests", "windows",
                                                          "standins"))
PROMPT = [" press f 1 for help  ", " press f 2 for status  ",
          " it is your turn, and you are located at A 1 "]
TARGETING = re.compile(r"^It is my turn targeting [A-I]  [1-9]$")
SETTING = r"HKCU\Software\Marivox\StartUp"
STATUS = [" You have sank  0 of my ships.  ", " I have sank  0 of your ships.  "]
RECORDER_CLASS = "{6D1C2B7E-3F0A-4E59-9C1D-8A2B5E7F4C31}"
CLASSES = r"HKLM\Software\Classes"


def wine_path(path):
    return "Z:" + path.replace("/", "\\")


class WindowsGame(unittest.TestCase):
    stored_reader = "JFW"
    with_standins = True
    screen = "1024x768x24"
    seed = None

    def setUp(self):
        self.session = harness.Session(stored_reader=None, speech=False, launcher=["wine"],
                                       program=os.path.join(BUILD, "marivox.exe"),
                                       screen=self.screen, seed=self.seed)
        # The stand-ins' log is read as the speech service's, each text "<call>|<text>".
        log = self.session.spoken_log = os.path.join(self.session.dir, "standin.log")
        self.session.env.update({
            "WINEPREFIX": os.environ["WINEPREFIX"], "WINEDEBUG": "-all",
            "WINEDLLOVERRIDES": "mscoree,mshtml=", "MARIVOX_STANDIN_LOG": wine_path(log)})
        if self.with_standins:
            self.session.env["WINEPATH"] = wine_path(STANDINS)
        self.session.__enter__()
        self.addCleanup(self.session.close)
        self.wine("reg", "delete", r"HKCU\Software\Marivox", "/f")
        # Left by an earlier test (the session's end stops Wine before it saves an undoing),
        # JAWS's object would be chosen over its library.
        self.wine("reg", "delete", CLASSES + r"\FreedomSci.JawsApi", "/f")
        if self.stored_reader is not None:
            self.wine("reg", "add", SETTING, "/v", "Reader", "/d", self.stored_reader, "/f")

    def wine(self, *argv):
        return subprocess.run(["wine", *argv], env=self.session._base_env(), capture_output=True,
                              text=True, timeout=120).stdout

    def start(self):
        self.session.launch()
        self.window = self.session.window_id(timeout=60)

    def said(self):
        """Calls to the screen reader so far: (seconds since the game started, call, text)."""
        return [(stamp, *said.split("|", 1)) for stamp, said in self.session.spoken()]

    def texts(self, call="JFWSayString"):
        return [text for _, made, text in self.said() if made == call]

    def wait_for_text(self, text, call="JFWSayString", timeout=20, after=0):
        return self.session.wait_for_text(call + "|" + text, timeout, after)

    def windows(self):
        """What readwindows.exe finds on the desktop, as lines."""
        return self.wine(os.path.join(STANDINS, "readwindows.exe")).splitlines()

    def showing(self, fragment):
        return any(fragment in line for line in self.windows())

    def wait_for_window(self, fragment, timeout=20):
        self.assertTrue(harness.wait_until(lambda: self.showing(fragment), timeout, 0.3),
                        self.windows())

    def keys(self, *names, window=None):
        self.session.keys(*names, window=window or self.window)

    def register(self, prog_id):
        """The automation stand-in serves `prog_id` from now on."""
        server = CLASSES + r"\CLSID" + "\\" + RECORDER_CLASS + r"\InprocServer32"
        self.wine("reg", "add", server, "/ve", "/d",
                  wine_path(os.path.join(STANDINS, "automation_standin.dll")), "/f")
        self.wine("reg", "add", server, "/v", "ThreadingModel", "/d", "Apartment", "/f")
        self.wine("reg", "add", CLASSES + "\\" + prog_id + r"\CLSID", "/ve", "/d", RECORDER_CLASS,
                  "/f")

    def serve_nvda(self):
        """Starts the NVDA stand-in, listening once this returns; returns what stops it."""
        nvda = subprocess.Popen(["wine", os.path.join(STANDINS, "nvda_standin.exe")],
                                env=self.session._base_env(), stdin=subprocess.PIPE,
                                stdout=subprocess.PIPE, text=True)
        self.assertEqual(nvda.stdout.readline(), "ready\n")

        def stop():
            nvda.stdin.close()
            nvda.wait(30)
        self.addCleanup(lambda: nvda.poll() is not None or stop())
        return stop


class FirstStart(WindowsGame):
    stored_reader = None

    def test_the_dialog_asks_ok_stores_jfw_and_the_prompt_follows_the_sounds(self):
        self.start()
        self.wait_for_window("window|Screen Reader")
        shown = self.windows()
        self.assertIn("item|JAWS For Windows|selected", shown)
        self.assertIn("item|Window-Eyes|", shown)
        self.assertEqual(self.said(), [])  # nothing speaks before the choice
        self.keys("Return", window=self.session.window_id("Screen Reader"))
        prompted = self.wait_for_text(PROMPT[-1])
        self.assertEqual(self.texts(), PROMPT)
        self.assertRegex(self.wine("reg", "query", SETTING, "/v", "Reader"), r"Reader\s+REG_SZ\s+JFW")
        # Wine may convert the samples on their way (Wine 10 does), so the sounds are known
        # by the shape of their loudness, not their exact samples, once the sonar (two
        # seconds, begun when the prompt was released) has played whole.
        self.session.wait_past(prompted, 2.5)
        sounds = self.session.sound_times_by_shape()[:2]
        self.assertEqual([name for _, name in sounds], ["begin", "sonar"])
        self.assertGreaterEqual(prompted, sounds[1][0] - 0.02 - harness.STEP)


class Played(WindowsGame):
    def test_a_shot_the_computers_turn_a_double_click_and_the_boxes(self):
        self.start()
        self.wait_for_text(PROMPT[-1])
        heard, fired = len(self.said()), time.time() - self.session.started_at
        self.keys("Return")
        shot = harness.wait_until(lambda: [(t, s) for t, c, s in self.said()[heard:]
                                           if s.startswith("A  1 was ") or "You sank" in s], 10)
        self.assertTrue(shot, self.said()[heard:])
        aimed = harness.wait_until(lambda: [(t, s) for t, c, s in self.said()[heard:]
                                            if TARGETING.match(s)], 10)
        self.assertTrue(aimed, self.said()[heard:])
        self.assertGreaterEqual(aimed[0][0] - fired, 1.9)
        answer = harness.wait_until(lambda: [t for t, c, s in self.said()[heard:]
                                             if t > aimed[0][0] and (" was " in s or " sank " in s)],
                                    10)
        self.assertTrue(answer, self.said()[heard:])
        # The turn's timers count from the shot; what is said may wait for sounds, never less.
        self.assertGreaterEqual(answer[0] - fired, 4.4)

        # A double click in the middle of the board, in the player's turn again: one shot.
        board = [int(n) for line in self.windows() if line.startswith("board|")
                 for n in line[6:].split()]
        self.session.mouse_clicks((board[0] + board[2]) // 2, (board[1] + board[3]) // 2, 2)
        harness.wait_until(lambda: [s for t, c, s in self.said()[heard:]
                                    if t > answer[0] and re.match(r"[A-I]  \d was ", s)], 10)
        time.sleep(1)  # a second shot would have been said by now
        self.assertEqual(len([s for t, c, s in self.said()[heard:] if t > answer[0] and
                              re.match(r"[A-I]  \d was ", s)]), 1, self.said()[heard:])

        self.keys("alt+h", "a")
        self.wait_for_window("text|Version 1.0.0")
        self.assertTrue(self.showing("window|About Marivox") and self.showing("button|OK"))
        self.keys("Escape", window=self.session.window_id("About Marivox"))
        self.assertTrue(harness.wait_until(lambda: not self.showing("About Marivox"), 10, 0.3))
        self.keys("ctrl+n")
        self.wait_for_window("text|There is already a game in progress.  Are you sure")
        self.keys("n", window=self.session.window_id())  # the box, taking the keys
        self.assertTrue(harness.wait_until(
            lambda: not self.showing("There is already a game in progress."), 10, 0.3))
        self.keys("alt+g", "x")
        self.wait_for_window("text|There is a game in progress.")
        self.keys("Return", window=self.session.window_id())
        self.assertTrue(self.session.game_ended(20), self.session.state())


class MissingReader(WindowsGame):
    with_standins = False

    def test_the_failure_is_reported_and_the_game_goes_on(self):
        self.start()
        self.wait_for_window("button|OK", 30)
        reports = [line for line in self.windows() if line.startswith("text|")]
        self.assertTrue(any("jfwapi.dll" in line and line.endswith(" StopSpeech()")
                            for line in reports), reports)
        for _ in range(4):  # stop, then the three lines of the prompt, each told once
            self.keys("Return", window=self.session.window_id())
            harness.wait_until(lambda: not self.showing("button|OK"), 3, 0.3)
        # The reports' own words, held behind the opening sounds, fail untold.
        self.assertFalse(harness.wait_until(lambda: self.showing("button|OK"), 2, 0.3),
                         self.windows())
        self.assertIsNone(self.session.game.poll())
        self.assertIn("window|Marivox", self.windows())


def one_stop_a_run(heard):
    """How many stops a key makes is the game's; the reader hears a run of them as one."""
    return [h for i, h in enumerate(heard) if h is not None or i == 0 or heard[i - 1] is not None]


class ByEar:
    """A reader heard through its own calls. `STOP` is its stop call, `SAY` the name of its
    say call (the text follows), `braille` the call that shows a message, where it has one."""
    braille = None

    def heard(self):
        """What the reader was asked, as None for a stop and each text said. Every call must be
        one of the reader's, and each text's braille all that was said since the last stop."""
        calls = [(call, text) for _, call, text in self.said()]
        heard, said = [], []
        while calls:
            call, text = calls.pop(0)
            if (call, text) == self.STOP:
                heard.append(None)
                said = []
                continue
            self.assertEqual(call, self.SAY, self.said())
            said += [text.strip(" ")] if text.strip(" ") else []
            if self.braille:
                if not calls:
                    break  # its braille still to come
                self.assertEqual(calls.pop(0), self.braille(" ".join(said)), self.said())
            heard.append(text)
        return heard

    def await_heard(self, key, expected):
        """Presses `key` and waits to hear `expected` (a run of stops heard as one)."""
        before = len(self.heard())
        self.keys(key)
        since = lambda: one_stop_a_run(self.heard()[before:])
        harness.wait_until(lambda: len(since()) >= len(expected), 10)
        self.assertEqual(since(), expected)

    def test_the_prompt_a_move_status_and_a_shot_are_heard(self):
        self.start()
        self.assertTrue(harness.wait_until(lambda: len(self.heard()) >= 4, 30), self.said())
        self.assertEqual(self.heard(), [None] + PROMPT)
        self.await_heard("Right", [None, "A  2"])
        self.await_heard("F2", [None] + STATUS)
        before = len(self.heard())
        self.keys("Return")
        result = harness.wait_until(lambda: next((i for i, h in enumerate(self.heard()) if
                                                  i >= before and h and h.startswith("A  2 was ")),
                                                 None), 10)
        self.assertIsNotNone(result, self.said())
        self.assertEqual(set(self.heard()[before:result]), {None})


class JawsLibrary(ByEar, WindowsGame):
    STOP, SAY = ("JFWStopSpeech", ""), "JFWSayString"


class WindowEyes(ByEar, WindowsGame):
    stored_reader = "WE"
    STOP, SAY = ("Silence", ""), "SpeakString"

    def setUp(self):
        super().setUp()
        self.register("GWSpeak.Speak")


class JawsObject(ByEar, WindowsGame):
    with_standins = False  # no jfwapi.dll on the path
    STOP, SAY = ("StopSpeech", ""), "SayString false"

    def braille(self, message):
        return "RunFunction", 'BrailleString("%s")' % message.replace('"', "'")

    def setUp(self):
        super().setUp()
        self.register("FreedomSci.JawsApi")


class Nvda(ByEar, WindowsGame):
    stored_reader = "NVDA"
    STOP, SAY = ("cancelSpeech", ""), "speakText"

    def braille(self, message):
        return "brailleMessage", message

    def setUp(self):
        super().setUp()
        self.serve_nvda()


class WindowsVoices(ByEar, WindowsGame):
    stored_reader = "SAPI"
    STOP, SAY = ("Speak 3", ""), "Speak 17"  # stopped by a purge, said asynchronously as text

    def setUp(self):
        super().setUp()
        self.register("SAPI.SpVoice")


class NvdaOutage(WindowsGame):
    stored_reader = "NVDA"

    def test_each_outage_is_reported_once_and_play_goes_on(self):
        self.start()
        self.wait_for_window("button|OK", 30)
        reports = [line for line in self.windows() if "could not be reached" in line]
        self.assertEqual(len(reports), 1, reports)
        self.assertIn("NVDA could not be reached: it is not running", reports[0])
        self.assertTrue(reports[0].endswith(" StopSpeech()"), reports)
        self.keys("Return", window=self.session.window_id())
        self.keys("Right", "Right")  # to A 3, unheard and unreported
        self.assertFalse(harness.wait_until(lambda: self.showing("button|OK"), 3, 0.3),
                         self.windows())
        stop = self.serve_nvda()
        self.keys("Right")
        self.wait_for_text("A  4", call="speakText")
        stop()
        self.keys("Left")
        self.wait_for_window("button|OK")
        self.assertIsNone(self.session.game.poll())


class Package(WindowsGame):
    stored_reader = None

    def test_the_zip_and_the_installer_hold_the_program_folder(self):
        subprocess.run(["cpack", "-C", "RelWithDebInfo"], cwd=BUILD, check=True,
                       capture_output=True)
        name = "marivox-1.0.0-windows-x86_64"
        folder = ["marivox.exe", "marvox.hlp", "marvox.htm", "LICENSE.txt"] + [
            sound + ".wav" for sound in harness.SOUNDS]
        with zipfile.ZipFile(os.path.join(BUILD, name + ".zip")) as package:
            self.assertEqual(sorted(package.namelist()),
                             sorted(name + "/" + file for file in folder))
        self.wine(os.path.join(BUILD, name + ".exe"), "/S")
        drive = os.path.join(os.environ["WINEPREFIX"], "drive_c")
        installed = os.path.join(drive, "Program Files", "Marivox")
        self.assertTrue(all(os.path.exists(os.path.join(installed, file)) for file in folder),
                        os.listdir(installed))
        menu = subprocess.run(["find", drive, "-name", "Marivox.lnk"], capture_output=True,
                              text=True).stdout
        self.assertIn("Start Menu", menu)
        self.wine(os.path.join(installed, "Uninstall.exe"), "/S", "_?=" + wine_path(installed))
        self.assertFalse(os.path.exists(os.path.join(installed, "marivox.exe")))


if __name__ == "__main__":
    unittest.main()
