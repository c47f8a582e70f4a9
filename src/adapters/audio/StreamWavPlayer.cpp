// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/audio/StreamWavPlayer.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/audio/WavFile.h"
#include "ports/Failure.h"

namespace marivox::audio {
namespace {

using Clock = std::chrono::steady_clock;

// The worker hands the device this much at a time, so a dead device is noticed within a
// chunk and the queue's length stays accurate.
constexpr std::size_t kChunkSamples = kOutputRate / 100;

std::size_t samplesIn(std::chrono::milliseconds duration) {
    return static_cast<std::size_t>(duration.count()) * kOutputRate / 1000;
}

}  // namespace

struct StreamWavPlayer::Shared {
    struct Queued {
        std::shared_ptr<const Samples> samples;
        std::size_t next = 0;
        std::uint64_t number = 0;  // counts the sounds accepted
    };
    // Speech waiting for the sounds accepted before it, up to `number`, to begin.
    struct Notice {
        std::uint64_t number;
        std::function<void()> then;
    };

    AudioConnector connector;
    PlayerLimits limits;
    FailureHandler onFailure;  // called on the worker thread
    Poster post;

    std::mutex mutex;
    std::condition_variable wake;      // the worker waits on it
    std::condition_variable finishes;  // drainBeforeExit waits on it
    std::deque<Queued> queue;
    std::size_t queuedSamples = 0;
    std::uint64_t accepted = 0;
    std::uint64_t begun = 0;  // the last sound begun on the device or given up
    std::vector<Notice> notices;
    // Set while the worker is inside a device call, which blocks while the device is full
    // and forever if its server hangs.
    std::optional<Clock::time_point> inDeviceSince;
    bool connected = false;
    bool deviceMissing = false;  // the last attempt to reach the device failed
    bool stopping = false;       // play what waits, then stop
    bool aborting = false;       // stop at once
    bool finished = false;

