// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/WindowsShell.h"

#include <windows.h>
// After windows.h, which it needs.
#include <shellapi.h>
// The header names ShellExecute as a macro; here it is our port's method.
#undef ShellExecute

#include "platform/windows/WindowsText.h"

namespace marivox::windows {

void WindowsShell::ShellExecute(std::intptr_t ownerWindow, const char* operation,
                                std::string_view file, const char* parameters,
                                std::string_view directory, int showCommand) {
    const std::string ansiFile = ansiText(file);
    const std::string ansiDirectory = ansiText(directory);
    // What the shell then does is not examined, so its result is not read.
    ShellExecuteA(reinterpret_cast<HWND>(ownerWindow), operation, ansiFile.c_str(), parameters,
                  ansiDirectory.c_str(), showCommand);
}

}  // namespace marivox::windows
