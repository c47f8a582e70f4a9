// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ScreenReaders.h"
#include "platform/speechd/SpeechdConnection.h"

namespace marivox::speechd {

// The "JFW" choice on Linux: like the JAWS library it is loaded, here connected, at its
// first call, and it speaks through speech-dispatcher.
class SpeechdJawsApi : public JawsApi {
  public:
    explicit SpeechdJawsApi(probe::LatencyLog* latency = nullptr)
        : connection_("marivox", latency) {}

    void JFWSayString(std::string_view text, bool interrupt) override;
    void JFWStopSpeech() override;

  private:
    SpeechdConnection connection_;
};

// The "WE" choice on Linux: creating the speech object connects to speech-dispatcher at
// once, so a missing service is reported when the player makes the choice.
class SpeechdAutomationObjects : public AutomationObjects {
  public:
    explicit SpeechdAutomationObjects(probe::LatencyLog* latency = nullptr) : latency_(latency) {}

    std::unique_ptr<SpeechAutomationObject> CreateObject(std::string_view className) override;

  private:
    probe::LatencyLog* latency_;
};

}  // namespace marivox::speechd
