// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string_view>

namespace marivox {

// The JAWS For Windows function library, loaded by name at its first call. Every call may
// throw a Failure: library missing, function missing, speech service lost.
class JawsApi {
  public:
    virtual ~JawsApi() = default;
    // Speaks text after whatever is being said when interrupt is false.
    virtual void JFWSayString(std::string_view text, bool interrupt) = 0;
    virtual void JFWStopSpeech() = 0;
};

// The Window-Eyes speech object ("GWSpeak.Speak"), called by name.
class SpeechAutomationObject {
  public:
    virtual ~SpeechAutomationObject() = default;
    virtual void SpeakString(std::string_view text) = 0;
    virtual void Silence() = 0;
};

// Creates automation objects by class name; throws a Failure with a clear description when
// the class cannot be created (not installed, no speech service).
class AutomationObjects {
  public:
    virtual ~AutomationObjects() = default;
    virtual std::unique_ptr<SpeechAutomationObject> CreateObject(std::string_view className) = 0;
};

}  // namespace marivox
