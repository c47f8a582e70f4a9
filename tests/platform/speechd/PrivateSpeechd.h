// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <signal.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace marivox::test {

// A speech-dispatcher of the test's own that records what it is asked to say. It is
// stopped by its pid when the object goes, whether the test passed or not.
class PrivateSpeechd {
  public:
    explicit PrivateSpeechd(double secondsPerUtterance = 0)
        : dir_(
              std::filesystem::temp_directory_path() /
              ("marivox-speechd-" + std::to_string(::getpid()) + "-" + std::to_string(++count()))) {
        std::filesystem::create_directories(dir_);
        start(secondsPerUtterance);
    }
    ~PrivateSpeechd() {
        stop();
        std::error_code ignored;
        std::filesystem::remove_all(dir_, ignored);
    }

    void start(double secondsPerUtterance = 0) {
        const std::string command = std::string(MARIVOX_SOURCE) +
                                    "/tests/e2e/speechd/start-private-speechd '" + dir_.string() +
                                    "' " + std::to_string(secondsPerUtterance);
        FILE* out = ::popen(command.c_str(), "r");
        if (out == nullptr) {
            throw std::runtime_error("cannot run the launcher");
        }
        char line[4096];
        while (std::fgets(line, sizeof line, out) != nullptr) {
            std::string text(line);
            text.erase(text.find_last_not_of('\n') + 1);
            if (text.starts_with("SPEECHD_ADDRESS=")) {
                address_ = text.substr(16);
            } else if (text.starts_with("PID=")) {
                pid_ = std::stoi(text.substr(4));
            }
        }
        if (::pclose(out) != 0 || pid_ <= 0) {
            throw std::runtime_error("the private speech-dispatcher did not start");
        }
        ::setenv("SPEECHD_ADDRESS", address_.c_str(), 1);
    }

    void stop() {
        if (pid_ > 0) {
            ::kill(pid_, SIGKILL);
            pid_ = 0;
        }
    }

    // Utterances recorded so far, text only, in order.
    std::vector<std::string> spoken() const {
        std::vector<std::string> texts;
        std::ifstream log(dir_ / "spoken.log", std::ios::binary);
        std::string line;
        while (std::getline(log, line)) {
            const auto bar = line.find('|');
            if (bar != std::string::npos && line.ends_with('|')) {
                texts.push_back(line.substr(bar + 1, line.size() - bar - 2));
            }
        }
        return texts;
    }

    // Waits, at most `limit`, until `count` utterances are recorded.
    std::vector<std::string> waitFor(
        std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(10)) const {
        const auto deadline = std::chrono::steady_clock::now() + limit;
        while (spoken().size() < count && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        return spoken();
    }

    const std::string& address() const { return address_; }
    const std::filesystem::path& dir() const { return dir_; }

  private:
    static int& count() {
        static int n = 0;
        return n;
    }
    std::filesystem::path dir_;
    std::string address_;
    int pid_ = 0;
};

}  // namespace marivox::test
