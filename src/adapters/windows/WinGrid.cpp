// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WinGrid.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "adapters/windows/WinDesktop.h"
#include "adapters/windows/WinTwips.h"
#include "adapters/windows/WindowsText.h"
#include "ports/Failure.h"

namespace marivox::windows {
namespace {

constexpr wchar_t kClassName[] = L"MarivoxBoard";
constexpr wchar_t kName[] = L"Board";
[[noreturn]] void outOfRange(const char* what) {
    throw Failure(FailureNumber::IndexOutOfRange,
                  std::string("Board grid ") + what + " out of range");
}

void registerClass(HINSTANCE instance, WNDPROC procedure) {
    WNDCLASSEXW type{};
    type.cbSize = sizeof type;
    type.style = CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS;
    type.lpfnWndProc = procedure;
    type.hInstance = instance;
    type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    type.lpszClassName = kClassName;
    RegisterClassExW(&type);  // a second board finds the class already there
}

}  // namespace

WinGrid::WinGrid(HWND parent, RECT place) {
    auto* instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(parent, GWLP_HINSTANCE));
    registerClass(instance, &WinGrid::procedure);
    reshape(rows_, cols_);
    window_ =
        CreateWindowExW(WS_EX_CLIENTEDGE, kClassName, kName, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                        place.left, place.top, place.right - place.left, place.bottom - place.top,
                        parent, nullptr, instance, this);
}

WinGrid::~WinGrid() {
    DeleteObject(markFont_);
    DeleteObject(headingFont_);
    if (IsWindow(window_)) {
        SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    }
}

LRESULT CALLBACK WinGrid::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* create = reinterpret_cast<CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* grid = reinterpret_cast<WinGrid*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (grid == nullptr || grid->window_ == nullptr) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    LRESULT result = 0;
    guarded("flex", [&] { result = grid->handle(message, wParam, lParam); });
    return result;
}

LRESULT WinGrid::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_KEYDOWN:
            keyDown(wParam);
            return 0;
        // A click fires once the button comes up in the cell it went down in; the press only
        // moves the cursor there. The second press of a double click is no new click.
        case WM_LBUTTONDOWN:
            SetFocus(window_);
            press(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
            return 0;
        case WM_LBUTTONDBLCLK:
            SetFocus(window_);
            return 0;
        case WM_LBUTTONUP:
            release(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
            return 0;
        case WM_CAPTURECHANGED:
            pressed_.reset();  // a window taking the mouse away ends the click
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_SIZE:
            InvalidateRect(window_, nullptr, TRUE);
            return 0;
        case WM_ERASEBKGND:
            return 1;  // painted whole in WM_PAINT
        case WM_PAINT: {
            PAINTSTRUCT ps;
            HDC dc = BeginPaint(window_, &ps);
            paint(dc);
            EndPaint(window_, &ps);
            return 0;
        }
        default:
            return DefWindowProcW(window_, message, wParam, lParam);
    }
}

void WinGrid::reshape(int rows, int cols) {
    std::vector<Cell> cells(static_cast<std::size_t>(rows * cols));
    for (int r = 0; r < std::min(rows, rows_); ++r) {
        for (int c = 0; c < std::min(cols, cols_); ++c) {
            if (!cells_.empty()) {
                cells[static_cast<std::size_t>(r * cols + c)] = cell(r, c);
            }
        }
    }
    cells_ = std::move(cells);
    rows_ = rows;
    cols_ = cols;
    // There always is a cursor cell, on the playing cells; reshaping is not a move.
    row_ = std::clamp(row_, fixedRows_, rows_ - 1);
    col_ = std::clamp(col_, fixedCols_, cols_ - 1);
    if (window_ != nullptr) {
        InvalidateRect(window_, nullptr, TRUE);
    }
}

WinGrid::Cell& WinGrid::cell(int row, int col) {
    return cells_[static_cast<std::size_t>(row * cols_ + col)];
}

const WinGrid::Cell& WinGrid::cell(int row, int col) const {
    return cells_[static_cast<std::size_t>(row * cols_ + col)];
}

void WinGrid::checkCell(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_) {
        outOfRange("cell");
    }
}

void WinGrid::setRows(int rows) {
    if (rows <= fixedRows_) {
        outOfRange("row count");
    }
    reshape(rows, cols_);
}

void WinGrid::setCols(int cols) {
    if (cols <= fixedCols_) {
        outOfRange("column count");
    }
    reshape(rows_, cols);
}

void WinGrid::setFixedRows(int rows) {
    if (rows < 0 || rows > 1 || rows >= rows_) {
        outOfRange("fixed row count");
    }
    fixedRows_ = rows;
    reshape(rows_, cols_);
}

