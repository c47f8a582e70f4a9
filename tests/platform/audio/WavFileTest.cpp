// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <random>

#include "WavImages.h"
#include "platform/audio/WavFile.h"
#include "support/Failure.h"

namespace marivox {
namespace {

using audio::parseWav;
using test::Bytes;
using test::formatBody;
using test::riff;

Bytes bytesOf(std::initializer_list<int> values) {
    Bytes out;
    for (const int value : values) {
        out.push_back(static_cast<std::byte>(value));
    }
    return out;
}

// The description a player hears names the file; anything else is a bug.
void expectSoundFileFailure(const Bytes& image, const std::string& why) {
    try {
        parseWav(image, "damaged.wav");
        ADD_FAILURE() << why << ": accepted";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), static_cast<std::int32_t>(FailureNumber::SoundFile)) << why;
        EXPECT_NE(failure.description().find("damaged.wav"), std::string::npos) << why;
    }
}

TEST(WavFile, ReadsPcmLayoutsPastUnknownAndOddSizedChunks) {
    // 8-bit stereo, behind a LIST chunk of odd size (so padded) and followed by another.
    const Bytes eightBit = riff({{"LIST", bytesOf({1, 2, 3})},
                                 {"fmt ", formatBody(1, 2, 22050, 8)},
                                 {"data", bytesOf({0, 255, 128, 129})},
                                 {"cue ", bytesOf({9})}});
    const auto wav = parseWav(eightBit, "a.wav");
    EXPECT_EQ(wav.sampleRate, 22050u);
    EXPECT_EQ(wav.channels, 2);
    EXPECT_EQ(wav.frames(), 2u);
    EXPECT_EQ(wav.samples, (std::vector<std::int16_t>{-32768, 32512, 0, 256}));

    // The extensible header names plain PCM in its sub-format.
    Bytes extensible = formatBody(0xFFFE, 1, 8000, 16);
    const Bytes extension = bytesOf(
        {22, 0, 16, 0, 4, 0, 0, 0, 1, 0, 0, 0, 0, 0, 16, 0, 128, 0, 0, 170, 0, 56, 155, 113});
    extensible.insert(extensible.end(), extension.begin(), extension.end());
    const auto wide =
        parseWav(riff({{"fmt ", extensible}, {"data", test::pcm16({-5, 7})}}), "b.wav");
    EXPECT_EQ(wide.samples, (std::vector<std::int16_t>{-5, 7}));
}

TEST(WavFile, ConvertsToMonoAtTheOutputRate) {
    audio::WavData stereo{44100, 2, 16, {1000, -3000, 32767, 32767}};
    EXPECT_EQ(audio::toMono(stereo), (std::vector<std::int16_t>{-1000, 32767}));

    audio::WavData slow{22050, 1, 16, {0, 1000, -1000}};
    const auto fast = audio::toMono(slow);
    ASSERT_EQ(fast.size(), 6u);
    EXPECT_EQ(fast[0], 0);
    EXPECT_EQ(fast[1], 500);
    EXPECT_EQ(fast[2], 1000);
    EXPECT_EQ(fast[3], 0);
    EXPECT_EQ(fast[4], -1000);
}

TEST(WavFile, RejectsMalformedFilesNamingThem) {
    const Bytes good = test::monoWav({1, 2, 3, 4});
    expectSoundFileFailure(Bytes(good.begin(), good.begin() + 20), "truncated header");
    Bytes tooLong = good;
    tooLong[40] = std::byte{200};  // the data chunk claims 200 bytes, the file has 8
    expectSoundFileFailure(tooLong, "data size larger than the file");
    Bytes huge = good;
    huge[43] = std::byte{0xFF};
    expectSoundFileFailure(huge, "data size near 4 GB");
    expectSoundFileFailure(riff({{"fmt ", formatBody(1, 0, 44100, 16)}, {"data", {}}}),
                           "zero channels");
    expectSoundFileFailure(riff({{"fmt ", formatBody(1, 3, 44100, 16)}, {"data", {}}}),
                           "three channels");
    expectSoundFileFailure(
        riff({{"fmt ", formatBody(1, 1, 44100, 24)}, {"data", bytesOf({0, 0, 0})}}), "24-bit");
    expectSoundFileFailure(riff({{"fmt ", formatBody(3, 1, 44100, 16)}, {"data", {}}}),
                           "floating point");
    expectSoundFileFailure(riff({{"fmt ", formatBody(1, 1, 0, 16)}, {"data", {}}}), "0 Hz");
    expectSoundFileFailure(riff({{"fmt ", formatBody(1, 1, 44100, 16)}, {"data", bytesOf({1})}}),
                           "odd data size for 16-bit samples");
    Bytes lyingAlign = formatBody(1, 2, 44100, 16);
    lyingAlign[12] = std::byte{3};
    expectSoundFileFailure(riff({{"fmt ", lyingAlign}, {"data", {}}}), "wrong block align");
    expectSoundFileFailure(riff({{"fmt ", bytesOf({1, 0, 1, 0})}, {"data", {}}}),
                           "short format chunk");
    expectSoundFileFailure(riff({{"data", test::pcm16({1})}, {"fmt ", formatBody(1, 1, 8000, 16)}}),
                           "data before format");
    expectSoundFileFailure(riff({{"fmt ", formatBody(1, 1, 8000, 16)}}), "no data");
    expectSoundFileFailure(riff({{"data", {}}}), "no format");
    Bytes notWave = good;
    notWave[8] = std::byte{'A'};
    expectSoundFileFailure(notWave, "not WAVE");
    expectSoundFileFailure(Bytes(audio::kMaxWavBytes + 1), "oversized");
}

// Damaged images of every kind either parse or fail cleanly; the sanitizer build turns any
// read out of bounds into a failure of this test.
TEST(WavFile, DamagedImagesNeverReadOutOfBounds) {
    const Bytes good = riff({{"LIST", bytesOf({1, 2, 3})},
                             {"fmt ", formatBody(1, 2, 22050, 16)},
                             {"data", test::pcm16({1, 2, 3, 4, 5, 6})}});
    int parsed = 0;
    auto attempt = [&](const Bytes& image) {
        try {
            parsed += parseWav(image, "fuzz.wav").frames() > 0 ? 1 : 0;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number(), static_cast<std::int32_t>(FailureNumber::SoundFile));
        }
    };
    for (std::size_t length = 0; length <= good.size(); ++length) {
        attempt(Bytes(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(length)));
    }
    std::mt19937 random(20240601);
    for (int round = 0; round < 20000; ++round) {
        Bytes image = good;
        const int changes = 1 + static_cast<int>(random() % 4);
        for (int c = 0; c < changes; ++c) {
            image[random() % image.size()] = static_cast<std::byte>(random() & 0xFF);
        }
        attempt(image);
    }
    EXPECT_GT(parsed, 0);  // the mutations also leave files that are still good
}

TEST(WavFile, MissingFileIsASoundFileFailureNamingIt) {
    try {
        audio::readWavFile("/nonexistent/marivox/shoot.wav");
        ADD_FAILURE() << "a missing file was read";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), static_cast<std::int32_t>(FailureNumber::SoundFile));
        EXPECT_NE(failure.description().find("/nonexistent/marivox/shoot.wav"), std::string::npos);
    }
}

}  // namespace
}  // namespace marivox
