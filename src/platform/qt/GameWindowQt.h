// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

#include "platform/Forms.h"
#include "platform/qt/GridWidget.h"

class QAction;
class QLabel;

namespace marivox::probe {
class LatencyLog;
}

namespace marivox::qt {

class QtApplication;

// The game screen window: the board, the legend, the menu bar. It sees every key of its
// own controls before they do (and never swallows it), and asks Form_Unload before closing.
class GameWindowQt : public QMainWindow, public GameWindow {
    Q_OBJECT
  public:
    // `latency`, when there is one, is told of every key as it arrives.
    explicit GameWindowQt(QtApplication& application, probe::LatencyLog* latency = nullptr);
    ~GameWindowQt() override;

    void load(GameScreenEvents& events) override;
    void show() override { QMainWindow::show(); }
    void unload() override { close(); }
    void unloadOtherWindows() override;
    GridControl& grid() override { return *grid_; }

    GridWidget& board() { return *grid_; }
    QAction* action(const char* name) const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildMenus();
    void buildLabels();
    bool isOwnControl(QObject* object) const;

    QtApplication& application_;
    probe::LatencyLog* latency_;
    GameScreenEvents* events_ = nullptr;
    GridWidget* grid_;
};

}  // namespace marivox::qt
