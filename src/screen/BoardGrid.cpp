// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/CellName.h"
#include "model/GameState.h"
#include "model/PlayerShots.h"
#include "model/Ships.h"
#include "screen/GameScreen.h"
#include "screen/ScreenTexts.h"
#include "speech/ScreenReaderState.h"
#include "speech/Speech.h"
#include "support/Guard.h"

namespace marivox {
namespace {

// Entries 1 and 7 of the standard 16-colour palette.
constexpr Rgb kDarkBlue{0, 0, 128};
constexpr Rgb kLightGrey{192, 192, 192};
constexpr int kHeadingTwips = 300;

// What is known of a cell from its mark, as the cursor's speech adds it; nothing for a cell
// not fired at.
std::string_view markPhrase(std::string_view mark) {
    if (mark == kMissMark) {
        return screen::kCursorMissText;
    }
    if (const auto ship = shipWithLetter(mark)) {
        return shipInfo(*ship).cursorText;
    }
    return {};
}

}  // namespace

std::string GameScreen::describeCell(int row, int col, std::string_view mark) {
    std::string text = shortCellName(row, col);
    if (const std::string_view phrase = trimmedBlanks(markPhrase(mark)); !phrase.empty()) {
        text += ", ";
        text += phrase;
    }
    return text;
}

void GameScreen::LoadGrid() {
    guard_.run(Procedure::LoadGrid, [&] {
        flex_.setColWidth(0, kHeadingTwips);
        flex_.setRowHeight(GridControl::kAllLines, GridControl::kDefaultSize);
        flex_.setFixedCols(1);
        flex_.setFixedRows(1);
        flex_.setRows(10);
        flex_.setCols(10);
        flex_.setBackColor(kDarkBlue);
        flex_.setForeColor(kLightGrey);
        for (int col = 1; col <= 9; ++col) {
            flex_.setTextMatrix(0, col, std::to_string(col));
        }
        for (std::int16_t row = 1; row <= 9; ++row) {
            flex_.setTextMatrix(row, 0, rowLetter(row));
        }
        for (int row = 1; row <= 9; ++row) {
            for (int col = 1; col <= 9; ++col) {
                flex_.setRow(row);
                flex_.setCol(col);
                flex_.setCellBackColor(flex_.backColor());
                flex_.setCellForeColor(flex_.foreColor());
            }
        }
        flex_.setRow(1);
        flex_.setCol(1);
    });
}

void GameScreen::flex_RowColChange() {
    guard_.run(Procedure::flex_RowColChange, [&] {
        // Silent while a game is being set up and while the computer has the turn.
        if (state_.SettingUp == kFalse && state_.TurnState == kPlayersTurn && !quietMoves_) {
            speech_.StopSpeech();
            SpeakCurrentCell();
        }
    });
}

void GameScreen::SpeakCurrentCell() {
    guard_.run(Procedure::SpeakCurrentCell, [&] {
        speech_.StopSpeech();
        std::string sentence = cursorCellName();
        sentence += markPhrase(flex_.text());
        speech_.Speak(sentence);
    });
}

}  // namespace marivox
