#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "fake/ScreenRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

// Each handler of the game screen, made to fail as it begins, reports in its own form with
// its own label; a timer handler switches its timer off before reporting.
struct HandlerFailure {
    Procedure procedure;
    std::function<void(fake::ScreenRig&)> trigger;
    const char* timer;  // the handler's own timer, if it has one
};

void PrintTo(const HandlerFailure& c, std::ostream* os) {
    *os << procedureInfo(c.procedure).name;
}

void tick(fake::ScreenRig& rig, OneShotTimer& timer) {
    timer.switchOn();
    rig.timers.fireNext();
}

const std::vector<HandlerFailure>& handlerCases() {
    using R = fake::ScreenRig;
    static const std::vector<HandlerFailure> cases{
        {Procedure::mnuGameNew_Click, [](R& r) { r.screen().mnuGameNew_Click(); }, nullptr},
        {Procedure::mnuGameExit_Click, [](R& r) { r.screen().mnuGameExit_Click(); }, nullptr},
        {Procedure::mnuGameReader_Click, [](R& r) { r.screen().mnuGameReader_Click(); }, nullptr},
        {Procedure::mnuOptionsStatus_Click, [](R& r) { r.screen().mnuOptionsStatus_Click(); },
         nullptr},
        {Procedure::mnuOptionsShoot_Click, [](R& r) { r.screen().mnuOptionsShoot_Click(); },
         nullptr},
        {Procedure::mnuHelpContents_Click, [](R& r) { r.screen().mnuHelpContents_Click(); },
         nullptr},
        {Procedure::mnuHelpAbout_Click, [](R& r) { r.screen().mnuHelpAbout_Click(); }, nullptr},
        {Procedure::tmrHalDelay_Timer, [](R& r) { tick(r, r.screen().tmrHalDelay()); },
         "tmrHalDelay"},
        {Procedure::tmrTimer1_Timer, [](R& r) { tick(r, r.screen().tmrTimer1()); }, "tmrTimer1"},
        {Procedure::tmrTimer2_Timer, [](R& r) { tick(r, r.screen().tmrTimer2()); }, "tmrTimer2"},
        {Procedure::tmrStartDelay_Timer, [](R& r) { tick(r, r.screen().tmrStartDelay()); },
         "tmrStartDelay"},
        {Procedure::LoadGrid, [](R& r) { r.screen().LoadGrid(); }, nullptr},
        {Procedure::Form_KeyDown, [](R& r) { r.press(KeyCode::Down); }, nullptr},
        {Procedure::SpeakStatus, [](R& r) { r.screen().SpeakStatus(); }, nullptr},
        {Procedure::flex_RowColChange, [](R& r) { r.grid().playerMovesTo(2, 2); }, nullptr},
        {Procedure::SpeakCurrentCell, [](R& r) { r.screen().SpeakCurrentCell(); }, nullptr},
        {Procedure::flex_Click, [](R& r) { r.grid().playerClicks(2, 2); }, nullptr},
        {Procedure::BeginGame, [](R& r) { r.screen().BeginGame(); }, nullptr},
        {Procedure::GameScreen_Form_Unload, [](R& r) { r.window.unload(); }, nullptr},
    };
    return cases;
}

class HandlerFailuresTest : public ::testing::TestWithParam<HandlerFailure> {};

TEST_P(HandlerFailuresTest, ReportsWithItsLabelAndFormAndSwitchesItsTimerOffFirst) {
    const HandlerFailure& c = GetParam();
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.faults.failOn(c.procedure);
    c.trigger(rig);
    const ProcedureInfo& info = procedureInfo(c.procedure);
    const Lines& lines = rig.transcript.lines();
    const auto box = std::find_if(lines.begin(), lines.end(),
                                  [](const std::string& l) { return l.starts_with("box"); });
    ASSERT_NE(box, lines.end());
    if (info.form == ReportForm::ShowError) {
        EXPECT_EQ(*box, "box 64 \"Marivox\" \"Injected failure;" + std::string(info.label) + "\"");
        EXPECT_EQ(*(box - 1), "speak \"" + std::string(info.label) + "\"");
    } else {
        EXPECT_EQ(*box, "box 64 \"Marivox\" \"Error: 1234 Injected failure" +
                            std::string(info.label) + "\"");
    }
    if (c.timer != nullptr) {
        const auto before = info.form == ReportForm::ShowError ? box - 3 : box - 1;
        EXPECT_EQ(*before, "timer " + std::string(c.timer) + " off");
    }
    EXPECT_EQ(rig.application.ended(), c.procedure == Procedure::GameScreen_Form_Unload);
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const std::string& l) { return l.starts_with("box"); }),
              1);
}

INSTANTIATE_TEST_SUITE_P(EveryHandler, HandlerFailuresTest, ::testing::ValuesIn(handlerCases()),
                         [](const auto& info) {
                             return std::string(procedureInfo(info.param.procedure).name);
                         });

TEST(HandlerFailures, AnnouncementFailingBeforeItsNextTimerLeavesTheComputersTurnPending) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    const auto water = rig.cellHolding(rig.state().HalOcean, CellCode::OpenWater);
    rig.fireAt(water->first, water->second);
    rig.transcript.failAt("timer tmrTimer1 on");
    rig.timers.advance(10000);
    EXPECT_TRUE(rig.transcript.contains(
        "box 64 \"Marivox\" \"Error: 1234 Injected failure in tmrHalDelay_Timer()\""));
    EXPECT_EQ(rig.state().TurnState, kComputersTurn);
    EXPECT_FALSE(rig.timers.anyPending());
    // Keys are ignored now; a click on the grid still fires.
    rig.transcript.clear();
    rig.press(KeyCode::Return);
    EXPECT_TRUE(rig.transcript.lines().empty());
}

TEST(HandlerFailures, ShotFailingMidwayLeavesShootingSetSoOnlyClicksFire) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.grid().recordColours = true;
    rig.transcript.failAt("grid colours 2,2");
    rig.grid().playerClicks(2, 2);
    EXPECT_EQ(rig.state().Shooting, kTrue);
    rig.state().TurnState = kPlayersTurn;
    rig.grid().playerMovesTo(3, 3);
    rig.transcript.clear();
    rig.press(KeyCode::Return);
    EXPECT_EQ(rig.transcript.linesStartingWith("grid 3,3").size(), 0u);
    rig.grid().playerClicks(3, 3);
    EXPECT_EQ(rig.transcript.linesStartingWith("grid 3,3").size(), 1u);
}

TEST(HandlerFailures, StatusGoesOnWhenOneLineCannotBeSpoken) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.transcript.failAt("speak \" You have sank");
    rig.press(KeyCode::F2);
    EXPECT_TRUE(rig.transcript.contains("box 64 \"Marivox\" \"Injected failure; Speak()\""));
    EXPECT_EQ(rig.transcript.lines().back(), "speak \" I have sank  0 of your ships.  \"");
}

TEST(HandlerFailures, BeginGameFailingAfterSetUpStartsLeavesSettingUpAndNoGame) {
    fake::ScreenRig rig;
    rig.startAndSettle();
    rig.screen().GameInProgress = kFalse;
    rig.transcript.failAt("grid 5,5 \" \"");
    rig.screen().BeginGame();
    EXPECT_EQ(rig.screen().SettingUp, kTrue);
    EXPECT_EQ(rig.screen().GameInProgress, kFalse);
    EXPECT_FALSE(rig.screen().tmrStartDelay().isOn());
}

}  // namespace
}  // namespace marivox
