// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <thread>

#include "FakeAudioDevice.h"
#include "WavImages.h"
#include "platform/audio/StreamWavPlayer.h"
#include "support/Failure.h"

namespace marivox {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using audio::PlayerLimits;
using audio::StreamWavPlayer;
using Samples = std::vector<std::int16_t>;
using State = test::FakeAudioDevice::State;

constexpr std::int32_t kBusy = WavPlayer::kDeviceBusy;

Samples joined(std::initializer_list<Samples> parts) {
    Samples all;
    for (const auto& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

class StreamWavPlayerTest : public ::testing::Test {
  protected:
    StreamWavPlayerTest()
        : folder_(fs::temp_directory_path() / ("marivox-player-" + std::to_string(::getpid()))) {
        fs::create_directories(folder_);
    }
    ~StreamWavPlayerTest() override { fs::remove_all(folder_); }

    std::string sound(const std::string& name, const Samples& samples) {
        const auto path = folder_ / name;
        test::writeBytes(path, test::monoWav(samples));
        return path.string();
    }

    std::unique_ptr<StreamWavPlayer> player(PlayerLimits limits = {}) {
        return std::make_unique<StreamWavPlayer>(device.connector(), limits);
    }

    // The game's side of one sound: open, ask once, read the answer, close.
    static std::int32_t play(StreamWavPlayer& player, const std::string& path) {
        player.open(path);
        player.play(0, -1, true);
        const std::int32_t status = player.status();
        player.closeSound();
        return status;
    }

    std::vector<Samples> received() {
        return device.read([](const State& s) { return s.connections; });
    }

    test::FakeAudioDevice device;

  private:
    fs::path folder_;
};

TEST_F(StreamWavPlayerTest, PlaysEachSoundWholeInRequestOrderBackToBack) {
    // Lengths that are, and are not, whole numbers of the worker's chunks.
    const Samples a = test::pattern(1, 1000), b = test::pattern(2, 37), c = test::pattern(3, 4410);
    const auto pathA = sound("a.wav", a), pathB = sound("b.wav", b), pathC = sound("c.wav", c);
    auto wav = player();
    for (const auto& path : {pathA, pathB, pathA, pathC}) {
        EXPECT_EQ(play(*wav, path), 0);
    }
    wav->drainBeforeExit(5s);
    EXPECT_EQ(received(), std::vector<Samples>{joined({a, b, a, c})});
    device.read([](const State& s) {
        EXPECT_GE(s.ends, 1);  // a sound too short to start the device is still heard
        EXPECT_EQ(s.drains, 1);
        EXPECT_EQ(s.closes, 1);
        return 0;
    });
}

TEST_F(StreamWavPlayerTest, AFileChangedOnDiskIsReadAgain) {
    const auto path = sound("s.wav", test::pattern(1, 100));
    auto wav = player();
    EXPECT_EQ(play(*wav, path), 0);
    sound("s.wav", test::pattern(2, 200));
    fs::last_write_time(path, fs::last_write_time(path) + 1h);
    EXPECT_EQ(play(*wav, path), 0);
    wav->drainBeforeExit(5s);
    EXPECT_EQ(received(),
              std::vector<Samples>{joined({test::pattern(1, 100), test::pattern(2, 200)})});
}

TEST_F(StreamWavPlayerTest, BusyOnlyBeyondTheQueueLimitAndTheRetryPlaysInTurn) {
    // 60 ms each against a 100 ms limit: two fit, the third is refused while the device
    // takes nothing.
    const Samples a = test::pattern(1, 2646), b = test::pattern(2, 2646),
                  c = test::pattern(3, 2646);
    const auto pathA = sound("a.wav", a), pathB = sound("b.wav", b), pathC = sound("c.wav", c);
    device.change([](State& s) { s.gateOpen = false; });
    auto wav = player({.busyAbove = 100ms, .stallAfter = 1h});
    EXPECT_EQ(play(*wav, pathA), 0);
    ASSERT_TRUE(device.waitUntil([](const State& s) { return s.writes == 1; }));
    EXPECT_EQ(play(*wav, pathB), 0);
    EXPECT_EQ(play(*wav, pathC), kBusy);
    device.change([](State& s) { s.gateOpen = true; });
    int tries = 0;
    while (play(*wav, pathC) == kBusy && ++tries < 5000) {
        std::this_thread::sleep_for(1ms);
    }
    wav->drainBeforeExit(5s);
    EXPECT_EQ(received(), std::vector<Samples>{joined({a, b, c})});
}

TEST_F(StreamWavPlayerTest, ADeviceThatTakesNothingIsGivenUpRatherThanHoldingTheGame) {
    const Samples a = test::pattern(1, 4410), c = test::pattern(3, 500);
    const auto pathA = sound("a.wav", a), pathC = sound("c.wav", c);
    device.change([](State& s) { s.gateOpen = false; });
    auto wav = player({.busyAbove = 50ms, .stallAfter = 300ms});
    EXPECT_EQ(play(*wav, pathA), 0);
    ASSERT_TRUE(device.waitUntil([](const State& s) { return s.writes == 1; }));
    EXPECT_EQ(play(*wav, pathA), kBusy);
    std::this_thread::sleep_for(350ms);
    // What waits is dropped instead, and so on while the device stays stuck.
    EXPECT_EQ(play(*wav, pathC), 0);
    EXPECT_EQ(play(*wav, pathA), 0);
    EXPECT_EQ(play(*wav, pathC), 0);
    device.change([](State& s) { s.gateOpen = true; });
    wav->drainBeforeExit(5s);
    // Only the chunk the device was holding got through before the new sound.
    const auto got = received();
    ASSERT_EQ(got.size(), 1u);
    ASSERT_GT(got[0].size(), c.size());
    EXPECT_TRUE(std::equal(got[0].begin(), got[0].end() - c.size(), a.begin()));
    EXPECT_TRUE(std::equal(c.begin(), c.end(), got[0].end() - c.size()));
    EXPECT_LT(got[0].size(), a.size());
}

TEST_F(StreamWavPlayerTest, WithoutADeviceSoundsAreDroppedUntilTheRetryTime) {
    const auto path = sound("a.wav", test::pattern(1, 800));
    device.change([](State& s) { s.available = false; });
    auto wav = player({.retryAfter = 1h});
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(play(*wav, path), 0);
    }
    wav->drainBeforeExit(5s);
    EXPECT_TRUE(received().empty());
    EXPECT_EQ(device.read([](const State& s) { return s.attempts; }), 1);
}

TEST_F(StreamWavPlayerTest, ADeviceThatComesBackIsUsedForLaterSounds) {
    const Samples a = test::pattern(1, 800), b = test::pattern(2, 900);
    const auto pathA = sound("a.wav", a), pathB = sound("b.wav", b);
    device.change([](State& s) { s.available = false; });
    auto wav = player({.retryAfter = 0ms});
    EXPECT_EQ(play(*wav, pathA), 0);
    ASSERT_TRUE(device.waitUntil([](const State& s) { return s.attempts >= 2; }));
    device.change([](State& s) { s.available = true; });
    for (int i = 0; i < 100 && received().empty(); ++i) {
        EXPECT_EQ(play(*wav, pathB), 0);
        device.waitUntil([](const State& s) { return !s.connections.empty(); });
    }
    wav->drainBeforeExit(5s);
    const auto got = received();
    ASSERT_EQ(got.size(), 1u);
    ASSERT_FALSE(got[0].empty());
    ASSERT_EQ(got[0].size() % b.size(), 0u);
    for (std::size_t at = 0; at < got[0].size(); at += b.size()) {
        EXPECT_TRUE(std::equal(b.begin(), b.end(), got[0].begin() + at)) << "not B at " << at;
    }
}

TEST_F(StreamWavPlayerTest, ADeviceLostMidSoundDropsTheRestAndTheNextSoundReconnects) {
    const Samples a = test::pattern(1, 3000), b = test::pattern(2, 1000), c = test::pattern(3, 700);
    const auto pathA = sound("a.wav", a), pathB = sound("b.wav", b), pathC = sound("c.wav", c);
    device.change([](State& s) {
        s.gateOpen = false;
        s.breakAfter = 1000;
    });
    auto wav = player();
    EXPECT_EQ(play(*wav, pathA), 0);
    EXPECT_EQ(play(*wav, pathB), 0);
    device.change([](State& s) { s.gateOpen = true; });
    ASSERT_TRUE(device.waitUntil([](const State& s) { return s.closes == 1; }));
    EXPECT_EQ(play(*wav, pathC), 0);
    wav->drainBeforeExit(5s);
    EXPECT_EQ(received(), (std::vector<Samples>{Samples(a.begin(), a.begin() + 1000), c}));
}

TEST_F(StreamWavPlayerTest, DrainBeforeExitKeepsToItsLimitAndLaterSoundsAreNotPlayed) {
    const auto path = sound("a.wav", test::pattern(1, 4410));
    device.change([](State& s) { s.gateOpen = false; });
    auto wav = player();
    EXPECT_EQ(play(*wav, path), 0);
    wav->drainBeforeExit(50ms);  // returns although the device holds the sound
    EXPECT_EQ(play(*wav, path), 0);
    device.change([](State& s) { s.gateOpen = true; });
    ASSERT_TRUE(device.waitUntil([](const State& s) { return s.closes == 1; }));
    const auto got = received();
    ASSERT_EQ(got.size(), 1u);
    EXPECT_LT(got[0].size(), 4410u);
}

TEST_F(StreamWavPlayerTest, AnIdleStreamIsClosedAndReopenedForTheNextSound) {
    const Samples a = test::pattern(1, 500), b = test::pattern(2, 600);
    const auto pathA = sound("a.wav", a), pathB = sound("b.wav", b);
    auto wav = player({.closeIdleAfter = 30ms});
    EXPECT_EQ(play(*wav, pathA), 0);
    ASSERT_TRUE(device.waitUntil([&](const State& s) {
        return s.closes == s.attempts && !s.connections.empty() && s.connections.back() == a;
    }));
    EXPECT_EQ(play(*wav, pathB), 0);
    wav->drainBeforeExit(5s);
    // The stream opened at start may have been closed unused before the first sound came.
    auto got = received();
    std::erase_if(got, [](const Samples& connection) { return connection.empty(); });
    EXPECT_EQ(got, (std::vector<Samples>{a, b}));
}

TEST_F(StreamWavPlayerTest, FileProblemsAreSoundFileFailures) {
    auto wav = player();
    const auto expectFailure = [](const std::function<void()>& call) {
        try {
            call();
            ADD_FAILURE() << "no failure";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), static_cast<std::int32_t>(FailureNumber::SoundFile));
        }
    };
    expectFailure([&] { wav->open("/nonexistent/marivox/shoot.wav"); });
    expectFailure([&] { wav->play(0, -1, true); });
    const auto broken = sound("broken.wav", {});
    test::writeBytes(broken, test::Bytes(30, std::byte{7}));
    expectFailure([&] { wav->open(broken); });
    wav->open(sound("good.wav", test::pattern(1, 10)));
    wav->closeSound();
    expectFailure([&] { wav->play(0, -1, true); });
}

}  // namespace
}  // namespace marivox
