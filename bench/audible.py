# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Key to the first audible sample: what a player hears, not what a program hands over.

The game speaks through a private speech-dispatcher with Debian's espeak-ng module, which
plays into a private PulseAudio whose null sink's monitor is recorded, silence included.
Beside it, Orca reads the same moves on the same services (the game silent), as the anchor;
and with the choice "Orca", Orca itself says the game's words, handed over as announcements
where Qt can make them (6.8 on; on 6.4 the game speaks them through speech-dispatcher).

    /usr/bin/python3 bench/audible.py [keys]   the three kinds of arrow alone, as a table

Clocks: keys are injected through XTEST from this process, stamped with time.time() just
before the request and after the round trip that shows the X server took it; the midpoint
counts and half the gap is the key's error. The recording keeps its silence, so a sample's
place gives its time once the recording's start is known: the earliest bound that the
chunks arriving within a second of the key give (arrival less the sound the chunk holds).
Only nearby chunks count because the sink's clock drifts from ours by a few hundred parts
per million. The null sink mixes ahead of real time by up to its latency (2 ms, as the
recorder asks), so a sample may be placed up to that much early; a real sound card would
play it that much later. The error printed is the largest key error plus the sink's
configured latency, read from PulseAudio during play.
"""

import os
import re
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
                                "tests", "e2e"))
import harness  # noqa: E402
from Xlib import X, XK, display  # noqa: E402
from Xlib.ext import xtest  # noqa: E402

SPEECHD = os.path.join(harness.HERE, "speechd", "start-private-speechd")
LOUD = 300  # of 32767, about -40 dBFS: the idle null sink gives exact zeros
QUIET_S = 0.3  # this much silence ends an utterance
EARLY_S = 0.05  # searched before a key: never loud after QUIET_S of silence
RECORD_LATENCY_MS = 2  # the null sink mixes at most this far ahead of real time


class Audible:
    def __init__(self, stored_reader, orca=False):
        self.session = harness.Session(stored_reader=stored_reader, speech=False, audio=True)
        self.session.record_latency_ms = RECORD_LATENCY_MS
        self.session.__enter__()
        try:
            self._start_speech()
            if orca:
                self._start_orca()
        except BaseException:
            self.session.close()
            raise
        self.xdisplay = display.Display(self.session.env["DISPLAY"])
        self.errors = []  # half the gap around each key's injection, s
        self.sink_latencies = []  # s, read while speech plays

    def close(self):
        self.xdisplay.close()
        self.session.close()

    def _start_speech(self):
        workdir = os.path.join(self.session.dir, "speechd")
        out = subprocess.run([SPEECHD, workdir, "0", "espeak-ng"], capture_output=True,
                             text=True, check=True, env=self.session._base_env())
        values = dict(line.split("=", 1) for line in out.stdout.split())
        self.session.processes.append(("speech-dispatcher", harness._Pid(int(values["PID"]))))
        self.session.env["SPEECHD_ADDRESS"] = values["SPEECHD_ADDRESS"]
        # The server's first words after it starts are lost as its sound output opens; the
        # next ones are heard, or nothing here can be.
        for _ in range(2):
            said = time.time()
            subprocess.run(["spd-say", "--wait", "ready"], env=self.session._base_env(),
                           check=True, timeout=20)
        if self.next_sound(said) is None:
            raise RuntimeError("the speech server is not heard in the recording")
        self.wait_quiet()

    def _start_orca(self):
        if subprocess.run(["pgrep", "-u", str(os.getuid()), "-x", "orca"],
                          stdout=subprocess.DEVNULL).returncode == 0:
            raise RuntimeError("an Orca of this user is running; the anchor needs its own")
        self.session._spawn("orca", ["orca"], env=self.session._base_env(),
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        # "Screen reader on.", heard through to its end.
        if self.next_sound(time.time(), 30) is None:
            raise RuntimeError("Orca said nothing")
        self.wait_quiet()

    # -- the recording, on this process's clock -------------------------------------------

    def _began(self, around):
        """When the recording began, by the chunks that arrived within a second of `around`:
        the sink's clock drifts from ours by a few hundred parts per million."""
        bounds = [when - size / 2 / harness.SAMPLE_RATE for size, when in
                  list(self.session.arrivals) if abs(when - around) < 1]
        return min(bounds) if bounds else None

    def _samples(self, start):
        """The samples recorded from index `start` on."""
        recording = self.session.recording
        end = len(recording) // 2 * 2
        return memoryview(bytes(recording[max(0, start) * 2:end])).cast("h")

    def next_sound(self, after, timeout=5):
        """The time of the first loud sample heard after `after`, or None. The search starts
        a little before, the recording being quiet there, so that a sound the clocks place
        early shows as early rather than at `after`."""
        scanned = [None]  # samples before this index are known to be quiet

        def found():
            began = self._began(after)
            if began is None:
                return None
            first = scanned[0] if scanned[0] is not None else int(
                (after - EARLY_S - began) * harness.SAMPLE_RATE)
            samples = self._samples(first)
            for index, sample in enumerate(samples):
                if abs(sample) > LOUD:
                    return (began + (first + index) / harness.SAMPLE_RATE,)
            scanned[0] = first + len(samples)
            return None
        hit = harness.wait_until(found, timeout, 0.005)
        return hit[0] if hit else None

    def wait_quiet(self, timeout=20, seconds=QUIET_S):
        """Until the recording ends with `seconds` of silence."""
        def quiet():
            tail = self._samples(len(self.session.recording) // 2 -
                                 int(seconds * harness.SAMPLE_RATE))
            return len(tail) > 0 and max(map(abs, tail)) <= LOUD
        harness.wait_until(quiet, timeout, 0.02)

    # -- the player ----------------------------------------------------------------------

    def press(self, name):
        """Presses and releases a key; when the X server took the press."""
        code = self.xdisplay.keysym_to_keycode(XK.string_to_keysym(name))
        before = time.time()
        xtest.fake_input(self.xdisplay, X.KeyPress, code)
        self.xdisplay.sync()
        after = time.time()
        xtest.fake_input(self.xdisplay, X.KeyRelease, code)
        self.xdisplay.sync()
        self.errors.append((after - before) / 2)
        return (before + after) / 2

    def start(self):
        self.session.launch()
        self.window = window = self.session.window_id()
        # The opening: begin, sonar, then the prompt (or Orca taking in the window), whose
        # first words may come some time after the sounds, as the synthesiser starts.
        self.next_sound(self.session.started_at, 30)
        self.wait_quiet(seconds=2)
        self.session.give_focus(window)
        self.wait_quiet(seconds=2)
        # A first move there and back, unmeasured: the speech module's first words are slow.
        for name in ("Right", "Left"):
            self.next_sound(self.press(name))
            self.wait_quiet()

    def sink_latency(self):
        """The null sink's configured latency, s."""
        out = subprocess.run(["pactl", "list", "sinks"], capture_output=True, text=True,
                             env=self.session._base_env()).stdout
        return max([int(us) for us in re.findall(r"configured (\d+) usec", out)] or [0]) / 1e6

    def arrows(self, count):
        """Key to the first sample of what each arrow makes heard (ms), one at a time."""
        delays = []
        for index in range(count):
            name = "Right" if index // 8 % 2 == 0 else "Left"
            pressed = self.press(name)
            heard = self.next_sound(pressed)
            if heard is not None:
                delays.append((heard - pressed) * 1000)
            if index == 0:
                self.sink_latencies.append(self.sink_latency())
            self.wait_quiet()
        return delays

    def shots(self, count):
        """Enter to the first sample of its shot's sound (ms), a fresh cell each time, each
        turn heard out; a game that ends is answered with a new one."""
        delays, cell = [], 0
        while len(delays) < count:
            cell += 1
            row, col = divmod(cell % 81, 9)
            self.next_sound(self.press("Down" if col == 0 else
                                       ("Right" if row % 2 == 0 else "Left")))
            self.wait_quiet()
            pressed = self.press("Return")
            heard = self.next_sound(pressed)
            if heard is not None:
                delays.append((heard - pressed) * 1000)
            # The computer's turn: its announcement comes 2 s after the shot, its own shot
            # half a second later, then the reminder; a game over leaves a box.
            harness.wait_until(lambda: time.time() - pressed > 7, 10)
            self.wait_quiet(30)
            if self.session.alerts():
                self.session.answer_alerts()
                self.session.give_focus(self.window)  # as a window manager would
                cell = 0
                self.next_sound(time.time(), 30)
                self.wait_quiet(seconds=2)
        return delays


