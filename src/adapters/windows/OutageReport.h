// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A reader that comes and goes while the game runs (NVDA, Windows' voices) is reported once
// per outage: the first call that fails throws, the calls after it fail quietly until one
// gets through, and the next outage is reported again. Every call still tries the reader,
// which is how its return is noticed.

#include <utility>

#include "ports/Failure.h"

namespace marivox::windows {

class OutageReport {
  public:
    template <class Call>
    void run(Call&& call) {
        try {
            std::forward<Call>(call)();
            out_ = false;
        } catch (const Failure&) {
            if (!std::exchange(out_, true)) {
                throw;
            }
        }
    }

  private:
    bool out_ = false;
};

}  // namespace marivox::windows
