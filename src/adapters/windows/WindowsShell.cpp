// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WindowsShell.h"

#include <windows.h>
// After windows.h, which it needs.
#include <shellapi.h>
// The header names ShellExecute as a macro; here it is our port's method.
#undef ShellExecute

#include <string.h>

#include "adapters/windows/WindowsText.h"

namespace marivox::windows {

namespace {

// Our help document is a web page; Windows no longer opens .hlp files, so the copy beside it
// named as a web page opens in the player's browser, which screen readers read best.
std::string asWebPage(std::string_view file) {
    std::string path(file);
    if (path.size() > 4 && _stricmp(path.c_str() + path.size() - 4, ".hlp") == 0) {
        const std::string page = path.substr(0, path.size() - 4) + ".htm";
        if (GetFileAttributesW(wideText(page).c_str()) != INVALID_FILE_ATTRIBUTES) {
            return page;
        }
    }
    return path;
}

}  // namespace

void WindowsShell::ShellExecute(std::intptr_t ownerWindow, const char* operation,
                                std::string_view file, const char* parameters,
                                std::string_view directory, int showCommand) {
    const std::string ansiFile = ansiText(asWebPage(file));
    const std::string ansiDirectory = ansiText(directory);
    // What the shell then does is not examined, so its result is not read.
    ShellExecuteA(reinterpret_cast<HWND>(ownerWindow), operation, ansiFile.c_str(), parameters,
                  ansiDirectory.c_str(), showCommand);
}

}  // namespace marivox::windows
