// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ScreenReaderSpeech.h"

#include "speech/ScreenReaderState.h"
#include "support/Guard.h"

namespace marivox {
namespace {

SpeechAutomationObject& windowEyes(ScreenReaderState& reader) {
    if (!reader.WESpeech) {
        throw Failure(FailureNumber::SpeechObjectMissing,
                      "The Window-Eyes speech object has not been created");
    }
    return *reader.WESpeech;
}

}  // namespace

void ScreenReaderSpeech::Speak(std::string_view text) {
    guard_.run(Procedure::Speak, [&] {
        if (isChosen(reader_, kJaws)) {
            // Never interrupts: each text follows what is already being said.
            jaws_.JFWSayString(text, false);
        } else if (isChosen(reader_, kWindowEyes) && !text.empty()) {
            windowEyes(reader_).SpeakString(text);
        }
    });
}

void ScreenReaderSpeech::StopSpeech() {
    guard_.run(Procedure::StopSpeech, [&] {
        if (isChosen(reader_, kJaws)) {
            jaws_.JFWStopSpeech();
        } else if (isChosen(reader_, kWindowEyes)) {
            windowEyes(reader_).Silence();
        }
    });
}

}  // namespace marivox
