// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Placement.h"

#include "model/GameState.h"
#include "model/RandomNumbers.h"
#include "support/Guard.h"

namespace marivox {
namespace {

bool coversAShip(const Ocean& ocean, int row, int col, bool horizontal, int length) {
    for (int i = 0; i < length; ++i) {
        const std::int16_t code = horizontal ? ocean(row, col + i) : ocean(row + i, col);
        if (code > CellCode::OpenWater) {
            return true;
        }
    }
    return false;
}

}  // namespace

void placeShip(Ocean& ocean, const ShipInfo& ship, OverlapTest overlap, RandomSource& random) {
    const int length = ship.length;
    for (;;) {
        // The start is drawn from the whole board whatever the direction; a start too near
        // the edge costs a fresh draw of all three numbers.
        const int row = random.GetRandom(1, 9);
        const int col = random.GetRandom(1, 9);
        const int turn = random.GetRandom(1, 100);
        if (row < kFirstLine || col < kFirstLine) {
            // Only a failed draw gives this; laying the ship would write into the rim.
            throw Failure(FailureNumber::IndexOutOfRange, "Ship start outside the ocean");
        }
        const bool horizontal = turn > 50;
        const int end = (horizontal ? col : row) + length - 1;
        if (end > kLastLine) {
            continue;
        }
        if (overlap == OverlapTest::AgainstOcean &&
            coversAShip(ocean, row, col, horizontal, length)) {
            continue;
        }
        for (int i = 0; i < length; ++i) {
            if (horizontal) {
                ocean.set(row, col + i, ship.intactCode);
            } else {
                ocean.set(row + i, col, ship.intactCode);
            }
        }
        return;
    }
}

void Placement::place(Procedure procedure, Ocean& ocean, ShipType type, OverlapTest overlap) {
    guard_.run(procedure, [&] { placeShip(ocean, shipInfo(type), overlap, random_); });
}

// The carriers need no overlap test: each is the first ship laid on a freshly emptied ocean.
void Placement::HalPlaceCarrier() {
    place(Procedure::HalPlaceCarrier, state_.HalOcean, ShipType::Carrier, OverlapTest::None);
}
void Placement::MyPlaceCarrier() {
    place(Procedure::MyPlaceCarrier, state_.MyOcean, ShipType::Carrier, OverlapTest::None);
}
void Placement::HalPlaceBattleship() {
    place(Procedure::HalPlaceBattleship, state_.HalOcean, ShipType::Battleship,
          OverlapTest::AgainstOcean);
}
void Placement::MyPlaceBattleship() {
    place(Procedure::MyPlaceBattleship, state_.MyOcean, ShipType::Battleship,
          OverlapTest::AgainstOcean);
}
void Placement::HalPlaceCruiser() {
    place(Procedure::HalPlaceCruiser, state_.HalOcean, ShipType::Cruiser,
          OverlapTest::AgainstOcean);
}
void Placement::MyPlaceCruiser() {
    place(Procedure::MyPlaceCruiser, state_.MyOcean, ShipType::Cruiser, OverlapTest::AgainstOcean);
}
void Placement::HalPlaceDestroyer() {
    place(Procedure::HalPlaceDestroyer, state_.HalOcean, ShipType::Destroyer,
          OverlapTest::AgainstOcean);
}
void Placement::MyPlaceDestroyer() {
    place(Procedure::MyPlaceDestroyer, state_.MyOcean, ShipType::Destroyer,
          OverlapTest::AgainstOcean);
}
void Placement::HalPlacePatrol() {
    place(Procedure::HalPlacePatrol, state_.HalOcean, ShipType::PatrolBoat,
          OverlapTest::AgainstOcean);
}
void Placement::MyPlacePatrol() {
    place(Procedure::MyPlacePatrol, state_.MyOcean, ShipType::PatrolBoat,
          OverlapTest::AgainstOcean);
}
void Placement::HalPlaceSub() {
    place(Procedure::HalPlaceSub, state_.HalOcean, ShipType::Submarine, OverlapTest::AgainstOcean);
}
void Placement::MyPlaceSub() {
    place(Procedure::MyPlaceSub, state_.MyOcean, ShipType::Submarine, OverlapTest::AgainstOcean);
}

void Placement::placeBothFleets() {
    HalPlaceCarrier();
    MyPlaceCarrier();
    HalPlaceBattleship();
    MyPlaceBattleship();
    HalPlaceCruiser();
    MyPlaceCruiser();
    HalPlaceDestroyer();
    MyPlaceDestroyer();
    HalPlacePatrol();
    MyPlacePatrol();
    HalPlaceSub();
    MyPlaceSub();
}

}  // namespace marivox
