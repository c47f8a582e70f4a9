// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake/ScreenRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

TEST(Help, HandsTheProgramFoldersHelpFileToTheShellAsItStands) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.screen().mnuHelpContents_Click();
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"shell 0 null \"/opt/marivox\\marvox.hlp\" null \"C:\\\" 1"}));
}

TEST(Help, WithNoHelpFileSaysSoAndOpensNothing) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.application.setHelpFile("");
    rig.screen().mnuHelpContents_Click();
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"box 64 \"Marivox\" \"Unable to display Help Contents. There is no Help "
                     "associated with this project.\"",
                     "answer 1"}));
}

TEST(Help, ShellFailureIsShownWithoutNumberOrIcon) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.transcript.failAt("shell", 1, 5001, "The help viewer could not be started");
    rig.screen().mnuHelpContents_Click();
    EXPECT_EQ(rig.transcript.linesStartingWith("box"),
              (Lines{"box 0 \"Marivox\" \"The help viewer could not be started in RunHelp()\""}));
}

TEST(About, ShowsTitleAndVersionAndClosesOnOk) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.screen().mnuHelpAbout_Click();
    EXPECT_EQ(rig.transcript.lines(), (Lines{"about open", "about version \"Version 1.0.0\"",
                                             "about title \"About Marivox\"", "about closed"}));
}

}  // namespace
}  // namespace marivox
