// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "ports/Application.h"

namespace marivox::qt {

// The running program: its folder, help file, title and version, and ending it at once.
class QtApplication : public Application {
  public:
    std::string programFolder() const override;
    std::string helpFile() const override { return helpFile_; }
    void setHelpFile(std::string path) override { helpFile_ = std::move(path); }
    std::string title() const override { return title_; }
    void setTitle(std::string title) override;
    Version version() const override { return {1, 0, 0}; }
    unsigned platform() const override { return Platform::Linux; }
    void waitUntil(const std::function<bool()>& done) override;
    // Leaves every event loop without closing windows through their handlers; the caller
    // returns normally and the program ends once control is back in the event loop.
    void endNow() override;

    bool isEnding() const { return ending_; }

  private:
    std::string helpFile_;
    std::string title_ = "marivox";
    bool ending_ = false;
};

}  // namespace marivox::qt
