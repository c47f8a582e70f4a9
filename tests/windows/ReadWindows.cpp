// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// For the tests: prints what a screen reader would find in the visible windows on the
// desktop, one line each: "window|<title>", then for its controls "text|<text>",
// "button|<caption>" and "item|<text>|selected" or "item|<text>|"; the game's board as
// "board|<left> <top> <right> <bottom>", on the screen.
//   readwindows [maximize|restore]
#include <windows.h>

#include <cstdio>
#include <string>

#include "adapters/windows/WindowsText.h"

namespace {

// One line of the output: a text's line breaks become spaces.
std::string oneLine(const std::wstring& wide) {
    std::string text = marivox::windows::utf8Text(wide);
    for (char& c : text) {
        c = c == '\r' || c == '\n' ? ' ' : c;
    }
    return text;
}

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

BOOL CALLBACK control(HWND child, LPARAM) {
    wchar_t kind[64] = L"";
    GetClassNameW(child, kind, 64);
    if (_wcsicmp(kind, L"ListBox") == 0) {
        const LRESULT selected = SendMessageW(child, LB_GETCURSEL, 0, 0);
        const LRESULT count = SendMessageW(child, LB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            std::wstring item(
                static_cast<std::size_t>(SendMessageW(child, LB_GETTEXTLEN, i, 0)) + 1, L'\0');
            SendMessageW(child, LB_GETTEXT, i, reinterpret_cast<LPARAM>(item.data()));
            item.resize(wcslen(item.c_str()));
            std::printf("item|%s|%s\n", oneLine(item).c_str(), i == selected ? "selected" : "");
        }
    } else if (_wcsicmp(kind, L"MarivoxBoard") == 0) {
        RECT place;
        GetWindowRect(child, &place);
        std::printf("board|%ld %ld %ld %ld\n", place.left, place.top, place.right, place.bottom);
    } else if (IsWindowVisible(child) && GetWindowTextLengthW(child) > 0) {
        std::printf("%s|%s\n", _wcsicmp(kind, L"Button") == 0 ? "button" : "text",
                    oneLine(textOf(child)).c_str());
    }
    return TRUE;
}

BOOL CALLBACK window(HWND top, LPARAM) {
    if (IsWindowVisible(top) && GetWindowTextLengthW(top) > 0) {
        std::printf("window|%s\n", oneLine(textOf(top)).c_str());
        EnumChildWindows(top, control, 0);
    }
    return TRUE;
}

}  // namespace

// With "maximize" or "restore": does that to the game window instead, as a window manager
// would for the player.
int main(int argc, char** argv) {
    if (argc > 1) {
        HWND game = FindWindowW(L"MarivoxGameScreen", nullptr);
        ShowWindow(game, std::string(argv[1]) == "maximize" ? SW_MAXIMIZE : SW_RESTORE);
        return game != nullptr ? 0 : 1;
    }
    EnumWindows(window, 0);
    return 0;
}
