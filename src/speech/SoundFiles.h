// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace marivox {

// The game's sound effects, typed so that a sound is never a mistyped file name.
enum class Sound { Begin, Sonar, Shoot, Hit, Sink, YouWin1, YouWin2, Laugh1, End };

namespace sound {

struct File {
    Sound sound;
    std::string_view name;  // as the game asks for it: a backslash, after the program folder
};

// The only list of the files, in the order of the enum. The generator that makes them reads
// it, and so do the build that installs them and the e2e tests, as text.
inline constexpr std::array kFiles{
    File{Sound::Begin, "\\begin.wav"},     File{Sound::Sonar, "\\sonar.wav"},
    File{Sound::Shoot, "\\shoot.wav"},     File{Sound::Hit, "\\hit.wav"},
    File{Sound::Sink, "\\sink.wav"},       File{Sound::YouWin1, "\\youwin1.wav"},
    File{Sound::YouWin2, "\\youwin2.wav"}, File{Sound::Laugh1, "\\laugh1.wav"},
    File{Sound::End, "\\end.wav"},
};

consteval bool inEnumOrder() {
    for (std::size_t i = 0; i < kFiles.size(); ++i) {
        if (static_cast<std::size_t>(kFiles[i].sound) != i) {
            return false;
        }
    }
    return kFiles.size() == static_cast<std::size_t>(Sound::End) + 1;
}
static_assert(inEnumOrder(), "one row per sound, in the order of the enum");

// "\shoot.wav", the name the game asks for after the program folder.
constexpr std::string_view name(Sound sound) {
    return kFiles[static_cast<std::size_t>(sound)].name;
}

// The file's name on disk: "shoot.wav".
constexpr std::string_view fileName(Sound sound) {
    return name(sound).substr(1);
}

}  // namespace sound
}  // namespace marivox
