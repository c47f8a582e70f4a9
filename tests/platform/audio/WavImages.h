// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace marivox::test {

using Bytes = std::vector<std::byte>;

inline void put(Bytes& out, std::uint32_t value, int size) {
    for (int i = 0; i < size; ++i) {
        out.push_back(static_cast<std::byte>(value >> (8 * i) & 0xFF));
    }
}

inline Bytes formatBody(std::uint16_t tag, std::uint16_t channels, std::uint32_t rate,
                        std::uint16_t bits) {
    Bytes body;
    const std::uint16_t blockAlign = static_cast<std::uint16_t>(channels * bits / 8);
    put(body, tag, 2);
    put(body, channels, 2);
    put(body, rate, 4);
    put(body, rate * blockAlign, 4);
    put(body, blockAlign, 2);
    put(body, bits, 2);
    return body;
}

inline Bytes pcm16(const std::vector<std::int16_t>& samples) {
    Bytes body;
    for (const std::int16_t sample : samples) {
        put(body, static_cast<std::uint16_t>(sample), 2);
    }
    return body;
}

// A RIFF/WAVE image of the chunks as given, each padded to an even length.
inline Bytes riff(const std::vector<std::pair<std::string, Bytes>>& chunks) {
    Bytes body;
    for (const auto& [id, chunk] : chunks) {
        for (const char c : id) {
            body.push_back(static_cast<std::byte>(c));
        }
        put(body, static_cast<std::uint32_t>(chunk.size()), 4);
        body.insert(body.end(), chunk.begin(), chunk.end());
        if (chunk.size() % 2 == 1) {
            body.push_back(std::byte{0});
        }
    }
    Bytes out;
    for (const char c : std::string("RIFF")) {
        out.push_back(static_cast<std::byte>(c));
    }
    put(out, static_cast<std::uint32_t>(body.size() + 4), 4);
    for (const char c : std::string("WAVE")) {
        out.push_back(static_cast<std::byte>(c));
    }
    out.insert(out.end(), body.begin(), body.end());
    return out;
}

inline Bytes monoWav(const std::vector<std::int16_t>& samples, std::uint32_t rate = 44100) {
    return riff({{"fmt ", formatBody(1, 1, rate, 16)}, {"data", pcm16(samples)}});
}

inline void writeBytes(const std::filesystem::path& path, const Bytes& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

inline Bytes readBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
    Bytes out(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        out[i] = static_cast<std::byte>(text[i]);
    }
    return out;
}

// A recognisable run of samples: no two seeds give overlapping values.
inline std::vector<std::int16_t> pattern(int seed, std::size_t count) {
    std::vector<std::int16_t> samples(count);
    for (std::size_t i = 0; i < count; ++i) {
        samples[i] = static_cast<std::int16_t>(seed * 4000 - 16000 + static_cast<int>(i % 3989));
    }
    return samples;
}

}  // namespace marivox::test
