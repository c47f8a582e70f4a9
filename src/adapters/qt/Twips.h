// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFontMetrics>
#include <QGuiApplication>
#include <QLabel>
#include <QRect>
#include <QScreen>
#include <cmath>

#include "ports/FormLayouts.h"

namespace marivox::qt {

// Places and sizes are given in twips (1440 to the inch) and drawn at the screen's DPI.
inline int twips(int value) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dpi = screen != nullptr ? screen->logicalDotsPerInch() : 96.0;
    return static_cast<int>(std::lround(value * dpi / 1440.0));
}

inline QRect twipsRect(int left, int top, int width, int height) {
    return {twips(left), twips(top), twips(width), twips(height)};
}

inline QRect twipsRect(const layout::Place& place) {
    return twipsRect(place.left, place.top, place.width, place.height);
}

// The places are fixed; the font is ours, made small enough for the whole text to show.
inline void fitTextToWidth(QLabel& label) {
    QFont font = label.font();
    while (font.pointSizeF() > 6 &&
           QFontMetrics(font).horizontalAdvance(label.text()) > label.width()) {
        font.setPointSizeF(font.pointSizeF() - 0.5);
    }
    label.setFont(font);
}

}  // namespace marivox::qt
