// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <initializer_list>
#include <stdexcept>

#include "model/RandomNumbers.h"

namespace marivox::fake {

// Hands out the numbers a test scripted, checking each falls in the range asked for.
class ScriptedRandom : public RandomSource {
  public:
    ScriptedRandom() = default;
    ScriptedRandom(std::initializer_list<std::int16_t> values) : values_(values) {}

    void add(std::initializer_list<std::int16_t> values) { values_.insert(values_.end(), values); }
    std::int16_t GetRandom(std::int16_t low, std::int16_t high) override {
        if (values_.empty()) {
            throw std::logic_error("the script ran out of random numbers");
        }
        const std::int16_t value = values_.front();
        values_.pop_front();
        if (value < low || value > high) {
            throw std::logic_error("scripted number outside the range asked for");
        }
        ++draws_;
        return value;
    }
    bool exhausted() const { return values_.empty(); }
    int draws() const { return draws_; }

  private:
    std::deque<std::int16_t> values_;
    int draws_ = 0;
};

}  // namespace marivox::fake
