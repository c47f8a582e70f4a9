// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string_view>

namespace marivox {

// A speech call that an adapter hands on and that returns at once may fail afterwards. At
// each such call the adapter asks, on the user-interface thread, whom to tell if it fails;
// the answer (empty: no one) is told there later, in the order of the calls.
enum class SpeechCall { Say, Stop };
using FailureTeller = std::function<void(std::exception_ptr)>;
using LateFailureHandler = std::function<FailureTeller(SpeechCall)>;

// One screen reader, as the game speaks through it. Every call may throw a Failure: the
// reader is not there, or was lost.
class ReaderVoice {
  public:
    virtual ~ReaderVoice() = default;
    // Hands the text over to be said after whatever the reader is saying, never cutting it
    // off, and shown on the reader's braille display where it has one.
    virtual void say(std::string_view text) = 0;
    // Silences what the reader is saying.
    virtual void stop() = 0;
};

// The platform's drivers: how it reaches each screen reader it can.
class ReaderDrivers {
  public:
    virtual ~ReaderDrivers() = default;
    // The voice of the reader a choice names ("JFW", "WE", ...). A reader reached through an
    // object the game starts (Window-Eyes's) is started here, and a failure thrown; the others
    // are reached at the voice's first call, which fails then if the reader is not there.
    virtual std::unique_ptr<ReaderVoice> voiceOf(std::string_view reader) = 0;
    // Where failures of calls that were handed on and returned at once are told; given to
    // every voice made from then on. Voices whose calls fail at once need none.
    virtual void onLateFailure(LateFailureHandler /*handler*/) {}
};

}  // namespace marivox
