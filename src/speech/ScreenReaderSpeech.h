// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "speech/Speech.h"

namespace marivox {

class Guard;
class JawsApi;
struct ScreenReaderState;

// Speech through the screen reader the player chose, looked up at every call so that a
// new choice takes effect at once. With no reader chosen the game stays silent.
class ScreenReaderSpeech : public Speech {
  public:
    ScreenReaderSpeech(ScreenReaderState& reader, JawsApi& jaws, Guard& guard)
        : reader_(reader), jaws_(jaws), guard_(guard) {}

    void Speak(std::string_view text) override;
    void StopSpeech() override;

  private:
    ScreenReaderState& reader_;
    JawsApi& jaws_;
    Guard& guard_;
};

}  // namespace marivox
