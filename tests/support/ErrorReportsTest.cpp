// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake/RulesRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

TEST(ReportError, ShowsNumberDescriptionAndLabelWithTheInformationIcon) {
    fake::RulesRig rig;
    rig.reports.report(Procedure::MyShot, Failure(13, "Type mismatch"));
    rig.reports.report(Procedure::GameScreen_Form_Unload, Failure(-2147, "Lost"));
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"box 64 \"Marivox\" \"Error: 13 Type mismatch in MyShot()\"", "answer 1",
                     "box 64 \"Marivox\" \"Error: -2147 Lost in Form_Unload()\"", "answer 1"}));
}

TEST(ShowError, SpeaksDescriptionAndLabelApartThenShowsThemJoinedBySemicolon) {
    fake::RulesRig rig;
    rig.reports.report(Procedure::GetScreenReader, Failure(5, "D"));
    rig.reports.report(Procedure::frmReader_btnOK_Click, Failure(5, "E"));
    EXPECT_EQ(
        rig.transcript.lines(),
        (Lines{"speak \"D\"", "speak \" GetScreenReader()\"",
               "box 64 \"Marivox\" \"D; GetScreenReader()\"", "answer 1", "speak \"E\"",
               "speak \"btnOK_Click()\"", "box 64 \"Marivox\" \"E;btnOK_Click()\"", "answer 1"}));
}

TEST(ShowError, ItsOwnFailureShowsAPlainBoxTitledByTheApplicationAndEndsTheProgram) {
    fake::RulesRig rig;
    rig.application.setTitle("Marivox!");
    rig.transcript.failAt("box 64", 1, 7, "Out of memory");
    rig.reports.report(Procedure::tmrStartDelay_Timer, Failure(3, "D"));
    EXPECT_EQ(
        rig.transcript.lines(),
        (Lines{"speak \"D\"", "speak \"tmrStartDelay_Timer()\"",
               "FAILED box 64 \"Marivox\" \"D;tmrStartDelay_Timer()\"",
               "box 0 \"Marivox!\" \"Out of memory ShowError()\"", "answer 1", "end program"}));
}

// Speech that reports its own failures, as the game's speech does, and fails every time.
class BrokenSpeech : public Speech {
  public:
    explicit BrokenSpeech(ErrorReports& reports) : reports_(reports) {}
    void Speak(std::string_view) override {
        ++attempts;
        reports_.report(Procedure::Speak, Failure(FailureNumber::SpeechUnavailable, "No speech"));
    }
    void StopSpeech() override {}
    int attempts = 0;

  private:
    ErrorReports& reports_;
};

TEST(ShowError, ASpeechFailureWhileSpeakingAReportIsNotReportedAgain) {
    fake::RulesRig rig;
    BrokenSpeech speech(rig.reports);
    rig.reports.speakThrough([&speech](std::string_view text) { speech.Speak(text); });
    speech.Speak("It is my turn targeting ");
    EXPECT_EQ(speech.attempts, 3);  // the text, then the report's two lines
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"box 64 \"Marivox\" \"No speech; Speak()\"", "answer 1"}));
    // A later failure is reported afresh.
    speech.Speak("again");
    EXPECT_EQ(rig.transcript.linesStartingWith("box").size(), 2u);
}

TEST(RunHelpBox, ShowsDescriptionAndLabelWithNoIconOrNumber) {
    fake::RulesRig rig;
    rig.reports.report(Procedure::RunHelp, Failure(FailureNumber::Shell, "No viewer"));
    EXPECT_EQ(rig.transcript.lines().front(), "box 0 \"Marivox\" \"No viewer in RunHelp()\"");
}

TEST(Guard, TimerStepRunsBeforeTheReportAndEndingAfterIt) {
    fake::RulesRig rig;
    std::vector<std::string> order;
    rig.guard.run(
        Procedure::tmrTimer1_Timer,
        [&] {
            order.push_back("body");
            throw Failure(1, "x");
        },
        {[&] { rig.transcript.record("timer off"); }, [&] { rig.transcript.record("after"); }});
    EXPECT_EQ(order, (Lines{"body"}));
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"timer off", "box 64 \"Marivox\" \"Error: 1 x in tmrTimer1_Timer()\"",
                     "answer 1", "after"}));
}

TEST(Guard, AnyStandardExceptionIsReportedAsAFailure) {
    fake::RulesRig rig;
    rig.guard.run(Procedure::LoadGrid, [] { throw std::out_of_range("bad index"); });
    EXPECT_EQ(rig.transcript.lines().front(),
              "box 64 \"Marivox\" \"Error: 9001 bad index in LoadGrid()\"");
}

}  // namespace
}  // namespace marivox
