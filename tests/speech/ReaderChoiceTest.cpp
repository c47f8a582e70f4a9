// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake/ScreenRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;
constexpr const char* kSetting = "Marivox/StartUp/Reader";

TEST(ReaderChoice, FirstStartOffersJawsFirstAndStoresTheChoice) {
    fake::ScreenRig rig;
    rig.readerDialog.thenChoose(0);
    rig.system.readerChoice.GetScreenReader();
    EXPECT_EQ(rig.readerDialog.items(), (Lines{"JAWS For Windows", "Window-Eyes"}));
    EXPECT_EQ(rig.readerDialog.indexWhenOpened(), 0);
    EXPECT_EQ(rig.settings.stored[kSetting], "JFW");
    EXPECT_EQ(rig.system.reader.ScreenReader, "JFW");
    rig.system.speech.Speak("x");
    EXPECT_EQ(rig.transcript.lines().back(), "speak \"x\"");
}

TEST(ReaderChoice, StoredWindowEyesNeedsNoDialogAndCreatesTheObject) {
    fake::ScreenRig rig;
    rig.settings.stored[kSetting] = "WE";
    rig.system.readerChoice.GetScreenReader();
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"setting get Marivox/StartUp/Reader", "setting get Marivox/StartUp/Reader",
                     "create GWSpeak.Speak"}));
    EXPECT_NE(rig.system.reader.WESpeech, nullptr);
}

TEST(ReaderChoice, StoredNoneAsksAgainLikeNothingStored) {
    fake::ScreenRig rig;
    rig.settings.stored[kSetting] = "None";
    rig.readerDialog.thenChoose(1);
    rig.system.readerChoice.GetScreenReader();
    EXPECT_TRUE(rig.transcript.contains("reader dialog open"));
    EXPECT_EQ(rig.settings.stored[kSetting], "WE");
    EXPECT_EQ(rig.transcript.lines().back(), "create GWSpeak.Speak");
}

TEST(ReaderChoice, OkWithNothingSelectedIsRefusedUntilAReaderIsChosen) {
    fake::ScreenRig rig;
    rig.readerDialog.thenChoose(ReaderDialog::kNoSelection);
    rig.readerDialog.thenCloseBox();
    rig.readerDialog.thenChoose(1);
    rig.system.readerChoice.GetScreenReader();
    const std::string refusal =
        "box 64 \"Screen Reader\" \"You must choose the type of screen reader software you are "
        "using. \"";
    EXPECT_EQ(rig.transcript.linesStartingWith("box"), (Lines{refusal, refusal}));
    EXPECT_EQ(rig.settings.stored[kSetting], "WE");
}

TEST(ReaderChoice, ClosingTheFirstDialogStoresTheEmptyChoiceAndNeverAsksAgain) {
    fake::ScreenRig rig;
    rig.readerDialog.thenCloseBox();
    rig.system.readerChoice.GetScreenReader();
    EXPECT_EQ(rig.settings.stored[kSetting], "");
    rig.transcript.clear();
    rig.system.readerChoice.GetScreenReader();
    EXPECT_FALSE(rig.transcript.contains("reader dialog open"));
}

TEST(ReaderChoice, MenuCommandClosedWithTheBoxRewritesAndReplacesTheObject) {
    fake::ScreenRig rig;
    rig.startAndSettle(" WE ");
    rig.readerDialog.thenCloseBox();
    rig.screen().mnuGameReader_Click();
    EXPECT_EQ(rig.transcript.linesStartingWith("setting save"),
              (Lines{"setting save Marivox/StartUp/Reader \"WE\""}));
    const Lines& lines = rig.transcript.lines();
    EXPECT_EQ(Lines(lines.end() - 2, lines.end()), (Lines{"create GWSpeak.Speak", "we released"}));
}

TEST(ReaderChoice, ChoosingJawsAfterWindowEyesKeepsTheOldObject) {
    fake::ScreenRig rig;
    rig.startAndSettle("WE");
    rig.readerDialog.thenChoose(0);
    rig.screen().mnuGameReader_Click();
    EXPECT_FALSE(rig.transcript.contains("we released"));
    EXPECT_NE(rig.system.reader.WESpeech, nullptr);
    EXPECT_EQ(rig.settings.stored[kSetting], "JFW");
}

TEST(ReaderChoice, FailedObjectCreationIsReportedWithTheSettingAlreadyWritten) {
    fake::ScreenRig rig;
    rig.readerDialog.thenChoose(1);
    rig.transcript.failAt("create", 1, 2003, "Window-Eyes is not installed");
    rig.system.readerChoice.GetScreenReader();
    EXPECT_EQ(rig.settings.stored[kSetting], "WE");
    EXPECT_EQ(rig.system.reader.ScreenReader, "WE");
    EXPECT_EQ(rig.system.reader.WESpeech, nullptr);
    // The report cannot be spoken (no object), so only its box remains.
    EXPECT_EQ(rig.transcript.linesStartingWith("box"),
              (Lines{"box 64 \"Marivox\" \"Window-Eyes is not installed; GetScreenReader()\""}));
}

TEST(ReaderChoice, SettingsStoreFailuresAreSpokenAndShown) {
    fake::ScreenRig rig;
    rig.settings.stored[kSetting] = "JFW";
    rig.system.readerChoice.GetScreenReader();
    rig.transcript.clear();
    rig.transcript.failAt("setting save", 1, 4001, "Settings folder is read-only");
    rig.system.readerChoice.SaveScreenReader();
    EXPECT_EQ(rig.transcript.linesStartingWith("speak"),
              (Lines{"speak \"Settings folder is read-only\"", "speak \" SaveScreenReader()\""}));
}

}  // namespace
}  // namespace marivox
