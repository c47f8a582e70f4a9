// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "fake/RulesRig.h"

namespace marivox {
namespace {

// A failure injected into a rule is reported once with the rule's label; the rule's earlier
// steps stay done, its later ones are skipped, and its caller carries on.
struct RuleFailure {
    const char* name;
    std::function<void(fake::RulesRig&)> arm;  // also sets the stage
    std::function<void(fake::RulesRig&)> act;
    const char* label;
    std::function<void(fake::RulesRig&)> aftermath;
};

void PrintTo(const RuleFailure& c, std::ostream* os) {
    *os << c.name;
}

int countOf(const ShipInfo& ship, const Ocean& ocean) {
    int cells = 0;
    for (int row = 1; row <= 9; ++row) {
        for (int col = 1; col <= 9; ++col) {
            cells += ocean(row, col) == ship.intactCode ? 1 : 0;
        }
    }
    return cells;
}

void aimPlayer(fake::RulesRig& rig, int row, int col, std::int16_t code) {
    rig.state.HalOcean.set(row, col, code);
    rig.state.MyRow = static_cast<std::int16_t>(row);
    rig.state.MyCol = static_cast<std::int16_t>(col);
}

void aimComputer(fake::RulesRig& rig, int row, int col, std::int16_t code) {
    rig.state.MyOcean.set(row, col, code);
    rig.state.HalRow = static_cast<std::int16_t>(row);
    rig.state.HalCol = static_cast<std::int16_t>(col);
}

void haltHalShot(fake::RulesRig& rig) {
    rig.halShots.HalShot(rig.state.HalRow, rig.state.HalCol);
}

struct PlacementCase {
    Procedure procedure;
    ShipType type;
    bool computers;
};

std::vector<RuleFailure> placementCases() {
    const PlacementCase cases[] = {
        {Procedure::HalPlaceCarrier, ShipType::Carrier, true},
        {Procedure::MyPlaceCarrier, ShipType::Carrier, false},
        {Procedure::HalPlaceBattleship, ShipType::Battleship, true},
        {Procedure::MyPlaceBattleship, ShipType::Battleship, false},
        {Procedure::HalPlaceCruiser, ShipType::Cruiser, true},
        {Procedure::MyPlaceCruiser, ShipType::Cruiser, false},
        {Procedure::HalPlaceDestroyer, ShipType::Destroyer, true},
        {Procedure::MyPlaceDestroyer, ShipType::Destroyer, false},
        {Procedure::HalPlacePatrol, ShipType::PatrolBoat, true},
        {Procedure::MyPlacePatrol, ShipType::PatrolBoat, false},
        {Procedure::HalPlaceSub, ShipType::Submarine, true},
        {Procedure::MyPlaceSub, ShipType::Submarine, false},
    };
    std::vector<RuleFailure> result;
    for (const PlacementCase& c : cases) {
        const ProcedureInfo& info = procedureInfo(c.procedure);
        result.push_back({info.name.data(),
                          [c](fake::RulesRig& rig) {
                              rig.boards.InitializeBoards();
                              rig.faults.failOn(c.procedure);
                          },
                          [](fake::RulesRig& rig) { rig.placement.placeBothFleets(); },
                          info.label.data(),
                          [c](fake::RulesRig& rig) {
                              // That ship is missing; the other eleven were laid.
                              for (const ShipInfo& ship : kShips) {
                                  const bool missingHere = ship.type == c.type;
                                  EXPECT_EQ(countOf(ship, rig.state.HalOcean),
                                            missingHere && c.computers ? 0 : ship.length);
                                  EXPECT_EQ(countOf(ship, rig.state.MyOcean),
                                            missingHere && !c.computers ? 0 : ship.length);
                              }
                          }});
    }
    return result;
}

std::vector<RuleFailure> ruleCases() {
    std::vector<RuleFailure> cases = {
        {"GameOver",
         [](fake::RulesRig& rig) {
             rig.state.MySunkCount = 6;
             rig.faults.failOn(Procedure::GameOver);
         },
         [](fake::RulesRig& rig) { EXPECT_FALSE(rig.boards.GameOver()); }, " in GameOver()",
         [](fake::RulesRig& rig) { EXPECT_TRUE(rig.boards.GameOver()); }},
        {"GetRandom", [](fake::RulesRig& rig) { rig.faults.failOn(Procedure::GetRandom); },
         [](fake::RulesRig& rig) { EXPECT_EQ(rig.random.GetRandom(1, 9), 0); }, " in GetRandom()",
         [](fake::RulesRig& rig) { EXPECT_GE(rig.random.GetRandom(1, 9), 1); }},
        {"InitializeBoards",
         [](fake::RulesRig& rig) {
             rig.state.HalOcean.set(2, 2, 22);
             rig.faults.failOn(Procedure::InitializeBoards);
         },
         [](fake::RulesRig& rig) { rig.boards.InitializeBoards(); }, " in InitializeBoards()",
         [](fake::RulesRig& rig) { EXPECT_EQ(rig.state.HalOcean(2, 2), 22); }},
        {"SpeakCell",
         [](fake::RulesRig& rig) {
             aimPlayer(rig, 2, 3, CellCode::OpenWater);
             rig.transcript.failAt("speak");
         },
         [](fake::RulesRig& rig) { rig.playerShots.MyShot(); }, " in SpeakCell()",
         [](fake::RulesRig& rig) {
             EXPECT_EQ(rig.transcript.lines().front(), "grid 2,3 \"M\"");
             EXPECT_TRUE(rig.transcript.contains("stop"));
         }},
        {"RegisterHit",
         [](fake::RulesRig& rig) {
             aimPlayer(rig, 4, 4, 13);
             rig.state.TurnState = kPlayersTurn;
             rig.transcript.failAt("grid");
         },
         [](fake::RulesRig& rig) { rig.playerShots.MyShot(); }, " in RegisterHit()",
         [](fake::RulesRig& rig) {
             EXPECT_EQ(rig.state.HalOcean(4, 4), 23);              // done before the grid
             EXPECT_EQ(rig.state.TurnState, kPlayersTurn);         // skipped after it
             EXPECT_EQ(rig.state.MyHits[ShipType::Destroyer], 1);  // the shot went on
             EXPECT_EQ(rig.transcript.lines().back(), "speak \"D  4 was a hit on my destroyer  \"");
         }},
        {"MyShot",
         [](fake::RulesRig& rig) {
             aimPlayer(rig, 6, 1, 15);
             rig.transcript.failAt("sound \\hit.wav");
         },
         [](fake::RulesRig& rig) { rig.playerShots.MyShot(); }, " in MyShot()",
         [](fake::RulesRig& rig) {
             EXPECT_EQ(rig.state.HalOcean(6, 1), 25);
             EXPECT_TRUE(rig.transcript.contains("sound \\shoot.wav"));
             EXPECT_EQ(rig.state.MyHits[ShipType::Submarine], 0);
             EXPECT_TRUE(rig.transcript.linesStartingWith("speak").empty());
         }},
        {"HalShot",
         [](fake::RulesRig& rig) {
             aimComputer(rig, 3, 3, 12);
             rig.transcript.failAt("sound \\hit.wav");
         },
         haltHalShot, " in HalShot()",
         [](fake::RulesRig& rig) {
             EXPECT_EQ(rig.state.MyOcean(3, 3), 22);
             EXPECT_EQ(rig.state.HalHunting, kTrue);
             EXPECT_EQ(rig.state.HalHits[ShipType::Cruiser], 0);
             EXPECT_TRUE(rig.transcript.linesStartingWith("speak").empty());
         }},
        {"HalRegisterHit",
         [](fake::RulesRig& rig) {
             aimComputer(rig, 8, 2, 14);
             rig.faults.failOn(Procedure::HalRegisterHit);
         },
         haltHalShot, " in HalRegisterHit()",
         [](fake::RulesRig& rig) {
             EXPECT_EQ(rig.state.MyOcean(8, 2), 14);
             EXPECT_EQ(rig.state.HalHits[ShipType::PatrolBoat], 1);
             EXPECT_EQ(rig.state.HalLastRow, 8);
             EXPECT_EQ(rig.transcript.lines().back(),
                       "speak \"H  2 was a hit on your patrol boat  \"");
         }},
        {"HalSpeakCell",
         [](fake::RulesRig& rig) {
             aimComputer(rig, 9, 9, CellCode::OpenWater);
             rig.transcript.failAt("speak");
         },
         haltHalShot, " in HalSpeakCell()",
         [](fake::RulesRig& rig) {
             EXPECT_EQ(rig.state.MyOcean(9, 9), 0);
             EXPECT_TRUE(rig.transcript.contains("stop"));
         }},
        {"ClearHits",
         [](fake::RulesRig& rig) {
             rig.state.HalHitCount = 2;
             rig.faults.failOn(Procedure::ClearHits);
         },
         [](fake::RulesRig& rig) { rig.targeting.ClearHits(); }, " in ClearHits()",
         [](fake::RulesRig& rig) { EXPECT_EQ(rig.state.HalHitCount, 2); }},
        {"HalFindShot",
         [](fake::RulesRig& rig) {
             aimComputer(rig, 5, 5, 25);
             rig.state.MyOcean.set(5, 6, 15);
             rig.state.HalHunting = kTrue;
             rig.state.HalHuntShip = 15;
             rig.state.HalHitShip = 25;
             rig.state.HalHitCount = 1;
             rig.state.HalLastRow = 5;
             rig.state.HalLastCol = 5;
             rig.faults.failOn(Procedure::HalFindShot);
         },
         [](fake::RulesRig& rig) { rig.targeting.chooseTarget(); }, " in HalFindShot()",
         [](fake::RulesRig& rig) {
             EXPECT_FALSE(rig.halDelay->isOn());
             EXPECT_EQ(rig.state.HalCol, 5);
         }},
    };
    for (RuleFailure& c : placementCases()) {
        cases.push_back(std::move(c));
    }
    return cases;
}

class RuleFailuresTest : public ::testing::TestWithParam<RuleFailure> {};

TEST_P(RuleFailuresTest, IsReportedOnceWithItsLabelAndLeavesEarlierStepsDone) {
    fake::RulesRig rig(3);
    const RuleFailure& c = GetParam();
    c.arm(rig);
    c.act(rig);
    const auto boxes = rig.transcript.linesStartingWith("box");
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes.front(),
              std::string("box 64 \"Marivox\" \"Error: 1234 Injected failure") + c.label + "\"");
    c.aftermath(rig);
}

INSTANTIATE_TEST_SUITE_P(EveryRule, RuleFailuresTest, ::testing::ValuesIn(ruleCases()),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace marivox
