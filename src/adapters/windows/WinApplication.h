// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/Application.h"

namespace marivox::windows {

// The running program on Windows: its folder, help file, title and version, and ending it
// at once.
class WinApplication : public Application {
  public:
    std::string programFolder() const override;
    std::string helpFile() const override { return helpFile_; }
    void setHelpFile(std::string path) override { helpFile_ = std::move(path); }
    std::string title() const override { return title_; }
    void setTitle(std::string title) override { title_ = std::move(title); }
    Version version() const override { return {1, 0, 0}; }
    unsigned platform() const override { return Platform::Windows; }
    void waitUntil(const std::function<bool()>& done) override;
    void endNow() override;
    bool isEnding() const { return ending_; }

  private:
    std::string helpFile_;
    std::string title_;
    bool ending_ = false;
};

}  // namespace marivox::windows
