// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <thread>

#include "platform/speechd/SpeechdReaders.h"

namespace marivox {
namespace {

namespace fs = std::filesystem;

// Against a speech-dispatcher of the test's own that takes 0.4 s to say each text and logs
// what it is asked to say. Texts arrive whole, blanks and all; and each stop cuts off what
// is queued, the second as the first: a key stops speech twice before speaking, and
// whatever was said since the last stop must be silenced. Of the texts before a stop, only
// the first may have begun.
TEST(Speechd, TextsArriveWholeAndEveryStopDropsWhatIsQueued) {
    const fs::path dir =
        fs::temp_directory_path() / ("marivox-speechd-" + std::to_string(getpid()));
    const std::string start = MARIVOX_SOURCE_DIR "/tests/e2e/speechd/start-private-speechd ";
    FILE* out = ::popen((start + dir.string() + " 0.4").c_str(), "r");
    for (char line[4096]; out != nullptr && std::fgets(line, sizeof line, out) != nullptr;) {
        line[std::strcspn(line, "\n")] = '\0';
        ::putenv(::strdup(line));  // SPEECHD_ADDRESS=<address>, PID=<pid>
    }
    ASSERT_TRUE(out != nullptr && ::pclose(out) == 0 && std::getenv("PID") != nullptr);
    const int pid = std::stoi(std::getenv("PID"));
    const std::shared_ptr<void> stop(nullptr, [&](void*) {
        ::kill(pid, SIGKILL);
        fs::remove_all(dir);
    });
    // What has been said once `last` has, or after ten seconds; each log line "<time>|<text>|".
    const auto spokenUntil = [&](const std::string& last) {
        std::vector<std::string> texts;
        for (int wait = 0; wait < 500 && (texts.empty() || texts.back() != last); ++wait) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            std::ifstream log(dir / "spoken.log", std::ios::binary);
            texts.clear();
            for (std::string e; std::getline(log, e);) {
                texts.push_back(e.substr(e.find('|') + 1, e.size() - e.find('|') - 2));
            }
        }
        return texts;
    };

    speechd::SpeechdJawsApi jaws;
    std::vector<std::string> spoken, after;
    for (const std::string round : {"first", "second"}) {
        for (int i = 1; i <= 5; ++i) {
            jaws.JFWSayString(round + " " + std::to_string(i), false);
        }
        jaws.JFWStopSpeech();
        jaws.JFWStopSpeech();
        after.push_back(" after the " + round + " stop, \xc3\xa9t\xc3\xa9.  ");
        jaws.JFWSayString(after.back(), false);
        spoken = spokenUntil(after.back());
    }
    std::erase_if(spoken, [](const std::string& text) { return text.ends_with(" 1"); });
    EXPECT_EQ(spoken, after);
}

}  // namespace
}  // namespace marivox
