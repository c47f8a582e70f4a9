// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QLabel>
#include <QMenuBar>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include "platform/audio/StreamWavPlayer.h"
#include "platform/qt/Desktop.h"
#include "platform/qt/Dialogs.h"
#include "platform/qt/GameWindowQt.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtMessageBoxes.h"
#include "platform/qt/QtTimers.h"
#include "platform/qt/help/HelpViewer.h"

namespace marivox {
namespace {

using Heard = std::vector<std::string>;

[[noreturn]] void fault(const std::string& what) {
    throw std::logic_error(what);
}

// Hears the window's events; `failing`, each one fails as no procedure of the game would.
struct Screen : GameScreenEvents, GridEvents, ReaderDialogEvents {
    void hear(const std::string& what) {
        heard.push_back(what);
        failing ? fault(what) : void();
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
    void btnOK_Click() override { hear("dialog"); }
    Heard heard;
    bool failing = false;
};

class Desktop : public ::testing::Test {
  protected:
    void SetUp() override {
        window.load(screen);
        window.board().setListener(&screen);
        window.grid().setRows(10);
        window.grid().setCols(10);
        window.grid().setTextMatrix(5, 5, "M");
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    qt::QtApplication application;
    qt::GameWindowQt window{application};
    Screen screen;
};

// The window hears each key first, as the game's key handler; then the board takes it.
// Keypad Enter fires like Enter, F1 also asks for the help, Ctrl+N is New Game, and no
// letter makes the cursor jump to a cell showing it.
TEST_F(Desktop, KeysReachTheKeyHandlerFirstThenTheBoard) {
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
}

// What a screen reader reads of the window: its title, menus and legend.
TEST_F(Desktop, ReadsAsTheGameScreen) {
    std::string read = window.windowTitle().toStdString();
    for (QAction* menu : window.menuBar()->actions()) {
        read += "|" + menu->text().toStdString();
        for (QAction* item : menu->menu()->actions()) {
            read += "/" + item->text().toStdString() + item->shortcut().toString().toStdString();
        }
    }
    for (const char* label : {"lblLabel0", "lblLabel1", "lblLabel2"}) {
        read += "|" + window.findChild<QLabel*>(label)->text().toStdString();
    }
    EXPECT_EQ(read,
              "Marivox|&Game/&New Game Ctrl+N/&Screen Reader.../E&xit Program|&Options/&Speak "
              "Status - F2/S&hoot - Enter|&Help/&Help Topics F1/&About Marivox|Click on a cell to "
              "shoot!|A = Aircraft Carrier   B = Battleship   C = Cruiser|D = Destroyer   M = Miss "
              "  P = Patrol Boat   S = Submarine");
}

// A failure escaping an adapter, from every way the toolkit calls into the game, is told
// where it surfaced, and the event loop goes on to deliver the next event.
TEST_F(Desktop, EscapedFailuresAreToldAndTheEventLoopGoesOn) {
    auto* desktop = dynamic_cast<qt::Desktop*>(QCoreApplication::instance());
    Heard told;
    desktop->setEscapedFailureHandler([&](std::string_view where, const std::exception& e) {
        told.push_back(std::string(e.what()) + " in " + std::string(where));
    });
    screen.failing = true;
    QTest::keyClick(&window.board(), Qt::Key_Down);
    QTest::keyClick(&window.board(), Qt::Key_N, Qt::ControlModifier);
    qt::QtTimerFactory timers;
    const auto timer =
        timers.createTimer("tmrTimer1", std::chrono::milliseconds(1), [] { fault("timer"); });
    timer->switchOn();
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 4; }, 5000));
    // A box holds its caller in a loop of its own; a failure there leaves the box open.
    const auto inBox = timers.createTimer("tmrHalDelay", std::chrono::milliseconds(1),
                                          [] { fault("inside a box"); });
    inBox->switchOn();
    QTimer::singleShot(100, [] { QApplication::activeModalWidget()->close(); });
    qt::QtMessageBoxes().show("Question", 36, "Marivox");
    qt::ReaderDialogQt dialog;
    QTimer::singleShot(0, [&] {
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        dialog.current()->done(0);
    });
    dialog.showModal(screen);
    // The sound output's worker thread tells the user-interface thread.
    audio::StreamWavPlayer player(
        []() -> std::unique_ptr<audio::AudioStream> { fault("sound output"); }, {},
        [](const std::exception& e) { qt::Desktop::escapedOnAnyThread("PlaySound", e); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 7; }, 5000));
    desktop->setEscapedFailureHandler({});
    EXPECT_EQ(told, (Heard{"key 40 0 in flex", "key 17 2 in flex", "mnuGameNew in mnuGameNew",
                           "timer in tmrTimer1", "inside a box in tmrHalDelay",
                           "dialog in frmReader", "sound output in PlaySound"}));
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
