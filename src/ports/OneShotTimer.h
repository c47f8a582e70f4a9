// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string_view>

namespace marivox {

// A timer that ticks once per switching on. Switching on a timer that is already on
// changes nothing (its interval is not restarted); the handler switches it off.
class OneShotTimer {
  public:
    virtual ~OneShotTimer() = default;
    virtual void switchOn() = 0;
    virtual void switchOff() = 0;
    virtual bool isOn() const = 0;
};

class TimerFactory {
  public:
    virtual ~TimerFactory() = default;
    virtual std::unique_ptr<OneShotTimer> createTimer(std::string_view name,
                                                      std::chrono::milliseconds interval,
                                                      std::function<void()> onTick) = 0;
};

}  // namespace marivox