    void dropQueue() {
        queue.clear();
        queuedSamples = 0;
        begun = accepted;  // what is given up will never begin: nobody waits for it
    }
    bool hasWork() const { return !queue.empty() || stopping || aborting; }
};

namespace {

using Lock = std::unique_lock<std::mutex>;

// Device calls may block for long; the UI thread must be able to enqueue meanwhile, and
// to see how long the device has been holding the worker.
template <typename Call>
auto inDevice(StreamWavPlayer::Shared& s, Lock& lock, Call call) {
    s.inDeviceSince = Clock::now();
    lock.unlock();
    struct Relock {
        StreamWavPlayer::Shared& s;
        Lock& lock;
        ~Relock() {
            lock.lock();
            s.inDeviceSince.reset();
        }
    } relock{s, lock};
    return call();
}

std::unique_ptr<AudioStream> connect(StreamWavPlayer::Shared& s, Lock& lock) {
    auto stream = inDevice(s, lock, s.connector);
    s.connected = stream != nullptr;
    s.deviceMissing = stream == nullptr;
    return stream;
}

void closeStream(StreamWavPlayer::Shared& s, Lock& lock, std::unique_ptr<AudioStream>& stream) {
    s.connected = false;
    inDevice(s, lock, [&] {
        stream.reset();
        return 0;
    });
}

// Hands the notices whose sounds have all begun, or will be heard in `heardIn`, to the
// user-interface thread.
void tellBegun(StreamWavPlayer::Shared& s, Lock& lock,
               std::chrono::microseconds heardIn = std::chrono::microseconds{0}) {
    std::vector<StreamWavPlayer::Shared::Notice> due;
    std::erase_if(s.notices, [&](auto& notice) {
        if (notice.number > s.begun) {
            return false;
        }
        due.push_back(std::move(notice));
        return true;
    });
    if (due.empty()) {
        return;
    }
    lock.unlock();
    for (auto& notice : due) {
        s.post ? s.post(heardIn, std::move(notice.then)) : notice.then();
    }
    lock.lock();
}

struct WorkerState {
    std::unique_ptr<AudioStream> stream;
    Clock::time_point retryAt;
    Clock::time_point idleSince = Clock::now();
    bool soundsPending = false;  // written since the last endOfSounds
};

void playUntilStopped(StreamWavPlayer::Shared& s, Lock& lock, WorkerState& w) {
    while (!s.aborting) {
        if (s.queue.empty()) {
            if (w.soundsPending) {
                w.soundsPending = false;
                if (w.stream && !inDevice(s, lock, [&] { return w.stream->endOfSounds(); })) {
                    closeStream(s, lock, w.stream);
                }
                w.idleSince = Clock::now();
                continue;
            }
            if (s.stopping) {
                break;
            }
            if (!w.stream) {
                s.wake.wait(lock, [&] { return s.hasWork(); });
            } else if (!s.wake.wait_until(lock, w.idleSince + s.limits.closeIdleAfter,
                                          [&] { return s.hasWork(); })) {
                closeStream(s, lock, w.stream);
            }
            continue;
        }
        if (!w.stream && Clock::now() >= w.retryAt) {
            w.stream = connect(s, lock);
            if (!w.stream) {
                w.retryAt = Clock::now() + s.limits.retryAfter;
            }
        }
        if (!w.stream) {
            // Nobody can hear it; keeping it would only play it late, out of context.
            s.dropQueue();
            tellBegun(s, lock);
            continue;
        }
        auto& front = s.queue.front();
        const auto samples = front.samples;
        const std::size_t start = front.next;
        const std::uint64_t number = front.number;
        const std::size_t count = std::min(kChunkSamples, samples->size() - start);
        front.next += count;
        s.queuedSamples -= count;
        if (front.next == samples->size()) {
            s.queue.pop_front();
        }
        // A sound begins when it is heard, after what the device still holds before it.
        std::chrono::microseconds heardIn{0};
        const bool written = inDevice(s, lock, [&] {
            if (start == 0) {
                heardIn = w.stream->untilHeard();
            }
            return w.stream->write(std::span<const std::int16_t>(samples->data() + start, count));
        });
        if (written) {
            w.soundsPending = true;
            if (start == 0) {
                s.begun = number;
                tellBegun(s, lock, heardIn);
            }
        } else {
            // The server died: what waits would come out of context later, and the next
            // sound tries a fresh connection.
            closeStream(s, lock, w.stream);
            s.dropQueue();
            w.soundsPending = false;
            w.retryAt = Clock::now();
            tellBegun(s, lock);
        }
    }
}

void runWorker(const std::shared_ptr<StreamWavPlayer::Shared>& shared) {
    auto& s = *shared;
    Lock lock(s.mutex);
    WorkerState w;
    for (bool starting = true;; starting = false) {
        try {
            if (starting) {
                // Connecting at once spares the first sound the connection's delay.
                w.stream = connect(s, lock);
                w.retryAt =
                    Clock::now() + (w.stream ? std::chrono::milliseconds(0) : s.limits.retryAfter);
            }
            playUntilStopped(s, lock, w);
            break;
        } catch (const std::exception& failure) {
            // A fault of ours rather than the device's: the sound in hand is given up, the
            // owner is told, and the worker goes on with a fresh stream.
            s.dropQueue();
            w.soundsPending = false;
            w.retryAt = Clock::now();
            closeStream(s, lock, w.stream);
            tellBegun(s, lock);
            if (s.onFailure) {
                lock.unlock();
                s.onFailure(failure);
                lock.lock();
            }
        }
    }
    if (w.stream && !s.aborting) {
        inDevice(s, lock, [&] { return w.stream->drain(); });
    }
    closeStream(s, lock, w.stream);
    s.finished = true;
    s.finishes.notify_all();
}

}  // namespace

StreamWavPlayer::StreamWavPlayer(AudioConnector connector, PlayerLimits limits,
                                 FailureHandler onFailure, Poster post)
    : shared_(std::make_shared<Shared>()) {
    shared_->connector = std::move(connector);
    shared_->limits = limits;
    shared_->onFailure = std::move(onFailure);
    shared_->post = std::move(post);
    worker_ = std::thread(runWorker, shared_);
}

StreamWavPlayer::~StreamWavPlayer() {
    stopWorker(std::chrono::milliseconds(200), false);
}

void StreamWavPlayer::open(std::string_view path) {
    current_ = cache_.load(std::string(path));
}

void StreamWavPlayer::play(std::int32_t /*from*/, std::int32_t /*to*/, bool /*wait*/) {
    // The game always asks for the whole sound and never waits for its end.
    if (!current_) {
        throw Failure(FailureNumber::SoundFile, "No sound file was opened before playing one.");
    }
    status_ = 0;
    if (current_->empty()) {
        return;
    }
    auto& s = *shared_;
    std::lock_guard lock(s.mutex);
    if (s.stopping || s.aborting) {
        return;
    }
    const auto now = Clock::now();
    if (s.queuedSamples > samplesIn(s.limits.busyAbove)) {
        if (s.inDeviceSince && now - *s.inDeviceSince >= s.limits.stallAfter) {
            // The device has taken nothing for long: what waits is given up, and so is
            // every later sound until it moves, so the game is held once at most.
            s.dropQueue();
        } else if (s.connected) {
            status_ = kDeviceBusy;
            return;
        }
        // While the worker is still connecting there is nothing to wait for: the sounds are
        // played or dropped once it knows whether there is a device.
    }
    s.queue.push_back({current_, 0, ++s.accepted});
    s.queuedSamples += current_->size();
    s.wake.notify_one();
}

void StreamWavPlayer::whenAcceptedSoundsHeard(std::function<void()> then) {
    {
        auto& s = *shared_;
        std::lock_guard lock(s.mutex);
        // Without a device nothing will be heard, so nothing is waited for. While the worker
        // still connects, or reconnects after an idle spell, it will tell either way.
        if (!s.deviceMissing && s.begun < s.accepted && !s.stopping && !s.aborting) {
            s.notices.push_back({s.accepted, std::move(then)});
            return;
        }
    }
    then();
}

void StreamWavPlayer::drainBeforeExit(std::chrono::milliseconds limit) {
    stopWorker(limit, true);
}

void StreamWavPlayer::stopWorker(std::chrono::milliseconds limit, bool playWhatWaits) {
    if (!worker_.joinable()) {
        return;
    }
    auto& s = *shared_;
    bool finished = false;
    {
        Lock lock(s.mutex);
        s.stopping = true;
        s.aborting = s.aborting || !playWhatWaits;
        s.wake.notify_one();
        finished = s.finishes.wait_for(lock, limit, [&] { return s.finished; });
        if (!finished) {
            s.aborting = true;
            s.wake.notify_one();
        }
    }
    // A worker stuck in a device call that never returns is left behind; it owns its share
    // of the state, so it touches nothing that goes with this object.
    if (finished) {
        worker_.join();
    } else {
        worker_.detach();
    }
}

}  // namespace marivox::audio
