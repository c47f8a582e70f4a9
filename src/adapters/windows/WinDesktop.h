// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The Windows desktop's event loop and the services every window uses: timers, calls posted
// from other threads, and the last line of defence for failures that escape the game.

#include <windows.h>

#include <chrono>
#include <exception>
#include <functional>
#include <map>
#include <stdexcept>
#include <string_view>

namespace marivox::windows {

using EscapedFailureHandler = std::function<void(std::string_view where, const std::exception&)>;
// Sees each message of the event loop first; true keeps it from going further.
using MessagePreview = std::function<bool(MSG&)>;

class Desktop {
  public:
    explicit Desktop(HINSTANCE instance);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    static Desktop& current();
    HINSTANCE instance() const { return instance_; }

    void setEscapedFailureHandler(EscapedFailureHandler handler) { handler_ = std::move(handler); }
    void setPreview(MessagePreview preview) { preview_ = std::move(preview); }
    // Runs the event loop until the program is asked to end.
    int run();
    // An event loop of its own while `window` is open, as a modal dialog holds its caller;
    // the other windows of the program take no input meanwhile.
    void runModal(HWND window, const bool& closed);
    // Runs only the program's own messages (timers, posted calls) until `done` holds; the
    // player's keys and clicks stay queued for whichever loop comes next.
    void runOwnUntil(const std::function<bool()>& done);

    // Calls `tick` after `interval` on this thread, once; the returned number stops it.
    UINT_PTR startTimer(std::chrono::milliseconds interval, std::function<void()> tick);
    void stopTimer(UINT_PTR id);

    // The running program's handler, or a plain note on standard error.
    static void escaped(std::string_view where, const std::exception& failure);
    // The same from any thread: the report is made on the user-interface thread.
    static void escapedOnAnyThread(std::string_view where, const std::exception& failure);
    // Runs `call` on the user-interface thread after `delay`, from any thread.
    static void post(std::chrono::microseconds delay, std::function<void()> call);

  private:
    static LRESULT CALLBACK messages(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HINSTANCE instance_;
    HWND messageWindow_ = nullptr;
    EscapedFailureHandler handler_;
    MessagePreview preview_;
    std::map<UINT_PTR, std::function<void()>> timers_;
    UINT_PTR nextTimer_ = 1;
};

// Runs a call from the desktop into the game; a failure never unwinds through the
// system's frames, which know nothing of C++ exceptions.
template <typename Call>
void guarded(std::string_view where, Call&& call) noexcept {
    try {
        call();
    } catch (const std::exception& failure) {
        Desktop::escaped(where, failure);
    } catch (...) {
        Desktop::escaped(where, std::runtime_error("An unknown failure"));
    }
}

}  // namespace marivox::windows
