// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/OneShotTimer.h"

namespace marivox::windows {

// One-shot timers on the Windows event loop; they tick inside modal boxes too.
class WinTimerFactory : public TimerFactory {
  public:
    std::unique_ptr<OneShotTimer> createTimer(std::string_view name,
                                              std::chrono::milliseconds interval,
                                              std::function<void()> onTick) override;
};

}  // namespace marivox::windows
