// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QTest>
#include <QTextBrowser>

#include "platform/qt/Desktop.h"
#include "platform/qt/GameWindowQt.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtTimers.h"
#include "platform/qt/help/HelpViewer.h"

namespace marivox {
namespace {

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
    void mnuHelpContents_Click() override {}
    void mnuHelpAbout_Click() override {}
    void helpKey() override { hear("help"); }
    void onRowColChange() override { hear("move"); }
    void onClick() override {}
    Heard heard;
    bool failing = false;
};

// The window hears each key first, as the game's key handler; then the board takes it.
// Keypad Enter fires like Enter, F1 also asks for the help, Ctrl+N is New Game, and no
// letter makes the cursor jump to a cell showing it. A failure escaping an event, from a key
// or a timer, is told where it surfaced, and the event loop goes on.
TEST(Desktop, KeysReachTheKeyHandlerFirstThenTheBoardAndFailuresAreTold) {
    qt::QtApplication application;
    qt::GameWindowQt window{application};
    Screen screen;
    window.load(screen);
    window.board().setListener(&screen);
    window.grid().setRows(10);
    window.grid().setCols(10);
    window.grid().setTextMatrix(5, 5, "M");
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, Heard> keys[] = {
        {Qt::Key_Return, {}, {"key 13 0"}},
        {Qt::Key_Enter, Qt::KeypadModifier, {"key 13 0"}},
        {Qt::Key_F2, Qt::ShiftModifier, {"key 16 1", "key 113 1"}},
        {Qt::Key_Down, {}, {"key 40 0", "move"}},
        {Qt::Key_M, {}, {"key 77 0"}},
        {Qt::Key_F1, {}, {"key 112 0", "help"}},
        {Qt::Key_N, Qt::ControlModifier, {"key 17 2", "mnuGameNew"}},
    };
    for (const auto& [key, modifiers, expected] : keys) {
        screen.heard.clear();
        QTest::keyClick(&window.board(), key, modifiers);
        EXPECT_EQ(screen.heard, expected) << QKeySequence(key).toString().toStdString();
    }
    EXPECT_EQ(window.grid().row() * 10 + window.grid().col(), 21);

    auto* desktop = dynamic_cast<qt::Desktop*>(QCoreApplication::instance());
    Heard told;
    desktop->setEscapedFailureHandler([&](std::string_view where, const std::exception& e) {
        told.push_back(std::string(e.what()) + " in " + std::string(where));
    });
    screen.failing = true;
    QTest::keyClick(&window.board(), Qt::Key_Down);
    qt::QtTimerFactory timers;
    const auto timer = timers.createTimer("tmrTimer1", std::chrono::milliseconds(1),
                                          [] { throw std::logic_error("timer"); });
    timer->switchOn();
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.size() == 2; }, 5000));
    desktop->setEscapedFailureHandler({});
    EXPECT_EQ(told, (Heard{"key 40 0 in flex", "timer in tmrTimer1"}));
}

// A screen reader reads the help with the keyboard: the focus in the text, a caret in it.
TEST(HelpViewer, OpensOnTheDocumentWithTheFocusInItsText) {
    qt::HelpViewer viewer(QString(MARIVOX_SOURCE_DIR) + "/assets/help/marvox.hlp");
    EXPECT_EQ(viewer.windowTitle(), "Marivox Help");
    EXPECT_TRUE(viewer.browser()->toPlainText().contains("Using Marivox with Orca"));
    EXPECT_TRUE(viewer.browser()->textInteractionFlags() & Qt::TextSelectableByKeyboard);
    EXPECT_EQ(viewer.focusWidget(), viewer.browser());
}

}  // namespace
}  // namespace marivox

// The adapter tests run inside the game's own application object, on Qt's offscreen
// platform unless the environment names another.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    marivox::qt::Desktop application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
