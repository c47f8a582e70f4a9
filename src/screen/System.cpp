// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "screen/System.h"

namespace marivox {

System::System(const PlatformPorts& p, std::uint64_t seed)
    : ports(p),
      // `heard` is made further down; these only keep a reference to it until they open.
      boxes(p.boxes, heard),
      readerDialog(p.readerDialog, heard),
      aboutBox(p.aboutBox, heard),
      reports(boxes, p.application),
      guard(reports),
      generator(p.clock, seed),
      random(generator, guard),
      speech(reader, p.readers, guard),
      sounds(p.wavPlayer, p.application, p.sleeper, guard),
      heard(speech, sounds, p.wavPlayer, p.timers, p.application, reports),
      spoken(heard),
      readerChoice(reader, p.settings, p.readers, readerDialog, boxes, guard),
      help(p.application, p.shell, boxes, guard),
      about(aboutBox, p.application),
      screen({state, guard, spoken, spoken, heard, random, reader, readerChoice, help, about,
              p.window, p.timers, boxes, p.application, p.settings}) {
    reader.platform = p.application.platform();
    reports.speakThrough([this](std::string_view text) { heard.Speak(text); });
    p.readers.onLateFailure(speech.lateFailures());
}

void System::Main() {
    ports.window.load(screen);
    screen.LoadDisplay();
    ports.window.show();
    readerChoice.GetScreenReader();
    screen.BeginGame();
}

}  // namespace marivox
