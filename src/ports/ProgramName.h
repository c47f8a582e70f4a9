// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace marivox {

// The program's name wherever it names itself: its window, titles, settings, and the notes
// it leaves for the sound server and on the error stream. Kept here, at the bottom, so that
// every layer may read it.
inline constexpr char kProgramName[] = "Marivox";

}  // namespace marivox
