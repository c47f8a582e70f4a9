// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace marivox {

// The one WAV player of the game screen. A sound is played by a short protocol: open the
// file, ask to play it, read the status (kDeviceBusy means the request was refused because
// the output is still in use, so ask again), then close the request.
class WavPlayer {
  public:
    static constexpr std::int32_t kDeviceBusy = 320;

    virtual ~WavPlayer() = default;
    // Makes the file at `path` (native separators) the current sound.
    virtual void open(std::string_view path) = 0;
    // Asks for the current sound to be played; the game always passes 0, -1, true.
    virtual void play(std::int32_t from, std::int32_t to, bool wait) = 0;
    // The outcome of the last play request: kDeviceBusy if it was refused.
    virtual std::int32_t status() = 0;
    // Ends the request; an accepted sound plays on to its end.
    virtual void closeSound() = 0;
    // Calls `then` on the user-interface thread once every sound accepted so far has begun
    // to play, or been given up; at once when none is waiting or no output exists.
    virtual void whenAcceptedSoundsHeard(std::function<void()> then) = 0;
};

}  // namespace marivox
