// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace marivox {

// The game screen's caption, which also titles every question and error report.
inline constexpr std::string_view kGameScreenCaption = "Marivox";
// The application title that start-up gives the running program.
inline constexpr std::string_view kApplicationTitle = "Marivox";

}  // namespace marivox
