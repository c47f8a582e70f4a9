// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <string>
#include <vector>

#include "platform/KeyCodes.h"
#include "platform/qt/GameWindowQt.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/Twips.h"
#include "support/Failure.h"

namespace marivox {
namespace {

// Records what the window reports, and answers Form_Unload as told.
struct RecordingEvents : GameScreenEvents, GridEvents {
    std::vector<std::string> seen;
    std::int16_t cancelUnload = 0;

    void Form_Load() override { seen.push_back("load"); }
    void Form_Unload(std::int16_t& cancel) override {
        seen.push_back("unload");
        cancel = cancelUnload;
    }
    void Form_KeyDown(std::int16_t code, std::int16_t shift) override {
        seen.push_back("key " + std::to_string(code) + " " + std::to_string(shift));
    }
    void mnuGameNew_Click() override { seen.push_back("mnuGameNew"); }
    void mnuGameReader_Click() override { seen.push_back("mnuGameReader"); }
    void mnuGameExit_Click() override { seen.push_back("mnuGameExit"); }
    void mnuOptionsStatus_Click() override { seen.push_back("mnuOptionsStatus"); }
    void mnuOptionsShoot_Click() override { seen.push_back("mnuOptionsShoot"); }
    void mnuHelpContents_Click() override { seen.push_back("mnuHelpContents"); }
    void mnuHelpAbout_Click() override { seen.push_back("mnuHelpAbout"); }
    void helpKey() override { seen.push_back("help key"); }
    void onRowColChange() override { seen.push_back("rowcol"); }
    void onClick() override { seen.push_back("click"); }
};

// The shaping calls the game makes when a game begins.
void shapeLikeTheGame(GridControl& grid) {
    grid.setColWidth(0, 300);
    grid.setRowHeight(GridControl::kAllLines, GridControl::kDefaultSize);
    grid.setFixedCols(1);
    grid.setFixedRows(1);
    grid.setRows(10);
    grid.setCols(10);
    grid.setBackColor({0, 0, 128});
    grid.setForeColor({192, 192, 192});
    for (int i = 1; i <= 9; ++i) {
        grid.setTextMatrix(0, i, std::to_string(i));
        grid.setTextMatrix(i, 0, std::string(1, static_cast<char>('A' + i - 1)));
    }
    for (int r = 1; r <= 9; ++r) {
        for (int c = 1; c <= 9; ++c) {
            grid.setTextMatrix(r, c, " ");
        }
    }
    grid.setRow(1);
    grid.setCol(1);
}

class DesktopTest : public ::testing::Test {
  protected:
    void SetUp() override {
        window.load(events);
        window.board().setListener(&events);
        shapeLikeTheGame(window.grid());
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        events.seen.clear();
    }

