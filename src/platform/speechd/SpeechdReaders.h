// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ScreenReaders.h"
#include "platform/speechd/SpeechdQueue.h"

namespace marivox::speechd {

// Both readers of the Linux dialog speak through speech-dispatcher, the speech service Orca
// uses. "JFW", like the JAWS library, is reached at its first call; "WE", like Window-Eyes's
// object, is started when chosen: it connects at once, so a missing service is reported when
// the player makes the choice. Every later call returns at once and a failure is told later,
// to the late-failure handler.
class SpeechdReaderDrivers : public ReaderDrivers {
  public:
    SpeechdReaderDrivers(probe::LatencyLog* latency, SpeechdQueue::Post post)
        : latency_(latency), post_(std::move(post)) {}

    std::unique_ptr<ReaderVoice> voiceOf(std::string_view reader) override;
    void onLateFailure(LateFailureHandler handler) override { lateFailure_ = std::move(handler); }

  private:
    probe::LatencyLog* latency_;
    SpeechdQueue::Post post_;
    LateFailureHandler lateFailure_;
};

// A voice on its own connection to speech-dispatcher.
class SpeechdVoice : public ReaderVoice {
  public:
    SpeechdVoice(probe::LatencyLog* latency, SpeechdQueue::Post post,
                 LateFailureHandler lateFailure);
    // Connects now rather than at the first call; a failure is thrown.
    void connectNow() { queue_.connectNow(); }
    void say(std::string_view text) override { queue_.say(text); }
    void stop() override { queue_.cancel(); }

  private:
    SpeechdQueue queue_;
};

}  // namespace marivox::speechd
