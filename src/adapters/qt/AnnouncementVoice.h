// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <memory>

#include "ports/ScreenReaders.h"

namespace marivox::qt {

// The "Orca" choice: the game's words go to Orca itself as accessibility announcements from
// the game window, so Orca says them in the player's own voice and rate and shows them on
// the braille display. Where the toolkit cannot announce (Qt before 6.8), or nothing listens
// for announcements, `fallback` speaks instead.
std::unique_ptr<ReaderVoice> announcementVoice(QWidget& window,
                                               std::unique_ptr<ReaderVoice> fallback);

}  // namespace marivox::qt
