// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/audio/WavFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <fstream>
#include <optional>

#include "ports/Failure.h"

namespace marivox::audio {
namespace {

constexpr std::uint16_t kFormatPcm = 1;
constexpr std::uint16_t kFormatExtensible = 0xFFFE;

// The player announces a broken file to the player, who can only reinstall.
[[noreturn]] void fail(const std::string& name, const std::string& problem) {
    throw Failure(FailureNumber::SoundFile, "The sound file " + name + " cannot be played: " +
                                                problem + ". Reinstalling Marivox restores it.");
}

// Reads little-endian fields without ever looking past the end of the image.
class ByteReader {
  public:
    ByteReader(std::span<const std::byte> bytes, const std::string& name)
        : bytes_(bytes), name_(name) {}

    std::size_t remaining() const { return bytes_.size() - position_; }
    std::size_t position() const { return position_; }

    std::span<const std::byte> take(std::size_t count, const char* what) {
        if (count > remaining()) {
            fail(name_, std::string(what) + " runs past the end of the file");
        }
        const auto part = bytes_.subspan(position_, count);
        position_ += count;
        return part;
    }
    void skip(std::size_t count, const char* what) { take(count, what); }
    std::uint16_t u16(const char* what) {
        const auto b = take(2, what);
        return static_cast<std::uint16_t>(std::to_integer<unsigned>(b[0]) |
                                          std::to_integer<unsigned>(b[1]) << 8);
    }
    std::uint32_t u32(const char* what) {
        const auto b = take(4, what);
        return std::to_integer<std::uint32_t>(b[0]) | std::to_integer<std::uint32_t>(b[1]) << 8 |
               std::to_integer<std::uint32_t>(b[2]) << 16 |
               std::to_integer<std::uint32_t>(b[3]) << 24;
    }
    bool tag(const char (&expected)[5], const char* what) {
        const auto b = take(4, what);
        return std::memcmp(b.data(), expected, 4) == 0;
    }
    std::array<char, 4> anyTag(const char* what) {
        const auto b = take(4, what);
        std::array<char, 4> id{};
        std::memcpy(id.data(), b.data(), 4);
        return id;
    }