    qt::QtApplication application;
    qt::GameWindowQt window{application};
    RecordingEvents events;
};

TEST_F(DesktopTest, MenuTreeHasTheCaptionsInOrderAndOnlyCtrlNAsAShortcut) {
    std::vector<std::string> tree;
    for (QAction* menu : window.menuBar()->actions()) {
        tree.push_back(menu->text().toStdString());
        for (QAction* item : menu->menu()->actions()) {
            tree.push_back("  " + item->objectName().toStdString() + " " +
                           item->text().toStdString() + "|" +
                           item->shortcut().toString().toStdString());
        }
    }
    EXPECT_EQ(tree, (std::vector<std::string>{
                        "&Game", "  mnuGameNew &New Game |Ctrl+N",
                        "  mnuGameReader &Screen Reader...|", "  mnuGameExit E&xit Program|",
                        "&Options", "  mnuOptionsStatus &Speak Status - F2|",
                        "  mnuOptionsShoot S&hoot - Enter|", "&Help",
                        "  mnuHelpContents &Help Topics F1|", "  mnuHelpAbout &About Marivox|"}));
    QTest::keyClick(&window.board(), Qt::Key_N, Qt::ControlModifier);
    window.action("mnuHelpAbout")->trigger();
    EXPECT_EQ(events.seen, (std::vector<std::string>{"key 17 2", "mnuGameNew", "mnuHelpAbout"}));
}

TEST_F(DesktopTest, LabelsStandWhereTheyBelong) {
    EXPECT_EQ(window.windowTitle(), "Marivox");
    const std::vector<std::pair<const char*, int>> labels{
        {"lblLabel0", 3000}, {"lblLabel1", 3500}, {"lblLabel2", 3900}};
    for (const auto& [name, top] : labels) {
        const auto* label = window.findChild<QLabel*>(name);
        ASSERT_NE(label, nullptr) << name;
        EXPECT_EQ(label->geometry(), qt::twipsRect(2500, top, 5000, 255)) << name;
    }
    EXPECT_EQ(window.findChild<QLabel*>("lblLabel2")->text(),
              "D = Destroyer   M = Miss   P = Patrol Boat   S = Submarine");
}

TEST_F(DesktopTest, ArrowReachesTheKeyHandlerFirstAndStillMovesTheCursor) {
    QTest::keyClick(&window.board(), Qt::Key_Down);
    EXPECT_EQ(events.seen, (std::vector<std::string>{"key 40 0", "rowcol"}));
    EXPECT_EQ(window.grid().row(), 2);
    EXPECT_EQ(window.grid().col(), 1);
    events.seen.clear();
    QTest::keyClick(&window.board(), Qt::Key_Return);
    QTest::keyClick(&window.board(), Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_EQ(events.seen, (std::vector<std::string>{"key 13 0", "key 16 1", "key 113 1"}));
}

TEST_F(DesktopTest, NoKeyEverOpensAnEditorOrJumpsTheCursor) {
    window.grid().setRow(3);
    window.grid().setTextMatrix(5, 5, "M");
    events.seen.clear();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_F2, Qt::Key_M, Qt::Key_X, Qt::Key_Space}) {
        QTest::keyClick(&window.board(), key);
    }
    QTest::mouseDClick(window.board().viewport(), Qt::LeftButton, Qt::NoModifier,
                       window.board().visualRect(window.board().model()->index(2, 0)).center());
    const auto* editor = window.board().findChild<QLineEdit*>();
    EXPECT_TRUE(editor == nullptr || !editor->isVisible());
    EXPECT_EQ(window.grid().textMatrix(3, 1), " ");
    EXPECT_EQ(window.grid().row(), 3);
    EXPECT_EQ(window.grid().col(), 1);
}

TEST_F(DesktopTest, ClickMovesTheCursorThenFires) {
    QTest::mouseClick(window.board().viewport(), Qt::LeftButton, Qt::NoModifier,
                      window.board().visualRect(window.board().model()->index(3, 6)).center());
    EXPECT_EQ(events.seen, (std::vector<std::string>{"rowcol", "click"}));
    EXPECT_EQ(window.grid().row(), 4);
    EXPECT_EQ(window.grid().col(), 7);
}

TEST_F(DesktopTest, GridKeepsHeadingsColoursAndTellsCellsApart) {
    EXPECT_EQ(window.board().horizontalHeaderItem(0)->text(), "1");
    EXPECT_EQ(window.board().verticalHeaderItem(8)->text(), "I");
    EXPECT_EQ(window.grid().textMatrix(0, 9), "9");
    EXPECT_EQ(window.board().palette().color(QPalette::Base), QColor(0, 0, 128));
    EXPECT_EQ(window.board().palette().color(QPalette::Text), QColor(192, 192, 192));
    window.grid().setCellDescriber([](int r, int c, std::string_view mark) {
        return std::to_string(r) + std::to_string(c) + "=" + std::string(mark);
    });
    window.grid().setTextMatrix(3, 4, "M");
    const auto name = [&](int r, int c) {
        return window.board().item(r - 1, c - 1)->data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(name(3, 3), "33= ");
    EXPECT_EQ(name(3, 4), "34=M");
    EXPECT_THROW(window.grid().setRow(10), Failure);
    EXPECT_THROW(window.grid().setRow(0), Failure);
}

TEST_F(DesktopTest, CursorMovedByCodeIsReportedOnceAndOnlyWhenItMoves) {
    window.grid().setRow(5);
    window.grid().setRow(5);
    window.grid().setCol(2);
    EXPECT_EQ(events.seen, (std::vector<std::string>{"rowcol", "rowcol"}));
}

TEST_F(DesktopTest, ClosingAsksTheUnloadHandlerWhichMayKeepItOpen) {
    events.cancelUnload = -1;
    window.unload();
    EXPECT_TRUE(window.isVisible());
    events.cancelUnload = 0;
    window.unload();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(events.seen, (std::vector<std::string>{"unload", "unload"}));
}

TEST_F(DesktopTest, HelpKeyIsHeardByTheHandlerAndOpensTheHelp) {
    QTest::keyClick(&window.board(), Qt::Key_F1);
    EXPECT_EQ(events.seen, (std::vector<std::string>{"key 112 0", "help key"}));
}

TEST_F(DesktopTest, EndingAtOnceClosesWithoutTheUnloadHandler) {
    application.endNow();
    window.close();
    EXPECT_TRUE(events.seen.empty());
    EXPECT_FALSE(window.isVisible());
    // Ending leaves every later event loop to return at once; a full run of the
    // application's own loop clears that for the tests that follow.
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
}

}  // namespace
}  // namespace marivox
