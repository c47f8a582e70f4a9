// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the board and its legend go in a game window of any size, for players who see a
// little: the same rules on every desktop. In the window's normal size at 100% everything
// stands exactly where the normal layout (FormLayouts.h) puts it; a larger window gives its
// extra height to the board, whose lines grow with it, and the legend grows with the window
// up to a quarter of its height; a zoom makes everything larger, the window with it where
// the screen has room. Pixels throughout.

#include <algorithm>
#include <cmath>

namespace marivox::layout {

// What the normal layout measures on a desktop, at 100%.
struct NormalMetrics {
    int clientWidth, clientHeight;  // the game window's client area
    int boardHeight;                // the board, heading line included
    int legendTop;                  // the first legend line's top
    int legendBottom;               // the last legend line's bottom
    int lineHeight;                 // of a playing line of the board
    double fontPixels;              // the desktop's font, for marks, headings and legend
};

struct BoardPlaces {
    double legendScale;   // the legend's text and places, against the normal layout
    double headingScale;  // the headings' text
    int boardHeight;
    int legendShift;    // how far below its normal place (scaled) the legend stands
    double markPixels;  // the marks' font
    bool normal;        // the normal window at 100%: the desktop's own look, untouched
};

struct Rect {
    int left, top, width, height;
};

// The client area the window would like at a zoom: the normal one, larger with the zoom.
inline int zoomedWidth(const NormalMetrics& m, int zoomPercent) {
    return static_cast<int>(std::lround(m.clientWidth * zoomPercent / 100.0));
}
inline int zoomedHeight(const NormalMetrics& m, int zoomPercent) {
    return static_cast<int>(std::lround(m.clientHeight * zoomPercent / 100.0));
}

inline BoardPlaces boardPlaces(const NormalMetrics& m, int width, int height, int zoomPercent) {
    const double zoom = zoomPercent / 100.0;
    // A window larger than the zoomed normal one scales the text with it.
    const double roomier =
        std::max(1.0, std::min(width / (m.clientWidth * zoom), height / (m.clientHeight * zoom)));
    const int legendBlock = m.legendBottom - m.boardHeight;  // the gap above it, and its lines
    const double legendScale = std::max(1.0, std::min(zoom * roomier, 0.25 * height / legendBlock));
    // The space below the legend in the normal layout; any difference of height takes it.
    const double blank = std::max(
        0.0, (m.clientHeight - m.legendBottom) * zoom - std::abs(height - m.clientHeight * zoom));
    const int boardHeight = static_cast<int>(
        std::lround(std::max(m.boardHeight * 1.0, height - legendBlock * legendScale - blank)));
    const double lineScale =
        std::max(1.0, (boardHeight - (m.boardHeight - 9.0 * m.lineHeight) * legendScale) /
                          (9.0 * m.lineHeight));
    // Marks take a larger share of a larger line, up to nearly all of it once the line is three
    // times its normal height: a letter is what the player looks for.
    const double normalShare = m.fontPixels / m.lineHeight;
    const double share =
        normalShare + (0.95 - normalShare) * std::min(1.0, (lineScale - 1.0) / 2.0);
    return {legendScale,
            zoom * roomier,
            boardHeight,
            static_cast<int>(std::lround(boardHeight - m.boardHeight * legendScale)),
            share * m.lineHeight * lineScale,
            zoomPercent == 100 && legendScale == 1 && boardHeight == m.boardHeight};
}

// Where a legend line stands, given its place in the normal layout.
inline Rect legendPlace(const BoardPlaces& p, int left, int top, int width, int height) {
    const auto scaled = [&](int value) {
        return static_cast<int>(std::lround(value * p.legendScale));
    };
    return {scaled(left), scaled(top) + p.legendShift, scaled(width), scaled(height)};
}

}  // namespace marivox::layout
