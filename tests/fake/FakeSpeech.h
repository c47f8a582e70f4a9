// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fake/Transcript.h"
#include "speech/Speech.h"

namespace marivox::fake {

// Lines: `speak "<text>"`, `stop`, `sound <name>`.
class FakeSpeech : public Speech {
  public:
    explicit FakeSpeech(Transcript& transcript) : transcript_(transcript) {}
    void Speak(std::string_view text) override;
    void StopSpeech() override;

  private:
    Transcript& transcript_;
};

class FakeSounds : public Sounds {
  public:
    explicit FakeSounds(Transcript& transcript) : transcript_(transcript) {}
    void PlaySound(std::string_view name) override;

  private:
    Transcript& transcript_;
};

}  // namespace marivox::fake
