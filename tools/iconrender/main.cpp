// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Renders the program's icon as PNG files for the desktop's icon theme:
//   marivox_iconrender <folder>  writes <folder>/<N>x<N>/org.marivox.Marivox.png
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <cstdio>

#include "adapters/qt/ProgramIcon.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <folder>\n", argv[0]);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        const QString folder = QString("%1/%2x%2").arg(QString::fromLocal8Bit(argv[1])).arg(size);
        const QString file = folder + "/org.marivox.Marivox.png";
        if (!QDir().mkpath(folder) || !marivox::qt::programIconImage(size).save(file, "PNG")) {
            std::fprintf(stderr, "could not write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
