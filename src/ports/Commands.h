// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Every command of the game screen, one row each: its menu item, the keys that give it and the
// handler it runs. Both desktops build their menus and shortcuts from here, the key handler
// finds its commands here and the tests reach every command through it, so a new command is
// a row here and its handler.

#include <array>
#include <cstdint>

#include "ports/Forms.h"
#include "ports/KeyCodes.h"

namespace marivox::commands {

// A key that gives a command: the game's key code, and which of Ctrl and Alt must be held
// (Shift is never asked about); `anyHeld` takes the key whatever is held.
struct Key {
    std::int16_t code = 0;
    std::int16_t held = 0;  // ShiftState::Control and ShiftState::Alt bits
    bool anyHeld = false;

    constexpr bool matches(std::int16_t keyCode, std::int16_t shift) const {
        return code != 0 && code == keyCode &&
               (anyHeld || (shift & (ShiftState::Control | ShiftState::Alt)) == held);
    }
};

// The player's-turn keys reach the game screen's key handler, which acts on them only in the
// player's turn; shortcuts are the desktop's own, taken in any turn and shown in the menu.
enum class KeyKind { PlayersTurn, Shortcut };

struct Command {
    const char* name;     // its menu item's name
    const char* caption;  // with its access key, and the name of a player's-turn key as text
    void (GameScreenEvents::*handler)();
    KeyKind kind = KeyKind::PlayersTurn;
    std::array<Key, 2> keys{};
};

using Ev = GameScreenEvents;
using enum KeyKind;
inline constexpr std::int16_t kCtrl = ShiftState::Control;

inline constexpr Command kNewGame{
    "mnuGameNew", "&New Game ", &Ev::mnuGameNew_Click, Shortcut, {{{'N', kCtrl}}}};
inline constexpr Command kReader{"mnuGameReader", "&Screen Reader...", &Ev::mnuGameReader_Click};
inline constexpr Command kExit{"mnuGameExit", "E&xit Program", &Ev::mnuGameExit_Click};
inline constexpr Command kStatus{"mnuOptionsStatus",
                                 "&Speak Status - F2",
                                 &Ev::mnuOptionsStatus_Click,
                                 PlayersTurn,
                                 {{{KeyCode::F2, 0, true}}}};
inline constexpr Command kShoot{"mnuOptionsShoot",
                                "S&hoot - Enter",
                                &Ev::mnuOptionsShoot_Click,
                                PlayersTurn,
                                {{{KeyCode::Return, 0, true}}}};
// The review keys are plain keys: with Alt or Ctrl they are the desktop's (Alt+F4 closes the
// window) or nobody's.
inline constexpr Command kRow{
    "mnuOptionsRow", "Read &Row - F3", &Ev::mnuOptionsRow_Click, PlayersTurn, {{{KeyCode::F3}}}};
inline constexpr Command kColumn{"mnuOptionsColumn",
                                 "Read &Column - F4",
                                 &Ev::mnuOptionsColumn_Click,
                                 PlayersTurn,
                                 {{{KeyCode::F4}}}};
inline constexpr Command kRepeat{"mnuOptionsRepeat",
                                 "Re&peat - F5",
                                 &Ev::mnuOptionsRepeat_Click,
                                 PlayersTurn,
                                 {{{KeyCode::F5}}}};
inline constexpr Command kFleet{"mnuOptionsFleet",
                                "Your &Fleet - F6",
                                &Ev::mnuOptionsFleet_Click,
                                PlayersTurn,
                                {{{KeyCode::F6}}}};
inline constexpr Command kZoomIn{"mnuOptionsZoomIn",
                                 "Zoom &In",
                                 &Ev::mnuOptionsZoomIn_Click,
                                 Shortcut,
                                 {{{KeyCode::OemPlus, kCtrl}, {KeyCode::Add, kCtrl}}}};
inline constexpr Command kZoomOut{"mnuOptionsZoomOut",
                                  "Zoom &Out",
                                  &Ev::mnuOptionsZoomOut_Click,
                                  Shortcut,
                                  {{{KeyCode::OemMinus, kCtrl}, {KeyCode::Subtract, kCtrl}}}};
inline constexpr Command kZoomNormal{"mnuOptionsZoomNormal",
                                     "&Normal Size",
                                     &Ev::mnuOptionsZoomNormal_Click,
                                     Shortcut,
                                     {{{'0', kCtrl}, {KeyCode::Numpad0, kCtrl}}}};
inline constexpr Command kContrast{"mnuOptionsContrast",
                                   "High Con&trast",
                                   &Ev::mnuOptionsContrast_Click,
                                   Shortcut,
                                   {{{'H', kCtrl}}}};
inline constexpr Command kHelpTopics{"mnuHelpContents", "&Help Topics F1",
                                     &Ev::mnuHelpContents_Click};
inline constexpr Command kAbout{"mnuHelpAbout", "&About Marivox", &Ev::mnuHelpAbout_Click};

struct Menu {
    const char* name;
    const char* caption;
    std::array<const Command*, 10> items;  // a shorter menu leaves its last ones empty
};

inline constexpr std::array<Menu, 3> kMenus{{
    {"mnuGame", "&Game", {&kNewGame, &kReader, &kExit}},
    {"mnuOptions",
     "&Options",
     {&kStatus, &kShoot, &kRow, &kColumn, &kRepeat, &kFleet, &kZoomIn, &kZoomOut, &kZoomNormal,
      &kContrast}},
    {"mnuHelp", "&Help", {&kHelpTopics, &kAbout}},
}};

// Calls `visit` with every command, in menu order.
template <class Visit>
constexpr void forEach(Visit&& visit) {
    for (const Menu& menu : kMenus) {
        for (const Command* command : menu.items) {
            if (command != nullptr) {
                visit(*command);
            }
        }
    }
}

// The command of that kind a key gives, or none.
inline const Command* commandFor(KeyKind kind, std::int16_t keyCode, std::int16_t shift) {
    const Command* found = nullptr;
    forEach([&](const Command& command) {
        for (const Key& key : command.keys) {
            if (found == nullptr && command.kind == kind && key.matches(keyCode, shift)) {
                found = &command;
            }
        }
    });
    return found;
}

}  // namespace marivox::commands
