// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "adapters/windows/WinGrid.h"
#include "ports/BoardLayout.h"
#include "ports/Forms.h"

namespace marivox::windows {

class WinApplication;

// The game screen on Windows: the board, the legend and the menu bar in a native window.
// The window hears every key first (its key handler), then the control with the focus does.
class WinGameWindow : public GameWindow {
  public:
    explicit WinGameWindow(WinApplication& application);
    ~WinGameWindow() override;
    WinGameWindow(const WinGameWindow&) = delete;
    WinGameWindow& operator=(const WinGameWindow&) = delete;

    HWND handle() const { return window_; }

    void load(GameScreenEvents& events) override;
    void show() override;
    void unload() override;
    void unloadOtherWindows() override;
    GridControl& grid() override { return *grid_; }
    void setDisplay(int zoomPercent, bool highContrast) override;
    bool desktopHighContrast() const override;

    // For the event loop: the key preview and the menu's shortcut; true when the message
    // has been taken.
    bool preview(MSG& message);

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    void buildMenus();
    void buildLegend();
    void close();
    // Places the board and the legend for the window's size and the zoom.
    void relayout();

    WinApplication& application_;
    GameScreenEvents* events_ = nullptr;
    HWND window_ = nullptr;
    HACCEL shortcuts_ = nullptr;
    std::unique_ptr<WinGrid> grid_;
    std::vector<HWND> legend_;
    HFONT legendFont_ = nullptr;  // none: the normal font
    HBRUSH black_ = CreateSolidBrush(RGB(0, 0, 0));
    layout::NormalMetrics normal_{};
    int zoom_ = 100;
    bool highContrast_ = false;
};

}  // namespace marivox::windows
