// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WinTimers.h"

#include <string>

#include "adapters/windows/WinDesktop.h"

namespace marivox::windows {
namespace {

class WinOneShotTimer : public OneShotTimer {
  public:
    WinOneShotTimer(std::string_view name, std::chrono::milliseconds interval,
                    std::function<void()> onTick)
        : name_(name), interval_(interval), onTick_(std::move(onTick)) {}
    ~WinOneShotTimer() override { switchOff(); }

    void switchOn() override {
        if (on_) {
            return;  // already counting: the interval is not restarted
        }
        on_ = true;
        id_ = Desktop::current().startTimer(interval_, [this] {
            id_ = 0;
            if (on_) {
                guarded(name_, onTick_);
            }
        });
    }
    void switchOff() override {
        on_ = false;
        if (id_ != 0) {
            Desktop::current().stopTimer(id_);
            id_ = 0;
        }
    }
    bool isOn() const override { return on_; }

  private:
    std::string name_;
    std::chrono::milliseconds interval_;
    std::function<void()> onTick_;
    UINT_PTR id_ = 0;
    bool on_ = false;
};

}  // namespace

std::unique_ptr<OneShotTimer> WinTimerFactory::createTimer(std::string_view name,
                                                           std::chrono::milliseconds interval,
                                                           std::function<void()> onTick) {
    return std::make_unique<WinOneShotTimer>(name, interval, std::move(onTick));
}

}  // namespace marivox::windows
