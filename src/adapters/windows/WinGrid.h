// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ports/GridControl.h"

namespace marivox::windows {

// The board on Windows: a control of our own that draws a table of text cells with one
// heading row and column, keeps a cursor on the playing cells and moves it with the arrow
// keys. Its accessible name is "Board"; while the game does not voice moves itself, the name
// follows the cursor cell ("C 4, miss") so a screen reader hears each move.
class WinGrid : public GridControl {
  public:
    WinGrid(HWND parent, RECT place);
    ~WinGrid() override;
    WinGrid(const WinGrid&) = delete;
    WinGrid& operator=(const WinGrid&) = delete;

    HWND handle() const { return window_; }

    void setListener(GridEvents* events) override { events_ = events; }
    void setCellDescriber(CellDescriber describer) override { describer_ = std::move(describer); }
    void setMovesVoiced(MovesVoiced voiced) override { movesVoiced_ = std::move(voiced); }

    int rows() const override { return rows_; }
    void setRows(int rows) override;
    int cols() const override { return cols_; }
    void setCols(int cols) override;
    void setFixedRows(int rows) override;
    void setFixedCols(int cols) override;
    void setRowHeight(int row, int twips) override;
    void setColWidth(int col, int twips) override;

    int row() const override { return row_; }
    void setRow(int row) override { placeCursor(row, col_); }
    int col() const override { return col_; }
    void setCol(int col) override { placeCursor(row_, col); }

    std::string text() const override { return textMatrix(row_, col_); }
    std::string textMatrix(int row, int col) const override;
    void setTextMatrix(int row, int col, std::string_view text) override;

    Rgb backColor() const override { return back_; }
    void setBackColor(Rgb colour) override;
    Rgb foreColor() const override { return fore_; }
    void setForeColor(Rgb colour) override;
    void setCellBackColor(Rgb colour) override;
    void setCellForeColor(Rgb colour) override;

    // How the board looks to a player who sees a little: the marks' font in pixels (0: the
    // normal font), the headings' size against the normal one, and high contrast.
    void setLook(double markPixels, double headingScale, bool highContrast);
    // Where a cell stands in the board's client area.
    RECT cellRect(int row, int col) const;

  private:
    struct Cell {
        std::string text;
        std::optional<Rgb> back;
        std::optional<Rgb> fore;
    };

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    void reshape(int rows, int cols);
    Cell& cell(int row, int col);
    const Cell& cell(int row, int col) const;
    void checkCell(int row, int col) const;
    void placeCursor(int row, int col);
    void moveCursor(int row, int col);
    void tellAssistiveTechnology();
    void paint(HDC dc) const;
    void keyDown(WPARAM key);
    std::optional<std::pair<int, int>> cellAt(int x, int y) const;
    void press(int x, int y);
    void release(int x, int y);

    HWND window_ = nullptr;
    GridEvents* events_ = nullptr;
    CellDescriber describer_;
    MovesVoiced movesVoiced_;
    int rows_ = 2;
    int cols_ = 2;
    int fixedRows_ = 1;
    int fixedCols_ = 1;
    int row_ = 1;
    int col_ = 1;
    int headingRowPixels_ = -1;  // -1: the control's own size
    int headingColPixels_ = -1;
    std::vector<Cell> cells_;
    std::optional<std::pair<int, int>> pressed_;  // the cell the mouse button went down in
    Rgb back_{255, 255, 255};
    Rgb fore_{0, 0, 0};
    double headingScale_ = 1;
    bool highContrast_ = false;
    HFONT markFont_ = nullptr;  // none: the normal font
    HFONT headingFont_ = nullptr;
};

}  // namespace marivox::windows
