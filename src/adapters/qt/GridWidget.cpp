// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/GridWidget.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>

#include "adapters/qt/Desktop.h"
#include "adapters/qt/Twips.h"
#include "ports/Failure.h"

namespace marivox::qt {
namespace {

QColor toQColor(Rgb c) {
    return {c.red, c.green, c.blue};
}

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// High contrast, drawn whatever colours the game gave the cells: marks in white on black, the
// cursor cell's mark in yellow inside a yellow frame thick enough to find at a glance.
class HighContrastCells : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    static constexpr int kFrame = 5;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const auto* board = qobject_cast<const GridWidget*>(option.widget);
        if (board == nullptr || !board->highContrast()) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        const bool cursor = index == board->currentIndex();
        painter->save();
        painter->fillRect(option.rect, Qt::black);
        painter->setPen(cursor ? Qt::yellow : Qt::white);
        QFont font = option.font;
        font.setBold(true);
        painter->setFont(font);
        painter->drawText(option.rect, Qt::AlignCenter, index.data().toString());
        if (cursor) {
            const int half = kFrame / 2;
            painter->setPen(QPen(Qt::yellow, kFrame));
            painter->drawRect(option.rect.adjusted(half, half, -half - 1, -half - 1));
        }
        painter->restore();
    }
};

[[noreturn]] void outOfRange(const char* what) {
    throw Failure(FailureNumber::IndexOutOfRange,
                  std::string("Board grid ") + what + " out of range");
}

}  // namespace

GridWidget::GridWidget(QWidget* parent) : QTableWidget(parent) {
    setObjectName("flex");
    setAccessibleName("Board");
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    verticalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setHighlightSections(false);

    setItemDelegate(new HighContrastCells(this));
    connect(this, &QTableWidget::cellClicked, this, [this](int, int) {
        if (events_ != nullptr) {
            guarded("flex", [this] { events_->onClick(); });
        }
    });
    reshape();
}

void GridWidget::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // The game speaks the cell before the view repaints and tells the accessibility bus,
    // so the player hears it that much sooner.
    if (!quiet_ && events_ != nullptr && current.isValid() && current != previous) {
        guarded("flex", [this] { events_->onRowColChange(); });
    }
    // The table view's own handler tells assistive technology of the move, and the item
    // view's beneath it only repaints and scrolls.
    if (movesVoiced()) {
        QAbstractItemView::currentChanged(current, previous);
    } else {
        QTableWidget::currentChanged(current, previous);
    }
}

void GridWidget::selectionChanged(const QItemSelection& selected,
                                  const QItemSelection& deselected) {
    if (movesVoiced()) {
        QAbstractItemView::selectionChanged(selected, deselected);
    } else {
        QTableWidget::selectionChanged(selected, deselected);
    }
}

void GridWidget::setCellDescriber(CellDescriber describer) {
    describer_ = std::move(describer);
    for (int r = 0; r < rowCount(); ++r) {
        for (int c = 0; c < columnCount(); ++c) {
            describe(r + fixedRows_, c + fixedCols_, *item(r, c));
        }
    }
}

void GridWidget::describe(int row, int col, QTableWidgetItem& cell) const {
    if (describer_) {
        const std::string mark = cell.text().toStdString();
        cell.setData(Qt::AccessibleTextRole, QString::fromStdString(describer_(row, col, mark)));
    }
}

