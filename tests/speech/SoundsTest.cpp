// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake/ScreenRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

TEST(PlaySound, OpensTheProgramFoldersFileAsksOnceAndCloses) {
    fake::ScreenRig rig;
    rig.wav.protocol = true;
    rig.application.setProgramFolder("/usr/lib/marivox");
    rig.system.sounds.PlaySound("\\shoot.wav");
    EXPECT_EQ(rig.transcript.lines(), (Lines{"sound /usr/lib/marivox/shoot.wav",
                                             "wav play 0 -1 true", "wav status 0", "wav close"}));
}

TEST(PlaySound, BusyOutputDelaysTheSoundButDoesNotDropIt) {
    fake::ScreenRig rig;
    rig.wav.protocol = true;
    rig.wav.busyReads = 2;
    rig.system.sounds.PlaySound("\\hit.wav");
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"sound /opt/marivox/hit.wav", "wav play 0 -1 true", "wav status 320",
                     "wav play 0 -1 true", "wav status 320", "wav play 0 -1 true", "wav status 0",
                     "wav close"}));
    EXPECT_GT(rig.sleeper.slept.count(), 0);
}

TEST(PlaySound, OutputBusyForGoodIsGivenUpWithinABound) {
    fake::ScreenRig rig;
    rig.wav.busyReads = 1000000;
    rig.system.sounds.PlaySound("\\sink.wav");
    EXPECT_LT(rig.wav.plays, 1000000);
    EXPECT_LE(rig.sleeper.slept, std::chrono::seconds(5));
    EXPECT_TRUE(rig.transcript.linesStartingWith("box").empty());
}

TEST(PlaySound, FailureOfTheFileIsReportedAndTheCallerGoesOn) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.transcript.failAt("sound /opt/marivox/shoot.wav", 1, 3002, "The sound file is damaged");
    const auto water = rig.cellHolding(rig.state().HalOcean, CellCode::OpenWater);
    rig.fireAt(water->first, water->second);
    EXPECT_TRUE(rig.transcript.contains(
        "box 64 \"Marivox\" \"Error: 3002 The sound file is damaged in PlaySound()\""));
    EXPECT_TRUE(rig.screen().tmrHalDelay().isOn());
}

}  // namespace
}  // namespace marivox
