# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the player of a private session hears: the speech service's log of every utterance
(and Orca's and the voices'), and a recording of the sound server's output in which our
sounds are found and timed."""

import array
import functools
import os
import re
import subprocess
import threading
import time
import wave

HERE = os.path.dirname(os.path.abspath(__file__))
SAMPLE_RATE = 44100
# The game's own list of its sounds, by the name before ".wav".
with open(os.path.join(HERE, "..", "..", "src", "speech", "SoundFiles.h")) as _list:
    SOUNDS = re.findall(r'Sound::\w+, "\\\\(\w+)\.wav"', _list.read())


class SessionError(RuntimeError):
    pass


def wait_until(condition, timeout, interval=0.02):
    deadline = time.monotonic() + timeout
    while time.monotonic() < deadline:
        value = condition()
        if value:
            return value
        time.sleep(interval)
    return condition()


class Hearing:
    """The ears of harness.Session, which starts the services and the game."""

    def _start_audio(self):
        socket = os.path.join(self.dir, "pulse.sock")
        self._spawn("pulseaudio", [
            "pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
            "--disable-shm=yes",
            "--load=module-native-protocol-unix socket=%s auth-anonymous=1" % socket,
            "--load=module-null-sink sink_name=recorder rate=%d channels=1" % SAMPLE_RATE,
            "--load=module-always-sink",
        ], env=self._base_env(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if not wait_until(lambda: os.path.exists(socket), 10):
            raise SessionError("PulseAudio did not start")
        self.env["PULSE_SERVER"] = "unix:" + socket
        # The null sink keeps real time; its monitor is what a listener would hear.
        recorder = self._spawn("parec", [
            "parec", "--raw", "--device=recorder.monitor", "--format=s16le",
            "--rate=%d" % SAMPLE_RATE, "--channels=1",
            "--latency-msec=%d" % self.record_latency_ms,
        ], env=self._base_env(), stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        threading.Thread(target=self._record, args=(recorder.stdout,), daemon=True).start()

    def _record(self, stream):
        # Silence is kept, so a sample's place in the recording tells when it was heard.
        try:
            while True:
                chunk = stream.read(4096)
                if not chunk:
                    return
                self.recording.extend(chunk)
                self.arrivals.append((len(self.recording), time.time()))
        except (OSError, ValueError):
            return

    def kill_audio(self):
        for name, process in self.processes:
            if name == "pulseaudio":
                process.kill()
                process.wait(5)

    def spoken(self):
        """Utterances so far, as (seconds since the game started, text). A text may hold line
        breaks (Orca reads boxes whole), so a record runs until the next time stamp."""
        records = []
        try:
            with open(self.spoken_log, "rb") as log:
                lines = log.read().decode("utf-8", "replace").split("\n")[:-1]
        except FileNotFoundError:
            return records
        for line in lines:
            stamp, bar, rest = line.partition("|")
            if bar and re.fullmatch(r"\d+\.\d+", stamp):
                records.append([float(stamp) - self.started_at, rest])
            elif records:
                records[-1][1] += "\n" + line
        return [(stamp, text[:-1]) for stamp, text in records if text.endswith("|")]

    def texts(self):
        return [text for _, text in self.spoken()]

    def orca_outputs(self):
        """What Orca has handed to speech, from its debug log. Orca 48 cuts off its own
        reading of a box when it gets to the key press that opened it, so a box's text may
        never reach the speech service whole."""
        try:
            with open(self.orca_debug, errors="replace") as log:
                return re.findall(r"SPEECH OUTPUT: '(.*?)' \{", log.read(), re.S)
        except (AttributeError, FileNotFoundError):
            return []

    def voices(self):
        """The voice of each utterance, in the order of spoken(): rate, pitch and volume as
        speech-dispatcher's numbers, the voice's name and the language."""
        try:
            with open(os.path.join(os.path.dirname(self.spoken_log), "voice.log")) as log:
                lines = [line.split("|") for line in log.read().splitlines()]
        except FileNotFoundError:
            return []
        return [(int(f[0]), int(f[1]), int(f[2]), f[3], f[4]) for f in lines if len(f) >= 5]

    def wait_for_text(self, text, timeout=15, after=0):
        """Waits until `text` is spoken (after the first `after` utterances); its time."""
        def found():
            for stamp, said in self.spoken()[after:]:
                if said == text:
                    return (stamp,)
            return None
        hit = wait_until(found, timeout)
        if hit is None:
            raise AssertionError("never heard %r; heard %r" % (text, self.texts()))
        return hit[0]

    def wait_quiet(self, seconds, timeout=15):
        """Waits until nothing more has been said for `seconds`."""
        def quiet():
            said = self.spoken()
            return not said or said[-1][0] < time.time() - self.started_at - seconds
        wait_until(quiet, timeout, 0.1)

    def wait_for_count(self, count, timeout=15):
        wait_until(lambda: len(self.spoken()) >= count, timeout)

    def sounds_heard(self):
        """Our sound effects found in the recording, in the order they were played."""
        return [name for _, name in self.sound_times()]

    def sound_times(self):
        """Our sound effects in the recording as (seconds since the game started, name).

        The sink plays in real time, so a sample is heard its place in the recording after
        the recording began; and the recording began no later than any chunk's arrival less
        the sound in it. The earliest such bound is taken, so a late read never delays it.
        """
        began, data = self._recorded()
        if began is None:
            return []
        found = []
        for name in SOUNDS:
            offset, probe = _probe(os.path.join(os.path.dirname(self.program), name + ".wav"))
            at = data.find(probe)
            while at >= 0:
                if at % 2 == 0:
                    found.append((began + (at // 2 - offset) / SAMPLE_RATE - self.started_at, name))
                at = data.find(probe, at + 1)
        return sorted(found)

    def _recorded(self):
        """When the recording began (None before it has), and its whole samples."""
        began = min((when - size / 2 / SAMPLE_RATE for size, when in list(self.arrivals)),
                    default=None)
        return began, bytes(self.recording[: len(self.recording) // 2 * 2])

    def sound_times_by_shape(self, threshold=0.97):
        """As sound_times, for a player whose samples are converted on their way (Wine 10's
        are): each sound is found where the shape of its loudness, 10 ms a step, matches the
        recording's closely and about as loud; where matches overlap, the closest counts.
        A start is placed to within a step."""
        began, data = self._recorded()
        if began is None:
            return []
        recording = _loudness(array.array("h", data))
        matches = []
        for name in SOUNDS:
            quiet, shape = _shape(os.path.join(os.path.dirname(self.program), name + ".wav"))
            norm = sum(x * x for x in shape) ** 0.5
            for at in range(len(recording) - len(shape) + 1):
                window = recording[at: at + len(shape)]
                energy = sum(x * x for x in window) ** 0.5
                if energy and 0.5 < energy / norm < 2:
                    score = sum(a * b for a, b in zip(shape, window)) / (norm * energy)
                    if score >= threshold:
                        matches.append((score, at, at + len(shape), at - quiet, name))
        taken = []
        for score, start, end, heard, name in sorted(matches, reverse=True):
            if all(end <= other[0] or start >= other[1] for other in taken):
                taken.append((start, end, heard, name))
        return sorted((began + heard * STEP - self.started_at, name)
                      for _, _, heard, name in taken)


@functools.lru_cache(maxsize=None)
def _probe(path):
    """Where in a sound the stretch that identifies it lies, and the stretch: the first loud
    one, so the sound is found soon after it begins, but not in its first 100 ms: the
    sink mixes a new sound into what the recording has already taken, so that part of it is
    heard but not recorded."""
    with wave.open(path, "rb") as sound:
        samples = array.array("h", sound.readframes(sound.getnframes()))
    stretches = range(SAMPLE_RATE // 10, len(samples) - 256, 256)
    loudness = {i: sum(map(abs, samples[i: i + 256])) for i in stretches}
    offset = next(i for i in stretches if loudness[i] >= max(loudness.values()) / 2)
    return offset, samples[offset: offset + 256].tobytes()


STEP = 0.01  # the loudness shapes' step, s


def _loudness(samples):
    step = int(SAMPLE_RATE * STEP)
    return [sum(map(abs, samples[i: i + step])) / step for i in range(0, len(samples) - step, step)]


@functools.lru_cache(maxsize=None)
def _shape(path):
    """A sound's loudness, 10 ms a step, from its first loud step on; and the steps before."""
    with wave.open(path, "rb") as sound:
        loudness = _loudness(array.array("h", sound.readframes(sound.getnframes())))
    quiet = next(i for i, x in enumerate(loudness) if x > 100)
    return quiet, tuple(loudness[quiet:])
