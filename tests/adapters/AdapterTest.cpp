// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <mutex>
#include <regex>
#include <thread>

#include "adapters/Contracts.h"
#include "adapters/audio/StreamWavPlayer.h"
#include "adapters/audio/WavFile.h"
#include "adapters/qt/Desktop.h"
#include "adapters/qt/Dialogs.h"
#include "adapters/qt/GameWindowQt.h"
#include "adapters/qt/GridWidget.h"
#include "adapters/qt/KeyMapping.h"
#include "adapters/qt/QtApplication.h"
#include "adapters/qt/QtMessageBoxes.h"
#include "adapters/qt/QtSettingsStore.h"
#include "adapters/qt/QtTimers.h"
#include "fake/FakeServices.h"
#include "speech/SoundFiles.h"

// The contracts of Contracts.h on each fake and its Qt adapter, then the sound adapters and
// the game window on their own.
namespace marivox {
namespace {

namespace fs = std::filesystem;

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

TEST(GridContract, Fake) {
    fake::Transcript t;
    fake::FakeGrid grid(t);
    checkGrid(
        grid, [&](int row, int col) { grid.playerClicks(row, col); },
        [&] { return grid.describer(grid.row(), grid.col(), grid.text()); });
}

TEST(GridContract, Qt) {
    qt::GridWidget grid;
    grid.resize(600, 400);
    grid.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid));
    checkGrid(
        grid,
        [&](int row, int col) {
            QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                              grid.visualItemRect(grid.item(row - 1, col - 1)).center());
        },
        [&] { return grid.currentItem()->data(Qt::AccessibleTextRole).toString().toStdString(); });
}

TEST(SettingsContract, Fake) {
    fake::Transcript t;
    fake::FakeSettings settings(t);
    checkSettings(settings, settings);
}

TEST(SettingsContract, Qt) {
    const fs::path folder = fs::temp_directory_path() / "marivox-settings-contract";
    fs::remove_all(folder);
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.string()));
    qt::QtSettingsStore store, later;
    checkSettings(store, later);
    fs::remove_all(folder);
}

std::string soundFile(Sound sound) {
    return (fs::path(MARIVOX_PROGRAM_DIR) / sound::fileName(sound)).string();
}

using Samples = std::vector<std::int16_t>;
using Played = std::pair<std::mutex, std::vector<Samples>>;  // each connection's samples

// A sound device in memory; what it heard is shared, as the player's worker may outlive
// the test.
struct Device : audio::AudioStream {
    explicit Device(std::shared_ptr<Played> h) : heard(std::move(h)) {}
    bool write(std::span<const std::int16_t> samples) override {
        std::lock_guard lock(heard->first);
        heard->second.back().insert(heard->second.back().end(), samples.begin(), samples.end());
        return true;
    }
    bool endOfSounds() override { return true; }
    bool drain() override { return true; }
    std::shared_ptr<Played> heard;
};

// Sounds asked for one after another are heard whole, in order and back to back, however
// their lengths fall against the player's chunks. (Words waiting behind them, told once the
// last has begun, are heard end to end: the device here takes each sound at once.)
TEST(Player, PlaysEachSoundWholeInOrderWithoutAGap) {
    auto heard = std::make_shared<Played>();
    audio::StreamWavPlayer player([heard] {
        std::lock_guard lock(heard->first);
        heard->second.emplace_back();
        return std::make_unique<Device>(heard);
    });
    Samples expected;
    for (const Sound sound : {Sound::Shoot, Sound::Hit, Sound::Shoot, Sound::Sink}) {
        player.open(soundFile(sound));
        player.play(0, -1, true);
        EXPECT_EQ(player.status(), 0);
        player.closeSound();
        const Samples samples = audio::toMono(audio::readWavFile(soundFile(sound)));
        expected.insert(expected.end(), samples.begin(), samples.end());
    }
    player.drainBeforeExit(std::chrono::seconds(5));
    std::lock_guard lock(heard->first);
    EXPECT_TRUE(heard->second == std::vector<Samples>{expected})
        << heard->second.size() << " connections, " << expected.size() << " samples expected";
}

// The corpus the WAV fuzzer starts from: each file reads as the layout its name begins with,
// or, named bad-, is refused as a damaged sound naming the file; our own sounds all read as
// what the output takes.
TEST(WavFiles, ReadAsTheirNamesSayAndDamagedOnesAreRefused) {
    const fs::path corpus = fs::path(MARIVOX_SOURCE_DIR) / "tests/fuzz/corpus/wav_fuzzer";
    std::vector<fs::path> files(fs::directory_iterator(corpus), {});
    for (const sound::File& sound : sound::kFiles) {
        files.emplace_back(soundFile(sound.sound));
    }
    for (const fs::path& file : files) {
        const std::string name = file.filename().string();
        std::string read = "bad";
        try {
            const audio::WavData wav = audio::readWavFile(file.string());
            read = (wav.channels == 1 ? "mono" : "stereo") + std::to_string(wav.bitsPerSample) +
                   "-" + std::to_string(wav.sampleRate);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), static_cast<int>(FailureNumber::SoundFile)) << name;
            EXPECT_NE(failure.description().find(name), std::string::npos) << name;
        }
        const std::string named = file.parent_path() == corpus ? name : "mono16-44100.wav";
        EXPECT_TRUE(std::regex_match(named, std::regex(read + "[-.].*"))) << name << ": " << read;
    }
    EXPECT_GT(files.size(), 30u);
}

