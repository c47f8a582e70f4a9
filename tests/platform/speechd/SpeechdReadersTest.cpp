// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "PrivateSpeechd.h"
#include "platform/speechd/SpeechdReaders.h"
#include "support/Failure.h"

namespace marivox {
namespace {

using Texts = std::vector<std::string>;

std::int32_t failureNumber(const std::function<void()>& call) {
    try {
        call();
    } catch (const Failure& failure) {
        EXPECT_NE(failure.description().find("speech-dispatcher"), std::string::npos)
            << failure.description();
        return failure.number();
    }
    return 0;
}

TEST(SpeechdJaws, TextsArriveWholeInOrderWithTheirBlanksAndUtf8) {
    test::PrivateSpeechd server;
    speechd::SpeechdJawsApi jaws;
    const Texts texts{"B  7 was a miss  ", " You sank my air craft carrier  ",
                      " Hal dit: \xc3\xa9t\xc3\xa9, na\xc3\xafve. Two sentences.  "};
    for (const std::string& text : texts) {
        jaws.JFWSayString(text, false);
    }
    EXPECT_EQ(server.waitFor(3), texts);
}

TEST(SpeechdJaws, StopDropsWhatIsQueued) {
    test::PrivateSpeechd server(0.4);
    speechd::SpeechdJawsApi jaws;
    for (int i = 1; i <= 6; ++i) {
        jaws.JFWSayString("line " + std::to_string(i), false);
    }
    jaws.JFWStopSpeech();
    jaws.JFWSayString("after the stop", false);
    const Texts spoken = server.waitFor(7, std::chrono::seconds(2));
    ASSERT_FALSE(spoken.empty());
    EXPECT_EQ(spoken.back(), "after the stop");
    EXPECT_LT(spoken.size(), 7u);
}

TEST(SpeechdJaws, MissingServiceFailsCleanlyAndALaterCallConnects) {
    test::PrivateSpeechd server;
    server.stop();
    std::filesystem::remove(server.dir() / "speechd.sock");
    speechd::SpeechdJawsApi jaws;
    EXPECT_EQ(failureNumber([&] { jaws.JFWSayString("lost", false); }),
              static_cast<std::int32_t>(FailureNumber::SpeechUnavailable));
    server.start();
    jaws.JFWSayString("found", false);
    EXPECT_EQ(server.waitFor(1), (Texts{"found"}));
}

TEST(SpeechdJaws, ServerDyingMidGameIsAFailureThenAFreshConnection) {
    test::PrivateSpeechd server;
    speechd::SpeechdJawsApi jaws;
    jaws.JFWSayString("before", false);
    server.waitFor(1);
    server.stop();
    std::filesystem::remove(server.dir() / "speechd.sock");
    int failures = 0;
    for (int i = 0; i < 3; ++i) {
        failures += failureNumber([&] { jaws.JFWSayString("during", false); }) != 0 ? 1 : 0;
    }
    EXPECT_GE(failures, 2);  // the first write may still land in the dead socket's buffer
    server.start();
    jaws.JFWSayString("after", false);
    EXPECT_EQ(server.waitFor(1), (Texts{"after"}));  // the restarted server keeps a fresh log
}

TEST(SpeechdWindowEyes, CreatingTheObjectConnectsAtOnce) {
    test::PrivateSpeechd server;
    speechd::SpeechdAutomationObjects objects;
    auto speech = objects.CreateObject("GWSpeak.Speak");
    speech->SpeakString(" It is my turn targeting E  7");
    EXPECT_EQ(server.waitFor(1), (Texts{" It is my turn targeting E  7"}));

    server.stop();
    std::filesystem::remove(server.dir() / "speechd.sock");
    try {
        objects.CreateObject("GWSpeak.Speak");
        ADD_FAILURE() << "created with no speech service";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), static_cast<std::int32_t>(FailureNumber::SpeechObjectCreation));
        EXPECT_NE(failure.description().find("could not be reached"), std::string::npos);
    }
    EXPECT_THROW(objects.CreateObject("Other.Speak"), Failure);
}

}  // namespace
}  // namespace marivox
