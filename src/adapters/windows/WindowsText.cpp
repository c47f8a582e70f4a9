// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WindowsText.h"

namespace marivox::windows {

std::wstring wideText(std::string_view utf8) {
    if (utf8.empty()) {
        return {};
    }
    const int size = static_cast<int>(utf8.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), length);
    return wide;
}

std::string utf8Text(std::wstring_view wide) {
    if (wide.empty()) {
        return {};
    }
    const int size = static_cast<int>(wide.size());
    const int length =
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), length, nullptr, nullptr);
    return utf8;
}

std::string ansiText(std::string_view utf8) {
    const std::wstring wide = wideText(utf8);
    if (wide.empty()) {
        return {};
    }
    const int size = static_cast<int>(wide.size());
    // Characters the code page lacks become its default character rather than failing.
    const int length =
        WideCharToMultiByte(CP_ACP, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string ansi(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide.data(), size, ansi.data(), length, nullptr, nullptr);
    return ansi;
}

}  // namespace marivox::windows
