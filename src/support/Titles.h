// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "ports/ProgramName.h"

namespace marivox {

// The game screen's caption, which also titles every question and error report.
inline constexpr std::string_view kGameScreenCaption = kProgramName;
// The application title that start-up gives the running program.
inline constexpr std::string_view kApplicationTitle = kProgramName;

}  // namespace marivox