void GridWidget::reshape() {
    quiet_ = true;
    const int playingRows = rows_ - fixedRows_;
    const int playingCols = cols_ - fixedCols_;
    setRowCount(playingRows);
    setColumnCount(playingCols);
    horizontalHeader()->setVisible(fixedRows_ == 1);
    verticalHeader()->setVisible(fixedCols_ == 1);
    for (int r = 0; r < playingRows; ++r) {
        if (verticalHeaderItem(r) == nullptr) {
            setVerticalHeaderItem(r, new QTableWidgetItem(QString()));
        }
        for (int c = 0; c < playingCols; ++c) {
            if (item(r, c) == nullptr) {
                auto* cell = new QTableWidgetItem(QString());
                cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
                cell->setTextAlignment(Qt::AlignCenter);
                describe(r + fixedRows_, c + fixedCols_, *cell);
                setItem(r, c, cell);
            }
        }
    }
    for (int c = 0; c < playingCols; ++c) {
        if (horizontalHeaderItem(c) == nullptr) {
            setHorizontalHeaderItem(c, new QTableWidgetItem(QString()));
        }
    }
    // A table with no current cell is fragile under screen readers: there always is one.
    if (currentRow() < 0 || currentColumn() < 0) {
        setCurrentCell(0, 0);
    }
    quiet_ = false;
    fitLines();
}

void GridWidget::fitLines() {
    QHeaderView* top = horizontalHeader();
    QHeaderView* left = verticalHeader();
    if (headingRowPixels_ >= 0) {
        top->setFixedHeight(headingRowPixels_);
    } else {
        top->setMinimumHeight(0);
        top->setMaximumHeight(QWIDGETSIZE_MAX);
    }
    if (headingColPixels_ >= 0) {
        left->setFixedWidth(static_cast<int>(std::lround(headingColPixels_ * headingScale_)));
    } else {
        left->setMinimumWidth(0);
        left->setMaximumWidth(QWIDGETSIZE_MAX);
    }
    // The playing lines share what the headings leave, as far as the window shows the grid.
    const int visibleWidth =
        parentWidget() != nullptr ? std::min(width(), parentWidget()->width() - x()) : width();
    const int headingWidth = left->isVisible() ? left->width() : 0;
    const int headingHeight = top->isVisible() ? top->height() : 0;
    // A floor for a tiny window; an enlarged mark fills its line instead of widening it.
    const int lineMinimum = QFontMetrics(QFont()).height() + 2;
    if (columnCount() > 0) {
        const int each =
            std::max(lineMinimum, (visibleWidth - headingWidth - 2 * frameWidth()) / columnCount());
        top->setDefaultSectionSize(each);
        for (int c = 0; c < columnCount(); ++c) {
            setColumnWidth(c, each);
        }
    }
    if (rowCount() > 0) {
        const int each =
            std::max(lineMinimum, (height() - headingHeight - 2 * frameWidth()) / rowCount());
        left->setDefaultSectionSize(each);
        for (int r = 0; r < rowCount(); ++r) {
            QTableWidget::setRowHeight(r, each);
        }
    }
}

void GridWidget::setLook(double markPixels, double headingScale, bool highContrast) {
    const auto sized = [](double pixels) {
        QFont font;
        if (pixels > 0) {
            font.setPixelSize(static_cast<int>(std::lround(pixels)));
        }
        return font;
    };
    // The normal size sets no font of its own, so the board looks as it always has.
    setFont(sized(markPixels));
    headingScale_ = headingScale;
    const double headingPixels =
        headingScale == 1 ? 0 : QFontInfo(QFont()).pixelSize() * headingScale;
    horizontalHeader()->setFont(sized(headingPixels));
    verticalHeader()->setFont(sized(headingPixels));
    highContrast_ = highContrast;
    const QString headings = highContrast ? "QHeaderView::section { background: black; "
                                            "color: yellow; border: 1px solid white; }"
                                          : "";
    horizontalHeader()->setStyleSheet(headings);
    verticalHeader()->setStyleSheet(headings);
    setStyleSheet(highContrast ? "QTableView { background: black; gridline-color: white; } "
                                 "QTableCornerButton::section { background: black; "
                                 "border: 1px solid white; }"
                               : "");
    updateGeometries();  // the headings' new height, before the lines share what is left
    fitLines();
    viewport()->update();
}

