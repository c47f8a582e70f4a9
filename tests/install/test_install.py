# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Marivox installed as a player installs it: a tree under a scratch prefix that the
desktop's tools accept and from which the game starts and speaks, and a .deb that carries
it with dependencies worked out from the binary."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(os.path.dirname(HERE), "e2e"))
import harness  # noqa: E402
from test_marivox import PROMPT  # noqa: E402

APP_ID = "org.marivox.Marivox"


def run(*argv, **kwargs):
    return subprocess.run(argv, capture_output=True, text=True, **kwargs)


class InstalledTree(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.mkdtemp(prefix="marivox-install-")
        cls.prefix = os.path.join(cls.scratch, "prefix")
        done = run("cmake", "--install", harness.BUILD, "--prefix", cls.prefix)
        if done.returncode != 0:
            raise AssertionError("cmake --install failed:\n" + done.stdout + done.stderr)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.scratch, ignore_errors=True)

    def path(self, *parts):
        return os.path.join(self.prefix, *parts)

    def test_the_program_folder_holds_everything_and_the_launcher_links_to_it(self):
        folder = self.path("lib", "marivox")
        self.assertEqual(sorted(os.listdir(folder)), sorted(harness.PROGRAM_FILES))
        launcher = self.path("bin", "marivox")
        self.assertTrue(os.path.islink(launcher))
        self.assertFalse(os.path.isabs(os.readlink(launcher)), "the tree must stay movable")
        self.assertEqual(os.path.realpath(launcher), os.path.join(folder, "marivox"))

    def test_the_desktop_tools_accept_the_entries(self):
        entry = self.path("share", "applications", APP_ID + ".desktop")
        checked = run("desktop-file-validate", entry)
        self.assertEqual((checked.returncode, checked.stdout), (0, ""), checked.stderr)
        metainfo = self.path("share", "metainfo", APP_ID + ".metainfo.xml")
        checked = run("appstreamcli", "validate", "--no-net", metainfo)
        self.assertEqual(checked.returncode, 0, checked.stdout + checked.stderr)
        icons = self.path("share", "icons", "hicolor")
        self.assertTrue(os.path.isfile(os.path.join(icons, "scalable", "apps", APP_ID + ".svg")))
        for size in (16, 32, 48, 64, 128, 256):
            png = os.path.join(icons, "%dx%d" % (size, size), "apps", APP_ID + ".png")
            with open(png, "rb") as image:
                self.assertEqual(image.read(8), b"\x89PNG\r\n\x1a\n", png)

    def test_the_installed_game_starts_through_its_launcher_and_speaks(self):
        with harness.Session(stored_reader="JFW", program=self.path("bin", "marivox")) as session:
            session.launch()
            session.window_id(timeout=20)
            session.wait_for_text(PROMPT[-1], timeout=20)
            self.assertEqual(session.texts()[:3], PROMPT)
            # Sounds and help were found through the link: no box reports them missing.
            self.assertEqual(session.alerts(), [])


class DebianPackage(unittest.TestCase):
    def test_the_package_carries_the_tree_and_its_dependencies(self):
        with tempfile.TemporaryDirectory(prefix="marivox-deb-") as out:
            built = run("cpack", "-G", "DEB", "--config",
                        os.path.join(harness.BUILD, "CPackConfig.cmake"), "-B", out)
            self.assertEqual(built.returncode, 0, built.stdout + built.stderr)
            packages = [name for name in os.listdir(out) if name.endswith(".deb")]
            self.assertEqual(len(packages), 1, os.listdir(out))
            deb = os.path.join(out, packages[0])

            fields = {name: run("dpkg-deb", "--field", deb, name).stdout.strip()
                      for name in ("Package", "Section", "Depends", "Recommends")}
            self.assertEqual(fields["Package"], "marivox")
            self.assertEqual(fields["Section"], "games")
            # Worked out from the binary, not written by hand.
            for library in ("libqt6widgets6", "libspeechd2", "libpulse0", "libc6"):
                self.assertIn(library, fields["Depends"])
            self.assertNotIn("multimedia", fields["Depends"])
            self.assertIn("speech-dispatcher", fields["Recommends"])
            self.assertIn("pulseaudio | pipewire-pulse", fields["Recommends"])
            # Debian's own checker: no error and no warning.
            checked = run("lintian", "--tag-display-limit", "0", deb)
            complaints = [line for line in checked.stdout.splitlines() if line[:2] in ("E:", "W:")]
            self.assertEqual(complaints, [], checked.stdout + checked.stderr)

            listing = run("dpkg-deb", "--contents", deb).stdout
            self.assertIn("./usr/games/marivox -> ../lib/marivox/marivox", listing)
            for name in harness.PROGRAM_FILES:
                self.assertIn("./usr/lib/marivox/" + name + "\n", listing)
            self.assertIn("./usr/share/applications/%s.desktop" % APP_ID, listing)
            self.assertIn("./usr/share/metainfo/%s.metainfo.xml" % APP_ID, listing)
            self.assertIn("./usr/share/doc/marivox/copyright\n", listing)


if __name__ == "__main__":
    unittest.main()
