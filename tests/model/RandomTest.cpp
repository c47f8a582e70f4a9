// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>
#include <set>

#include "fake/RulesRig.h"

namespace marivox {
namespace {

TEST(GetRandom, StaysWithinItsBoundsAndReachesEveryValue) {
    fake::RulesRig rig(17);
    std::array<int, 11> seen{};
    for (int i = 0; i < 2000; ++i) {
        const int value = rig.random.GetRandom(1, 9);
        ASSERT_GE(value, 1);
        ASSERT_LE(value, 9);
        ++seen[static_cast<std::size_t>(value)];
    }
    for (int value = 1; value <= 9; ++value) {
        EXPECT_GT(seen[static_cast<std::size_t>(value)], 150) << value;
    }
    EXPECT_EQ(rig.random.GetRandom(5, 5), 5);
    EXPECT_TRUE(rig.transcript.lines().empty());
}

TEST(GetRandom, DrawsAboveFiftyAboutHalfTheTime) {
    fake::RulesRig rig(23);
    constexpr int kDraws = 4000;
    int above = 0;
    for (int i = 0; i < kDraws; ++i) {
        above += rig.random.GetRandom(1, 100) > 50 ? 1 : 0;
    }
    // Five standard deviations of a fair coin over 4000 throws is about 158.
    EXPECT_NEAR(above, kDraws / 2, 158);
}

TEST(GetRandom, GivesFreshValuesWhenTheClockDoesNotMove) {
    fake::FakeClock stoppedClock(99, 0);
    RandomGenerator generator(stoppedClock, 5);
    fake::RulesRig rig;
    RandomNumbers random(generator, rig.guard);
    std::set<int> values;
    for (int i = 0; i < 20; ++i) {
        values.insert(random.GetRandom(1, 100));
    }
    EXPECT_GT(values.size(), 10u);
}

TEST(RandomGenerator, ReseedingFoldsIntoTheStateInsteadOfRestarting) {
    fake::FakeClock clock;
    RandomGenerator generator(clock, 42);
    generator.reseed(7);
    const double first = generator.draw();
    generator.reseed(7);
    const double second = generator.draw();
    EXPECT_NE(first, second);
    for (int i = 0; i < 1000; ++i) {
        const double u = generator.draw();
        ASSERT_GE(u, 0.0);
        ASSERT_LT(u, 1.0);
    }
}

TEST(RandomGenerator, SameSeedAndClockGiveTheSameSequence) {
    fake::FakeClock clockA(3, 11);
    fake::FakeClock clockB(3, 11);
    fake::FakeClock clockC(4, 11);
    RandomGenerator a(clockA, 77);
    RandomGenerator b(clockB, 77);
    RandomGenerator c(clockC, 77);
    int differences = 0;
    for (int i = 0; i < 50; ++i) {
        a.reseedFromClock();
        b.reseedFromClock();
        c.reseedFromClock();
        const double fromA = a.draw();
        EXPECT_EQ(fromA, b.draw());
        differences += fromA != c.draw() ? 1 : 0;
    }
    EXPECT_EQ(differences, 50);
}

TEST(GetRandom, SixteenBitOverflowIsReportedNotWrapped) {
    fake::RulesRig rig;
    EXPECT_EQ(rig.random.GetRandom(-32768, 32767), 0);
    EXPECT_EQ(rig.transcript.lines().front(),
              "box 64 \"Marivox\" \"Error: 1001 Overflow of a 16-bit value in GetRandom()\"");
}

}  // namespace
}  // namespace marivox
