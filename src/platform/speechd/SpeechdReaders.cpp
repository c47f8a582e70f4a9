// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/speechd/SpeechdReaders.h"

#include <string>

#include "support/Failure.h"

namespace marivox::speechd {
namespace {

constexpr std::string_view kSpeechClass = "GWSpeak.Speak";

class SpeechdSpeechObject : public SpeechAutomationObject {
  public:
    SpeechdSpeechObject(probe::LatencyLog* latency, SpeechdQueue::Post post,
                        LateFailureHandler lateFailure)
        : queue_("marivox", latency, std::move(post)) {
        queue_.connectNow();
        queue_.onLateFailure(std::move(lateFailure));
    }
    void SpeakString(std::string_view text) override { queue_.say(text); }
    void Silence() override { queue_.cancel(); }
    void onLateFailure(LateFailureHandler handler) override {
        queue_.onLateFailure(std::move(handler));
    }

  private:
    SpeechdQueue queue_;
};

}  // namespace

void SpeechdJawsApi::JFWSayString(std::string_view text, bool interrupt) {
    if (interrupt) {
        queue_.cancel();
    }
    queue_.say(text);
}

void SpeechdJawsApi::JFWStopSpeech() {
    queue_.cancel();
}

std::unique_ptr<SpeechAutomationObject> SpeechdAutomationObjects::CreateObject(
    std::string_view className) {
    if (className != kSpeechClass) {
        throw Failure(FailureNumber::SpeechObjectCreation,
                      "The speech object \"" + std::string(className) + "\" is not available");
    }
    try {
        return std::make_unique<SpeechdSpeechObject>(latency_, post_, lateFailure_);
    } catch (const Failure& failure) {
        throw Failure(FailureNumber::SpeechObjectCreation,
                      "Window-Eyes speech could not be started. " + failure.description());
    }
}

}  // namespace marivox::speechd
