// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/KeyMapping.h"

#include "ports/KeyCodes.h"

namespace marivox::qt {

std::int16_t gameKeyCode(const QKeyEvent& event) {
    const int key = event.key();
    if (key >= Qt::Key_A && key <= Qt::Key_Z) {
        return static_cast<std::int16_t>('A' + (key - Qt::Key_A));
    }
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        return static_cast<std::int16_t>('0' + (key - Qt::Key_0));
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return static_cast<std::int16_t>(KeyCode::F1 + (key - Qt::Key_F1));
    }
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return KeyCode::Return;
        case Qt::Key_Left:
            return KeyCode::Left;
        case Qt::Key_Up:
            return KeyCode::Up;
        case Qt::Key_Right:
            return KeyCode::Right;
        case Qt::Key_Down:
            return KeyCode::Down;
        case Qt::Key_Shift:
            return KeyCode::Shift;
        case Qt::Key_Control:
            return KeyCode::Control;
        case Qt::Key_Alt:
            return KeyCode::Menu;
        case Qt::Key_Escape:
            return KeyCode::Escape;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return KeyCode::Tab;
        case Qt::Key_Backspace:
            return KeyCode::Back;
        case Qt::Key_Space:
            return KeyCode::Space;
        case Qt::Key_PageUp:
            return KeyCode::PageUp;
        case Qt::Key_PageDown:
            return KeyCode::PageDown;
        case Qt::Key_Home:
            return KeyCode::Home;
        case Qt::Key_End:
            return KeyCode::End;
        case Qt::Key_Insert:
            return KeyCode::Insert;
        case Qt::Key_Delete:
            return KeyCode::Delete;
        default:
            // Any other key still counts as a key (it silences speech in the player's turn),
            // under a code that means nothing else: the native one, an X keysym, cut to a
            // byte would pass Print for a keypad digit.
            return KeyCode::Other;
    }
}

std::int16_t gameShiftState(Qt::KeyboardModifiers modifiers) {
    std::int16_t state = 0;
    if (modifiers & Qt::ShiftModifier) {
        state |= ShiftState::Shift;
    }
    if (modifiers & Qt::ControlModifier) {
        state |= ShiftState::Control;
    }
    if (modifiers & Qt::AltModifier) {
        state |= ShiftState::Alt;
    }
    return state;
}

QList<QKeySequence> shortcutsOf(const commands::Command& command) {
    QList<QKeySequence> shortcuts;
    for (const commands::Key& key : command.keys) {
        Qt::KeyboardModifiers held;
        held.setFlag(Qt::ControlModifier, (key.held & ShiftState::Control) != 0);
        held.setFlag(Qt::AltModifier, (key.held & ShiftState::Alt) != 0);
        const auto add = [&](Qt::Key qtKey, Qt::KeyboardModifiers extra = {}) {
            shortcuts.append(QKeySequence(QKeyCombination(held | extra, qtKey)));
        };
        if (key.code >= 'A' && key.code <= 'Z') {
            add(static_cast<Qt::Key>(Qt::Key_A + (key.code - 'A')));
        } else if (key.code >= '0' && key.code <= '9') {
            add(static_cast<Qt::Key>(Qt::Key_0 + (key.code - '0')));
        } else if (key.code == KeyCode::OemPlus) {
            add(Qt::Key_Plus);
            add(Qt::Key_Equal);
        } else if (key.code == KeyCode::OemMinus) {
            add(Qt::Key_Minus);
        } else if (key.code == KeyCode::Add) {
            add(Qt::Key_Plus, Qt::KeypadModifier);
        } else if (key.code == KeyCode::Subtract) {
            add(Qt::Key_Minus, Qt::KeypadModifier);
        } else if (key.code == KeyCode::Numpad0) {
            add(Qt::Key_0, Qt::KeypadModifier);
        }
    }
    return shortcuts;
}

}  // namespace marivox::qt
