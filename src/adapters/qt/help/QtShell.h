// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <string>

#include "ports/Shell.h"

namespace marivox::qt {

// Opens documents the way the desktop does. The game's help document is opened in our own
// viewer, a program beside the game in its folder, started on its own so it outlives it.
class QtShell : public Shell {
  public:
    explicit QtShell(std::string programFolder) : programFolder_(std::move(programFolder)) {}

    void ShellExecute(std::intptr_t ownerWindow, const char* operation, std::string_view file,
                      const char* parameters, std::string_view directory, int showCommand) override;

    std::string viewerPath() const { return programFolder_ + "/marivox-help"; }
    // The process id of the last viewer started, 0 before any.
    qint64 lastViewer() const { return lastViewer_; }

  private:
    std::string programFolder_;
    qint64 lastViewer_ = 0;
};

}  // namespace marivox::qt
