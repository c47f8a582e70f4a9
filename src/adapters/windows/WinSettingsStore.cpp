// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WinSettingsStore.h"

#include <windows.h>

#include <string>

#include "adapters/windows/WindowsText.h"
#include "ports/Failure.h"

namespace marivox::windows {
namespace {

std::wstring keyPath(std::string_view application, std::string_view section) {
    return L"Software\\" + wideText(application) + L"\\" + wideText(section);
}

[[noreturn]] void fail(const std::wstring& path, std::string_view key, const char* what,
                       LSTATUS status) {
    wchar_t reason[256] = L"";
    FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                   static_cast<DWORD>(status), 0, reason, 256, nullptr);
    std::string text = utf8Text(reason);
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == '.')) {
        text.pop_back();
    }
    throw Failure(FailureNumber::SettingsStore, "The setting HKEY_CURRENT_USER\\" + utf8Text(path) +
                                                    "\\" + std::string(key) + " could not be " +
                                                    what + ": " + text);
}

}  // namespace

std::string WinSettingsStore::GetSetting(std::string_view application, std::string_view section,
                                         std::string_view key, std::string_view defaultValue) {
    const std::wstring path = keyPath(application, section);
    const std::wstring name = wideText(key);
    DWORD bytes = 0;
    LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), RRF_RT_REG_SZ,
                                  nullptr, nullptr, &bytes);
    if (status == ERROR_FILE_NOT_FOUND) {
        return std::string(defaultValue);
    }
    std::wstring value(bytes / sizeof(wchar_t) + 1, L'\0');
    if (status == ERROR_SUCCESS) {
        bytes = static_cast<DWORD>(value.size() * sizeof(wchar_t));
        status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr,
                              value.data(), &bytes);
    }
    if (status != ERROR_SUCCESS) {
        fail(path, key, "read", status);
    }
    value.resize(wcsnlen(value.c_str(), value.size()));
    return utf8Text(value);
}

void WinSettingsStore::SaveSetting(std::string_view application, std::string_view section,
                                   std::string_view key, std::string_view value) {
    const std::wstring path = keyPath(application, section);
    const std::wstring text = wideText(value);
    const LSTATUS status =
        RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), wideText(key).c_str(), REG_SZ,
                        text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    if (status != ERROR_SUCCESS) {
        fail(path, key, "written", status);
    }
}

}  // namespace marivox::windows
