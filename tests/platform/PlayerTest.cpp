// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>
#include <mutex>
#include <regex>

#include "platform/audio/StreamWavPlayer.h"
#include "platform/audio/WavFile.h"
#include "speech/SoundFiles.h"
#include "support/Failure.h"

namespace marivox {
namespace {

namespace fs = std::filesystem;
using Samples = std::vector<std::int16_t>;

std::string soundFile(std::string_view sound) {
    return (fs::path(MARIVOX_PROGRAM_DIR) / sound::fileName(sound)).string();
}

// A sound device in memory, holding what each connection was given, in order.
struct Device : audio::AudioStream {
    explicit Device(std::shared_ptr<std::pair<std::mutex, std::vector<Samples>>> h) : heard(h) {}
    bool write(std::span<const std::int16_t> samples) override {
        std::lock_guard lock(heard->first);
        heard->second.back().insert(heard->second.back().end(), samples.begin(), samples.end());
        return true;
    }
    bool endOfSounds() override { return true; }
    bool drain() override { return true; }
    // Shared, as the player's worker may outlive the test.
    std::shared_ptr<std::pair<std::mutex, std::vector<Samples>>> heard;
};

// Sounds asked for one after another are heard whole, in order and back to back, however
// their lengths fall against the player's chunks.
TEST(Player, PlaysEachSoundWholeInOrderWithoutAGap) {
    auto heard = std::make_shared<std::pair<std::mutex, std::vector<Samples>>>();
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
