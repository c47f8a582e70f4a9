// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <vector>

#include "adapters/qt/GridWidget.h"
#include "ports/BoardLayout.h"
#include "ports/Forms.h"

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
    void setDisplay(int zoomPercent, bool highContrast) override;
    bool desktopHighContrast() const override;

    GridWidget& board() { return *grid_; }
    QAction* action(const char* name) const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void buildMenus();
    void buildLabels();
    bool isOwnControl(QObject* object) const;
    // Places the board and the legend for the window's size and the zoom.
    void relayout();

    QtApplication& application_;
    probe::LatencyLog* latency_;
    GameScreenEvents* events_ = nullptr;
    GridWidget* grid_;
    std::vector<QLabel*> legend_;
    std::vector<double> legendPoints_;  // each label's font at the normal size
    layout::NormalMetrics normal_{};
    int zoom_ = 100;
    bool highContrast_ = false;
};

}  // namespace marivox::qt
