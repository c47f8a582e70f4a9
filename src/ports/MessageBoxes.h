// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace marivox {

// Style and answer codes of a modal message box, as the platform numbers them.
namespace MsgBoxStyle {
inline constexpr int OkOnly = 0;
inline constexpr int YesNo = 4;
inline constexpr int Question = 32;
inline constexpr int Information = 64;
}  // namespace MsgBoxStyle

namespace MsgBoxAnswer {
inline constexpr int Ok = 1;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
}  // namespace MsgBoxAnswer

// Shows a modal box and returns the answer code once the player has closed it.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    virtual int show(std::string_view text, int style, std::string_view title) = 0;
};

}  // namespace marivox
