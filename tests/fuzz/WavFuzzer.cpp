// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a sound file: parsed, and what parses converted for the output stream.
// Whatever parses must describe itself truthfully; everything else is a Failure, never a
// crash or a huge allocation.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>

#include "adapters/audio/WavFile.h"
#include "ports/Failure.h"

static void require(bool condition, const char* what) {
    if (!condition) {
        std::fprintf(stderr, "broken promise: %s\n", what);
        std::abort();
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace marivox::audio;
    WavData wav;
    try {
        wav = parseWav(std::as_bytes(std::span(data, size)), "fuzz.wav");
    } catch (const marivox::Failure& failure) {
        require(failure.number() == static_cast<int>(marivox::FailureNumber::SoundFile),
                "a damaged sound fails as a sound file");
        return 0;
    }
    require((wav.channels == 1 || wav.channels == 2) &&
                (wav.bitsPerSample == 8 || wav.bitsPerSample == 16) && wav.sampleRate > 0,
            "mono or stereo, 8 or 16 bits, a sample rate");
    require(wav.samples.size() % wav.channels == 0, "whole frames");
    require(wav.samples.size() * wav.bitsPerSample / 8 <= size, "no more samples than bytes");
    const double expected = static_cast<double>(wav.frames()) * kOutputRate / wav.sampleRate;
    require(std::abs(static_cast<double>(toMono(wav).size()) - expected) <= 2,
            "the converted sound lasts as long as the file's");
    return 0;
}
