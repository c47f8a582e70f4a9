// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/ScreenReaders.h"

namespace marivox {

inline constexpr std::string_view kJaws = "JFW";
inline constexpr std::string_view kWindowEyes = "WE";
inline constexpr std::string_view kNoReader = "None";

// Which screen reader speaks for the player, and the Window-Eyes speech object when that is
// the one. One instance serves the whole program.
struct ScreenReaderState {
    std::string ScreenReader;  // empty until first chosen
    std::unique_ptr<SpeechAutomationObject> WESpeech;
};

// Blanks around the text removed, as the choice is always compared.
inline std::string_view trimmedBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// True when the choice, trimmed, is exactly `reader` (case matters: "we" selects nothing).
inline bool isChosen(const ScreenReaderState& state, std::string_view reader) {
    return trimmedBlanks(state.ScreenReader) == reader;
}

}  // namespace marivox
