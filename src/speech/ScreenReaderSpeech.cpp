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

LateFailureHandler ScreenReaderSpeech::lateFailures() {
    return [this](SpeechCall call) -> FailureTeller {
        // A report's own words fail quietly, as they do when the failure comes at once.
        if (guard_.reports().speakingReport()) {
            return {};
        }
        const Procedure procedure =
            call == SpeechCall::Stop ? Procedure::StopSpeech : Procedure::Speak;
        return [this, procedure](std::exception_ptr failure) { tellLate(procedure, failure); };
    };
}

// One report at a time, in the order of the calls: a failure told while a report's box is
// open waits for it to close, rather than opening a box on top that would be read first.
void ScreenReaderSpeech::tellLate(Procedure procedure, std::exception_ptr failure) {
    untold_.emplace_back(procedure, std::move(failure));
    if (telling_) {
        return;
    }
    telling_ = true;
    while (!untold_.empty()) {
        const auto [next, what] = untold_.front();
        untold_.pop_front();
        guard_.reportLate(next, what);
    }
    telling_ = false;
}

}  // namespace marivox
