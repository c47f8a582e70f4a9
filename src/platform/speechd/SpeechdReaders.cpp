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
    explicit SpeechdSpeechObject(probe::LatencyLog* latency) : connection_("marivox", latency) {
        connection_.connect();
    }
    void SpeakString(std::string_view text) override { connection_.say(text); }
    void Silence() override { connection_.cancel(); }

  private:
    SpeechdConnection connection_;
};

}  // namespace

void SpeechdJawsApi::JFWSayString(std::string_view text, bool interrupt) {
    if (interrupt) {
        connection_.cancel();
    }
    connection_.say(text);
}

void SpeechdJawsApi::JFWStopSpeech() {
    connection_.cancel();
}

std::unique_ptr<SpeechAutomationObject> SpeechdAutomationObjects::CreateObject(
    std::string_view className) {
    if (className != kSpeechClass) {
        throw Failure(FailureNumber::SpeechObjectCreation,
                      "The speech object \"" + std::string(className) + "\" is not available");
    }
    try {
        return std::make_unique<SpeechdSpeechObject>(latency_);
    } catch (const Failure& failure) {
        throw Failure(FailureNumber::SpeechObjectCreation,
                      "Window-Eyes speech could not be started. " + failure.description());
    }
}

}  // namespace marivox::speechd
