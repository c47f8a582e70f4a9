// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "speech/Speech.h"

namespace marivox {

// Passes the game's speech on and keeps the last things said, so a player who missed one
// can hear it again. Each Speak is one thing said, unless a report of several sentences
// holds them together as one.
class SpokenHistory : public Speech {
  public:
    static constexpr std::size_t kKept = 10;

    explicit SpokenHistory(Speech& speech) : speech_(speech) {}

    void Speak(std::string_view text) override;
    void StopSpeech() override { speech_.StopSpeech(); }
    void SilenceWaiting() override { speech_.SilenceWaiting(); }

    // While one lives, everything spoken is kept as a single thing said (none if nothing is).
    class OneThingSaid {
      public:
        explicit OneThingSaid(SpokenHistory& history);
        ~OneThingSaid();
        OneThingSaid(const OneThingSaid&) = delete;
        OneThingSaid& operator=(const OneThingSaid&) = delete;

      private:
        SpokenHistory& history_;
    };

    // Says again the last thing said; each call straight after the last goes one further
    // back, and stays on the oldest kept. Nothing kept: says nothing.
    void repeatOneBack();
    // The next repeat starts again from the latest thing said.
    void restartRepeats() { back_ = 0; }

  private:
    Speech& speech_;
    std::deque<std::vector<std::string>> said_;  // the latest at the front
    std::size_t back_ = 0;
    bool joining_ = false;  // speech goes into the entry a OneThingSaid opened
};

}  // namespace marivox
