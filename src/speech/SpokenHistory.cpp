// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpokenHistory.h"

#include <algorithm>

namespace marivox {

void SpokenHistory::Speak(std::string_view text) {
    if (!joining_) {
        said_.emplace_front();
    }
    said_.front().emplace_back(text);
    // Only once something is said: an empty report must not push the oldest out.
    if (said_.size() > kKept) {
        said_.pop_back();
    }
    back_ = 0;
    speech_.Speak(text);
}

SpokenHistory::OneThingSaid::OneThingSaid(SpokenHistory& history) : history_(history) {
    history_.said_.emplace_front();
    history_.joining_ = true;
}

SpokenHistory::OneThingSaid::~OneThingSaid() {
    history_.joining_ = false;
    if (history_.said_.front().empty()) {
        history_.said_.pop_front();
    }
}

void SpokenHistory::repeatOneBack() {
    if (said_.empty()) {
        return;
    }
    const std::size_t index = std::min(back_, said_.size() - 1);
    back_ = index + 1;
    for (const std::string& sentence : said_[index]) {
        speech_.Speak(sentence);
    }
}

}  // namespace marivox
