// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Procedures.h"

#include <array>
#include <cassert>

namespace marivox {
namespace {

using enum Procedure;
using enum ReportForm;

constexpr std::array kProcedures{
    ProcedureInfo{GameOver, "GameOver", ReportError, " in GameOver()"},
    ProcedureInfo{GetRandom, "GetRandom", ReportError, " in GetRandom()"},
    ProcedureInfo{InitializeBoards, "InitializeBoards", ReportError, " in InitializeBoards()"},
    ProcedureInfo{HalPlaceCarrier, "HalPlaceCarrier", ReportError, " in HalPlaceCarrier()"},
    ProcedureInfo{MyPlaceCarrier, "MyPlaceCarrier", ReportError, " in MyPlaceCarrier()"},
    ProcedureInfo{HalPlaceBattleship, "HalPlaceBattleship", ReportError,
                  " in HalPlaceBattleship()"},
    ProcedureInfo{MyPlaceBattleship, "MyPlaceBattleship", ReportError, " in MyPlaceBattleship()"},
    ProcedureInfo{HalPlaceCruiser, "HalPlaceCruiser", ReportError, " in HalPlaceCruiser()"},
    ProcedureInfo{MyPlaceCruiser, "MyPlaceCruiser", ReportError, " in MyPlaceCruiser()"},
    ProcedureInfo{HalPlaceDestroyer, "HalPlaceDestroyer", ReportError, " in HalPlaceDestroyer()"},
    ProcedureInfo{MyPlaceDestroyer, "MyPlaceDestroyer", ReportError, " in MyPlaceDestroyer()"},
    ProcedureInfo{HalPlacePatrol, "HalPlacePatrol", ReportError, " in HalPlacePatrol()"},
    ProcedureInfo{MyPlacePatrol, "MyPlacePatrol", ReportError, " in MyPlacePatrol()"},
    ProcedureInfo{HalPlaceSub, "HalPlaceSub", ReportError, " in HalPlaceSub()"},
    ProcedureInfo{MyPlaceSub, "MyPlaceSub", ReportError, " in MyPlaceSub()"},
    ProcedureInfo{SpeakCell, "SpeakCell", ReportError, " in SpeakCell()"},
    ProcedureInfo{RegisterHit, "RegisterHit", ReportError, " in RegisterHit()"},
    ProcedureInfo{MyShot, "MyShot", ReportError, " in MyShot()"},
    ProcedureInfo{HalShot, "HalShot", ReportError, " in HalShot()"},
    ProcedureInfo{HalRegisterHit, "HalRegisterHit", ReportError, " in HalRegisterHit()"},
    ProcedureInfo{HalSpeakCell, "HalSpeakCell", ReportError, " in HalSpeakCell()"},
    ProcedureInfo{ClearHits, "ClearHits", ReportError, " in ClearHits()"},
    ProcedureInfo{mnuGameNew_Click, "mnuGameNew_Click", ReportError, " in mnuGameNew_Click()"},
    ProcedureInfo{mnuGameExit_Click, "mnuGameExit_Click", ReportError, " in mnuGameExit_Click()"},
    ProcedureInfo{mnuGameReader_Click, "mnuGameReader_Click", ReportError,
                  " in mnuGameReader_Click()"},
    ProcedureInfo{mnuOptionsStatus_Click, "mnuOptionsStatus_Click", ReportError,
                  " in mnuOptionsStatus_Click()"},
    ProcedureInfo{mnuOptionsShoot_Click, "mnuOptionsShoot_Click", ReportError,
                  " in mnuOptionsShoot_Click()"},
    ProcedureInfo{mnuOptionsRow_Click, "mnuOptionsRow_Click", ReportError,
                  " in mnuOptionsRow_Click()"},
    ProcedureInfo{mnuOptionsColumn_Click, "mnuOptionsColumn_Click", ReportError,
                  " in mnuOptionsColumn_Click()"},
    ProcedureInfo{mnuOptionsRepeat_Click, "mnuOptionsRepeat_Click", ReportError,
                  " in mnuOptionsRepeat_Click()"},
    ProcedureInfo{mnuOptionsFleet_Click, "mnuOptionsFleet_Click", ReportError,
                  " in mnuOptionsFleet_Click()"},
    ProcedureInfo{mnuOptionsZoomIn_Click, "mnuOptionsZoomIn_Click", ReportError,
                  " in mnuOptionsZoomIn_Click()"},
    ProcedureInfo{mnuOptionsZoomOut_Click, "mnuOptionsZoomOut_Click", ReportError,
                  " in mnuOptionsZoomOut_Click()"},
    ProcedureInfo{mnuOptionsZoomNormal_Click, "mnuOptionsZoomNormal_Click", ReportError,
                  " in mnuOptionsZoomNormal_Click()"},
    ProcedureInfo{mnuOptionsContrast_Click, "mnuOptionsContrast_Click", ReportError,
                  " in mnuOptionsContrast_Click()"},
    ProcedureInfo{LoadDisplay, "LoadDisplay", ReportError, " in LoadDisplay()"},
    ProcedureInfo{mnuHelpContents_Click, "mnuHelpContents_Click", ReportError,
                  " in mnuHelpContents_Click()"},
    ProcedureInfo{mnuHelpAbout_Click, "mnuHelpAbout_Click", ReportError,
                  " in mnuHelpAbout_Click()"},
    ProcedureInfo{tmrTimer1_Timer, "tmrTimer1_Timer", ReportError, " in tmrTimer1_Timer()"},
    ProcedureInfo{tmrHalDelay_Timer, "tmrHalDelay_Timer", ReportError, " in tmrHalDelay_Timer()"},
    ProcedureInfo{tmrTimer2_Timer, "tmrTimer2_Timer", ReportError, " in tmrTimer2_Timer()"},
    ProcedureInfo{tmrStartDelay_Timer, "tmrStartDelay_Timer", ShowError, "tmrStartDelay_Timer()"},
    ProcedureInfo{LoadGrid, "LoadGrid", ReportError, " in LoadGrid()"},
    ProcedureInfo{Form_KeyDown, "Form_KeyDown", ReportError, " in Form_KeyDown()"},
    ProcedureInfo{SpeakStatus, "SpeakStatus", ReportError, " in SpeakStatus()"},
    ProcedureInfo{flex_RowColChange, "flex_RowColChange", ReportError, " in flex_RowColChange()"},
    ProcedureInfo{SpeakCurrentCell, "SpeakCurrentCell", ReportError, " in SpeakCurrentCell()"},
    ProcedureInfo{flex_Click, "flex_Click", ReportError, " in flex_Click()"},
    ProcedureInfo{BeginGame, "BeginGame", ReportError, " in BeginGame()"},
    ProcedureInfo{HalFindShot, "HalFindShot", ReportError, " in HalFindShot()"},
    ProcedureInfo{GameScreen_Form_Unload, "Form_Unload", ReportError, " in Form_Unload()"},
    ProcedureInfo{PlaySound, "PlaySound", ReportError, " in PlaySound()"},
    ProcedureInfo{Speak, "Speak", ShowError, " Speak()"},
    ProcedureInfo{StopSpeech, "StopSpeech", ShowError, " StopSpeech()"},
    ProcedureInfo{GetScreenReader, "GetScreenReader", ShowError, " GetScreenReader()"},
    ProcedureInfo{SaveScreenReader, "SaveScreenReader", ShowError, " SaveScreenReader()"},
    ProcedureInfo{frmReader_Form_Unload, "Form_Unload", ShowError, "Form_Unload()"},
    ProcedureInfo{frmReader_btnOK_Click, "btnOK_Click", ShowError, "btnOK_Click()"},
    ProcedureInfo{RunHelp, "RunHelp", RunHelpBox, " in RunHelp()"},
};

constexpr bool tableFollowsEnumOrder() {
    for (std::size_t i = 0; i < kProcedures.size(); ++i) {
        if (static_cast<std::size_t>(kProcedures[i].procedure) != i) {
            return false;
        }
    }
    return kProcedures.size() == static_cast<std::size_t>(RunHelp) + 1;
}
static_assert(tableFollowsEnumOrder(), "one row per procedure, in the enum's order");

}  // namespace

const ProcedureInfo& procedureInfo(Procedure procedure) {
    const auto index = static_cast<std::size_t>(procedure);
    assert(index < kProcedures.size());
    return kProcedures[index];
}

}  // namespace marivox
