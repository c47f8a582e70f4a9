// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableWidget>
#include <string>

#include "ports/GridControl.h"

namespace marivox::qt {

// The board: a table whose heading row and column are real header views, so the cursor
// can only stand on playing cells and a screen reader hears row and column headers. Each
// playing cell's accessible text says what a sighted player sees ("C 4, miss").
class GridWidget : public QTableWidget, public GridControl {
    Q_OBJECT
  public:
    explicit GridWidget(QWidget* parent = nullptr);

    void setListener(GridEvents* events) override { events_ = events; }
    void setCellDescriber(CellDescriber describer) override;
    void setMovesVoiced(MovesVoiced voiced) override { movesVoiced_ = std::move(voiced); }

    int rows() const override { return rows_; }
    void setRows(int rows) override;
    int cols() const override { return cols_; }
    void setCols(int cols) override;
    void setFixedRows(int rows) override;
    void setFixedCols(int cols) override;
    void setRowHeight(int row, int twips) override;
    void setColWidth(int col, int twips) override;

    int row() const override { return currentRow() + fixedRows_; }
    void setRow(int row) override;
    int col() const override { return currentColumn() + fixedCols_; }
    void setCol(int col) override;

    std::string text() const override { return textMatrix(row(), col()); }
    std::string textMatrix(int row, int col) const override;
    void setTextMatrix(int row, int col, std::string_view text) override;

    Rgb backColor() const override { return back_; }
    void setBackColor(Rgb colour) override;
    Rgb foreColor() const override { return fore_; }
    void setForeColor(Rgb colour) override;
    void setCellBackColor(Rgb colour) override;
    void setCellForeColor(Rgb colour) override;

    // Typing a letter must not jump the cursor to a cell showing that letter.
    void keyboardSearch(const QString&) override {}

    // How the board looks to a player who sees a little: the marks' font in pixels (0: the
    // normal font), the headings' size against the normal one, and high contrast.
    void setLook(double markPixels, double headingScale, bool highContrast);
    bool highContrast() const { return highContrast_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

  private:
    void reshape();
    void fitLines();
    void checkCell(int row, int col) const;
    QTableWidgetItem* itemAt(int row, int col) const;
    void placeCursor(int row, int col);
    void describe(int row, int col, QTableWidgetItem& cell) const;
    bool movesVoiced() const { return movesVoiced_ && movesVoiced_(); }

    GridEvents* events_ = nullptr;
    CellDescriber describer_;
    MovesVoiced movesVoiced_;
    int rows_ = 2;
    int cols_ = 2;
    int fixedRows_ = 1;
    int fixedCols_ = 1;
    int headingRowPixels_ = -1;  // -1: the control's own size
    int headingColPixels_ = -1;
    QString corner_;
    bool quiet_ = false;  // reshaping, not a cursor move
    Rgb back_{255, 255, 255};
    Rgb fore_{0, 0, 0};
    double headingScale_ = 1;
    bool highContrast_ = false;
};

}  // namespace marivox::qt
