// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the game's windows hold and where, the same on every desktop: the game screen's board
// and legend, and the places of the dialogs' controls, in twips (1440 to the inch). The menus
// are ports/Commands.h's.

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "ports/Forms.h"
#include "ports/MarkNames.h"
#include "ports/ProgramName.h"

namespace marivox::layout {

struct Place {
    int left, top, width, height;
};

struct Label {
    const char* name;
    const char* text;
    Place place;
};

// The legend lists the marks by letter, three blanks between entries: "A = Aircraft Carrier".
namespace legend {

constexpr std::array<MarkNames, kMarks.size()> byLetter() {
    auto marks = kMarks;
    std::sort(marks.begin(), marks.end(),
              [](const MarkNames& a, const MarkNames& b) { return a.letter < b.letter; });
    return marks;
}

// Writes entries [first, last) into out, when there is one, and returns their length.
constexpr std::size_t writeEntries(std::size_t first, std::size_t last, char* out) {
    std::size_t at = 0;
    const auto put = [&](std::string_view piece) {
        for (const char c : piece) {
            if (out != nullptr) {
                out[at] = c;
            }
            ++at;
        }
    };
    for (std::size_t i = first; i < last; ++i) {
        put(i > first ? "   " : "");
        put(byLetter()[i].letter);
        put(" = ");
        put(byLetter()[i].legend);
    }
    return at;
}

// One line of the legend, ended by a NUL for the windows.
template <std::size_t First, std::size_t Last>
inline constexpr auto kLine = [] {
    std::array<char, writeEntries(First, Last, nullptr) + 1> text{};
    writeEntries(First, Last, text.data());
    return text;
}();

}  // namespace legend

inline constexpr const char* kGameCaption = kProgramName;
inline constexpr int kGameClientWidth = 9660;
inline constexpr int kGameClientHeight = 6015;
inline constexpr Place kBoard{0, 0, 10000, 2800};
inline constexpr std::array<Label, 3> kLegend{{
    {"lblLabel0", "Click on a cell to shoot!", {2500, 3000, 5000, 255}},
    {"lblLabel1", legend::kLine<0, 3>.data(), {2500, 3500, 5000, 255}},
    {"lblLabel2", legend::kLine<3, kMarks.size()>.data(), {2500, 3900, 5000, 255}},
}};

// The dialog "Screen Reader".
inline constexpr const char* kReaderCaption = "Screen Reader";
inline constexpr int kReaderWidth = 3000;
inline constexpr int kReaderHeight = 3495;
inline constexpr Place kReaderList{500, 200, 2000, 1425};
inline constexpr Label kReaderLabel{"lblReader", "Screen Reader", {500, 0, 1000, 195}};
inline constexpr Place kReaderOk{1000, 3000, 1000, 300};

// The dialog "About Marivox".
inline constexpr const char* kAboutCaption = "About Marivox";
inline constexpr int kAboutWidth = 5865;
inline constexpr int kAboutHeight = 3600;
inline constexpr Place kAboutIcon{240, 240, 480, 480};
inline constexpr Place kAboutTitle{1050, 240, 4092, 480};
inline constexpr Place kAboutVersion{1050, 780, 4092, 225};
inline constexpr int kAboutLineTop = 2400;
inline constexpr int kAboutLineInset = 100;
inline constexpr Place kAboutOk{4245, 2625, 1467, 345};

}  // namespace marivox::layout
