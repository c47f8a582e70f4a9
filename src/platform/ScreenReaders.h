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

// The JAWS For Windows function library, loaded by name at its first call. Every call may
// throw a Failure: library missing, function missing, speech service lost.
class JawsApi {
  public:
    virtual ~JawsApi() = default;
    // Speaks text after whatever is being said when interrupt is false.
    virtual void JFWSayString(std::string_view text, bool interrupt) = 0;
    virtual void JFWStopSpeech() = 0;
    // Where failures that come after a call returned are told; calls that fail at once
    // (every adapter's own way when it does not hand calls on) need none.
    virtual void onLateFailure(LateFailureHandler /*handler*/) {}
};

// The Window-Eyes speech object ("GWSpeak.Speak"), called by name.
class SpeechAutomationObject {
  public:
    virtual ~SpeechAutomationObject() = default;
    virtual void SpeakString(std::string_view text) = 0;
    virtual void Silence() = 0;
    virtual void onLateFailure(LateFailureHandler /*handler*/) {}
};

// Creates automation objects by class name; throws a Failure with a clear description when
// the class cannot be created (not installed, no speech service).
class AutomationObjects {
  public:
    virtual ~AutomationObjects() = default;
    virtual std::unique_ptr<SpeechAutomationObject> CreateObject(std::string_view className) = 0;
    // Given to every object created from now on.
    virtual void onLateFailure(LateFailureHandler /*handler*/) {}
};

}  // namespace marivox
