# SPDX-FileCopyrightText: 2026 Marivox Developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Takes the pictures in docs/: the game screen in the middle of a game, the screen-reader
dialog and the About box, each from the real program in a private session.
    /usr/bin/python3 tools/screenshots/screenshots.py [output folder]
"""

import os
import sys
import time

# The private session the end-to-end tests play in serves for pictures too.
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../tests/e2e"))
import harness  # noqa: E402

PROMPT_END = " it is your turn, and you are located at A 1 "


def main(folder):
    os.makedirs(folder, exist_ok=True)
    with harness.Session(stored_reader=None) as session:
        session.launch()
        dialog = session.window_id("Screen Reader")
        time.sleep(0.5)
        session.screenshot(os.path.join(folder, "reader-dialog.png"), dialog)
        session.keys("Return", window=dialog)
        window = session.window_id()
        session.wait_for_text(PROMPT_END)
        # A few shots along the diagonal, each answered by the computer.
        for step in range(4):
            session.keys("Return", window=window)
            heard = len(session.texts())
            session.wait_for_text("It is your turn and you are located at %s  %d"
                                  % ("ABCDEFGHI"[step], step + 1), timeout=20, after=heard)
            session.keys("Down", "Right", window=window)
            time.sleep(0.3)
        session.screenshot(os.path.join(folder, "screenshot.png"), window)
        session.keys("alt+h", "a", window=window)
        about = session.window_id("About Marivox")
        time.sleep(0.5)
        session.screenshot(os.path.join(folder, "about.png"), about)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1] if len(sys.argv) > 1 else
                  os.path.join(harness.SOURCE, "docs")))
