// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "fake/ScreenRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;
using Rig = fake::ScreenRig;

// Every guarded procedure, made to fail as it begins, with the exact report a player gets
// and what must hold afterwards. The expected texts are written out here, not taken from
// the program's own table, so a wrong label fails.
struct Row {
    Procedure procedure;
    const char* name;
    std::function<void(Rig&)> trigger;
    Lines report;        // the report's lines, in order, from the first one
    const char* timer;   // a timer handler's own timer, off after the failure
    bool programGoesOn;  // whether the game can still be played afterwards
};

void PrintTo(const Row& row, std::ostream* os) {
    *os << row.name;
}

Lines reportError(const std::string& label) {
    return {"box 64 \"Marivox\" \"Error: 1234 Injected failure" + label + "\"", "answer 1"};
}

Lines showError(const std::string& label) {
    return {"speak \"Injected failure\"", "speak \"" + label + "\"",
            "box 64 \"Marivox\" \"Injected failure;" + label + "\"", "answer 1"};
}

void fireAtWater(Rig& rig) {
    const auto water = rig.cellHolding(rig.state().HalOcean, CellCode::OpenWater);
    rig.grid().playerClicks(water->first, water->second);
}

void computerTurn(Rig& rig) {
    fireAtWater(rig);
    rig.timers.advance(4500);
}

void huntThenShoot(Rig& rig) {
    GameState& s = rig.state();
    const auto cell = rig.cellHolding(s.MyOcean, 15);
    s.HalRow = static_cast<std::int16_t>(cell->first);
    s.HalCol = static_cast<std::int16_t>(cell->second);
    s.MyOcean.set(cell->first, cell->second, 25);
    s.HalHits[ShipType::Submarine] = 1;
    s.HalHunting = kTrue;
    s.HalHuntShip = 15;
    s.HalHitShip = 25;
    s.HalHitCount = 1;
    s.HalLastRow = s.HalRow;
    s.HalLastCol = s.HalCol;
    fireAtWater(rig);
}

void tick(Rig& rig, OneShotTimer& timer) {
    timer.switchOn();
    rig.timers.fireNext();
}

void chooseReaderFromMenu(Rig& rig) {
    rig.readerDialog.thenChoose(0);
    rig.readerDialog.thenChoose(0);
    rig.screen().mnuGameReader_Click();
}

