// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

// Just enough synthesis for the game's effects. Everything is plain arithmetic on doubles
// with our own noise source, so a build makes the same bytes every time.
namespace soundgen {

constexpr double kRate = 44100.0;

using Signal = std::vector<double>;

// A fixed-seed xorshift generator: no library random engine, whose output may differ
// between standard libraries.
class Noise {
  public:
    explicit Noise(std::uint32_t seed) : state_(seed == 0 ? 1 : seed) {}
    double next();                            // uniform in [-1, 1)
    double between(double low, double high);  // uniform in [low, high)

  private:
    std::uint32_t state_;
};

Signal blank(double seconds);
std::size_t samplesFor(double seconds);
// Adds `part` into `into` starting `at` seconds in, growing `into` if needed.
void mix(Signal& into, const Signal& part, double at, double gain = 1.0);

// A tone gliding exponentially from `from` to `to` Hz; `harmonics` are the amplitudes of
// the fundamental and its overtones.
Signal tone(double seconds, double from, double to, std::initializer_list<double> harmonics);
// A glottal-like pulse: every harmonic below `ceiling` Hz, falling off as 1/k.
Signal buzz(double seconds, double from, double to, double ceiling);
Signal noise(double seconds, Noise& source);

// Linear attack, then exponential decay with time constant `decay` seconds.
void strike(Signal& signal, double attack, double decay);
// Linear attack and release; flat between.
void gate(Signal& signal, double attack, double release);
void fadeOut(Signal& signal, double seconds);

// One-pole low pass whose cutoff glides exponentially from `from` to `to` Hz.
void lowPass(Signal& signal, double from, double to);
inline void lowPass(Signal& signal, double cutoff) {
    lowPass(signal, cutoff, cutoff);
}
void highPass(Signal& signal, double cutoff);
// Resonant band pass (constant peak gain) for formants and crackle.
Signal bandPass(const Signal& signal, double centre, double q);

// 16-bit samples with the loudest at `peak` of full scale.
std::vector<std::int16_t> normalise(const Signal& signal, double peak);

// A canonical 44-byte-header PCM WAV, mono, at kRate.
std::vector<char> wavImage(const std::vector<std::int16_t>& samples);

}  // namespace soundgen
