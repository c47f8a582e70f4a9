// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "ports/Forms.h"

namespace marivox {

class Guard;
class ReaderDrivers;
class MessageBoxes;
class SettingsStore;
struct ScreenReaderState;

// The player's choice of screen reader: read at start-up (asking when nothing is stored),
// stored after every choice, and the dialog in which the player makes it.
class ScreenReaderChoice : public ReaderDialogEvents {
  public:
    ScreenReaderChoice(ScreenReaderState& reader, SettingsStore& settings, ReaderDrivers& drivers,
                       ReaderDialog& dialog, MessageBoxes& boxes, Guard& guard)
        : reader_(reader),
          settings_(settings),
          drivers_(drivers),
          dialog_(dialog),
          boxes_(boxes),
          guard_(guard) {}

    void GetScreenReader();
    void SaveScreenReader();
    // The Screen Reader menu command's steps; the game screen guards them.
    void chooseAgain();

    // The dialog's handlers.
    void Form_Load() override;
    void btnOK_Click() override;
    void Form_Unload(std::int16_t& cancel) override;

  private:
    std::string readSetting();
    void startReaderIfChosen();

    ScreenReaderState& reader_;
    SettingsStore& settings_;
    ReaderDrivers& drivers_;
    ReaderDialog& dialog_;
    MessageBoxes& boxes_;
    Guard& guard_;
};

}  // namespace marivox