// Keys the game names nothing are one code that means nothing, whatever their native code:
// X's keysyms for Print and Menu, cut to a byte, were the keypad's 1 and 7. Keypad digits
// with Num Lock on are digits.
TEST(Keys, AKeyWithoutACodeOfItsOwnIsNoOtherKey) {
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, quint32, std::int16_t> keys[] = {
        {Qt::Key_Print, {}, 0xff61, KeyCode::Other},
        {Qt::Key_Menu, {}, 0xff67, KeyCode::Other},
        {Qt::Key_7, Qt::KeypadModifier, 0xffb7, '7'},
    };
    for (const auto& [key, modifiers, keysym, expected] : keys) {
        const QKeyEvent event(QEvent::KeyPress, key, modifiers, 0, keysym, 0);
        EXPECT_EQ(qt::gameKeyCode(event), expected) << keysym;
    }
}

// The window hears each key first, as the game's key handler, then the board takes it (the
// failing arrow and Ctrl+N below show both). Keypad Enter fires like Enter, F1 also asks for
// the help, no letter makes the cursor jump to a cell showing it. A failure escaping the game
// from any way the toolkit calls it is told where it surfaced, and the event loop goes on.
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
        {Qt::Key_Enter, Qt::KeypadModifier, {"key 13 0"}},
        {Qt::Key_F2, Qt::ShiftModifier, {"key 16 1", "key 113 1"}},
        {Qt::Key_M, {}, {"key 77 0"}},
        {Qt::Key_F1, {}, {"key 112 0", "help"}},
    };
    for (const auto& [key, modifiers, expected] : keys) {
        screen.heard.clear();
        QTest::keyClick(&window.board(), key, modifiers);
        EXPECT_EQ(screen.heard, expected) << QKeySequence(key).toString().toStdString();
    }
    EXPECT_EQ(window.grid().row() * 10 + window.grid().col(), 11);

    auto* desktop = dynamic_cast<qt::Desktop*>(QCoreApplication::instance());
    Heard told;
    desktop->setEscapedFailureHandler([&](std::string_view where, const std::exception& e) {
        told.push_back(std::string(e.what()) + " in " + std::string(where));
    });
    screen.failing = true;
    QTest::keyClick(&window.board(), Qt::Key_Down);  // the key handler, then the cursor's move
    QTest::keyClick(&window.board(), Qt::Key_N, Qt::ControlModifier);  // and a menu command
    // A box holds its caller in a loop of its own; a timer failing there leaves it open.
    qt::QtTimerFactory timers;
    const auto timer = timers.createTimer("tmrTimer1", std::chrono::milliseconds(1),
                                          [] { throw std::logic_error("timer"); });
    timer->switchOn();
    QTimer::singleShot(100, [] { QApplication::activeModalWidget()->close(); });
    qt::QtMessageBoxes().show("Question", 36, "Marivox");
    struct : ReaderDialogEvents {
        void Form_Load() override {}
        void btnOK_Click() override { throw std::logic_error("dialog"); }
        void Form_Unload(std::int16_t&) override {}
    } reader;
    qt::ReaderDialogQt dialog;
    QTimer::singleShot(0, [&] {
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        dialog.current()->done(0);
    });
    dialog.showModal(reader);
    // The sound output's worker thread tells the user-interface thread.
    audio::StreamWavPlayer player(
        []() -> std::unique_ptr<audio::AudioStream> { throw std::logic_error("sound output"); }, {},
        [](const std::exception& e) { qt::Desktop::escapedOnAnyThread("PlaySound", e); });
    // Words held behind a sound come back as a call posted to the user-interface thread.
    qt::Desktop::post(std::chrono::milliseconds(1), [] { throw std::logic_error("words"); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.size() == 8; }, 5000));
    desktop->setEscapedFailureHandler({});
    // The last two come from other threads' timing, in either order.
    std::sort(told.end() - 2, told.end());
    EXPECT_EQ(told, (Heard{"key 40 0 in flex", "move in flex", "key 17 2 in flex",
                           "mnuGameNew in mnuGameNew", "timer in tmrTimer1", "dialog in frmReader",
                           "sound output in PlaySound", "words in posted call"}));
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
