// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <chrono>
#include <exception>
#include <functional>
#include <stdexcept>
#include <string_view>

namespace marivox::qt {

// Told of a failure that reached the toolkit, with where it surfaced.
using EscapedFailureHandler = std::function<void(std::string_view where, const std::exception&)>;

// The application object and the game's last line of defence. Every procedure of the game
// guards itself, so a failure that still reaches the event loop is a fault of ours in an
// adapter: it is handed to the handler and the loop goes on, for no event may end the game.
class Desktop : public QApplication {
  public:
    Desktop(int& argc, char** argv);

    void setEscapedFailureHandler(EscapedFailureHandler handler) { handler_ = std::move(handler); }
    bool notify(QObject* receiver, QEvent* event) override;

    // The handler of the running program's Desktop, or a plain note on standard error.
    static void escaped(std::string_view where, const std::exception& failure);
    // The same from any thread: the failure is handed on to the user-interface thread,
    // where every report is made.
    static void escapedOnAnyThread(std::string_view where, const std::exception& failure);
    // Runs `call` on the user-interface thread after `delay`, from any thread.
    static void post(std::chrono::microseconds delay, std::function<void()> call);

  private:
    EscapedFailureHandler handler_;
};

// Runs a call from the toolkit into the game. A failure is told here rather than left to
// unwind through the toolkit's frames, which are built without cleanup for exceptions and
// would leak what they hold; the application object stays the last line of defence.
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

}  // namespace marivox::qt
