// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/MessageBoxes.h"

namespace marivox::windows {

// The system's own message box: the game's style and answer codes are its own.
class WinMessageBoxes : public MessageBoxes {
  public:
    int show(std::string_view text, int style, std::string_view title) override;
};

}  // namespace marivox::windows
