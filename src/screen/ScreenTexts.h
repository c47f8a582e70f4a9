// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace marivox::screen {

inline constexpr std::string_view kCrLf = "\r\n";
inline constexpr std::string_view kNewGameQuestion =
    "There is already a game in progress.\r\nAre you sure you want to start a new game?\r\n";
inline constexpr std::string_view kExitQuestion =
    "There is a game in progress.\r\nAre you sure you want to exit the program?\r\n";
inline constexpr std::string_view kPlayerWins =
    "Congradulations, you win!\r\nDo you want to play again?\r\n";
inline constexpr std::string_view kComputerWins = "Sorry, I win!\r\nDo you want to play again?\r\n";

inline constexpr std::string_view kTurnReminder = "It is your turn and you are located at ";
inline constexpr std::string_view kTargeting = "It is my turn targeting ";
inline constexpr std::string_view kOpeningPrompt[] = {
    " press f 1 for help  ", " press f 2 for status  ",
    // The cursor is always on A 1 when a game begins.
    " it is your turn, and you are located at A 1 "};

inline constexpr std::string_view kHelpFileName = "\\marvox.hlp";
inline constexpr std::string_view kCursorMissText = " miss  ";

}  // namespace marivox::screen