std::vector<Row> rows() {
    using P = Procedure;
    const auto begin = [](Rig& r) { r.screen().BeginGame(); };
    std::vector<Row> table{
        {P::GameOver, "GameOver", fireAtWater, reportError(" in GameOver()"), nullptr, true},
        // In the computer's random aim a failed draw just draws again.
        {P::GetRandom, "GetRandom", fireAtWater, reportError(" in GetRandom()"), nullptr, true},
        {P::InitializeBoards, "InitializeBoards", begin, reportError(" in InitializeBoards()"),
         nullptr, true},
        {P::SpeakCell, "SpeakCell", fireAtWater, reportError(" in SpeakCell()"), nullptr, true},
        {P::RegisterHit, "RegisterHit", fireAtWater, reportError(" in RegisterHit()"), nullptr,
         true},
        {P::MyShot, "MyShot", fireAtWater, reportError(" in MyShot()"), nullptr, true},
        {P::HalShot, "HalShot", computerTurn, reportError(" in HalShot()"), nullptr, true},
        {P::HalRegisterHit, "HalRegisterHit", computerTurn, reportError(" in HalRegisterHit()"),
         nullptr, true},
        {P::HalSpeakCell, "HalSpeakCell", computerTurn, reportError(" in HalSpeakCell()"), nullptr,
         true},
        {P::ClearHits, "ClearHits", fireAtWater, reportError(" in ClearHits()"), nullptr, true},
        {P::HalFindShot, "HalFindShot", huntThenShoot, reportError(" in HalFindShot()"), nullptr,
         true},
        {P::mnuGameNew_Click, "mnuGameNew_Click", [](Rig& r) { r.screen().mnuGameNew_Click(); },
         reportError(" in mnuGameNew_Click()"), nullptr, true},
        {P::mnuGameExit_Click, "mnuGameExit_Click", [](Rig& r) { r.screen().mnuGameExit_Click(); },
         reportError(" in mnuGameExit_Click()"), nullptr, true},
        {P::mnuGameReader_Click, "mnuGameReader_Click", chooseReaderFromMenu,
         reportError(" in mnuGameReader_Click()"), nullptr, true},
        {P::mnuOptionsStatus_Click, "mnuOptionsStatus_Click",
         [](Rig& r) { r.screen().mnuOptionsStatus_Click(); },
         reportError(" in mnuOptionsStatus_Click()"), nullptr, true},
        {P::mnuOptionsShoot_Click, "mnuOptionsShoot_Click",
         [](Rig& r) { r.screen().mnuOptionsShoot_Click(); },
         reportError(" in mnuOptionsShoot_Click()"), nullptr, true},
        {P::mnuHelpContents_Click, "mnuHelpContents_Click",
         [](Rig& r) { r.screen().mnuHelpContents_Click(); },
         reportError(" in mnuHelpContents_Click()"), nullptr, true},
        {P::mnuHelpAbout_Click, "mnuHelpAbout_Click",
         [](Rig& r) { r.screen().mnuHelpAbout_Click(); }, reportError(" in mnuHelpAbout_Click()"),
         nullptr, true},
        {P::tmrTimer1_Timer, "tmrTimer1_Timer", [](Rig& r) { tick(r, r.screen().tmrTimer1()); },
         reportError(" in tmrTimer1_Timer()"), "tmrTimer1", true},
        {P::tmrHalDelay_Timer, "tmrHalDelay_Timer",
         [](Rig& r) { tick(r, r.screen().tmrHalDelay()); }, reportError(" in tmrHalDelay_Timer()"),
         "tmrHalDelay", true},
        {P::tmrTimer2_Timer, "tmrTimer2_Timer", [](Rig& r) { tick(r, r.screen().tmrTimer2()); },
         reportError(" in tmrTimer2_Timer()"), "tmrTimer2", true},
        {P::tmrStartDelay_Timer, "tmrStartDelay_Timer",
         [](Rig& r) { tick(r, r.screen().tmrStartDelay()); }, showError("tmrStartDelay_Timer()"),
         "tmrStartDelay", true},
        {P::LoadGrid, "LoadGrid", [](Rig& r) { r.screen().LoadGrid(); },
         reportError(" in LoadGrid()"), nullptr, true},
        {P::Form_KeyDown, "Form_KeyDown", [](Rig& r) { r.press(KeyCode::Down); },
         reportError(" in Form_KeyDown()"), nullptr, true},
        {P::SpeakStatus, "SpeakStatus", [](Rig& r) { r.press(KeyCode::F2); },
         reportError(" in SpeakStatus()"), nullptr, true},
        {P::flex_RowColChange, "flex_RowColChange", [](Rig& r) { r.press(KeyCode::Down); },
         reportError(" in flex_RowColChange()"), nullptr, true},
        {P::SpeakCurrentCell, "SpeakCurrentCell", [](Rig& r) { r.press(KeyCode::Down); },
         reportError(" in SpeakCurrentCell()"), nullptr, true},
        {P::flex_Click, "flex_Click", fireAtWater, reportError(" in flex_Click()"), nullptr, true},
        {P::BeginGame, "BeginGame", begin, reportError(" in BeginGame()"), nullptr, true},
        {P::GameScreen_Form_Unload,
         "GameScreen_Form_Unload",
         [](Rig& r) { r.screen().mnuGameExit_Click(); },
         {"box 64 \"Marivox\" \"Error: 1234 Injected failure in Form_Unload()\"", "answer 1",
          "end program"},
         nullptr,
         false},
        {P::PlaySound, "PlaySound", fireAtWater, reportError(" in PlaySound()"), nullptr, true},
        {P::Speak, "Speak", [](Rig& r) { r.press(KeyCode::F2); }, showError(" Speak()"), nullptr,
         true},
        {P::StopSpeech, "StopSpeech", [](Rig& r) { r.press(KeyCode::F2); },
         showError(" StopSpeech()"), nullptr, true},
        {P::GetScreenReader, "GetScreenReader",
         [](Rig& r) { r.system.readerChoice.GetScreenReader(); }, showError(" GetScreenReader()"),
         nullptr, true},
        {P::SaveScreenReader, "SaveScreenReader", chooseReaderFromMenu,
         showError(" SaveScreenReader()"), nullptr, true},
        {P::frmReader_Form_Unload, "frmReader_Form_Unload", chooseReaderFromMenu,
         showError("Form_Unload()"), nullptr, true},
        {P::frmReader_btnOK_Click, "frmReader_btnOK_Click", chooseReaderFromMenu,
         showError("btnOK_Click()"), nullptr, true},
        {P::RunHelp,
         "RunHelp",
         [](Rig& r) { r.screen().mnuHelpContents_Click(); },
         {"box 0 \"Marivox\" \"Injected failure in RunHelp()\"", "answer 1"},
         nullptr,
         true},
    };
    const std::pair<P, const char*> placements[] = {
        {P::HalPlaceCarrier, "HalPlaceCarrier"},
        {P::MyPlaceCarrier, "MyPlaceCarrier"},
        {P::HalPlaceBattleship, "HalPlaceBattleship"},
        {P::MyPlaceBattleship, "MyPlaceBattleship"},
        {P::HalPlaceCruiser, "HalPlaceCruiser"},
        {P::MyPlaceCruiser, "MyPlaceCruiser"},
        {P::HalPlaceDestroyer, "HalPlaceDestroyer"},
        {P::MyPlaceDestroyer, "MyPlaceDestroyer"},
        {P::HalPlacePatrol, "HalPlacePatrol"},
        {P::MyPlacePatrol, "MyPlacePatrol"},
        {P::HalPlaceSub, "HalPlaceSub"},
        {P::MyPlaceSub, "MyPlaceSub"},
    };
    for (const auto& [procedure, name] : placements) {
        table.push_back({procedure, name, begin, reportError(std::string(" in ") + name + "()"),
                         nullptr, true});
    }
    return table;
}