def measure(keys, shots):
    """{"game arrows", "orca arrows", "announced arrows", "shots", "error"}: ms lists and the
    clock error. Orca reads the moves itself under a choice that names no reader here."""
    results, errors, ahead = {}, [], []
    for reader, orca, work in (("JFW", False, lambda a: {"game arrows": a.arrows(keys),
                                                         "shots": a.shots(shots)}),
                               ("NVDA", True, lambda a: {"orca arrows": a.arrows(keys)}),
                               ("Orca", True, lambda a: {"announced arrows": a.arrows(keys)})):
        audible = Audible(reader, orca)
        try:
            audible.start()
            results.update(work(audible))
            errors += audible.errors
            ahead += audible.sink_latencies
        finally:
            audible.close()
    results["error"] = (max(errors) + max(ahead or [0])) * 1000 if errors else None
    return results


def main(keys):
    import statistics
    results = measure(keys, 0)
    print("Arrow: key to the first audible sample (ms); clock error %.1f ms" % results["error"])
    for kind in ("game arrows", "announced arrows", "orca arrows"):
        delays = sorted(results[kind])
        p99 = delays[min(len(delays) - 1, int(len(delays) * 0.99))] if delays else float("nan")
        print("  %-17s n=%3d  p50 %7.1f  p99 %7.1f" % (
            kind, len(delays), statistics.median(delays) if delays else float("nan"), p99))
    return 0


if __name__ == "__main__":
    sys.exit(main(int(sys.argv[1]) if len(sys.argv) > 1 else 100))
