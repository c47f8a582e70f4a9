// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/SettingsStore.h"

namespace marivox::windows {

// The per-user registry: under HKEY_CURRENT_USER, key Software\<application>\<section>, a
// text value named <key>.
class WinSettingsStore : public SettingsStore {
  public:
    std::string GetSetting(std::string_view application, std::string_view section,
                           std::string_view key, std::string_view defaultValue) override;
    void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) override;
};

}  // namespace marivox::windows
