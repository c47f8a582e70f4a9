// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/WindowsReaders.h"

#include <string>

#include "platform/Readers.h"
#include "platform/windows/JawsVoice.h"
#include "platform/windows/NvdaVoice.h"
#include "platform/windows/WindowsAutomation.h"
#include "support/Failure.h"

namespace marivox::windows {
namespace {

// The "WE" choice: Window-Eyes's automation object "GWSpeak.Speak", created when chosen.
class WindowEyesVoice : public ReaderVoice {
  public:
    WindowEyesVoice() : object_("GWSpeak.Speak", "Window-Eyes") {}
    void say(std::string_view text) override {
        const Argument argument = Argument::text(text);
        object_.call(L"SpeakString", {&argument});
    }
    void stop() override { object_.call(L"Silence"); }

  private:
    AutomationObject object_;
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
    throw Failure(FailureNumber::SpeechObjectCreation,
                  "The screen reader \"" + std::string(reader) + "\" is not on this system");
}

}  // namespace marivox::windows
