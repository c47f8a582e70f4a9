// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <thread>

#include "fake/Fakes.h"
#include "platform/qt/GridWidget.h"
#include "platform/qt/QtSettingsStore.h"
#include "platform/qt/QtTimers.h"

// The same checks on each fake and on the adapter it stands for, so the fakes the game's
// tests run on cannot drift from the real thing.
namespace marivox {
namespace {

using namespace std::chrono_literals;

// `hold` lets time pass with the event loop held, as a blocking call does; `deliver` lets
// the loop run what has fallen due.
void checkTimers(TimerFactory& timers, const std::function<void(std::chrono::milliseconds)>& hold,
                 const std::function<void()>& deliver) {
    int ticks = 0;
    const auto timer = timers.createTimer("tmrTimer1", 300ms, [&] { ++ticks; });
    const auto expect = [&](int wanted, const char* why) {
        deliver();
        EXPECT_EQ(ticks, wanted) << why;
    };
    timer->switchOn();
    expect(0, "it ticked before its interval");
    hold(150ms);
    timer->switchOn();
    hold(250ms);
    expect(1, "switching on a timer that counts restarted it");
    EXPECT_TRUE(timer->isOn());
    hold(700ms);
    expect(1, "it ticked twice for one switching on");
    timer->switchOff();
    timer->switchOn();
    hold(400ms);
    expect(2, "switched off and on again, it did not tick");
    timer->switchOff();
    timer->switchOn();
    timer->switchOff();
    hold(400ms);
    expect(2, "it ticked after it was switched off");
}

TEST(TimerContract, Fake) {
    fake::Transcript t;
    fake::FakeTimers timers(t);
    checkTimers(
        timers, [&](auto ms) { timers.advance(ms.count(), false); }, [&] { timers.advance(0); });
}

TEST(TimerContract, Qt) {
    qt::QtTimerFactory timers;
    checkTimers(
        timers, [](auto ms) { std::this_thread::sleep_for(ms); }, [] { QTest::qWait(20); });
}

struct Listener : GridEvents {
    void onRowColChange() override { heard += "move "; }
    void onClick() override { heard += "click "; }
    std::string heard;
};

// `click` is the player's click on a playing cell; `name` what assistive technology hears.
void checkGrid(GridControl& grid, const std::function<void(int, int)>& click,
               const std::function<std::string(int, int)>& name) {
    Listener listener;
    grid.setRows(10);
    grid.setCols(10);
    grid.setListener(&listener);
    grid.setCellDescriber([](int row, int col, std::string_view mark) {
        return std::to_string(row * 10 + col) + "=" + std::string(mark);
    });
    grid.setTextMatrix(0, 9, "9");
    grid.setTextMatrix(9, 0, "I");
    grid.setTextMatrix(3, 4, "M");
    EXPECT_EQ(grid.textMatrix(0, 9) + grid.textMatrix(9, 0) + grid.textMatrix(3, 4) +
                  grid.textMatrix(5, 5) + name(3, 4),
              "9IM34=M");
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
    EXPECT_EQ(listener.heard, "move move move click ");
}

TEST(GridContract, Fake) {
    fake::Transcript t;
    fake::FakeGrid grid(t);
    checkGrid(
        grid, [&](int row, int col) { grid.playerClicks(row, col); },
        [&](int row, int col) { return grid.describer(row, col, grid.textMatrix(row, col)); });
}

TEST(GridContract, Qt) {
    qt::GridWidget grid;
    grid.resize(600, 400);
    grid.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid));
    const auto cell = [&](int row, int col) { return grid.item(row - 1, col - 1); };
    checkGrid(
        grid,
        [&](int row, int col) {
            QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                              grid.visualItemRect(cell(row, col)).center());
        },
        [&](int row, int col) {
            return cell(row, col)->data(Qt::AccessibleTextRole).toString().toStdString();
        });
}

// A value reads back exactly, an empty one too (a choice of nothing, not nothing stored),
// and a missing one as the default.
void checkSettings(SettingsStore& store) {
    const auto reader = [&] { return store.GetSetting("Marivox", "StartUp", "Reader", "None"); };
    EXPECT_EQ(reader(), "None");
    for (const char* value : {"JFW", " WE ", "", "we;=\"[x]\" \xc3\xa9"}) {
        store.SaveSetting("Marivox", "StartUp", "Reader", value);
        EXPECT_EQ(reader(), value);
    }
}

TEST(SettingsContract, Fake) {
    fake::Transcript t;
    fake::FakeSettings store(t);
    checkSettings(store);
}

TEST(SettingsContract, Qt) {
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qt::QtSettingsStore store;
    checkSettings(store);
}

}  // namespace
}  // namespace marivox
