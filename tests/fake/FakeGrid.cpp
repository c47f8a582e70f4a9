// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fake/FakeGrid.h"

#include "support/Failure.h"

namespace marivox::fake {

void FakeGrid::resize() {
    cells_.resize(static_cast<std::size_t>(rows_));
    for (auto& line : cells_) {
        line.resize(static_cast<std::size_t>(cols_));
    }
}

void FakeGrid::setRows(int rows) {
    rows_ = rows;
    resize();
}

void FakeGrid::setCols(int cols) {
    cols_ = cols;
    resize();
}

void FakeGrid::checkCell(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_) {
        throw Failure(FailureNumber::IndexOutOfRange, "Grid cell out of range");
    }
}

void FakeGrid::setRow(int row) {
    checkCell(row, col_);
    const bool moved = row != row_;
    row_ = row;
    if (moved && events_ != nullptr) {
        events_->onRowColChange();
    }
}

void FakeGrid::setCol(int col) {
    checkCell(row_, col);
    const bool moved = col != col_;
    col_ = col;
    if (moved && events_ != nullptr) {
        events_->onRowColChange();
    }
}

std::string FakeGrid::textMatrix(int row, int col) const {
    checkCell(row, col);
    return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
}

void FakeGrid::setTextMatrix(int row, int col, std::string_view text) {
    checkCell(row, col);
    transcript_.record("grid " + std::to_string(row) + "," + std::to_string(col) + " \"" +
                       std::string(text) + "\"");
    cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] = text;
}

void FakeGrid::setCellBackColor(Rgb colour) {
    if (recordColours) {
        transcript_.record("grid colours " + std::to_string(row_) + "," + std::to_string(col_));
    }
    cellBack_[{row_, col_}] = colour;
}

void FakeGrid::playerMovesTo(int row, int col) {
    checkCell(row, col);
    const bool moved = row != row_ || col != col_;
    row_ = row;
    col_ = col;
    if (moved && events_ != nullptr) {
        events_->onRowColChange();
    }
}

void FakeGrid::playerClicks(int row, int col) {
    playerMovesTo(row, col);
    if (events_ != nullptr) {
        events_->onClick();
    }
}

}  // namespace marivox::fake
