// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The contracts every timer factory and board control keeps, fakes and both desktops' adapters
// alike, so the fakes the game's tests run on cannot drift from the real thing.

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "ports/Failure.h"
#include "ports/Forms.h"
#include "ports/GridControl.h"
#include "ports/OneShotTimer.h"
#include "ports/SettingsStore.h"

namespace marivox {

// `hold` lets time pass with the event loop held, as a blocking call does; `deliver` lets
// the loop run what has fallen due. A timer switched on while it counts keeps its time, and
// ticks once for each switching on, never after being switched off.
inline void checkTimers(TimerFactory& timers,
                        const std::function<void(std::chrono::milliseconds)>& hold,
                        const std::function<void()>& deliver) {
    int ticks = 0;
    const auto timer =
        timers.createTimer("tmrTimer1", std::chrono::milliseconds(300), [&] { ++ticks; });
    std::string seen;
    for (const std::string step : {"on", "=", "150", "on", "250", "=", "700", "=", "off", "on",
                                   "400", "=", "off", "on", "off", "400", "="}) {
        step == "on" ? timer->switchOn() : step == "off" ? timer->switchOff() : void();
        std::isdigit(step[0]) ? hold(std::chrono::milliseconds(std::stoi(step))) : void();
        seen += step == "=" ? (deliver(), std::to_string(ticks)) : "";
    }
    EXPECT_EQ(seen, "01122");
    EXPECT_FALSE(timer->isOn());
}

using Heard = std::vector<std::string>;

// Hears the window's events; `failing`, each one fails as no procedure of the game would.
struct Screen : GameScreenEvents, GridEvents {
    void hear(const std::string& what) {
        heard.push_back(what);
        failing ? throw std::logic_error(what) : void();
    }
    void Form_Load() override {}
    void Form_Unload(std::int16_t&) override {}
    void Form_KeyDown(std::int16_t key, std::int16_t shift) override {
        hear("key " + std::to_string(key) + " " + std::to_string(shift));
    }
    void mnuGameNew_Click() override { hear("mnuGameNew"); }
    void mnuGameReader_Click() override {}
    void mnuGameExit_Click() override {}
    void mnuOptionsStatus_Click() override {}
    void mnuOptionsShoot_Click() override {}
    void mnuOptionsRow_Click() override {}
    void mnuOptionsColumn_Click() override {}
    void mnuOptionsRepeat_Click() override {}
    void mnuOptionsFleet_Click() override {}
    void mnuOptionsZoomIn_Click() override { hear("mnuOptionsZoomIn"); }
    void mnuOptionsZoomOut_Click() override { hear("mnuOptionsZoomOut"); }
    void mnuOptionsZoomNormal_Click() override { hear("mnuOptionsZoomNormal"); }
    void mnuOptionsContrast_Click() override { hear("mnuOptionsContrast"); }
    void mnuHelpContents_Click() override {}
    void mnuHelpAbout_Click() override {}
    void helpKey() override { hear("help"); }
    void onRowColChange() override { hear("move"); }
    void onClick() override { hear("click"); }
    Heard heard;
    bool failing = false;
};

// `click` is the player's click on a playing cell; `name` what assistive technology hears of
// the cursor's cell.
inline void checkGrid(GridControl& grid, const std::function<void(int, int)>& click,
                      const std::function<std::string()>& name) {
    Screen listener;
    grid.setRows(10);
    grid.setCols(10);
    grid.setListener(&listener);
    grid.setCellDescriber([](int row, int col, std::string_view mark) {
        return std::to_string(row * 10 + col) + "=" + std::string(mark);
    });
    grid.setTextMatrix(0, 9, "9");
    grid.setTextMatrix(9, 0, "I");
    grid.setTextMatrix(3, 4, "M");
    EXPECT_EQ(grid.textMatrix(0, 9) + grid.textMatrix(9, 0) + grid.textMatrix(5, 5), "9I");
    grid.setRow(3);
    grid.setCol(4);
    EXPECT_EQ(name(), "34=M");
    grid.setRow(5);
    grid.setRow(5);
    grid.setCol(2);
    EXPECT_EQ(grid.row() * 10 + grid.col(), 52);
    click(7, 8);
    EXPECT_EQ(grid.row() * 10 + grid.col(), 78);
    for (const int outside : {0, 10}) {  // a heading, and past the board
        EXPECT_THROW(grid.setRow(outside), Failure);
        EXPECT_THROW(grid.setCol(outside), Failure);
    }
    EXPECT_THROW(grid.textMatrix(10, 1), Failure);
    EXPECT_THROW(grid.setTextMatrix(1, 10, "M"), Failure);
    EXPECT_EQ(listener.heard, (Heard{"move", "move", "move", "move", "move", "click"}));
}

// A value saved is read back by `later` (the next run's store), blanks and all, apart from the
// same key of another section; a key never saved reads as the default.
inline void checkSettings(SettingsStore& store, SettingsStore& later) {
    store.SaveSetting("MarivoxContract", "StartUp", "Reader", " WE ");
    store.SaveSetting("MarivoxContract", "Display", "Reader", "1");
    EXPECT_EQ(later.GetSetting("MarivoxContract", "StartUp", "Reader", "None"), " WE ");
    EXPECT_EQ(later.GetSetting("MarivoxContract", "Display", "Reader", "None"), "1");
    EXPECT_EQ(later.GetSetting("MarivoxContract", "StartUp", "Zoom", "100"), "100");
}

}  // namespace marivox
