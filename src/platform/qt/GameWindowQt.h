// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

#include "platform/Windows.h"
#include "platform/qt/BoardGrid.h"

class QAction;
class QLabel;

namespace marivox::qt {

class QtApplication;

// The game screen window: the board, the legend, the menu bar. It sees every key of its
// own controls before they do (and never swallows it), and asks Form_Unload before closing.
class GameWindowQt : public QMainWindow, public GameWindow {
    Q_OBJECT
  public:
    explicit GameWindowQt(QtApplication& application);
    ~GameWindowQt() override;

    void load(GameScreenEvents& events) override;
    void show() override { QMainWindow::show(); }
    void unload() override { close(); }
    void unloadOtherWindows() override;
    GridControl& grid() override { return *grid_; }

    BoardGrid& board() { return *grid_; }
    QAction* action(const char* name) const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildMenus();
    void buildLabels();
    bool isOwnControl(QObject* object) const;

    QtApplication& application_;
    GameScreenEvents* events_ = nullptr;
    BoardGrid* grid_;
};

}  // namespace marivox::qt
