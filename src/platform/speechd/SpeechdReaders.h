// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ScreenReaders.h"
#include "platform/speechd/SpeechdQueue.h"

namespace marivox::speechd {

// The "JFW" choice on Linux: like the JAWS library it is loaded, here connected, at its
// first call, and it speaks through speech-dispatcher. Calls return at once; a failure is
// told later, to the late-failure handler.
class SpeechdJawsApi : public JawsApi {
  public:
    SpeechdJawsApi(probe::LatencyLog* latency, SpeechdQueue::Post post)
        : queue_("marivox", latency, std::move(post)) {}

    void JFWSayString(std::string_view text, bool interrupt) override;
    void JFWStopSpeech() override;
    void onLateFailure(LateFailureHandler handler) override {
        queue_.onLateFailure(std::move(handler));
    }

  private:
    SpeechdQueue queue_;
};

// The "WE" choice on Linux: creating the speech object connects to speech-dispatcher at
// once, so a missing service is reported when the player makes the choice; its later calls
// return at once, as the JFW choice's do.
class SpeechdAutomationObjects : public AutomationObjects {
  public:
    SpeechdAutomationObjects(probe::LatencyLog* latency, SpeechdQueue::Post post)
        : latency_(latency), post_(std::move(post)) {}

    std::unique_ptr<SpeechAutomationObject> CreateObject(std::string_view className) override;
    void onLateFailure(LateFailureHandler handler) override { lateFailure_ = std::move(handler); }

  private:
    probe::LatencyLog* latency_;
    SpeechdQueue::Post post_;
    LateFailureHandler lateFailure_;
};

}  // namespace marivox::speechd