void GridWidget::resizeEvent(QResizeEvent* event) {
    QTableWidget::resizeEvent(event);
    fitLines();
}

void GridWidget::setRows(int rows) {
    if (rows <= fixedRows_) {
        outOfRange("row count");
    }
    rows_ = rows;
    reshape();
}

void GridWidget::setCols(int cols) {
    if (cols <= fixedCols_) {
        outOfRange("column count");
    }
    cols_ = cols;
    reshape();
}

void GridWidget::setFixedRows(int rows) {
    if (rows < 0 || rows > 1 || rows >= rows_) {
        outOfRange("fixed row count");
    }
    fixedRows_ = rows;
    reshape();
}

void GridWidget::setFixedCols(int cols) {
    if (cols < 0 || cols > 1 || cols >= cols_) {
        outOfRange("fixed column count");
    }
    fixedCols_ = cols;
    reshape();
}

// Only the heading lines keep a size of their own; the playing lines share the rest.
void GridWidget::setRowHeight(int row, int size) {
    if (row == 0 || row == kAllLines) {
        headingRowPixels_ = size == kDefaultSize ? -1 : twips(size);
    } else if (row < 0 || row >= rows_) {
        outOfRange("row");
    }
    fitLines();
}

void GridWidget::setColWidth(int col, int size) {
    if (col == 0 || col == kAllLines) {
        headingColPixels_ = size == kDefaultSize ? -1 : twips(size);
    } else if (col < 0 || col >= cols_) {
        outOfRange("column");
    }
    fitLines();
}

void GridWidget::checkCell(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_) {
        outOfRange("cell");
    }
}

QTableWidgetItem* GridWidget::itemAt(int row, int col) const {
    checkCell(row, col);
    if (row < fixedRows_ && col < fixedCols_) {
        return nullptr;
    }
    if (row < fixedRows_) {
        return horizontalHeaderItem(col - fixedCols_);
    }
    if (col < fixedCols_) {
        return verticalHeaderItem(row - fixedRows_);
    }
    return item(row - fixedRows_, col - fixedCols_);
}

std::string GridWidget::textMatrix(int row, int col) const {
    const QTableWidgetItem* cell = itemAt(row, col);
    return (cell != nullptr ? cell->text() : corner_).toStdString();
}

void GridWidget::setTextMatrix(int row, int col, std::string_view text) {
    QTableWidgetItem* cell = itemAt(row, col);
    const QString value = fromUtf8(text);
    if (cell == nullptr) {
        corner_ = value;
        return;
    }
    cell->setText(value);
    if (row >= fixedRows_ && col >= fixedCols_) {
        describe(row, col, *cell);
    }
}

void GridWidget::placeCursor(int row, int col) {
    if (row < fixedRows_ || col < fixedCols_) {
        outOfRange("cursor");
    }
    checkCell(row, col);
    setCurrentCell(row - fixedRows_, col - fixedCols_);
}

void GridWidget::setRow(int row) {
    placeCursor(row, col());
}

void GridWidget::setCol(int col) {
    placeCursor(row(), col);
}

void GridWidget::setBackColor(Rgb colour) {
    back_ = colour;
    QPalette p = palette();
    p.setColor(QPalette::Base, toQColor(colour));
    p.setColor(QPalette::Window, toQColor(colour));
    setPalette(p);
}

void GridWidget::setForeColor(Rgb colour) {
    fore_ = colour;
    QPalette p = palette();
    p.setColor(QPalette::Text, toQColor(colour));
    setPalette(p);
}

void GridWidget::setCellBackColor(Rgb colour) {
    if (QTableWidgetItem* cell = itemAt(row(), col())) {
        cell->setBackground(toQColor(colour));
    }
}

void GridWidget::setCellForeColor(Rgb colour) {
    if (QTableWidgetItem* cell = itemAt(row(), col())) {
        cell->setForeground(toQColor(colour));
    }
}

}  // namespace marivox::qt
