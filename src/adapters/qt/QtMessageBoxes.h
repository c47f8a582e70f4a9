// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/MessageBoxes.h"

namespace marivox::qt {

// Modal message boxes with the platform's buttons, icons and answer codes.
class QtMessageBoxes : public MessageBoxes {
  public:
    int show(std::string_view text, int style, std::string_view title) override;
};

}  // namespace marivox::qt
