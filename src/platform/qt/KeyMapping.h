// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>
#include <cstdint>

namespace marivox::qt {

// The game's code for a key press and the state of Shift, Ctrl and Alt with it.
std::int16_t gameKeyCode(const QKeyEvent& event);
std::int16_t gameShiftState(Qt::KeyboardModifiers modifiers);

}  // namespace marivox::qt
