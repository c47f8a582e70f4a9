// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "hal/HalShots.h"
#include "hal/TargetSelection.h"
#include "model/Boards.h"
#include "model/Placement.h"
#include "model/PlayerShots.h"
#include "ports/Forms.h"
#include "ports/GridControl.h"
#include "ports/OneShotTimer.h"

namespace marivox {

class AboutForm;
class Application;
class Guard;
class HelpCommands;
class MessageBoxes;
class RandomSource;
class ScreenReaderChoice;
class SettingsStore;
class Sounds;
class Speech;
class SpokenHistory;
struct GameState;
struct ScreenReaderState;

// What the game screen works with besides its own window.
struct GameScreenServices {
    GameState& state;
    Guard& guard;
    Speech& speech;
    SpokenHistory& spoken;
    Sounds& sounds;
    RandomSource& random;
    ScreenReaderState& reader;
    ScreenReaderChoice& readerChoice;
    HelpCommands& help;
    AboutForm& about;
    GameWindow& window;
    TimerFactory& timers;
    MessageBoxes& boxes;
    Application& application;
    SettingsStore& settings;
};

// The game screen: beginning a game, the turn cycle paced by its four timers, the board
// grid and its spoken cursor, keys and menu commands. Its window reports events here.
class GameScreen : public GameScreenEvents, public GridEvents {
  public:
    explicit GameScreen(const GameScreenServices& services);

    // The accessible name of a playing cell: "C 4, miss".
    static std::string describeCell(int row, int col, std::string_view mark);

    void BeginGame();
    void LoadGrid();
    void SpeakCurrentCell();
    void SpeakStatus();
    // Shows the board at the size and contrast the player last chose, before the window is
    // first seen; high contrast as the desktop asks when nothing is stored.
    void LoadDisplay();

    // Window events.
    void Form_Load() override;
    void Form_Unload(std::int16_t& cancel) override;
    void Form_KeyDown(std::int16_t keyCode, std::int16_t shift) override;
    void mnuGameNew_Click() override;
    void mnuGameReader_Click() override;
    void mnuGameExit_Click() override;
    void mnuOptionsStatus_Click() override;
    void mnuOptionsShoot_Click() override;
    void mnuOptionsRow_Click() override;
    void mnuOptionsColumn_Click() override;
    void mnuOptionsRepeat_Click() override;
    void mnuOptionsFleet_Click() override;
    void mnuOptionsZoomIn_Click() override;
    void mnuOptionsZoomOut_Click() override;
    void mnuOptionsZoomNormal_Click() override;
    void mnuOptionsContrast_Click() override;
    void mnuHelpContents_Click() override;
    void mnuHelpAbout_Click() override;
    void helpKey() override;

    // Grid events.
    void flex_Click();
    void flex_RowColChange();
    void onClick() override { flex_Click(); }
    void onRowColChange() override { flex_RowColChange(); }

    // Timer handlers.
    void tmrStartDelay_Timer();
    void tmrHalDelay_Timer();
    void tmrTimer1_Timer();
    void tmrTimer2_Timer();

    OneShotTimer& tmrStartDelay() { return *tmrStartDelay_; }
    OneShotTimer& tmrHalDelay() { return *tmrHalDelay_; }
    OneShotTimer& tmrTimer1() { return *tmrTimer1_; }
    OneShotTimer& tmrTimer2() { return *tmrTimer2_; }

  private:
    std::string turnReminder();
    std::string cursorCellName();
    // Asks whether to play again after a win; No ends the program at once.
    void askToPlayAgain(std::string_view question);
    // The reader the game started on choice (Window-Eyes's object), released as it ends.
    void releaseStartedReader();
    // A typed cell name: a row letter waits for its column digit; anything else drops it.
    void typeCellName(std::int16_t keyCode, std::int16_t shift);
    void jumpTo(int row, int col);
    void runTimerHandler(Procedure procedure, OneShotTimer& timer,
                         const std::function<void()>& body);
    // Shows, speaks and keeps a new zoom or contrast.
    void changeDisplay(int zoom, bool highContrast, std::string_view spoken);

    GameScreenServices services_;
    GameState& state_;
    Guard& guard_;
    Speech& speech_;
    Sounds& sounds_;
    GridControl& flex_;
    std::unique_ptr<OneShotTimer> tmrStartDelay_;
    std::unique_ptr<OneShotTimer> tmrHalDelay_;
    std::unique_ptr<OneShotTimer> tmrTimer1_;
    std::unique_ptr<OneShotTimer> tmrTimer2_;
    Boards boards_;
    Placement placement_;
    PlayerShots playerShots_;
    TargetSelection targeting_;
    HalShots halShots_;
    std::optional<int> typedRow_;
    bool quietMoves_ = false;
    // How the player sees the board: in percent of its normal size, and high contrast.
    int zoom_ = 100;
    bool highContrast_ = false;
};

}  // namespace marivox
