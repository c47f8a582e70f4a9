// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <utility>

#include "ports/ScreenReaders.h"
#include "speech/Speech.h"
#include "support/Procedures.h"

namespace marivox {

class Guard;
struct ReaderRow;
struct ScreenReaderState;

// Speech through the screen reader the player chose, looked up at every call so that a
// new choice takes effect at once. With no reader chosen the game stays silent.
class ScreenReaderSpeech : public Speech {
  public:
    ScreenReaderSpeech(ScreenReaderState& reader, ReaderDrivers& drivers, Guard& guard)
        : reader_(reader), drivers_(drivers), guard_(guard) {}

    void Speak(std::string_view text) override;
    void StopSpeech() override;
    // For speech adapters that hand calls on: whom to tell of a call that fails later.
    LateFailureHandler lateFailures();

  private:
    ReaderVoice& voiceOf(const ReaderRow& reader);
    void tellLate(Procedure procedure, std::exception_ptr failure);

    ScreenReaderState& reader_;
    ReaderDrivers& drivers_;
    Guard& guard_;
    std::deque<std::pair<Procedure, std::exception_ptr>> untold_;
    bool telling_ = false;
};

}  // namespace marivox