  private:
    std::span<const std::byte> bytes_;
    const std::string& name_;
    std::size_t position_ = 0;
};

struct Format {
    std::uint16_t tag = 0;
    std::uint16_t channels = 0;
    std::uint32_t rate = 0;
    std::uint16_t blockAlign = 0;
    std::uint16_t bits = 0;
};

Format readFormat(std::span<const std::byte> chunk, const std::string& name) {
    ByteReader in(chunk, name);
    Format format;
    format.tag = in.u16("the format description");
    format.channels = in.u16("the format description");
    format.rate = in.u32("the format description");
    in.u32("the format description");  // bytes per second: derived, not trusted
    format.blockAlign = in.u16("the format description");
    format.bits = in.u16("the format description");
    if (format.tag == kFormatExtensible) {
        // The extension's sub-format names the real encoding; its first two bytes are the
        // plain format tag.
        in.skip(2 + 2 + 4, "the extended format description");
        format.tag = in.u16("the extended format description");
    }
    if (format.tag != kFormatPcm) {
        fail(name, "it is compressed, and only plain PCM sound is supported");
    }
    if (format.channels != 1 && format.channels != 2) {
        fail(name, "it has " + std::to_string(format.channels) +
                       " channels, and only mono or stereo is supported");
    }
    if (format.bits != 8 && format.bits != 16) {
        fail(name, "its samples are " + std::to_string(format.bits) +
                       "-bit, and only 8-bit or 16-bit samples are supported");
    }
    if (format.rate < 1000 || format.rate > 384000) {
        fail(name, "its sample rate, " + std::to_string(format.rate) + " Hz, is not a real one");
    }
    if (format.blockAlign != format.channels * format.bits / 8) {
        fail(name, "its format description contradicts itself");
    }
    return format;
}

std::vector<std::int16_t> decodeSamples(std::span<const std::byte> data, const Format& format) {
    std::vector<std::int16_t> samples;
    if (format.bits == 8) {
        samples.reserve(data.size());
        for (const std::byte b : data) {
            samples.push_back(static_cast<std::int16_t>((std::to_integer<int>(b) - 128) * 256));
        }
    } else {
        samples.reserve(data.size() / 2);
        for (std::size_t i = 0; i + 1 < data.size(); i += 2) {
            const auto value = static_cast<std::uint16_t>(
                std::to_integer<unsigned>(data[i]) | std::to_integer<unsigned>(data[i + 1]) << 8);
            samples.push_back(static_cast<std::int16_t>(value));
        }
    }
    return samples;
}

}  // namespace

WavData parseWav(std::span<const std::byte> bytes, const std::string& name) {
    if (bytes.size() > kMaxWavBytes) {
        fail(name, "it is larger than any sound effect should be");
    }
    ByteReader in(bytes, name);
    const bool riff = in.tag("RIFF", "the file header");
    // The RIFF size is often wrong in files written by streaming tools; the chunks and the
    // real file length are what count.
    in.u32("the file header");
    if (!riff || !in.tag("WAVE", "the file header")) {
        fail(name, "it is not a WAV file");
    }
    std::optional<Format> format;
    std::optional<std::span<const std::byte>> data;
    while (in.remaining() >= 8 && !(format && data)) {
        const auto id = in.anyTag("a chunk header");
        const std::uint32_t size = in.u32("a chunk header");
        const auto body =
            in.take(size, std::memcmp(id.data(), "data", 4) == 0 ? "the sound data" : "a chunk");
        if (std::memcmp(id.data(), "fmt ", 4) == 0) {
            format = readFormat(body, name);
        } else if (std::memcmp(id.data(), "data", 4) == 0) {
            if (!format) {
                fail(name, "its sound data comes before its format description");
            }
            data = body;
        }
        // Chunks are padded to an even length; the pad of the file's last chunk may be
        // missing.
        if (size % 2 == 1 && in.remaining() > 0) {
            in.skip(1, "a chunk's padding");
        }
    }
    if (!format) {
        fail(name, "it has no format description");
    }
    if (!data) {
        fail(name, "it holds no sound data");
    }
    if (data->size() % format->blockAlign != 0) {
        fail(name, "its sound data does not end on a whole sample");
    }
    WavData wav;
    wav.sampleRate = format->rate;
    wav.channels = format->channels;
    wav.bitsPerSample = format->bits;
    wav.samples = decodeSamples(*data, *format);
    return wav;
}

WavData readWavFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file) {
        fail(path, "the file is missing or cannot be read");
    }
    const std::streamoff length = file.tellg();
    if (length < 0) {
        fail(path, "the file cannot be read");
    }
    if (static_cast<std::size_t>(length) > kMaxWavBytes) {
        fail(path, "it is larger than any sound effect should be");
    }
    std::vector<std::byte> bytes(static_cast<std::size_t>(length));
    file.seekg(0);
    if (!file.read(reinterpret_cast<char*>(bytes.data()), length)) {
        fail(path, "the file cannot be read");
    }
    return parseWav(bytes, path);
}

std::vector<std::int16_t> toMono(const WavData& wav, std::uint32_t rate) {
    const std::size_t frames = wav.frames();
    std::vector<std::int16_t> mono(frames);
    for (std::size_t i = 0; i < frames; ++i) {
        int sum = 0;
        for (std::size_t c = 0; c < wav.channels; ++c) {
            sum += wav.samples[i * wav.channels + c];
        }
        mono[i] = static_cast<std::int16_t>(sum / static_cast<int>(wav.channels));
    }
    if (wav.sampleRate == rate || frames == 0) {
        return mono;
    }
    const auto outFrames =
        static_cast<std::size_t>(static_cast<std::uint64_t>(frames) * rate / wav.sampleRate);
    std::vector<std::int16_t> resampled(std::max<std::size_t>(outFrames, 1));
    const double step = static_cast<double>(wav.sampleRate) / rate;
    for (std::size_t i = 0; i < resampled.size(); ++i) {
        const double position = static_cast<double>(i) * step;
        const auto left = std::min(static_cast<std::size_t>(position), frames - 1);
        const std::size_t right = std::min(left + 1, frames - 1);
        const double fraction = position - static_cast<double>(left);
        resampled[i] = static_cast<std::int16_t>(
            std::lround(mono[left] + (mono[right] - mono[left]) * fraction));
    }
    return resampled;
}

}  // namespace marivox::audio
