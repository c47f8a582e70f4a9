// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "ports/Readers.h"
#include "ports/ScreenReaders.h"

namespace marivox {

// Which screen reader speaks for the player, and the voices reached so far. One instance
// serves the whole program.
struct ScreenReaderState {
    std::string ScreenReader;  // empty until first chosen
    unsigned platform = 0;     // where the game runs, which says what readers there are
    // Each reader's voice, kept for the run once reached. A reader started on choice
    // (Window-Eyes's object) is replaced by each new start and released at the end.
    std::map<std::string, std::unique_ptr<ReaderVoice>, std::less<>> voices;

    const ReaderRow* chosen() const { return chosenReader(ScreenReader, platform); }
};

}  // namespace marivox
