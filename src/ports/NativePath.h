// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <string>

namespace marivox {

// The game names its files with a leading backslash ("\shoot.wav") after the program
// folder; on this platform the separator may be another.
inline std::string nativePath(std::string path) {
#ifndef _WIN32
    std::replace(path.begin(), path.end(), '\\', '/');
#endif
    return path;
}

}  // namespace marivox
