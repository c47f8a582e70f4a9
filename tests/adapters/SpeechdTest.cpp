// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <thread>

#include "adapters/speechd/SpeechdReaders.h"
#include "ports/Failure.h"

namespace marivox {
namespace {

namespace fs = std::filesystem;

// A speech-dispatcher of the test's own that takes 0.4 s to say each text and logs what it
// is asked to say.
class PrivateSpeechd : public ::testing::Test {
  protected:
    const fs::path dir =
        fs::temp_directory_path() / ("marivox-speechd-" + std::to_string(getpid()));
    int pid = 0;

    void SetUp() override {
        const std::string script = MARIVOX_SOURCE_DIR "/tests/e2e/speechd/start-private-speechd ";
        FILE* out = ::popen((script + dir.string() + " 0.4").c_str(), "r");
        for (char line[4096]; out != nullptr && std::fgets(line, sizeof line, out) != nullptr;) {
            line[std::strcspn(line, "\n")] = '\0';
            ::setenv(std::string(line, std::strchr(line, '=')).c_str(), std::strchr(line, '=') + 1,
                     1);  // SPEECHD_ADDRESS=<address>, PID=<pid>
        }
        ASSERT_TRUE(out != nullptr && ::pclose(out) == 0 && std::getenv("PID") != nullptr);
        pid = std::stoi(std::getenv("PID"));
    }
    void TearDown() override {
        ::kill(pid, SIGKILL);
        fs::remove_all(dir);
    }
    void kill() {
        ::kill(pid, SIGKILL);
        while (::kill(pid, 0) == 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }
    // What has been said once `last` has, or after ten seconds; each log line "<time>|<text>|".
    std::vector<std::string> spokenUntil(const std::string& last) {
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
    }

    // The user-interface thread: calls posted to it wait until the test runs them.
    std::mutex mutex;
    std::vector<std::function<void()>> posted;
    speechd::SpeechdQueue::Post post = [this](std::function<void()> call) {
        const std::lock_guard lock(mutex);
        posted.push_back(std::move(call));
    };
    std::size_t postedCount() {
        const std::lock_guard lock(mutex);
        return posted.size();
    }
};

// Calls are made in order: texts arrive whole, blanks and all, and each
// stop cuts off what was said before it, the second as the first (a key stops speech twice
// before speaking), while a text after a stop is heard. Of the texts before a stop, only
// the first may have begun.
TEST_F(PrivateSpeechd, CallsAreMadeInOrderAndEveryStopDropsWhatCameBefore) {
    speechd::SpeechdVoice voice(nullptr, post, {});
    std::vector<std::string> spoken, after;
    for (const std::string round : {"first", "second"}) {
        for (int i = 1; i <= 5; ++i) {
            voice.say(round + " " + std::to_string(i));
        }
        voice.stop();
        voice.stop();
        after.push_back(" after the " + round + " stop, \xc3\xa9t\xc3\xa9.  ");
        voice.say(after.back());
        spoken = spokenUntil(after.back());
    }
    std::erase_if(spoken, [](const std::string& text) { return text.ends_with(" 1"); });
    EXPECT_EQ(spoken, after);
}

// A server that dies: each call after it fails, and each failure is posted to the
// user-interface thread with the kind of call, in order, never told from the speaking
// thread. The server found again once back is heard end to end, in test_hostile.py.
TEST_F(PrivateSpeechd, FailuresArePostedInOrderWithTheirKindOfCall) {
    std::vector<std::string> told;
    speechd::SpeechdVoice voice(nullptr, post, [&](SpeechCall call) -> FailureTeller {
        return [&told, call](std::exception_ptr failure) {
            try {
                std::rethrow_exception(failure);
            } catch (const Failure& known) {
                told.push_back((call == SpeechCall::Say ? "say: " : "stop: ") +
                               known.description());
            }
        };
    });
    voice.say("before");
    spokenUntil("before");
    kill();
    voice.stop();
    voice.say("lost");
    for (int wait = 0; wait < 500 && postedCount() < 2; ++wait) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    EXPECT_TRUE(told.empty());
    for (auto& call : [&] {
             const std::lock_guard lock(mutex);
             return std::exchange(posted, {});
         }()) {
        call();
    }
    const std::string service = "The speech service (speech-dispatcher at " +
                                std::string(std::getenv("SPEECHD_ADDRESS")) + ") ";
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0], "stop: " + service + "did not stop speaking; the connection was lost");
    EXPECT_TRUE(told[1].starts_with("say: " + service + "could not be reached: ")) << told[1];
}

}  // namespace
}  // namespace marivox
