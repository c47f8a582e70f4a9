// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fake/ScreenRig.h"

namespace marivox {
namespace {

using Lines = std::vector<std::string>;

struct SpeechRig : fake::ScreenRig {
    void choose(const std::string& reader, bool withObject) {
        system.reader.ScreenReader = reader;
        system.reader.WESpeech = withObject ? automation.CreateObject("GWSpeak.Speak") : nullptr;
        transcript.clear();
    }
    void speakAndStop(std::string_view text) {
        system.speech.Speak(text);
        system.speech.StopSpeech();
    }
};

TEST(Speech, ChoiceIsMatchedTrimmedExactlyAndCaseSensitively) {
    const std::vector<std::pair<std::string, Lines>> cases{
        {"JFW", {"speak \"hi\"", "stop"}},
        {"  JFW ", {"speak \"hi\"", "stop"}},
        {"WE", {"we speak \"hi\"", "we silence"}},
        {" WE ", {"we speak \"hi\"", "we silence"}},
        {"we", {}},
        {"Jfw", {}},
        {"None", {}},
        {"", {}},
    };
    for (const auto& [reader, expected] : cases) {
        SpeechRig rig;
        rig.choose(reader, true);
        rig.speakAndStop("hi");
        EXPECT_EQ(rig.transcript.lines(), expected) << "'" << reader << "'";
    }
}

TEST(Speech, EmptyTextGoesToJawsButNeverToWindowEyes) {
    SpeechRig jaws;
    jaws.choose("JFW", false);
    jaws.system.speech.Speak("");
    jaws.system.speech.Speak("   ");
    EXPECT_EQ(jaws.transcript.lines(), (Lines{"speak \"\"", "speak \"   \""}));

    SpeechRig windowEyes;
    windowEyes.choose("WE", true);
    windowEyes.system.speech.Speak("");
    windowEyes.system.speech.Speak("   ");
    EXPECT_EQ(windowEyes.transcript.lines(), (Lines{"we speak \"   \""}));
}

TEST(Speech, SuccessiveTextsQueueInOrderWithoutInterrupting) {
    SpeechRig rig;
    rig.choose("JFW", false);
    for (const char* text : {" one  ", " two  ", " three  "}) {
        rig.system.speech.Speak(text);
    }
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"speak \" one  \"", "speak \" two  \"", "speak \" three  \""}));
}

TEST(Speech, FailureIsSpokenAndShownOnceAndTheNextCallTriesAfresh) {
    SpeechRig rig;
    rig.choose("JFW", false);
    rig.transcript.failAt("speak \"first\"", 1, 1234, "Speech lost");
    rig.system.speech.Speak("first");
    rig.system.speech.Speak("second");
    EXPECT_EQ(
        rig.transcript.lines(),
        (Lines{"FAILED speak \"first\"", "speak \"Speech lost\"", "speak \" Speak()\"",
               "box 64 \"Marivox\" \"Speech lost; Speak()\"", "answer 1", "speak \"second\""}));
}

TEST(Speech, WindowEyesWithoutItsObjectReportsOnceThoughTheReportCannotBeSpoken) {
    SpeechRig rig;
    rig.choose("WE", false);
    rig.system.speech.StopSpeech();
    EXPECT_EQ(rig.transcript.lines(),
              (Lines{"box 64 \"Marivox\" \"The Window-Eyes speech object has not been created; "
                     "StopSpeech()\"",
                     "answer 1"}));
}

}  // namespace
}  // namespace marivox
