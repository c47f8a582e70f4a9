// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/KeyCodes.h"
#include "platform/audio/StreamWavPlayer.h"
#include "platform/qt/Desktop.h"
#include "platform/qt/Dialogs.h"
#include "platform/qt/GameWindowQt.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtMessageBoxes.h"
#include "platform/qt/QtTimers.h"

namespace marivox {
namespace {

[[noreturn]] void fault(const char* what) {
    throw std::logic_error(what);
}

// A window whose every handler fails as no guarded procedure of the game would let it.
struct FailingScreen : GameScreenEvents {
    void Form_Load() override {}
    void Form_Unload(std::int16_t&) override {}
    void Form_KeyDown(std::int16_t code, std::int16_t) override {
        if (code == KeyCode::Down) {
            fault("key");
        }
    }
    void mnuGameNew_Click() override { fault("menu"); }
    void mnuGameReader_Click() override {}
    void mnuGameExit_Click() override {}
    void mnuOptionsStatus_Click() override {}
    void mnuOptionsShoot_Click() override {}
    void mnuHelpContents_Click() override {}
    void mnuHelpAbout_Click() override {}
    void helpKey() override {}
};

struct FailingReaderForm : ReaderDialogEvents {
    explicit FailingReaderForm(ReaderDialog& d) : dialog(d) {}
    void Form_Load() override {}
    void btnOK_Click() override { fault("dialog"); }
    void Form_Unload(std::int16_t&) override {}
    ReaderDialog& dialog;
};

class EscapedFailures : public ::testing::Test {
  protected:
    void SetUp() override {
        desktop()->setEscapedFailureHandler(
            [this](std::string_view where, const std::exception& e) {
                heard.push_back(std::string(e.what()) + " in " + std::string(where));
            });
    }
    void TearDown() override { desktop()->setEscapedFailureHandler({}); }
    static qt::Desktop* desktop() {
        return dynamic_cast<qt::Desktop*>(QCoreApplication::instance());
    }
    bool waitFor(std::size_t count) {
        return QTest::qWaitFor([&] { return heard.size() >= count; }, 5000);
    }

    std::vector<std::string> heard;
};

// Every way the toolkit calls into the game, each failing once: the failure is told where it
// surfaced, and the event loop goes on to deliver the next event.
TEST_F(EscapedFailures, AreToldAndTheEventLoopGoesOn) {
    ASSERT_NE(desktop(), nullptr);
    qt::QtApplication application;
    qt::GameWindowQt window(application);
    FailingScreen screen;
    window.load(screen);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window.board(), Qt::Key_Down);
    QTest::keyClick(&window.board(), Qt::Key_N, Qt::ControlModifier);

    qt::QtTimerFactory timers;
    auto timer =
        timers.createTimer("tmrTimer1", std::chrono::milliseconds(1), [] { fault("timer"); });
    timer->switchOn();
    ASSERT_TRUE(waitFor(3));

    // A box holds its caller in a loop of its own; a failure there leaves the box open.
    qt::QtMessageBoxes boxes;
    auto inBox = timers.createTimer("tmrHalDelay", std::chrono::milliseconds(1),
                                    [] { fault("inside a box"); });
    inBox->switchOn();
    QTimer::singleShot(100, [] { QApplication::activeModalWidget()->close(); });
    boxes.show("Question", 36, "Marivox");

    qt::ReaderDialogQt dialog;
    FailingReaderForm form(dialog);
    QTimer::singleShot(0, [&] {
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        dialog.current()->done(0);
    });
    dialog.showModal(form);

    // The sound output's worker thread tells the user-interface thread.
    audio::StreamWavPlayer player(
        []() -> std::unique_ptr<audio::AudioStream> { fault("sound output"); }, {},
        [](const std::exception& e) { qt::Desktop::escapedOnAnyThread("PlaySound", e); });
    ASSERT_TRUE(waitFor(6));

    EXPECT_EQ(heard,
              (std::vector<std::string>{"key in flex", "menu in mnuGameNew", "timer in tmrTimer1",
                                        "inside a box in tmrHalDelay", "dialog in frmReader",
                                        "sound output in PlaySound"}));
}

}  // namespace
}  // namespace marivox
