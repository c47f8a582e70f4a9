// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace marivox {

// The platforms the game is built for, as bits, so a set of them is one number.
namespace Platform {
inline constexpr unsigned Linux = 1;
inline constexpr unsigned Windows = 2;
}  // namespace Platform

struct Version {
    std::int16_t major = 0;
    std::int16_t minor = 0;
    std::int16_t revision = 0;
};

// The running program as the platform sees it.
class Application {
  public:
    virtual ~Application() = default;

    // The folder of the running executable, without a trailing separator.
    virtual std::string programFolder() const = 0;
    virtual std::string helpFile() const = 0;
    virtual void setHelpFile(std::string path) = 0;
    virtual std::string title() const = 0;
    virtual void setTitle(std::string title) = 0;
    virtual Version version() const = 0;
    // The platform the program runs on (one of Platform's bits).
    virtual unsigned platform() const = 0;
    // Holds the caller until `done` holds, while the event loop goes on without the player's
    // input: timers tick and calls posted from other threads run, keys and clicks wait their
    // turn. A timer must be sure to make `done` hold in the end.
    virtual void waitUntil(const std::function<bool()>& done) = 0;
    // Ends the program without running any window's unload handler. The caller returns
    // normally afterwards and must do nothing more.
    virtual void endNow() = 0;
};

}  // namespace marivox
