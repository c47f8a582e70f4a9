// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "fake/Transcript.h"
#include "platform/GridControl.h"

namespace marivox::fake {

// A grid that behaves like the board control: moving the cursor by code or by the player
// raises the cursor-moved event, a click makes the clicked cell current first.
// Lines: `grid <row>,<col> "<text>"` for every cell text written.
class FakeGrid : public GridControl {
  public:
    explicit FakeGrid(Transcript& transcript) : transcript_(transcript) { resize(); }

    void setListener(GridEvents* events) override { events_ = events; }
    void setCellDescriber(CellDescriber describer) override { describer_ = std::move(describer); }
    // The name assistive technology would hear for a playing cell.
    std::string describe(int row, int col) const {
        return describer_(row, col, textMatrix(row, col));
    }

    int rows() const override { return rows_; }
    void setRows(int rows) override;
    int cols() const override { return cols_; }
    void setCols(int cols) override;
    void setFixedRows(int rows) override { fixedRows_ = rows; }
    void setFixedCols(int cols) override { fixedCols_ = cols; }
    void setRowHeight(int row, int twips) override { rowHeights_[row] = twips; }
    void setColWidth(int col, int twips) override { colWidths_[col] = twips; }

    int row() const override { return row_; }
    void setRow(int row) override;
    int col() const override { return col_; }
    void setCol(int col) override;

    std::string text() const override { return textMatrix(row_, col_); }
    std::string textMatrix(int row, int col) const override;
    void setTextMatrix(int row, int col, std::string_view text) override;

    Rgb backColor() const override { return back_; }
    void setBackColor(Rgb colour) override { back_ = colour; }
    Rgb foreColor() const override { return fore_; }
    void setForeColor(Rgb colour) override { fore_ = colour; }
    void setCellBackColor(Rgb colour) override;
    void setCellForeColor(Rgb colour) override { cellFore_[{row_, col_}] = colour; }

    // Also record `grid colours <row>,<col>` for every cursor cell coloured.
    bool recordColours = false;

    // What a player does: one cursor move (one event), or a click that moves and fires.
    void playerMovesTo(int row, int col);
    void playerClicks(int row, int col);

    int fixedRows() const { return fixedRows_; }
    int fixedCols() const { return fixedCols_; }
    const std::map<int, int>& rowHeights() const { return rowHeights_; }
    const std::map<int, int>& colWidths() const { return colWidths_; }
    Rgb cellBackColor(int row, int col) const { return cellBack_.at({row, col}); }
    Rgb cellForeColor(int row, int col) const { return cellFore_.at({row, col}); }
    bool hasCellColours(int row, int col) const { return cellBack_.contains({row, col}); }

  private:
    void resize();
    void checkCell(int row, int col) const;

    Transcript& transcript_;
    GridEvents* events_ = nullptr;
    CellDescriber describer_;
    int rows_ = 2;
    int cols_ = 2;
    int fixedRows_ = 1;
    int fixedCols_ = 1;
    int row_ = 1;
    int col_ = 1;
    std::vector<std::vector<std::string>> cells_;
    std::map<int, int> rowHeights_;
    std::map<int, int> colWidths_;
    Rgb back_{};
    Rgb fore_{};
    std::map<std::pair<int, int>, Rgb> cellBack_;
    std::map<std::pair<int, int>, Rgb> cellFore_;
};

}  // namespace marivox::fake
