// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "adapters/speechd/SpeechdQueue.h"
#include "ports/ScreenReaders.h"

namespace marivox::speechd {

// The readers of the Linux dialog speak through speech-dispatcher, the speech service Orca
// uses, in the player's own voice where the source gives one. "JFW", like the JAWS library,
// and "Orca" are reached at their first call; "WE", like Window-Eyes's object, is started when
// chosen: it connects at once, so a missing service is reported when the player makes the
// choice. Every later call returns at once and a failure is told later, to the late-failure
// handler.
class SpeechdReaderDrivers : public ReaderDrivers {
  public:
    SpeechdReaderDrivers(probe::LatencyLog* latency, SpeechdQueue::Post post,
                         VoiceSource voice = {})
        : latency_(latency), post_(std::move(post)), voice_(std::move(voice)) {}

    std::unique_ptr<ReaderVoice> voiceOf(std::string_view reader) override;
    void onLateFailure(LateFailureHandler handler) override { lateFailure_ = std::move(handler); }

  private:
    probe::LatencyLog* latency_;
    SpeechdQueue::Post post_;
    VoiceSource voice_;
    LateFailureHandler lateFailure_;
};

// A voice on its own connection to speech-dispatcher.
class SpeechdVoice : public ReaderVoice {
  public:
    SpeechdVoice(probe::LatencyLog* latency, SpeechdQueue::Post post,
                 LateFailureHandler lateFailure, VoiceSource voice = {});
    // Connects now rather than at the first call; a failure is thrown.
    void connectNow() { queue_.connectNow(); }
    void say(std::string_view text) override { queue_.say(text); }
    void stop() override { queue_.cancel(); }

  private:
    SpeechdQueue queue_;
};

}  // namespace marivox::speechd
