// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace marivox {

// Key codes as the game screen's key handler receives them.
namespace KeyCode {
inline constexpr std::int16_t Other = 0;  // a key the game gives no code of its own
inline constexpr std::int16_t Back = 8;
inline constexpr std::int16_t Tab = 9;
inline constexpr std::int16_t Return = 13;
inline constexpr std::int16_t Shift = 16;
inline constexpr std::int16_t Control = 17;
inline constexpr std::int16_t Menu = 18;  // Alt
inline constexpr std::int16_t Escape = 27;
inline constexpr std::int16_t Space = 32;
inline constexpr std::int16_t PageUp = 33;
inline constexpr std::int16_t PageDown = 34;
inline constexpr std::int16_t End = 35;
inline constexpr std::int16_t Home = 36;
inline constexpr std::int16_t Left = 37;
inline constexpr std::int16_t Up = 38;
inline constexpr std::int16_t Right = 39;
inline constexpr std::int16_t Down = 40;
inline constexpr std::int16_t Insert = 45;
inline constexpr std::int16_t Delete = 46;
// Digits are 48..57 and letters 65..90, as their upper-case character codes; the keypad's
// digits with Num Lock on are 96..105.
inline constexpr std::int16_t Numpad0 = 96;
inline constexpr std::int16_t Add = 107;       // the keypad's plus
inline constexpr std::int16_t Subtract = 109;  // the keypad's minus
inline constexpr std::int16_t F1 = 112;
inline constexpr std::int16_t F2 = 113;
inline constexpr std::int16_t F3 = 114;
inline constexpr std::int16_t F4 = 115;
inline constexpr std::int16_t F5 = 116;
inline constexpr std::int16_t F6 = 117;
// F7..F12 follow in order, up to 123.
inline constexpr std::int16_t OemPlus = 187;   // the main keyboard's plus (= on US keyboards)
inline constexpr std::int16_t OemMinus = 189;  // the main keyboard's minus
}  // namespace KeyCode

// Shift state bits passed beside a key code.
namespace ShiftState {
inline constexpr std::int16_t Shift = 1;
inline constexpr std::int16_t Control = 2;
inline constexpr std::int16_t Alt = 4;
}  // namespace ShiftState

}  // namespace marivox
