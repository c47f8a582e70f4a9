// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace marivox {

class GridControl;

// What the game screen window reports to the system. Menu commands arrive by name, keys
// before the focused control sees them (the window previews keys and does not swallow
// them), and closing the window in any way asks Form_Unload first.
class GameScreenEvents {
  public:
    virtual ~GameScreenEvents() = default;
    virtual void Form_Load() = 0;
    // Setting cancel to a non-zero value keeps the window open.
    virtual void Form_Unload(std::int16_t& cancel) = 0;
    virtual void Form_KeyDown(std::int16_t keyCode, std::int16_t shift) = 0;
    virtual void mnuGameNew_Click() = 0;
    virtual void mnuGameReader_Click() = 0;
    virtual void mnuGameExit_Click() = 0;
    virtual void mnuOptionsStatus_Click() = 0;
    virtual void mnuOptionsShoot_Click() = 0;
    // Reviewing without moving: the cursor's row and column, the last things said, the
    // player's own fleet.
    virtual void mnuOptionsRow_Click() = 0;
    virtual void mnuOptionsColumn_Click() = 0;
    virtual void mnuOptionsRepeat_Click() = 0;
    virtual void mnuOptionsFleet_Click() = 0;
    // For players who see a little: the size of the board and its legend, and high contrast.
    virtual void mnuOptionsZoomIn_Click() = 0;
    virtual void mnuOptionsZoomOut_Click() = 0;
    virtual void mnuOptionsZoomNormal_Click() = 0;
    virtual void mnuOptionsContrast_Click() = 0;
    virtual void mnuHelpContents_Click() = 0;
    virtual void mnuHelpAbout_Click() = 0;
    // The platform's help key (F1), which opens the application's help file.
    virtual void helpKey() = 0;
};

// The game screen window: caption "Marivox", the board grid, the menu bar and the labels.
class GameWindow {
  public:
    virtual ~GameWindow() = default;
    // Creates the window without showing it; Form_Load runs at once.
    virtual void load(GameScreenEvents& events) = 0;
    virtual void show() = 0;
    // Unloads the window as the Exit command does: Form_Unload runs and may cancel; if it
    // does not, the window closes and, with no window left, the program ends.
    virtual void unload() = 0;
    // Unloads every other window of the program that is open, from the most recently
    // loaded down to the second one loaded.
    virtual void unloadOtherWindows() = 0;
    virtual GridControl& grid() = 0;
    // How the board and its legend are shown: their size in percent of the normal one, and
    // high contrast. The window grows with the size where the screen has room.
    virtual void setDisplay(int zoomPercent, bool highContrast) = 0;
    // Whether the desktop asks programs for high contrast.
    virtual bool desktopHighContrast() const = 0;
};

// The screen-reader dialog's own handlers (its form logic lives in the system).
class ReaderDialogEvents {
  public:
    virtual ~ReaderDialogEvents() = default;
    virtual void Form_Load() = 0;
    virtual void btnOK_Click() = 0;
    // Runs for every way of closing; a non-zero cancel keeps the dialog open.
    virtual void Form_Unload(std::int16_t& cancel) = 0;
};

// The dialog "Screen Reader": a list (lstReader), a label (lblReader), an OK button (btnOK).
class ReaderDialog {
  public:
    static constexpr int kNoSelection = -1;

    virtual ~ReaderDialog() = default;
    // Loads the dialog (Form_Load runs), shows it modally with no owner window, and
    // returns once it has been unloaded.
    virtual void showModal(ReaderDialogEvents& events) = 0;
    // Asks the dialog to close; Form_Unload runs and may keep it open.
    virtual void unload() = 0;
    virtual void addItem(std::string_view item) = 0;
    virtual int listIndex() const = 0;
    virtual void setListIndex(int index) = 0;
};

// The About box's handlers.
class AboutBoxEvents {
  public:
    virtual ~AboutBoxEvents() = default;
    virtual void Form_Load() = 0;
    virtual void cmdOK_Click() = 0;
};

// The dialog "About Marivox": icon, title label, version label, separator, OK button that
// is both the default and the cancel button.
class AboutBox {
  public:
    virtual ~AboutBox() = default;
    // Loads the box (Form_Load runs), shows it modally owned by the game screen, and
    // returns once it is closed, by OK, Enter, Escape or the close box.
    virtual void showModal(AboutBoxEvents& events) = 0;
    virtual void unload() = 0;
    virtual void setTitleLabel(std::string_view text) = 0;
    virtual void setVersionLabel(std::string_view text) = 0;
};

}  // namespace marivox
