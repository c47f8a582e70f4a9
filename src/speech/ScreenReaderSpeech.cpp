// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ScreenReaderSpeech.h"

#include "speech/ScreenReaderState.h"
#include "support/Guard.h"

namespace marivox {

// A reader's voice is made at its first call and kept (its driver reaches the reader afresh
// at each call until it answers); a reader started on choice that never started has none.
ReaderVoice& ScreenReaderSpeech::voiceOf(const ReaderRow& reader) {
    if (const auto found = reader_.voices.find(reader.stored); found != reader_.voices.end()) {
        return *found->second;
    }
    if (reader.startedOnChoice) {
        throw Failure(FailureNumber::SpeechObjectMissing,
                      "The " + std::string(reader.item) + " speech object has not been created");
    }
    auto voice = drivers_.voiceOf(reader.stored);
    return *reader_.voices.emplace(reader.stored, std::move(voice)).first->second;
}

void ScreenReaderSpeech::Speak(std::string_view text) {
    guard_.run(Procedure::Speak, [&] {
        // Never interrupts: each text follows what is already being said.
        if (const ReaderRow* reader = reader_.chosen();
            reader != nullptr && (reader->saysEmptyText || !text.empty())) {
            voiceOf(*reader).say(text);
        }
    });
}

void ScreenReaderSpeech::StopSpeech() {
    guard_.run(Procedure::StopSpeech, [&] {
        if (const ReaderRow* reader = reader_.chosen(); reader != nullptr) {
            voiceOf(*reader).stop();
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
