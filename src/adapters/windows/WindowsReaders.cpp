// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WindowsReaders.h"

#include <optional>
#include <string>

#include "adapters/windows/JawsVoice.h"
#include "adapters/windows/NvdaVoice.h"
#include "adapters/windows/OutageReport.h"
#include "adapters/windows/WindowsAutomation.h"
#include "ports/Failure.h"
#include "ports/Readers.h"

namespace marivox::windows {
namespace {

// The "WE" choice: Window-Eyes's automation object, created when chosen.
class WindowEyesVoice : public ReaderVoice {
  public:
    WindowEyesVoice() : object_(kWindowEyesClass, "Window-Eyes") {}
    void say(std::string_view text) override {
        const Argument argument = Argument::text(text);
        object_.call(L"SpeakString", {&argument});
    }
    void stop() override { object_.call(L"Silence"); }

  private:
    AutomationObject object_;
};

// The "SAPI" choice, for a player without a screen reader or with Narrator: Windows' own
// voices through SAPI's automation object "SAPI.SpVoice", created at the first call.
class WindowsVoice : public ReaderVoice {
  public:
    void say(std::string_view text) override { speak(text, kAsync | kNotXml); }
    void stop() override { speak("", kAsync | kPurgeBeforeSpeak); }

  private:
    // SpeechVoiceSpeakFlags. Asynchronous, so that the game never waits for the words, and
    // never read as markup, which the game's texts are not.
    static constexpr long kAsync = 1;
    static constexpr long kPurgeBeforeSpeak = 2;
    static constexpr long kNotXml = 16;

    void speak(std::string_view text, long flags) {
        outage_.run([&] {
            if (!object_) {
                object_.emplace("SAPI.SpVoice", "Windows voices");
            }
            const Argument spoken = Argument::text(text);
            const Argument how = Argument::number(flags);
            object_->call(L"Speak", {&spoken, &how});
        });
    }

    std::optional<AutomationObject> object_;
    OutageReport outage_;
};

}  // namespace

std::unique_ptr<ReaderVoice> WindowsReaderDrivers::voiceOf(std::string_view reader) {
    if (reader == kJaws.stored) {
        return std::make_unique<JawsVoice>();
    }
    if (reader == kWindowEyes.stored) {
        return std::make_unique<WindowEyesVoice>();
    }
    if (reader == kNvda.stored) {
        return std::make_unique<NvdaVoice>();
    }
    if (reader == kWindowsVoices.stored) {
        return std::make_unique<WindowsVoice>();
    }
    throw Failure(FailureNumber::SpeechObjectCreation,
                  "The screen reader \"" + std::string(reader) + "\" is not on this system");
}

}  // namespace marivox::windows
