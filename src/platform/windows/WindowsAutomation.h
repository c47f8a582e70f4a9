// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The "WE" choice on Windows: Window-Eyes's automation object "GWSpeak.Speak", created by
// its class name and called by method name through IDispatch.

#include "platform/ScreenReaders.h"

namespace marivox::windows {

class WindowsAutomationObjects : public AutomationObjects {
  public:
    std::unique_ptr<SpeechAutomationObject> CreateObject(std::string_view className) override;
};

}  // namespace marivox::windows
