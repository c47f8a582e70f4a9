// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WinApplication.h"

#include <windows.h>

#include <string>

#include "adapters/windows/WinDesktop.h"
#include "adapters/windows/WindowsText.h"

namespace marivox::windows {

std::string WinApplication::programFolder() const {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            break;
        }
        path.resize(path.size() * 2);
    }
    path.erase(path.find_last_of(L'\\') == std::wstring::npos ? 0 : path.find_last_of(L'\\'));
    return utf8Text(path);
}

void WinApplication::waitUntil(const std::function<bool()>& done) {
    Desktop::current().runOwnUntil(done);
}

void WinApplication::endNow() {
    ending_ = true;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM) {
            ShowWindow(window, SW_HIDE);
            return TRUE;
        },
        0);
    PostQuitMessage(0);
}

}  // namespace marivox::windows
