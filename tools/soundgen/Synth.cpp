// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Synth.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

namespace soundgen {
namespace {

constexpr double kTwoPi = 2.0 * std::numbers::pi;

void put16(std::vector<char>& out, std::uint16_t value) {
    out.push_back(static_cast<char>(value & 0xFF));
    out.push_back(static_cast<char>(value >> 8));
}

void put32(std::vector<char>& out, std::uint32_t value) {
    put16(out, static_cast<std::uint16_t>(value & 0xFFFF));
    put16(out, static_cast<std::uint16_t>(value >> 16));
}

// Byte by byte: GCC 12's -O3 takes a range insert here for an overflow (a false alarm).
void putTag(std::vector<char>& out, std::string_view tag) {
    for (const char byte : tag) {
        out.push_back(byte);
    }
}

double glide(double from, double to, double fraction) {
    return from * std::pow(to / from, fraction);
}

}  // namespace

double Noise::next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return static_cast<double>(state_) / 2147483648.0 - 1.0;
}

double Noise::between(double low, double high) {
    return low + (next() + 1.0) / 2.0 * (high - low);
}

std::size_t samplesFor(double seconds) {
    return static_cast<std::size_t>(std::lround(seconds * kRate));
}

Signal blank(double seconds) {
    return Signal(samplesFor(seconds), 0.0);
}

void mix(Signal& into, const Signal& part, double at, double gain) {
    const std::size_t offset = samplesFor(at);
    if (into.size() < offset + part.size()) {
        into.resize(offset + part.size(), 0.0);
    }
    for (std::size_t i = 0; i < part.size(); ++i) {
        into[offset + i] += gain * part[i];
    }
}

Signal tone(double seconds, double from, double to, std::initializer_list<double> harmonics) {
    Signal out = blank(seconds);
    double phase = 0.0;
    for (std::size_t i = 0; i < out.size(); ++i) {
        const double frequency = glide(from, to, static_cast<double>(i) / out.size());
        double value = 0.0;
        double k = 1.0;
        for (const double amplitude : harmonics) {
            value += amplitude * std::sin(k * phase);
            k += 1.0;
        }
        out[i] = value;
        phase = std::fmod(phase + kTwoPi * frequency / kRate, kTwoPi);
    }
    return out;
}

Signal buzz(double seconds, double from, double to, double ceiling) {
    Signal out = blank(seconds);
    double phase = 0.0;
    for (std::size_t i = 0; i < out.size(); ++i) {
        const double frequency = glide(from, to, static_cast<double>(i) / out.size());
        double value = 0.0;
        for (int k = 1; k * frequency < ceiling; ++k) {
            value += std::sin(k * phase) / k;
        }
        out[i] = value;
        phase = std::fmod(phase + kTwoPi * frequency / kRate, kTwoPi);
    }
    return out;
}

Signal noise(double seconds, Noise& source) {
    Signal out = blank(seconds);
    for (double& sample : out) {
        sample = source.next();
    }
    return out;
}

void strike(Signal& signal, double attack, double decay) {
    const double attackSamples = std::max(1.0, attack * kRate);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double t = static_cast<double>(i) / kRate;
        const double rise = std::min(1.0, static_cast<double>(i) / attackSamples);
        signal[i] *= rise * std::exp(-std::max(0.0, t - attack) / decay);
    }
}

void gate(Signal& signal, double attack, double release) {
    const double attackSamples = std::max(1.0, attack * kRate);
    const double releaseSamples = std::max(1.0, release * kRate);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double rise = static_cast<double>(i) / attackSamples;
        const double fall = static_cast<double>(signal.size() - i) / releaseSamples;
        signal[i] *= std::min({1.0, rise, fall});
    }
}

void fadeOut(Signal& signal, double seconds) {
    const std::size_t length = std::min(signal.size(), samplesFor(seconds));
    for (std::size_t i = 0; i < length; ++i) {
        signal[signal.size() - 1 - i] *= static_cast<double>(i) / length;
    }
}

void lowPass(Signal& signal, double from, double to) {
    double state = 0.0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double cutoff = glide(from, to, static_cast<double>(i) / signal.size());
        const double alpha = 1.0 - std::exp(-kTwoPi * cutoff / kRate);
        state += alpha * (signal[i] - state);
        signal[i] = state;
    }
}

void highPass(Signal& signal, double cutoff) {
    Signal low = signal;
    lowPass(low, cutoff);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        signal[i] -= low[i];
    }
}

Signal bandPass(const Signal& signal, double centre, double q) {
    // The usual audio-cookbook biquad, peak gain 0 dB.
    const double w = kTwoPi * centre / kRate;
    const double alpha = std::sin(w) / (2.0 * q);
    const double a0 = 1.0 + alpha;
    const double b0 = alpha / a0;
    const double b2 = -alpha / a0;
    const double a1 = -2.0 * std::cos(w) / a0;
    const double a2 = (1.0 - alpha) / a0;
    Signal out(signal.size(), 0.0);
    double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double y = b0 * signal[i] + b2 * x2 - a1 * y1 - a2 * y2;
        x2 = x1;
        x1 = signal[i];
        y2 = y1;
        y1 = y;
        out[i] = y;
    }
    return out;
}

std::vector<std::int16_t> normalise(const Signal& signal, double peak) {
    double loudest = 0.0;
    for (const double sample : signal) {
        loudest = std::max(loudest, std::abs(sample));
    }
    const double scale = loudest > 0.0 ? peak * 32767.0 / loudest : 0.0;
    std::vector<std::int16_t> out(signal.size());
    for (std::size_t i = 0; i < signal.size(); ++i) {
        out[i] = static_cast<std::int16_t>(std::lround(signal[i] * scale));
    }
    return out;
}

std::vector<char> wavImage(const std::vector<std::int16_t>& samples) {
    const auto dataBytes = static_cast<std::uint32_t>(samples.size() * 2);
    const auto rate = static_cast<std::uint32_t>(kRate);
    std::vector<char> out;
    out.reserve(44 + dataBytes);
    putTag(out, "RIFF");
    put32(out, 36 + dataBytes);
    putTag(out, "WAVEfmt ");
    put32(out, 16);
    put16(out, 1);  // PCM
    put16(out, 1);  // mono
    put32(out, rate);
    put32(out, rate * 2);
    put16(out, 2);
    put16(out, 16);
    putTag(out, "data");
    put32(out, dataBytes);
    for (const std::int16_t sample : samples) {
        put16(out, static_cast<std::uint16_t>(sample));
    }
    return out;
}

}  // namespace soundgen
