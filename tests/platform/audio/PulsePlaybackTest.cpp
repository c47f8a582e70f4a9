// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <thread>

#include "PrivatePulse.h"
#include "WavImages.h"
#include "fake/FakeDesktop.h"
#include "fake/FakePlatform.h"
#include "fake/FakeServices.h"
#include "platform/audio/WavFile.h"
#include "platform/pulse/PulseOutput.h"
#include "speech/WavSounds.h"
#include "support/ErrorReports.h"
#include "support/Guard.h"

namespace marivox {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Samples = std::vector<std::int16_t>;

// Under 20 ms of samples between sounds played back to back.
constexpr std::size_t kMaxGap = 20 * audio::kOutputRate / 1000;

Samples generated(const std::string& name) {
    return audio::toMono(audio::readWavFile(fs::path(MARIVOX_PROGRAM_DIR) / name));
}

std::optional<std::size_t> find(const Samples& recording, const Samples& sound,
                                std::size_t from = 0) {
    if (from > recording.size()) {
        return std::nullopt;
    }
    const auto at = std::search(recording.begin() + static_cast<std::ptrdiff_t>(from),
                                recording.end(), sound.begin(), sound.end());
    if (at == recording.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(at - recording.begin());
}

// Waits, at most a few seconds, until `sound` is in the recording at or after `from`.
std::optional<std::size_t> awaitSound(const test::PrivatePulse& pulse, const Samples& sound,
                                      std::size_t from = 0) {
    for (int i = 0; i < 250; ++i) {
        if (const auto at = find(pulse.recording(), sound, from)) {
            return at;
        }
        std::this_thread::sleep_for(20ms);
    }
    return std::nullopt;
}

// The game's own PlaySound over the real player, with its program folder where the build
// put the sounds.
struct Game {
    explicit Game(audio::StreamWavPlayer& player) : sounds(player, application, sleeper, guard) {
        application.setProgramFolder(MARIVOX_PROGRAM_DIR);
    }
    fake::Transcript transcript;
    fake::FakeMessageBoxes boxes{transcript};
    fake::FakeApplication application{transcript};
    fake::FakeSleeper sleeper;
    ErrorReports reports{boxes, application};
    Guard guard{reports};
    WavSounds sounds;
};

TEST(PulsePlayback, ShotHitAndSinkArriveWholeInOrderBackToBack) {
    test::PrivatePulse pulse;
    auto player = pulse::makePulseWavPlayer();
    Game game(*player);
    for (const char* name : {"\\shoot.wav", "\\hit.wav", "\\sink.wav"}) {
        game.sounds.PlaySound(name);
    }
    player->drainBeforeExit(10s);
    EXPECT_EQ(game.boxes.shown(), 0);
    EXPECT_EQ(game.sleeper.slept, 0ms);  // every request accepted at once

    const Samples shoot = generated("shoot.wav"), hit = generated("hit.wav"),
                  sink = generated("sink.wav");
    const auto sinkAt = awaitSound(pulse, sink);
    ASSERT_TRUE(sinkAt) << "the sink sound never arrived whole";
    const Samples recording = pulse.recording();
    const auto shootAt = find(recording, shoot);
    ASSERT_TRUE(shootAt) << "the shot never arrived whole";
    const auto hitAt = find(recording, hit, *shootAt + shoot.size());
    ASSERT_TRUE(hitAt) << "the hit did not arrive whole after the shot";
    ASSERT_GE(*sinkAt, *hitAt + hit.size()) << "the sink did not come after the hit";
    EXPECT_LT(*hitAt - (*shootAt + shoot.size()), kMaxGap);
    EXPECT_LT(*sinkAt - (*hitAt + hit.size()), kMaxGap);
}

TEST(PulsePlayback, ASoundTooShortToStartTheStreamIsStillHeard) {
    test::PrivatePulse pulse;
    const auto path = fs::temp_directory_path() / ("marivox-blip-" + std::to_string(::getpid()));
    const Samples blip = test::pattern(1, 220);  // 5 ms
    test::writeBytes(path, test::monoWav(blip));
    auto player = pulse::makePulseWavPlayer();
    player->open(path.string());
    player->play(0, -1, true);
    EXPECT_EQ(player->status(), 0);
    player->closeSound();
    EXPECT_TRUE(awaitSound(pulse, blip)) << "a lone short sound stayed in the buffer";
    player->drainBeforeExit(5s);
    fs::remove(path);
}

TEST(PulsePlayback, AServerDyingMidSoundLosesOnlyThatSound) {
    test::PrivatePulse pulse;
    auto player = pulse::makePulseWavPlayer();
    Game game(*player);
    const Samples sonar = generated("sonar.wav"), hit = generated("hit.wav");
    game.sounds.PlaySound("\\sonar.wav");
    ASSERT_TRUE(awaitSound(pulse, Samples(sonar.begin(), sonar.begin() + 4410)));
    pulse.kill();
    game.sounds.PlaySound("\\shoot.wav");  // into the void: dropped, not queued
    pulse.start();
    const std::size_t restart = pulse.recording().size();
    std::optional<std::size_t> heard;
    for (int i = 0; i < 30 && !heard; ++i) {
        game.sounds.PlaySound("\\hit.wav");
        std::this_thread::sleep_for(200ms);
        heard = find(pulse.recording(), hit, restart);
    }
    EXPECT_TRUE(heard) << "no sound after the server came back";
    player->drainBeforeExit(5s);
    EXPECT_FALSE(find(pulse.recording(), sonar)) << "the interrupted sound played whole";
    EXPECT_EQ(game.boxes.shown(), 0);
}

TEST(PulsePlayback, WithoutAServerTheGameGoesOnSilently) {
    ::setenv("PULSE_SERVER", "unix:/nonexistent/marivox/pulse/native", 1);
    ::setenv("PULSE_CLIENTCONFIG", "/dev/null", 1);
    auto player = pulse::makePulseWavPlayer();
    Game game(*player);
    for (const char* name : {"\\begin.wav", "\\sonar.wav", "\\shoot.wav", "\\hit.wav", "\\sink.wav",
                             "\\youwin1.wav", "\\youwin2.wav", "\\laugh1.wav"}) {
        game.sounds.PlaySound(name);
    }
    EXPECT_EQ(game.boxes.shown(), 0);
    EXPECT_EQ(game.sleeper.slept, 0ms);
    game.sounds.PlaySound("\\end.wav");
    player->drainBeforeExit(500ms);  // returns: nothing is waiting to be heard
    ::unsetenv("PULSE_SERVER");
    ::unsetenv("PULSE_CLIENTCONFIG");
}

}  // namespace
}  // namespace marivox
