// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include "fake/HeadlessGame.h"

namespace marivox {
namespace {

void GetRandomCall(benchmark::State& bench) {
    fake::RulesRig rig;
    for (auto _ : bench) {
        benchmark::DoNotOptimize(rig.random.GetRandom(1, 9));
    }
}
BENCHMARK(GetRandomCall);

// What BeginGame spends on the boards: emptying them and laying both fleets.
void FleetPlacement(benchmark::State& bench) {
    fake::RulesRig rig;
    for (auto _ : bench) {
        rig.boards.InitializeBoards();
        rig.placement.placeBothFleets();
        benchmark::DoNotOptimize(rig.state.HalOcean);
    }
}
BENCHMARK(FleetPlacement)->Unit(benchmark::kMicrosecond);

// A whole game by the rules, a random player against the computer, speech and sound
// recorded by the fakes.
void HeadlessGame(benchmark::State& bench) {
    fake::RulesRig rig;
    std::uint64_t seed = 1;
    for (auto _ : bench) {
        rig.newGame();
        benchmark::DoNotOptimize(fake::playHeadlessGame(rig, fake::randomAim(seed++)));
    }
}
BENCHMARK(HeadlessGame)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace marivox
