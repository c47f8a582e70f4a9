// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

#include "adapters/speechd/SpeechdConnection.h"
#include "ports/ScreenReaders.h"

namespace marivox::probe {
class LatencyLog;
}

namespace marivox::speechd {

// Hands every call to speech-dispatcher to a thread of its own, which makes them in the
// order they were made, so the user-interface thread never waits on the service: a round
// trip, a reconnection or a server that stopped answering costs it nothing. A call that
// fails is told, through `post`, to whom the late-failure handler named at the call.
class SpeechdQueue {
  public:
    using Post = std::function<void(std::function<void()>)>;

    SpeechdQueue(std::string clientName, probe::LatencyLog* latency, Post post,
                 VoiceSource voice = {});
    // Makes what is still queued, up to the first call that fails (told to no one: the
    // program is ending), and ends the thread.
    ~SpeechdQueue();
    SpeechdQueue(const SpeechdQueue&) = delete;
    SpeechdQueue& operator=(const SpeechdQueue&) = delete;

    void onLateFailure(LateFailureHandler handler);
    void say(std::string_view text);
    void cancel();
    // Connects on the calling thread, before the first say or cancel; a failure is thrown.
    void connectNow();

  private:
    struct Call {
        SpeechCall kind;
        std::string text;
        FailureTeller tell;
    };
    void enqueue(SpeechCall kind, std::string_view text);
    void work();

    SpeechdConnection connection_;  // used by the worker only, once it runs
    VoiceSource voice_;             // asked by the worker
    probe::LatencyLog* latency_;
    Post post_;
    LateFailureHandler lateFailure_;  // user-interface thread only
    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<Call> calls_;
    bool closing_ = false;
    std::thread worker_;  // started by the first call
};

}  // namespace marivox::speechd
