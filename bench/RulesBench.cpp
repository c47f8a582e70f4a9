// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <random>

#include "fake/Rig.h"

namespace marivox {
namespace {

void GetRandomCall(benchmark::State& bench) {
    fake::Rig rig;
    for (auto _ : bench) {
        benchmark::DoNotOptimize(rig.system.random.GetRandom(1, 9));
    }
}
BENCHMARK(GetRandomCall);

// What BeginGame spends on the boards: emptying them and laying both fleets.
void FleetPlacement(benchmark::State& bench) {
    fake::Rig rig;
    Boards boards(rig.state(), rig.system.guard);
    Placement placement(rig.state(), rig.system.random, rig.system.guard);
    for (auto _ : bench) {
        boards.InitializeBoards();
        placement.placeBothFleets();
        benchmark::DoNotOptimize(rig.state().HalOcean);
    }
}
BENCHMARK(FleetPlacement)->Unit(benchmark::kMicrosecond);

// A whole game through the game screen, a random player clicking against the computer in
// virtual time, speech and sound recorded by the fakes.
void HeadlessGame(benchmark::State& bench) {
    std::uint64_t seed = 1;
    for (auto _ : bench) {
        fake::Rig rig(seed);
        std::mt19937 random(static_cast<std::uint32_t>(seed++));
        rig.system.Main();
        while (!rig.app.ended) {  // until the computer's or the player's win is declined
            rig.window.board.playerClicks(1 + random() % 9, 1 + random() % 9);
            rig.timers.advance(6500);
        }
    }
}
BENCHMARK(HeadlessGame)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace marivox
