// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The screen readers' stand-ins write each call they get to the file MARIVOX_STANDIN_LOG
// names, one line each: "<seconds since 1970>|<call>|<text exactly as given>|".

#include <windows.h>

#include <cstdio>
#include <string>

inline void logCall(const char* call, const std::string& text) {
    wchar_t path[MAX_PATH];
    if (GetEnvironmentVariableW(L"MARIVOX_STANDIN_LOG", path, MAX_PATH) == 0) {
        return;
    }
    FILETIME now;
    GetSystemTimePreciseAsFileTime(&now);
    const unsigned long long ticks =
        (static_cast<unsigned long long>(now.dwHighDateTime) << 32) | now.dwLowDateTime;
    const double seconds = static_cast<double>(ticks - 116444736000000000ULL) / 1e7;
    if (FILE* log = _wfopen(path, L"ab")) {
        std::fprintf(log, "%.6f|%s|%s|\n", seconds, call, text.c_str());
        std::fclose(log);
    }
}
