// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake/ScreenRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

TEST(LoadGrid, ShapesAHeadedNineByNineBoardInTheTwoPaletteColours) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    fake::FakeGrid& grid = rig.grid();
    EXPECT_EQ(grid.rows(), 10);
    EXPECT_EQ(grid.cols(), 10);
    EXPECT_EQ(grid.fixedRows(), 1);
    EXPECT_EQ(grid.fixedCols(), 1);
    EXPECT_EQ(grid.colWidths().at(0), 300);
    EXPECT_EQ(grid.rowHeights().at(GridControl::kAllLines), GridControl::kDefaultSize);
    for (int i = 1; i <= 9; ++i) {
        EXPECT_EQ(grid.textMatrix(0, i), std::to_string(i));
        EXPECT_EQ(grid.textMatrix(i, 0), std::string(1, static_cast<char>('A' + i - 1)));
    }
    EXPECT_EQ(grid.textMatrix(0, 0), "");
    EXPECT_EQ(grid.backColor(), (Rgb{0, 0, 128}));
    EXPECT_EQ(grid.foreColor(), (Rgb{192, 192, 192}));
    for (int row = 1; row <= 9; ++row) {
        for (int col = 1; col <= 9; ++col) {
            ASSERT_EQ(grid.cellBackColor(row, col), (Rgb{0, 0, 128}));
            ASSERT_EQ(grid.cellForeColor(row, col), (Rgb{192, 192, 192}));
        }
    }
    EXPECT_FALSE(grid.hasCellColours(0, 0));
}

TEST(CursorSpeech, NamesTheCellAndWhatIsKnownOfIt) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.grid().playerMovesTo(3, 4);
    EXPECT_EQ(rig.transcript.lines(), (Lines{"stop", "stop", "speak \"C  4\""}));

    rig.grid().setTextMatrix(3, 4, "M");
    rig.grid().setTextMatrix(3, 5, "D");
    rig.grid().setTextMatrix(3, 6, "A");
    rig.transcript.clear();
    rig.press(KeyCode::Right);
    rig.press(KeyCode::Right);
    rig.press(KeyCode::Left);
    rig.press(KeyCode::Left);
    EXPECT_EQ(rig.transcript.linesStartingWith("speak"),
              (Lines{"speak \"C  5 hit destroyer  \"", "speak \"C  6 hit air craft carrier  \"",
                     "speak \"C  5 hit destroyer  \"", "speak \"C  4 miss  \""}));
    // Assistive technology that asks is told the same, in its own form.
    EXPECT_EQ(rig.grid().describe(3, 3), "C 3");
    EXPECT_EQ(rig.grid().describe(3, 4), "C 4, miss");
    EXPECT_EQ(rig.grid().describe(3, 6), "C 6, hit air craft carrier");
}

TEST(CursorSpeech, IsSilentInTheComputersTurnAndWhileSettingUp) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.state().TurnState = kComputersTurn;
    rig.grid().playerMovesTo(6, 6);
    rig.state().TurnState = kPlayersTurn;
    rig.state().SettingUp = kTrue;
    rig.grid().playerMovesTo(7, 7);
    EXPECT_TRUE(rig.transcript.lines().empty());
}

}  // namespace
}  // namespace marivox
