// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Recipes.h"

#include <cmath>

namespace soundgen {
namespace {

constexpr double kC5 = 523.25, kE5 = 659.26, kG5 = 783.99, kC6 = 1046.50;
constexpr double kG4 = 392.00;

Signal note(double seconds, double frequency, std::initializer_list<double> harmonics,
            double attack, double decay) {
    Signal out = tone(seconds, frequency, frequency, harmonics);
    strike(out, attack, decay);
    fadeOut(out, 0.02);
    return out;
}

// A bright rising arpeggio: the game is on.
Signal begin() {
    Signal out = blank(1.0);
    const double notes[] = {kC5, kE5, kG5};
    for (int i = 0; i < 3; ++i) {
        mix(out, note(0.16, notes[i], {1, 0.5, 0.25, 0.12}, 0.005, 0.12), 0.12 * i);
    }
    mix(out, note(0.62, kC6, {1, 0.5, 0.25, 0.12}, 0.005, 0.25), 0.36);
    fadeOut(out, 0.05);
    return out;
}

Signal ping() {
    Signal out = tone(0.9, 1150, 1130, {1, 0.08});
    strike(out, 0.003, 0.16);
    return out;
}

// One ping, then its echo coming back twice, softer and duller each time.
Signal sonar() {
    Signal out = blank(2.0);
    mix(out, ping(), 0.0);
    Signal echo = ping();
    lowPass(echo, 1800);
    mix(out, echo, 0.55, 0.35);
    lowPass(echo, 1400);
    mix(out, echo, 1.10, 0.12);
    // A little room around the ping, so it does not sound like a bare test tone.
    const Signal dry = out;
    const double delays[] = {0.031, 0.047, 0.071};
    for (const double delay : delays) {
        mix(out, dry, delay, 0.18);
    }
    out.resize(samplesFor(2.0));
    fadeOut(out, 0.15);
    return out;
}

// A gun: a crack of bright noise on a low thump.
Signal shoot() {
    Noise source(0x5eed01);
    Signal out = blank(0.55);
    Signal blast = noise(0.5, source);
    lowPass(blast, 5000, 1200);
    strike(blast, 0.0005, 0.045);
    mix(out, blast, 0.0);
    Signal crack = noise(0.012, source);
    highPass(crack, 2500);
    mix(out, crack, 0.0, 0.8);
    Signal thump = tone(0.45, 110, 38, {1, 0.3});
    strike(thump, 0.002, 0.09);
    mix(out, thump, 0.0, 1.1);
    fadeOut(out, 0.03);
    return out;
}

// An explosion: a deep boom under filtered noise that settles, with crackling debris.
Signal hit() {
    Noise source(0x5eed02);
    Signal out = blank(0.95);
    Signal roar = noise(0.95, source);
    lowPass(roar, 2000, 250);
    lowPass(roar, 1500, 200);
    strike(roar, 0.006, 0.22);
    mix(out, roar, 0.0, 3.0);
    Signal boom = tone(0.9, 75, 28, {1, 0.25});
    strike(boom, 0.004, 0.28);
    mix(out, boom, 0.0, 0.9);
    Signal sparks = blank(0.6);
    for (int i = 0; i < 45; ++i) {
        const std::size_t at = samplesFor(source.between(0.01, 0.55));
        sparks[at] += source.between(0.4, 1.0) * std::exp(-static_cast<double>(at) / 8000.0);
    }
    mix(out, bandPass(sparks, 2600, 3.0), 0.0, 2.5);
    fadeOut(out, 0.08);
    return out;
}

// A bubble: a short sine whose pitch rises as it frees itself.
Signal bubble(double frequency) {
    Signal out = tone(0.04, frequency, frequency * 1.7, {1});
    strike(out, 0.002, 0.012);
    return out;
}

// The ship goes down: a rumble and a groan falling in pitch, with bubbles rising.
Signal sink() {
    Noise source(0x5eed03);
    Signal out = blank(0.98);
    Signal rumble = noise(0.98, source);
    lowPass(rumble, 600, 110);
    lowPass(rumble, 500, 100);
    gate(rumble, 0.04, 0.3);
    mix(out, rumble, 0.0, 5.0);
    Signal groan = tone(0.95, 190, 45, {1, 0.5, 0.33, 0.25, 0.2});
    lowPass(groan, 1200);
    gate(groan, 0.03, 0.35);
    mix(out, groan, 0.0, 0.6);
    for (int i = 0; i < 14; ++i) {
        mix(out, bubble(source.between(500, 1300)), source.between(0.12, 0.85), 0.45);
    }
    out.resize(samplesFor(0.98));
    fadeOut(out, 0.08);
    return out;
}

Signal brass(double seconds, double frequency, double decay) {
    Signal out = tone(seconds, frequency, frequency, {1, 0.7, 0.5, 0.35, 0.2, 0.12});
    strike(out, 0.015, decay);
    fadeOut(out, 0.02);
    return out;
}

// The fanfare's call: three quick notes and a held fourth.
Signal youwin1() {
    Signal out = blank(0.95);
    for (int i = 0; i < 3; ++i) {
        mix(out, brass(0.09, kG4, 0.4), 0.11 * i);
    }
    mix(out, brass(0.6, kC5, 0.6), 0.33);
    fadeOut(out, 0.06);
    return out;
}

// The fanfare's answer, ending on a full chord.
Signal youwin2() {
    Signal out = blank(1.3);
    mix(out, brass(0.12, kE5, 0.4), 0.0);
    mix(out, brass(0.12, kG5, 0.4), 0.13);
    const double chord[] = {kC5, kE5, kG5, kC6};
    for (const double frequency : chord) {
        mix(out, brass(1.04, frequency, 0.5), 0.26, 0.5);
    }
    fadeOut(out, 0.15);
    return out;
}

// "Ha": breath, then an open vowel shaped by its formants, the pitch sliding down.
Signal ha(double seconds, double pitch, Noise& source) {
    Signal voice = buzz(seconds, pitch, pitch * 0.82, 5000);
    gate(voice, 0.02, 0.06);
    Signal breath = noise(0.04, source);
    gate(breath, 0.005, 0.02);
    mix(voice, breath, 0.0, 0.5);
    Signal out = bandPass(voice, 800, 6);
    mix(out, bandPass(voice, 1150, 8), 0.0, 0.6);
    mix(out, bandPass(voice, 2900, 10), 0.0, 0.25);
    return out;
}

// A mocking laugh: four syllables, each lower than the last.
Signal laugh1() {
    Noise source(0x5eed04);
    Signal out = blank(1.15);
    const double pitches[] = {270, 245, 225, 195};
    for (int i = 0; i < 4; ++i) {
        mix(out, ha(i == 3 ? 0.32 : 0.19, pitches[i], source), 0.25 * i);
    }
    out.resize(samplesFor(1.15));
    fadeOut(out, 0.04);
    return out;
}

// A soft descending close, resting on the home chord.
Signal end() {
    Signal out = blank(1.7);
    mix(out, note(0.6, kG5, {1, 0.3, 0.08}, 0.01, 0.3), 0.0, 0.8);
    mix(out, note(0.6, kE5, {1, 0.3, 0.08}, 0.01, 0.3), 0.28, 0.8);
    mix(out, note(1.14, kC5, {1, 0.3, 0.08}, 0.01, 0.5), 0.56);
    mix(out, note(1.14, kG4, {1, 0.3, 0.08}, 0.01, 0.5), 0.56, 0.5);
    out.resize(samplesFor(1.7));
    fadeOut(out, 0.25);
    return out;
}

}  // namespace

const Recipe* recipeFor(std::string_view fileName) {
    static const Recipe all[]{
        {"begin.wav", begin},     {"sonar.wav", sonar},   {"shoot.wav", shoot},
        {"hit.wav", hit},         {"sink.wav", sink},     {"youwin1.wav", youwin1},
        {"youwin2.wav", youwin2}, {"laugh1.wav", laugh1}, {"end.wav", end},
    };
    for (const Recipe& recipe : all) {
        if (recipe.fileName == fileName) {
            return &recipe;
        }
    }
    return nullptr;
}

}  // namespace soundgen
