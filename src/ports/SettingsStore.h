// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace marivox {

// The per-user settings store: texts under application, section and key.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    // The stored text, or `defaultValue` when nothing is stored.
    virtual std::string GetSetting(std::string_view application, std::string_view section,
                                   std::string_view key, std::string_view defaultValue) = 0;
    // Written so that later runs of the program read it back.
    virtual void SaveSetting(std::string_view application, std::string_view section,
                             std::string_view key, std::string_view value) = 0;
};

}  // namespace marivox
