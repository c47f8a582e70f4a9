// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The shell on Windows: ShellExecuteA, with exactly the arguments the game gives.

#include "ports/Shell.h"

namespace marivox::windows {

class WindowsShell : public Shell {
  public:
    void ShellExecute(std::intptr_t ownerWindow, const char* operation, std::string_view file,
                      const char* parameters, std::string_view directory, int showCommand) override;
};

}  // namespace marivox::windows
