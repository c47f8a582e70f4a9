// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The "JFW" choice on Windows: JAWS For Windows's API library, loaded by name at the first
// call and called through the two functions it exports.

#include <windows.h>

#include "platform/ScreenReaders.h"

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
    void load();

    using SayString = BOOL(WINAPI*)(LPCSTR text, BOOL interrupt);
    using StopSpeech = BOOL(WINAPI*)();
    HMODULE library_ = nullptr;
    SayString say_ = nullptr;
    StopSpeech stop_ = nullptr;
};

}  // namespace marivox::windows
