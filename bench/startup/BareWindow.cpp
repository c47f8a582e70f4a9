// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// The floor our toolkit allows: a bare Qt 6 window with a menu bar and a 10 by 10 table,
// started like the game, for the start-up and memory figures to be compared with.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTableWidget>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.setWindowTitle("Bare");
    for (const char* title : {"&Game", "&Options", "&Help"}) {
        QMenu* menu = window.menuBar()->addMenu(title);
        menu->addAction("First");
        menu->addAction("Second");
    }
    auto* table = new QTableWidget(10, 10, &window);
    window.setCentralWidget(table);
    table->setCurrentCell(1, 1);
    window.show();
    return QApplication::exec();
}
