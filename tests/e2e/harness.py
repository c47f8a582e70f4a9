# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""A private desktop session in which the real Marivox runs as a blind player meets it.

Each Session starts its own X server (Xvfb), D-Bus session with the accessibility bus,
speech-dispatcher that records every utterance, PulseAudio whose sink writes to a FIFO, and
settings folder; then the game. Every process it starts is stopped by its id when the
session ends, whether the test passed or not.
"""

import json
import os
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

from Xlib import X, display, protocol

from hearing import SAMPLE_RATE, SOUNDS, STEP, Hearing, SessionError, wait_until  # noqa: F401

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCE = os.path.dirname(os.path.dirname(HERE))
BUILD = os.environ.get("MARIVOX_BUILD_DIR", os.path.join(SOURCE, "build"))
# What the program folder holds, installed or built.
PROGRAM_FILES = ["marivox", "marivox-help", "marvox.hlp"] + [s + ".wav" for s in SOUNDS]


class Session(Hearing):
    def __init__(self, stored_reader="JFW", speech=True, audio=True, program=None, orca=False,
                 launcher=(), orca_settings=None, screen="1024x768x24", seed=None):
        self.stored_reader = stored_reader
        self.orca_settings = orca_settings  # Orca's general settings, written before it starts
        self.screen = screen
        self.with_speech = speech
        self.with_audio = audio
        self.with_orca = orca
        self.program = program or os.path.join(BUILD, "marivox")
        self.launcher = list(launcher)  # what runs the program, if it does not run alone
        self.dir = tempfile.mkdtemp(prefix="marivox-e2e-")
        self.processes = []  # (name, Popen), stopped in reverse order
        self.env = {"MARIVOX_SEED": seed} if seed else {}  # the same fleets every run
        self.game = None
        self.recording = bytearray()
        self.arrivals = []  # (bytes recorded, when they had all arrived)
        self.record_latency_ms = 20  # the null sink mixes up to this far ahead of real time
        self.started_at = time.time()  # until the game starts, the session's start

    # -- the session --------------------------------------------------------------------

    def __enter__(self):
        try:
            self._start_x()
            self._start_dbus()
            if self.with_speech:
                self.start_speech()
            if self.with_audio:
                self._start_audio()
            self._write_settings()
            if self.orca_settings is not None:
                self.write_orca_settings(self.orca_settings)
            if self.with_orca:
                self._start_orca()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *exc):
        self.close()

    def _spawn(self, name, argv, **kwargs):
        process = subprocess.Popen(argv, start_new_session=True, **kwargs)
        self.processes.append((name, process))
        return process

    def _base_env(self):
        env = {
            "PATH": "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin",
            "HOME": os.path.join(self.dir, "home"),
            "XDG_RUNTIME_DIR": os.path.join(self.dir, "runtime"),
            "XDG_CONFIG_HOME": os.path.join(self.dir, "config"),
            "LANG": "C.UTF-8",
        }
        for folder in ("home", "runtime", "config"):
            os.makedirs(os.path.join(self.dir, folder), mode=0o700, exist_ok=True)
        env.update(self.env)
        return env

    def _start_x(self):
        read_end, write_end = os.pipe()
        self._spawn("Xvfb", ["Xvfb", "-displayfd", str(write_end), "-screen", "0", self.screen,
                             "-nolisten", "tcp", "-noreset"], pass_fds=(write_end,),
                    stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            display = pipe.readline().strip()
        if not display:
            raise SessionError("Xvfb gave no display number")
        self.env["DISPLAY"] = ":" + display

    def _start_dbus(self):
        process = self._spawn("dbus", ["dbus-daemon", "--session", "--nofork", "--print-address=1"],
                              stdout=subprocess.PIPE, env=self._base_env(), text=True)
        address = process.stdout.readline().strip()
        if not address:
            raise SessionError("dbus-daemon gave no address")
        self.env["DBUS_SESSION_BUS_ADDRESS"] = address
        # The accessibility bus, as a desktop session starts it.
        self._spawn("at-spi", ["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"],
                    env=self._base_env(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def start_speech(self):
        """The session's speech service; started again, it listens on the same address and
        logs what it hears afresh."""
        workdir = os.path.join(self.dir, "speechd")
        os.makedirs(workdir, exist_ok=True)
        out = subprocess.run([os.path.join(HERE, "speechd", "start-private-speechd"), workdir],
                             capture_output=True, text=True, check=True, env=self._base_env())
        values = dict(line.split("=", 1) for line in out.stdout.split())
        self.speech_pid = int(values["PID"])
        self.processes.append(("speech-dispatcher", _Pid(self.speech_pid)))
        self.env["SPEECHD_ADDRESS"] = values["SPEECHD_ADDRESS"]
        self.spoken_log = os.path.join(workdir, "spoken.log")

    def _start_orca(self):
        """Debian's Orca with its default settings, speaking to the same speech service.
        Orca allows one instance per user: "--replace" would kill every other one, a tester's
        own screen reader included, so a running Orca skips the test instead, and CTest never
        runs two of these sessions at once."""
        if subprocess.run(["pgrep", "-u", str(os.getuid()), "-x", "orca"],
                          stdout=subprocess.DEVNULL).returncode == 0:
            raise unittest.SkipTest("an Orca of this user is running; it is left alone")
        self.orca_debug = os.path.join(self.dir, "orca-debug.log")
        with open(os.path.join(self.dir, "orca.log"), "w") as log:
            self.orca = self._spawn("orca", ["orca", "--debug-file=" + self.orca_debug],
                                    env=self._base_env(), stdout=log, stderr=subprocess.STDOUT)
        self.wait_for_text("Screen reader on.", timeout=30)

    def _write_settings(self):
        if self.stored_reader is None:
            return
        folder = os.path.join(self.dir, "config", "Marivox")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "Marivox.conf"), "w") as conf:
            conf.write("[StartUp]\nReader=%s\n" % self.stored_reader)

    def write_orca_settings(self, general):
        """Orca's settings file as Orca writes it, with these general settings."""
        folder = os.path.join(self.dir, "home", ".local", "share", "orca")
        os.makedirs(folder, exist_ok=True)
        prefs = {"general": general, "profiles": {"default": {"profile": ["Default", "default"]}},
                 "pronunciations": {}, "keybindings": {}}
        with open(os.path.join(folder, "user-settings.conf"), "w") as conf:
            json.dump(prefs, conf)

    def close(self):
        for name, process in reversed(self.processes):
            _stop(process)
        self.processes.clear()
        self._stop_stragglers()
        shutil.rmtree(self.dir, ignore_errors=True)

    def _stop_stragglers(self):
        """Stops what the session's programs started on their own (the help viewer leaves
        the game's process group on purpose), found by the session folder in their
        environment."""
        marker = ("XDG_RUNTIME_DIR=" + os.path.join(self.dir, "runtime")).encode()
        for entry in os.listdir("/proc"):
            if not entry.isdigit() or int(entry) == os.getpid():
                continue
            try:
                with open("/proc/%s/environ" % entry, "rb") as environ:
                    if marker in environ.read().split(b"\0"):
                        os.kill(int(entry), signal.SIGKILL)
            except (OSError, ValueError):
                continue

    # -- the game -----------------------------------------------------------------------

    def launch(self):
        env = self._base_env()
        env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        env["QT_ACCESSIBILITY"] = "1"
        self.started_at = time.time()
        with open(os.path.join(self.dir, "game.log"), "a") as log:
            self.game = self._spawn("marivox", self.launcher + [self.program], env=env,
                                    stdout=log, stderr=subprocess.STDOUT)

    def window_id(self, name="Marivox", timeout=10):
        """The newest visible window so named; a box is taken only when no main window is.

        Message boxes bear the game's title too, and one just answered may still be mapped
        for a moment after it has left the accessible tree.
        """
        def find():
            out = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^%s$" % name],
                                 capture_output=True, text=True, env=self._base_env())
            ids = out.stdout.split()
            main = [window for window in ids if not self._is_transient(window)]
            return (main or ids or [None])[-1]
        window = wait_until(find, timeout, 0.05)
        if window is None:
            raise SessionError("no window named %r appeared" % name)
        return window

    def _is_transient(self, window):
        out = subprocess.run(["xprop", "-id", window, "WM_TRANSIENT_FOR"],
                             capture_output=True, text=True, env=self._base_env())
        return "window id #" in out.stdout

    def keys(self, *names, window=None, delay_ms=40):
        """Presses keys as a player does, into the window that has the focus."""
        if window is not None:
            subprocess.run(["xdotool", "windowfocus", "--sync", window], env=self._base_env(),
                           check=False)
        subprocess.run(["xdotool", "key", "--delay", str(delay_ms), *names],
                       env=self._base_env(), check=True)

    def mouse_clicks(self, x, y, count=1):
        """Clicks the left button `count` times at a point of the screen, as fast as a
        double click."""
        subprocess.run(["xdotool", "mousemove", "--sync", str(x), str(y), "click", "--repeat",
                        str(count), "--delay", "60", "1"], env=self._base_env(), check=True)

    def give_focus(self, window):
        """What a window manager does for the window a user comes back to: the keyboard focus
        leaves and returns, so the toolkit hears the window take it even if the focus never
        left it in the server's eyes."""
        screen = display.Display(self.env["DISPLAY"])
        screen.set_input_focus(X.PointerRoot, X.RevertToParent, X.CurrentTime)
        screen.set_input_focus(screen.create_resource_object("window", int(window, 0)),
                               X.RevertToParent, X.CurrentTime)
        screen.sync()
        screen.close()

    def kill_speech(self):
        os.kill(self.speech_pid, signal.SIGKILL)
        wait_until(lambda: _Pid(self.speech_pid).poll() is not None, 5)

    def settings_path(self):
        return os.path.join(self.dir, "config", "Marivox", "Marivox.conf")

    def program_copy(self, leave_out=(), damage=()):
        """A copy of the program folder without some files, or with some cut short."""
        source = os.path.dirname(self.program)
        folder = os.path.join(self.dir, "program")
        os.makedirs(folder)
        for name in PROGRAM_FILES:
            if name not in leave_out:
                shutil.copy2(os.path.join(source, name), folder)
        for name in damage:
            with open(os.path.join(folder, name), "r+b") as cut:
                cut.truncate(30)
        self.program = os.path.join(folder, "marivox")

    def close_window(self, window):
        """The window's close button, as a window manager would press it (WM_DELETE_WINDOW)."""
        screen = display.Display(self.env["DISPLAY"])
        target = screen.create_resource_object("window", int(window, 0))
        event = protocol.event.ClientMessage(
            window=target, client_type=screen.intern_atom("WM_PROTOCOLS"),
            data=(32, [screen.intern_atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0]))
        target.send_event(event, event_mask=X.NoEventMask)
        # A round trip, not a flush: the X server drops the unread requests of a client that has
        # hung up, so leaving right after a flush lost about one close in fifteen under load.
        screen.sync()
        screen.close()

    def state(self):
        """For a failure's message: whether the game still runs, and the end of its output."""
        code = self.game.poll() if self.game else None
        try:
            with open(os.path.join(self.dir, "game.log"), errors="replace") as log:
                tail = log.read()[-2000:]
        except OSError:
            tail = ""
        return "game %s; its output: %r" % ("running" if code is None else "ended (%s)" % code,
                                           tail)

    def game_ended(self, timeout):
        try:
            self.game.wait(timeout)
            return True
        except subprocess.TimeoutExpired:
            return False

    def alerts(self):
        """The texts of the message boxes now open."""
        texts, alert_depth = [], None
        for line in self.accessible_tree():
            if line.count("|") < 2:
                continue
            depth, role, name = line.split("|", 2)
            if alert_depth is not None and int(depth) <= alert_depth:
                alert_depth = None
            if role == "alert":
                alert_depth = int(depth)
            elif alert_depth is not None and role == "label" and name:
                texts.append(name)
        return texts

    def wait_for_alert(self, fragment, timeout=10):
        """Waits until a box whose text holds `fragment` is open; the texts of the boxes."""
        shown = wait_until(lambda: [t for t in self.alerts() if fragment in t] and self.alerts(),
                           timeout)
        if not shown:
            raise AssertionError("no box saying %r; heard %r; %s" % (fragment, self.texts(),
                                                                    self.state()))
        return shown

    def wait_past(self, stamp, seconds):
        """Waits until `seconds` have passed since `stamp`, a time of the speech log, so that
        whatever the game would have said by then has been said."""
        wait_until(lambda: time.time() - self.started_at >= stamp + seconds, seconds + 1)

    def answer_alerts(self, limit=20):
        """Presses Enter on each box in turn; their texts."""
        answered = []
        for _ in range(limit):
            shown = self.alerts()
            if not shown:
                break
            answered += shown
            self.keys("Return")
            # The next look must not see the box just answered, or a Return would fire.
            wait_until(lambda: self.alerts() != shown, 5)
        return answered

    def accessible_tree(self, *options):
        """The game's accessible objects as (depth, role, name) lines."""
        out = subprocess.run(["/usr/bin/python3", os.path.join(HERE, "a11y_dump.py"), *options],
                             capture_output=True, text=True, env=self._base_env(), timeout=60)
        return out.stdout.splitlines()

    def focused(self):
        """What assistive technology is told has the keyboard focus, as role|name lines."""
        return [line.split("|", 1)[1] for line in self.accessible_tree("--focused")]

    def screenshot(self, path):
        dump = os.path.join(self.dir, "screen.xwd")
        subprocess.run(["xwd", "-root", "-silent", "-out", dump], env=self._base_env(), check=True)
        subprocess.run(["convert", dump, path], check=True)


class _Pid:
    """A process we did not start through Popen, known only by its id."""

    def __init__(self, pid):
        self.pid = pid

    def poll(self):
        try:
            os.kill(self.pid, 0)
            return None
        except ProcessLookupError:
            return 0

    def wait(self, timeout=None):
        if not wait_until(lambda: self.poll() is not None, timeout or 5):
            raise subprocess.TimeoutExpired(str(self.pid), timeout)


def _stop(process):
    for stream in (getattr(process, "stdout", None), getattr(process, "stderr", None)):
        if stream is not None:
            stream.close()
    # What we started leads a process group of its own; a _Pid is one process.
    signal_it = os.killpg if isinstance(process, subprocess.Popen) else os.kill
    for signum in (signal.SIGTERM, signal.SIGKILL):
        if process.poll() is not None:
            return
        try:
            signal_it(process.pid, signum)
            process.wait(timeout=3)
        except (ProcessLookupError, subprocess.TimeoutExpired):
            continue
