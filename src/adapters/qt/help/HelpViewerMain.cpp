// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// marivox-help <document>: shows the game's help beside it, as a program of its own so that
// it stays open after the game if the player wishes.
#include <QApplication>

#include "adapters/qt/help/HelpViewer.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("Marivox Help");
    const QString path = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    marivox::qt::HelpViewer viewer(path);
    viewer.show();
    return QApplication::exec();
}
