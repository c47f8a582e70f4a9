// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/speechd/SpeechdReaders.h"

#include <string>

#include "ports/Failure.h"
#include "ports/Readers.h"

namespace marivox::speechd {

SpeechdVoice::SpeechdVoice(probe::LatencyLog* latency, SpeechdQueue::Post post,
                           LateFailureHandler lateFailure, VoiceSource voice)
    : queue_("marivox", latency, std::move(post), std::move(voice)) {
    queue_.onLateFailure(std::move(lateFailure));
}

std::unique_ptr<ReaderVoice> SpeechdReaderDrivers::voiceOf(std::string_view reader) {
    auto voice = std::make_unique<SpeechdVoice>(latency_, post_, lateFailure_, voice_);
    if (reader == kWindowEyes.stored) {
        try {
            voice->connectNow();
        } catch (const Failure& failure) {
            throw Failure(FailureNumber::SpeechObjectCreation,
                          "Window-Eyes speech could not be started. " + failure.description());
        }
    } else if (reader != kJaws.stored && reader != kOrca.stored) {
        throw Failure(FailureNumber::SpeechObjectCreation,
                      "The screen reader \"" + std::string(reader) + "\" is not on this system");
    }
    return voice;
}

}  // namespace marivox::speechd
