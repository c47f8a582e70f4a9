// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace marivox {

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    friend bool operator==(const Rgb&, const Rgb&) = default;
};

// What the board grid reports back to the screen that owns it.
class GridEvents {
  public:
    virtual ~GridEvents() = default;
    // The cursor cell changed, by the player or by code.
    virtual void onRowColChange() = 0;
    // A click on a playing cell, after the clicked cell has become the cursor cell.
    virtual void onClick() = 0;
};

// The board grid control: a table of text cells with fixed heading lines and a cursor.
class GridControl {
  public:
    // Size that line-size setters understand as "the control's default size", and the
    // line index that means "every line".
    static constexpr int kDefaultSize = -1;
    static constexpr int kAllLines = -1;

    virtual ~GridControl() = default;

    virtual void setListener(GridEvents* events) = 0;

    // How assistive technology names a playing cell showing `mark`: the game decides, the
    // control shows it to whoever asks.
    using CellDescriber = std::function<std::string(int row, int col, std::string_view mark)>;
    virtual void setCellDescriber(CellDescriber describer) = 0;
    // Whether the game voices each cursor move itself at the moment. While it does, the
    // control does not also announce moves to assistive technology, which would say every
    // cell twice; it still tells whoever asks where the cursor is and what the cell shows.
    using MovesVoiced = std::function<bool()>;
    virtual void setMovesVoiced(MovesVoiced voiced) = 0;

    virtual int rows() const = 0;
    virtual void setRows(int rows) = 0;
    virtual int cols() const = 0;
    virtual void setCols(int cols) = 0;
    virtual void setFixedRows(int rows) = 0;
    virtual void setFixedCols(int cols) = 0;
    virtual void setRowHeight(int row, int twips) = 0;
    virtual void setColWidth(int col, int twips) = 0;

    // The cursor cell. Setting either moves the cursor and raises onRowColChange when the
    // cell changes.
    virtual int row() const = 0;
    virtual void setRow(int row) = 0;
    virtual int col() const = 0;
    virtual void setCol(int col) = 0;

    virtual std::string text() const = 0;  // of the cursor cell
    virtual std::string textMatrix(int row, int col) const = 0;
    virtual void setTextMatrix(int row, int col, std::string_view text) = 0;

    virtual Rgb backColor() const = 0;
    virtual void setBackColor(Rgb colour) = 0;
    virtual Rgb foreColor() const = 0;
    virtual void setForeColor(Rgb colour) = 0;
    // Colours of the cursor cell alone.
    virtual void setCellBackColor(Rgb colour) = 0;
    virtual void setCellForeColor(Rgb colour) = 0;
};

}  // namespace marivox
