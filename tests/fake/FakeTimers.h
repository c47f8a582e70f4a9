// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "fake/Transcript.h"
#include "platform/OneShotTimer.h"

namespace marivox::fake {

// Virtual time: timers fire only when the test advances the clock, in the order they fall
// due (ties in the order they were switched on). Lines: `timer <name> on|off|tick`.
class FakeTimers : public TimerFactory {
  public:
    explicit FakeTimers(Transcript& transcript) : transcript_(transcript) {}

    std::unique_ptr<OneShotTimer> createTimer(std::string_view name,
                                              std::chrono::milliseconds interval,
                                              std::function<void()> onTick) override;

    std::int64_t now() const { return now_; }
    // Moves virtual time forward by `ms`, firing every timer that falls due on the way.
    void advance(std::int64_t ms);
    // Advances to the next due timer and fires it; false when none is pending.
    bool fireNext();
    bool anyPending() const;

  private:
    struct Entry {
        std::string name;
        std::int64_t interval;
        std::function<void()> onTick;
        bool on = false;
        bool fired = false;
        std::int64_t due = 0;
        std::uint64_t order = 0;
    };
    class Timer;
    Entry* nextDue() const;

    Transcript& transcript_;
    std::vector<std::unique_ptr<Entry>> entries_;
    std::int64_t now_ = 0;
    std::uint64_t switches_ = 0;
};

}  // namespace marivox::fake
