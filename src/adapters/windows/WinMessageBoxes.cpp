// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WinMessageBoxes.h"

#include <windows.h>

#include "adapters/windows/WindowsText.h"

namespace marivox::windows {

int WinMessageBoxes::show(std::string_view text, int style, std::string_view title) {
    // Modal to the window in front, or to the whole program when none of ours is.
    HWND owner = GetActiveWindow();
    const UINT modality = owner != nullptr ? MB_APPLMODAL : MB_TASKMODAL;
    return MessageBoxW(owner, wideText(text).c_str(), wideText(title).c_str(),
                       static_cast<UINT>(style) | modality | MB_SETFOREGROUND);
}

}  // namespace marivox::windows
