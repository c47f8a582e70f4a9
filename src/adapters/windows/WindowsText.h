// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Text conversions for the Windows components: the game's UTF-8 into the wide strings of
// Windows and COM and back, and into the ANSI code page of the older APIs.

#include <windows.h>

#include <string>
#include <string_view>

namespace marivox::windows {

std::wstring wideText(std::string_view utf8);
std::string utf8Text(std::wstring_view wide);
std::string ansiText(std::string_view utf8);

}  // namespace marivox::windows
