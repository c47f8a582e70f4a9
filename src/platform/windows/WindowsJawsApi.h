// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The "JFW" choice on Windows: JAWS For Windows's API library, loaded by name at the first
// call and called through the two functions it exports.

#include <windows.h>

#include "platform/ScreenReaders.h"

namespace marivox::windows {

class WindowsJawsApi : public JawsApi {
  public:
    ~WindowsJawsApi() override;
    void JFWSayString(std::string_view text, bool interrupt) override;
    void JFWStopSpeech() override;

  private:
    void load();

    using SayString = BOOL(WINAPI*)(LPCSTR text, BOOL interrupt);
    using StopSpeech = BOOL(WINAPI*)();
    HMODULE library_ = nullptr;
    SayString say_ = nullptr;
    StopSpeech stop_ = nullptr;
};

}  // namespace marivox::windows
