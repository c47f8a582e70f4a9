// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fake/FakeSpeech.h"

#include <string>

namespace marivox::fake {

void FakeSpeech::Speak(std::string_view text) {
    transcript_.record("speak \"" + std::string(text) + "\"");
}

void FakeSpeech::StopSpeech() {
    transcript_.record("stop");
}

void FakeSounds::PlaySound(std::string_view name) {
    transcript_.record("sound " + std::string(name));
}

}  // namespace marivox::fake
