// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "ports/Application.h"

namespace marivox {

// The screen readers the game speaks through, one row each: the value the choice stores, the
// line the Screen Reader dialog shows, where the reader exists, and how the game holds its
// voice. A new reader is a row here and a driver on each of its platforms.
struct ReaderRow {
    std::string_view stored;
    std::string_view item;
    unsigned platforms;    // Platform bits
    bool startedOnChoice;  // an object the game starts when it is chosen and releases at the end
    bool saysEmptyText;    // the empty text is handed over too
};

inline constexpr unsigned kEveryPlatform = Platform::Linux | Platform::Windows;

inline constexpr ReaderRow kJaws{"JFW", "JAWS For Windows", kEveryPlatform, false, true};
inline constexpr ReaderRow kWindowEyes{"WE", "Window-Eyes", kEveryPlatform, true, false};
// The class of the object the "WE" choice starts; the fakes name it as the driver does.
inline constexpr std::string_view kWindowEyesClass = "GWSpeak.Speak";
inline constexpr ReaderRow kNvda{"NVDA", "NVDA", Platform::Windows, false, false};
inline constexpr ReaderRow kWindowsVoices{"SAPI", "Windows voices (no screen reader)",
                                          Platform::Windows, false, false};
// Orca itself: the game's words go to Orca as announcements where the desktop can make them.
inline constexpr ReaderRow kOrca{"Orca", "Orca", Platform::Linux, false, false};

// In the dialog's order: the first is selected when it opens. Each platform lists its own,
// after the two every platform has.
inline constexpr std::array kReaders{&kJaws, &kWindowEyes, &kNvda, &kWindowsVoices, &kOrca};

// What the choice holds when no reader is chosen, and what an empty setting reads as.
inline constexpr std::string_view kNoReader = "None";

// The rows offered on a platform, in the dialog's order.
inline std::vector<const ReaderRow*> readersOn(unsigned platform) {
    std::vector<const ReaderRow*> offered;
    for (const ReaderRow* row : kReaders) {
        if ((row->platforms & platform) != 0) {
            offered.push_back(row);
        }
    }
    return offered;
}

// Blanks around the text removed, as the choice is always compared.
inline std::string_view trimmedBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// The reader a choice names on a platform, compared trimmed and exactly ("we" names none);
// none means no speech.
inline const ReaderRow* chosenReader(std::string_view choice, unsigned platform) {
    for (const ReaderRow* row : readersOn(platform)) {
        if (row->stored == trimmedBlanks(choice)) {
            return row;
        }
    }
    return nullptr;
}

}  // namespace marivox
