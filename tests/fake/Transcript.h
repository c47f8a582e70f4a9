// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "support/Failure.h"

namespace marivox::fake {

// Everything the fakes were asked to do, in order, one line per call. A test can arm a
// failure at a line: the fake then throws instead of doing what that line records, which is
// how failures get into the procedures that call the ports.
class Transcript {
  public:
    // Records one call, or throws the armed failure if this is the line it waits for.
    void record(std::string line);

    // Fail the `occurrence`-th call (1-based) whose line starts with `prefix`.
    void failAt(std::string prefix, int occurrence = 1, std::int32_t number = 1234,
                std::string description = "Injected failure");

    const std::vector<std::string>& lines() const { return lines_; }
    std::vector<std::string> linesStartingWith(std::string_view prefix) const;
    std::string text() const;  // all lines, each ending in a newline
    void clear() { lines_.clear(); }
    bool contains(std::string_view line) const;

  private:
    struct Armed {
        std::string prefix;
        int remaining;
        std::int32_t number;
        std::string description;
    };
    std::vector<std::string> lines_;
    std::vector<Armed> armed_;
};

}  // namespace marivox::fake