void WinGrid::setFixedCols(int cols) {
    if (cols < 0 || cols > 1 || cols >= cols_) {
        outOfRange("fixed column count");
    }
    fixedCols_ = cols;
    reshape(rows_, cols_);
}

// Only the heading lines keep a size of their own; the playing lines share the rest.
void WinGrid::setRowHeight(int row, int size) {
    if (row == 0 || row == kAllLines) {
        headingRowPixels_ = size == kDefaultSize ? -1 : pixels(size);
    } else if (row < 0 || row >= rows_) {
        outOfRange("row");
    }
    InvalidateRect(window_, nullptr, TRUE);
}

void WinGrid::setColWidth(int col, int size) {
    if (col == 0 || col == kAllLines) {
        headingColPixels_ = size == kDefaultSize ? -1 : pixels(size);
    } else if (col < 0 || col >= cols_) {
        outOfRange("column");
    }
    InvalidateRect(window_, nullptr, TRUE);
}

std::string WinGrid::textMatrix(int row, int col) const {
    checkCell(row, col);
    return cell(row, col).text;
}

void WinGrid::setTextMatrix(int row, int col, std::string_view text) {
    checkCell(row, col);
    cell(row, col).text = std::string(text);
    InvalidateRect(window_, nullptr, FALSE);
    if (row == row_ && col == col_) {
        tellAssistiveTechnology();
    }
}

void WinGrid::setBackColor(Rgb c) {
    back_ = c;
    InvalidateRect(window_, nullptr, FALSE);
}

void WinGrid::setForeColor(Rgb c) {
    fore_ = c;
    InvalidateRect(window_, nullptr, FALSE);
}

void WinGrid::setCellBackColor(Rgb c) {
    cell(row_, col_).back = c;
    InvalidateRect(window_, nullptr, FALSE);
}

void WinGrid::setCellForeColor(Rgb c) {
    cell(row_, col_).fore = c;
    InvalidateRect(window_, nullptr, FALSE);
}

void WinGrid::placeCursor(int row, int col) {
    if (row < fixedRows_ || col < fixedCols_) {
        outOfRange("cursor");
    }
    checkCell(row, col);
    moveCursor(row, col);
}

void WinGrid::moveCursor(int row, int col) {
    if (row == row_ && col == col_) {
        return;
    }
    row_ = row;
    col_ = col;
    InvalidateRect(window_, nullptr, FALSE);
    // The game speaks the cell before anything else is told of the move.
    if (events_ != nullptr) {
        guarded("flex", [this] { events_->onRowColChange(); });
    }
    tellAssistiveTechnology();
}

void WinGrid::tellAssistiveTechnology() {
    const bool voiced = !movesVoiced_ || movesVoiced_();
    const std::wstring name = voiced || !describer_
                                  ? std::wstring(kName)
                                  : wideText(describer_(row_, col_, cell(row_, col_).text));
    SetWindowTextW(window_, name.c_str());
    if (!voiced) {
        NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window_, OBJID_CLIENT, CHILDID_SELF);
    }
}

void WinGrid::keyDown(WPARAM key) {
    int row = row_;
    int col = col_;
    switch (key) {
        case VK_LEFT:
            col = std::max(fixedCols_, col - 1);
            break;
        case VK_RIGHT:
            col = std::min(cols_ - 1, col + 1);
            break;
        case VK_UP:
            row = std::max(fixedRows_, row - 1);
            break;
        case VK_DOWN:
            row = std::min(rows_ - 1, row + 1);
            break;
        case VK_HOME:
            col = fixedCols_;
            break;
        case VK_END:
            col = cols_ - 1;
            break;
        case VK_PRIOR:
            row = fixedRows_;
            break;
        case VK_NEXT:
            row = rows_ - 1;
            break;
        default:
            return;
    }
    moveCursor(row, col);
}

std::optional<std::pair<int, int>> WinGrid::cellAt(int x, int y) const {
    for (int r = fixedRows_; r < rows_; ++r) {
        for (int c = fixedCols_; c < cols_; ++c) {
            const RECT box = cellRect(r, c);
            if (PtInRect(&box, POINT{x, y})) {
                return std::pair(r, c);
            }
        }
    }
    return std::nullopt;
}

void WinGrid::press(int x, int y) {
    pressed_ = cellAt(x, y);
    if (pressed_) {
        SetCapture(window_);
        moveCursor(pressed_->first, pressed_->second);
    }
}

void WinGrid::release(int x, int y) {
    const auto pressed = std::exchange(pressed_, std::nullopt);
    if (GetCapture() == window_) {
        ReleaseCapture();
    }
    if (pressed && pressed == cellAt(x, y) && events_ != nullptr) {
        guarded("flex", [this] { events_->onClick(); });
    }
}

}  // namespace marivox::windows
