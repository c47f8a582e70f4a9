// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/speechd/SpeechdQueue.h"

#include "adapters/probe/LatencyLog.h"

namespace marivox::speechd {

SpeechdQueue::SpeechdQueue(std::string clientName, probe::LatencyLog* latency, Post post,
                           VoiceSource voice)
    : connection_(std::move(clientName)),
      voice_(std::move(voice)),
      latency_(latency),
      post_(std::move(post)) {}

SpeechdQueue::~SpeechdQueue() {
    {
        const std::lock_guard lock(mutex_);
        closing_ = true;
    }
    wake_.notify_one();
    if (worker_.joinable()) {
        worker_.join();
    }
}

void SpeechdQueue::onLateFailure(LateFailureHandler handler) {
    lateFailure_ = std::move(handler);
}

void SpeechdQueue::connectNow() {
    connection_.connect();
}

void SpeechdQueue::say(std::string_view text) {
    if (latency_ != nullptr) {
        latency_->speechHandedOver();
    }
    enqueue(SpeechCall::Say, text);
    if (latency_ != nullptr) {
        latency_->speechDone();
    }
}

void SpeechdQueue::cancel() {
    enqueue(SpeechCall::Stop, {});
}

void SpeechdQueue::enqueue(SpeechCall kind, std::string_view text) {
    FailureTeller tell = lateFailure_ ? lateFailure_(kind) : FailureTeller();
    {
        const std::lock_guard lock(mutex_);
        calls_.push_back({kind, std::string(text), std::move(tell)});
        if (!worker_.joinable()) {
            worker_ = std::thread([this] { work(); });
        }
    }
    wake_.notify_one();
}

void SpeechdQueue::work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        wake_.wait(lock, [this] { return closing_ || !calls_.empty(); });
        if (calls_.empty()) {
            return;  // closing, with everything made
        }
        const Call call = std::move(calls_.front());
        calls_.pop_front();
        lock.unlock();
        std::exception_ptr failure;
        try {
            if (call.kind == SpeechCall::Say) {
                if (voice_) {
                    connection_.useVoice(voice_());
                }
                connection_.say(call.text);
            } else {
                connection_.cancel();
            }
        } catch (...) {
            failure = std::current_exception();
        }
        lock.lock();
        if (failure != nullptr && closing_) {
            return;  // the program is ending and the service is gone: nothing more to try
        }
        if (failure != nullptr && call.tell && post_) {
            post_([tell = call.tell, failure] { tell(failure); });
        }
    }
}

}  // namespace marivox::speechd
