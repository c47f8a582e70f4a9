// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/ProgramIcon.h"

#include <QPainter>
#include <QPainterPath>

namespace marivox::qt {

QImage programIconImage(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 64.0, size / 64.0);

    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 128));
    p.drawRoundedRect(QRectF(2, 2, 60, 60), 10, 10);

    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(80, 220, 120), 3));
    p.drawArc(QRectF(10, 6, 44, 44), 30 * 16, 120 * 16);
    p.setPen(QPen(QColor(80, 220, 120, 150), 2));
    p.drawArc(QRectF(18, 14, 28, 28), 35 * 16, 110 * 16);

    QPainterPath bow;
    bow.moveTo(12, 44);
    bow.lineTo(52, 44);
    bow.lineTo(46, 34);
    bow.lineTo(30, 34);
    bow.lineTo(30, 28);
    bow.lineTo(24, 28);
    bow.lineTo(24, 34);
    bow.lineTo(16, 34);
    bow.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(192, 192, 192));
    p.drawPath(bow);

    QPainterPath wave;
    wave.moveTo(4, 50);
    for (int x = 4; x < 60; x += 8) {
        wave.quadTo(x + 2, 46, x + 4, 50);
        wave.quadTo(x + 6, 54, x + 8, 50);
    }
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(120, 180, 255), 3, Qt::SolidLine, Qt::RoundCap));
    p.drawPath(wave);
    return image;
}

QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 64, 128, 256}) {
        icon.addPixmap(QPixmap::fromImage(programIconImage(size)));
    }
    return icon;
}

}  // namespace marivox::qt
