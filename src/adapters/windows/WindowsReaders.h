// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How the game reaches each screen reader on Windows.

#include "ports/ScreenReaders.h"

namespace marivox::windows {

// Every call is made on the game's own thread and fails at once, so no late failures.
class WindowsReaderDrivers : public ReaderDrivers {
  public:
    std::unique_ptr<ReaderVoice> voiceOf(std::string_view reader) override;
};

}  // namespace marivox::windows
