// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/OneShotTimer.h"

namespace marivox::qt {

// One-shot timers on QTimer. A timer ticks once per switching on and stays on until its
// handler switches it off, so a handler held in a modal box is never re-entered.
class QtTimerFactory : public TimerFactory {
  public:
    std::unique_ptr<OneShotTimer> createTimer(std::string_view name,
                                              std::chrono::milliseconds interval,
                                              std::function<void()> onTick) override;
};

}  // namespace marivox::qt
