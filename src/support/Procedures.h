// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace marivox {

// Every procedure that guards its own body. The table in Procedures.cpp gives each one its
// report form and its label; nothing else in the program spells a label.
enum class Procedure {
    // Rules of the game
    GameOver,
    GetRandom,
    InitializeBoards,
    HalPlaceCarrier,
    MyPlaceCarrier,
    HalPlaceBattleship,
    MyPlaceBattleship,
    HalPlaceCruiser,
    MyPlaceCruiser,
    HalPlaceDestroyer,
    MyPlaceDestroyer,
    HalPlacePatrol,
    MyPlacePatrol,
    HalPlaceSub,
    MyPlaceSub,
    SpeakCell,
    RegisterHit,
    MyShot,
    HalShot,
    HalRegisterHit,
    HalSpeakCell,
    ClearHits,
    // Game screen
    mnuGameNew_Click,
    mnuGameExit_Click,
    mnuGameReader_Click,
    mnuOptionsStatus_Click,
    mnuOptionsShoot_Click,
    mnuOptionsRow_Click,
    mnuOptionsColumn_Click,
    mnuOptionsRepeat_Click,
    mnuOptionsFleet_Click,
    mnuOptionsZoomIn_Click,
    mnuOptionsZoomOut_Click,
    mnuOptionsZoomNormal_Click,
    mnuOptionsContrast_Click,
    LoadDisplay,
    mnuHelpContents_Click,
    mnuHelpAbout_Click,
    tmrTimer1_Timer,
    tmrHalDelay_Timer,
    tmrTimer2_Timer,
    tmrStartDelay_Timer,
    LoadGrid,
    Form_KeyDown,
    SpeakStatus,
    flex_RowColChange,
    SpeakCurrentCell,
    flex_Click,
    BeginGame,
    HalFindShot,
    GameScreen_Form_Unload,
    // Sound, speech and the reader choice
    PlaySound,
    Speak,
    StopSpeech,
    GetScreenReader,
    SaveScreenReader,
    frmReader_Form_Unload,
    frmReader_btnOK_Click,
    // Help
    RunHelp,
};

// How a failure is told to the player.
enum class ReportForm {
    ReportError,  // "Error: " number blank description label, in a box
    ShowError,    // spoken, then shown as description ";" label
    RunHelpBox,   // description + label in a plain box
};

struct ProcedureInfo {
    Procedure procedure;
    std::string_view name;
    ReportForm form;
    std::string_view label;
};

const ProcedureInfo& procedureInfo(Procedure procedure);

}  // namespace marivox
