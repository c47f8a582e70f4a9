// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The "JFW" choice on Windows: JAWS For Windows's automation object "FreedomSci.JawsApi",
// which also shows the game's words in braille; where it is not registered (older JAWS), its
// API library, loaded by name and called through the two functions it exports. Reached at
// the first call, and afresh at each call until one of them is there.

#include <windows.h>

#include <optional>

#include "adapters/windows/BrailleMessage.h"
#include "adapters/windows/WindowsAutomation.h"
#include "ports/ScreenReaders.h"

namespace marivox::windows {

class JawsVoice : public ReaderVoice {
  public:
    JawsVoice() = default;
    ~JawsVoice() override;
    JawsVoice(const JawsVoice&) = delete;
    JawsVoice& operator=(const JawsVoice&) = delete;

    void say(std::string_view text) override;
    void stop() override;

  private:
    void reach();
    void loadLibrary(const std::string& objectFailure);

    std::optional<AutomationObject> object_;
    BrailleMessage braille_;

    using SayString = BOOL(WINAPI*)(LPCSTR text, BOOL interrupt);
    using StopSpeech = BOOL(WINAPI*)();
    HMODULE library_ = nullptr;
    SayString say_ = nullptr;
    StopSpeech stop_ = nullptr;
};

}  // namespace marivox::windows
