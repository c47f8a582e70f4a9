// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>
#include <QKeySequence>
#include <QList>
#include <cstdint>

#include "ports/Commands.h"

namespace marivox::qt {

// The game's code for a key press and the state of Shift, Ctrl and Alt with it.
std::int16_t gameKeyCode(const QKeyEvent& event);
std::int16_t gameShiftState(Qt::KeyboardModifiers modifiers);
// The desktop's shortcuts for a command's keys: the main keyboard's plus is Ctrl+= as well,
// where + needs Shift.
QList<QKeySequence> shortcutsOf(const commands::Command& command);

}  // namespace marivox::qt
