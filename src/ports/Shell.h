// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace marivox {

// Asks the platform to open a document with the action registered for its type.
class Shell {
  public:
    virtual ~Shell() = default;
    // `operation` and `parameters` may be null: the default action, no parameters. Returns
    // at once; whatever the opened program then does is not examined.
    virtual void ShellExecute(std::intptr_t ownerWindow, const char* operation,
                              std::string_view file, const char* parameters,
                              std::string_view directory, int showCommand) = 0;
};

}  // namespace marivox
