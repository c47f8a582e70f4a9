// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <filesystem>
#include <mutex>
#include <regex>
#include <thread>

#include "fake/Fakes.h"
#include "platform/audio/StreamWavPlayer.h"
#include "platform/audio/WavFile.h"
#include "platform/qt/GridWidget.h"
#include "platform/qt/QtSettingsStore.h"
#include "platform/qt/QtTimers.h"
#include "speech/SoundFiles.h"

// Contracts: the same checks on each fake and on the adapter it stands for, so the fakes the
// game's tests run on cannot drift from the real thing. Then the sound adapters on their own.
namespace marivox {
namespace {

namespace fs = std::filesystem;
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
    EXPECT_EQ(store.GetSetting("Marivox", "StartUp", "Reader", "None"), "None");
    for (const char* value : {"JFW", " WE ", "", "we;=\"[x]\" \xc3\xa9"}) {
        store.SaveSetting("Marivox", "StartUp", "Reader", value);
        EXPECT_EQ(store.GetSetting("Marivox", "StartUp", "Reader", "None"), value);
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

std::string soundFile(std::string_view sound) {
    return (fs::path(MARIVOX_PROGRAM_DIR) / sound::fileName(sound)).string();
}

using Samples = std::vector<std::int16_t>;
using Heard = std::pair<std::mutex, std::vector<Samples>>;  // each connection's samples

// A sound device in memory; what it heard is shared, as the player's worker may outlive
// the test.
struct Device : audio::AudioStream {
    explicit Device(std::shared_ptr<Heard> h) : heard(std::move(h)) {}
    bool write(std::span<const std::int16_t> samples) override {
        std::lock_guard lock(heard->first);
        heard->second.back().insert(heard->second.back().end(), samples.begin(), samples.end());
        return true;
    }
    bool endOfSounds() override { return true; }
    bool drain() override { return true; }
    std::shared_ptr<Heard> heard;
};

// Sounds asked for one after another are heard whole, in order and back to back, however
// their lengths fall against the player's chunks.
TEST(Player, PlaysEachSoundWholeInOrderWithoutAGap) {
    auto heard = std::make_shared<Heard>();
    audio::StreamWavPlayer player([heard] {
        std::lock_guard lock(heard->first);
        heard->second.emplace_back();
        return std::make_unique<Device>(heard);
    });
    Samples expected;
    for (const std::string_view sound : {sound::Shoot, sound::Hit, sound::Shoot, sound::Sink}) {
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
    for (const std::string_view sound : sound::kAll) {
        files.emplace_back(soundFile(sound));
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

}  // namespace
}  // namespace marivox
