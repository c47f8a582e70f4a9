// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

// The game's sound effects, named as the game asks for them: a backslash and the file's
// name, after the program folder. This list is the only one: the generator that makes the
// files, the build that installs them and the tests all read it.
namespace marivox::sound {

inline constexpr std::string_view Begin = "\\begin.wav";
inline constexpr std::string_view Sonar = "\\sonar.wav";
inline constexpr std::string_view Shoot = "\\shoot.wav";
inline constexpr std::string_view Hit = "\\hit.wav";
inline constexpr std::string_view Sink = "\\sink.wav";
inline constexpr std::string_view YouWin1 = "\\youwin1.wav";
inline constexpr std::string_view YouWin2 = "\\youwin2.wav";
inline constexpr std::string_view Laugh1 = "\\laugh1.wav";
inline constexpr std::string_view End = "\\end.wav";

inline constexpr std::array kAll{Begin, Sonar, Shoot, Hit, Sink, YouWin1, YouWin2, Laugh1, End};

// The file's name on disk: "shoot.wav" for "\shoot.wav".
constexpr std::string_view fileName(std::string_view sound) {
    return sound.substr(1);
}

}  // namespace marivox::sound