TEST(FailureTable, HasARowForEveryGuardedProcedure) {
    std::set<Procedure> covered;
    for (const Row& row : rows()) {
        EXPECT_TRUE(covered.insert(row.procedure).second) << row.name;
    }
    EXPECT_EQ(covered.size(), static_cast<std::size_t>(Procedure::RunHelp) + 1);
}

// After a failure the player can still fire, and the computer still answers.
void expectStillPlayable(Rig& rig) {
    rig.transcript.clear();
    rig.state().TurnState = kPlayersTurn;
    rig.state().Shooting = kFalse;
    fireAtWater(rig);
    rig.timers.advance(4500);
    EXPECT_FALSE(rig.transcript.linesStartingWith("speak \"It is my turn targeting").empty());
    EXPECT_EQ(rig.state().TurnState, kPlayersTurn);
}

class FailureTableTest : public ::testing::TestWithParam<Row> {};

TEST_P(FailureTableTest, ReportsExactlyAndTheGameGoesOnWhereItShould) {
    const Row& row = GetParam();
    Rig rig;
    rig.startAndSettle();
    rig.faults.failOn(row.procedure);
    row.trigger(rig);
    const Lines& lines = rig.transcript.lines();
    const auto first = std::find(lines.begin(), lines.end(), row.report.front());
    ASSERT_NE(first, lines.end()) << ::testing::PrintToString(lines);
    ASSERT_LE(row.report.size(), static_cast<std::size_t>(lines.end() - first));
    EXPECT_EQ(Lines(first, first + static_cast<std::ptrdiff_t>(row.report.size())), row.report);
    EXPECT_EQ(rig.transcript.linesStartingWith("box").size(), 1u);
    if (row.timer != nullptr) {
        // Switched off before the report was made.
        EXPECT_EQ(*(first - 1), "timer " + std::string(row.timer) + " off");
    }
    EXPECT_EQ(rig.application.ended(), !row.programGoesOn);
    if (row.programGoesOn) {
        expectStillPlayable(rig);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryProcedure, FailureTableTest, ::testing::ValuesIn(rows()),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace marivox
