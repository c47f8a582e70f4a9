// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace marivox::audio {

// What the player's output stream takes: every sound is converted to this on opening, so
// the stream never changes format between sounds.
constexpr std::uint32_t kOutputRate = 44100;

// Larger files are refused: no sound of the game lasts more than a few seconds, and a
// damaged header must not make us allocate the size it claims.
constexpr std::size_t kMaxWavBytes = 16u * 1024u * 1024u;

// PCM as the file holds it: 8-bit samples widened to 16 bits, channels interleaved.
struct WavData {
    std::uint32_t sampleRate = 0;
    std::uint16_t channels = 0;
    std::uint16_t bitsPerSample = 0;
    std::vector<std::int16_t> samples;

    std::size_t frames() const { return channels == 0 ? 0 : samples.size() / channels; }
};

// Parses a RIFF/WAVE image. `name` only appears in failure descriptions. Throws
// Failure(SoundFile) for anything but 8- or 16-bit PCM, mono or stereo, whole and sound.
WavData parseWav(std::span<const std::byte> bytes, const std::string& name);

// Reads and parses a file; a missing or unreadable file is a Failure(SoundFile) too.
WavData readWavFile(const std::string& path);

// Mono at `rate`: channels averaged, rate changed by linear interpolation.
std::vector<std::int16_t> toMono(const WavData& wav, std::uint32_t rate = kOutputRate);

}  // namespace marivox::audio
