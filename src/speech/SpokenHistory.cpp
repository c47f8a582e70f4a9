// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/SpokenHistory.h"

#include <algorithm>

namespace marivox {

void SpokenHistory::Speak(std::string_view text) {
    if (joining_ && joinedAny_) {
        said_.front().emplace_back(text);
    } else {
        said_.push_front({std::string(text)});
        if (said_.size() > kKept) {
            said_.pop_back();
        }
        joinedAny_ = joining_;
    }
    back_ = 0;
    speech_.Speak(text);
}

SpokenHistory::OneThingSaid::OneThingSaid(SpokenHistory& history) : history_(history) {
    history_.joining_ = true;
    history_.joinedAny_ = false;
}

SpokenHistory::OneThingSaid::~OneThingSaid() {
    history_.joining_ = false;
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
