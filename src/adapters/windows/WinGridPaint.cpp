// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// How the board is drawn: its cells' places in the window, their colours and fonts, and high
// contrast for players who see a little.
#include <algorithm>
#include <cmath>

#include "adapters/windows/WinGrid.h"
#include "adapters/windows/WinTwips.h"
#include "adapters/windows/WindowsText.h"

namespace marivox::windows {
namespace {

constexpr int kCursorFrame = 5;  // high contrast's frame around the cursor cell, in pixels

COLORREF colour(Rgb c) {
    return RGB(c.red, c.green, c.blue);
}

}  // namespace

void WinGrid::setLook(double markPixels, double headingScale, bool highContrast) {
    // The normal font, larger: `pixels` tall (0: none of its own).
    const auto font = [](double pixels, bool bold) -> HFONT {
        if (pixels <= 0) {
            return nullptr;
        }
        LOGFONTW look = guiFont();
        look.lfHeight = -static_cast<LONG>(std::lround(pixels));
        look.lfWidth = 0;
        look.lfWeight = bold ? FW_BOLD : look.lfWeight;
        return CreateFontIndirectW(&look);
    };
    DeleteObject(markFont_);
    DeleteObject(headingFont_);
    markFont_ = font(markPixels, highContrast);
    headingFont_ = font(headingScale == 1 ? 0 : std::abs(guiFont().lfHeight) * headingScale, false);
    headingScale_ = headingScale;
    highContrast_ = highContrast;
    InvalidateRect(window_, nullptr, TRUE);
}

RECT WinGrid::cellRect(int row, int col) const {
    RECT client;
    GetClientRect(window_, &client);
    const auto scaled = [this](int size) {
        return static_cast<int>(std::lround(size * headingScale_));
    };
    const int headingHeight = fixedRows_ == 0          ? 0
                              : headingRowPixels_ >= 0 ? scaled(headingRowPixels_)
                                                       : scaled(pixels(300));
    const int headingWidth = fixedCols_ == 0          ? 0
                             : headingColPixels_ >= 0 ? scaled(headingColPixels_)
                                                      : scaled(pixels(300));
    const int rowHeight = (client.bottom - headingHeight) / std::max(1, rows_ - fixedRows_);
    const int colWidth = (client.right - headingWidth) / std::max(1, cols_ - fixedCols_);
    const int top = row < fixedRows_ ? 0 : headingHeight + (row - fixedRows_) * rowHeight;
    const int left = col < fixedCols_ ? 0 : headingWidth + (col - fixedCols_) * colWidth;
    return {left, top, left + (col < fixedCols_ ? headingWidth : colWidth),
            top + (row < fixedRows_ ? headingHeight : rowHeight)};
}

void WinGrid::paint(HDC dc) const {
    RECT client;
    GetClientRect(window_, &client);
    HBRUSH window = CreateSolidBrush(highContrast_ ? RGB(0, 0, 0) : colour(back_));
    FillRect(dc, &client, window);
    DeleteObject(window);
    SetBkMode(dc, TRANSPARENT);
    const bool focused = GetFocus() == window_;
    const auto normalFont = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    for (int r = 0; r < rows_; ++r) {
        for (int c = 0; c < cols_; ++c) {
            RECT box = cellRect(r, c);
            const bool heading = r < fixedRows_ || c < fixedCols_;
            const bool cursor = r == row_ && c == col_;
            const Cell& here = cell(r, c);
            COLORREF back =
                heading ? GetSysColor(COLOR_BTNFACE) : colour(here.back.value_or(back_));
            COLORREF fore =
                heading ? GetSysColor(COLOR_BTNTEXT) : colour(here.fore.value_or(fore_));
            if (cursor && focused) {
                back = GetSysColor(COLOR_HIGHLIGHT);
                fore = GetSysColor(COLOR_HIGHLIGHTTEXT);
            }
            // High contrast, whatever colours the game gave the cells: white marks on black,
            // yellow headings, and the cursor cell's mark yellow inside a thick yellow frame.
            if (highContrast_) {
                back = RGB(0, 0, 0);
                fore = heading || cursor ? RGB(255, 255, 0) : RGB(255, 255, 255);
            }
            HBRUSH brush = CreateSolidBrush(back);
            FillRect(dc, &box, brush);
            DeleteObject(brush);
            FrameRect(
                dc, &box,
                static_cast<HBRUSH>(GetStockObject(highContrast_ ? WHITE_BRUSH : GRAY_BRUSH)));
            SetTextColor(dc, fore);
            HFONT font = heading ? headingFont_ : markFont_;
            SelectObject(dc, font != nullptr ? font : normalFont);
            const std::wstring text = wideText(here.text);
            DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &box,
                      DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
            if (highContrast_ && cursor) {
                HBRUSH frame = CreateSolidBrush(RGB(255, 255, 0));
                for (int i = 0; i < kCursorFrame; ++i) {
                    RECT ring = box;
                    InflateRect(&ring, -i, -i);
                    FrameRect(dc, &ring, frame);
                }
                DeleteObject(frame);
            } else if (cursor && focused) {
                InflateRect(&box, -2, -2);
                DrawFocusRect(dc, &box);
            }
        }
    }
    SelectObject(dc, normalFont);
}

}  // namespace marivox::windows
