// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/SettingsStore.h"

namespace marivox::qt {

// The per-user settings store: one INI file per application in the user's configuration
// folder (~/.config/<application>/<application>.conf, or under XDG_CONFIG_HOME).
class QtSettingsStore : public SettingsStore {
  public:
    std::string GetSetting(std::string_view application, std::string_view section,
                           std::string_view key, std::string_view defaultValue) override;
    void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) override;
};

}  // namespace marivox::qt
