// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>

#include "WavImages.h"
#include "platform/audio/WavFile.h"
#include "speech/SoundFiles.h"

namespace marivox {
namespace {

namespace fs = std::filesystem;

// Each sound the game asks for, by the name before ".wav".
const std::vector<std::string> kSounds = [] {
    std::vector<std::string> names;
    for (const std::string_view sound : sound::kAll) {
        const std::string_view file = sound::fileName(sound);
        names.emplace_back(file.substr(0, file.size() - 4));
    }
    return names;
}();

std::vector<std::int16_t> samplesOf(const std::string& name) {
    return audio::readWavFile(fs::path(MARIVOX_PROGRAM_DIR) / (name + ".wav")).samples;
}

double seconds(std::size_t samples) {
    return static_cast<double>(samples) / audio::kOutputRate;
}

// Mean absolute level over [from, to) seconds.
double level(const std::vector<std::int16_t>& samples, double from, double to) {
    const auto first = static_cast<std::size_t>(from * audio::kOutputRate);
    const auto last = std::min(samples.size(), static_cast<std::size_t>(to * audio::kOutputRate));
    double sum = 0;
    for (std::size_t i = first; i < last; ++i) {
        sum += std::abs(samples[i]);
    }
    return last > first ? sum / static_cast<double>(last - first) : 0;
}

TEST(GeneratedSounds, AllNineAreMonoPcmPeakNormalisedAndShort) {
    for (const auto& name : kSounds) {
        SCOPED_TRACE(name);
        const fs::path path = fs::path(MARIVOX_PROGRAM_DIR) / (name + ".wav");
        const auto wav = audio::readWavFile(path);
        EXPECT_EQ(wav.sampleRate, audio::kOutputRate);
        EXPECT_EQ(wav.channels, 1);
        EXPECT_EQ(wav.bitsPerSample, 16);
        // Written back, the samples give the same file: nothing in it was skipped or lost.
        EXPECT_EQ(test::monoWav(wav.samples), test::readBytes(path));

        const double duration = seconds(wav.samples.size());
        EXPECT_GT(duration, 0.3);
        EXPECT_LT(duration, name == "shoot" || name == "hit" || name == "sink" ? 1.0 : 3.0);
        int peak = 0;
        for (const std::int16_t sample : wav.samples) {
            peak = std::max(peak, std::abs(static_cast<int>(sample)));
        }
        EXPECT_GE(peak, 0.8 * 32767);
        EXPECT_LT(peak, 32767);
    }
}

TEST(GeneratedSounds, NoTwoAreAlike) {
    std::map<std::string, std::vector<std::int16_t>> sounds;
    for (const auto& name : kSounds) {
        sounds[name] = samplesOf(name);
    }
    for (const auto& [a, first] : sounds) {
        for (const auto& [b, second] : sounds) {
            if (a >= b) {
                continue;
            }
            double dot = 0, normA = 0, normB = 0;
            for (std::size_t i = 0; i < std::min(first.size(), second.size()); ++i) {
                dot += double(first[i]) * second[i];
                normA += double(first[i]) * first[i];
                normB += double(second[i]) * second[i];
            }
            EXPECT_LT(std::abs(dot) / std::sqrt(normA * normB), 0.5) << a << " and " << b;
        }
    }
}

TEST(GeneratedSounds, EachHasItsCharacter) {
    const auto shoot = samplesOf("shoot");
    const auto hit = samplesOf("hit");
    // A shot hits at once; an explosion rings on after a shot has died away.
    EXPECT_GT(level(shoot, 0, 0.01), 4 * level(shoot, 0.2, 0.3));
    EXPECT_GT(level(hit, 0.4, 0.5), 2 * level(shoot, 0.4, 0.5));
    // The sonar's echo comes back: louder than the fading ping just before it.
    const auto sonar = samplesOf("sonar");
    EXPECT_GT(level(sonar, 0.55, 0.6), 1.5 * level(sonar, 0.48, 0.53));
    // Four separate "ha"s, with quiet between them.
    const auto laugh = samplesOf("laugh1");
    int bursts = 0;
    bool loud = false;
    for (double t = 0; t < seconds(laugh.size()); t += 0.01) {
        const bool now = level(laugh, t, t + 0.01) > 1500;
        bursts += now && !loud ? 1 : 0;
        loud = now;
    }
    EXPECT_EQ(bursts, 4);
}

TEST(GeneratedSounds, GenerationIsDeterministic) {
    const fs::path root =
        fs::temp_directory_path() / ("marivox-soundgen-" + std::to_string(::getpid()));
    for (const char* run : {"first", "second"}) {
        fs::create_directories(root / run);
        const std::string command =
            std::string("'") + MARIVOX_SOUNDGEN + "' '" + (root / run).string() + "'";
        ASSERT_EQ(std::system(command.c_str()), 0);
    }
    for (const auto& name : kSounds) {
        const auto first = test::readBytes(root / "first" / (name + ".wav"));
        EXPECT_FALSE(first.empty()) << name;
        EXPECT_EQ(first, test::readBytes(root / "second" / (name + ".wav"))) << name;
        EXPECT_EQ(first, test::readBytes(fs::path(MARIVOX_PROGRAM_DIR) / (name + ".wav"))) << name;
    }
    fs::remove_all(root);
}

}  // namespace
}  // namespace marivox
