// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace marivox::test {

// A PulseAudio server of our own, with no system daemon, whose only sink writes into a FIFO
// that a thread records: what the player sends is exactly what the recording holds. The
// sink is paced by the clock, so samples in the recording stand for real time.
//
// As root, pulseaudio only warns ("not intended to be run as root") when --system=false is
// given with runtime, state and home folders of its own; nothing else is needed. Clients
// are pointed at it with PULSE_SERVER, and kept off the user's configuration and cookie by
// PULSE_CLIENTCONFIG and PULSE_COOKIE. The server dies with the test process (parent-death
// signal) and is otherwise stopped by its pid.
class PrivatePulse {
  public:
    using Clock = std::chrono::steady_clock;
    static constexpr int kRate = 44100;

    PrivatePulse()
        : dir_(std::filesystem::temp_directory_path() /
               ("marivox-pulse-" + std::to_string(::getpid()) + "-" + std::to_string(++count()))) {
        std::filesystem::create_directories(dir_ / "home");
        std::filesystem::create_directories(dir_ / "runtime");
        ::chmod((dir_ / "runtime").c_str(), 0700);
        const auto fifo = dir_ / "sink.fifo";
        if (::mkfifo(fifo.c_str(), 0600) != 0) {
            throw std::runtime_error("cannot make the sink's FIFO");
        }
        // Opened for writing too, so the FIFO never reads as closed while the server is
        // down between a stop and a start.
        fifo_ = ::open(fifo.c_str(), O_RDWR | O_NONBLOCK);
        std::ofstream(dir_ / "client.conf") << "autospawn = no\n";
        std::ofstream(dir_ / "server.pa")
            << "load-module module-native-protocol-unix auth-anonymous=1 socket=" << socket()
            << "\nload-module module-pipe-sink sink_name=recorder file=" << fifo.string()
            << " format=s16le rate=" << kRate
            << " channels=1 use_system_clock_for_timing=yes\nset-default-sink recorder\n";
        reader_ = std::thread([this] { record(); });
        ::setenv("PULSE_SERVER", ("unix:" + socket()).c_str(), 1);
        ::setenv("PULSE_CLIENTCONFIG", (dir_ / "client.conf").c_str(), 1);
        ::setenv("PULSE_COOKIE", (dir_ / "cookie").c_str(), 1);
        start();
    }

    ~PrivatePulse() {
        stop();
        reading_ = false;
        reader_.join();
        ::close(fifo_);
        ::unsetenv("PULSE_SERVER");
        std::error_code ignored;
        std::filesystem::remove_all(dir_, ignored);
    }

    void start() {
        // Everything the child needs is made before the fork: a child of a threaded
        // process may only call what is safe in a signal handler.
        const std::string home = (dir_ / "home").string();
        const std::string runtime = (dir_ / "runtime").string();
        std::vector<std::string> environment{"HOME=" + home, "XDG_RUNTIME_DIR=" + runtime,
                                             "PULSE_RUNTIME_PATH=" + runtime,
                                             "PULSE_STATE_PATH=" + home};
        for (char** variable = environ; *variable != nullptr; ++variable) {
            const std::string entry = *variable;
            const std::string name = entry.substr(0, entry.find('='));
            if (name != "HOME" && name != "XDG_RUNTIME_DIR" && !name.starts_with("PULSE_")) {
                environment.push_back(entry);
            }
        }
        std::vector<std::string> arguments{
            "pulseaudio",          "--daemonize=no",
            "--system=false",      "-n",
            "--exit-idle-time=-1", "--use-pid-file=no",
            "--log-target=stderr", "--file=" + (dir_ / "server.pa").string()};
        std::vector<char*> argv, envp;
        for (auto& argument : arguments) {
            argv.push_back(argument.data());
        }
        for (auto& entry : environment) {
            envp.push_back(entry.data());
        }
        argv.push_back(nullptr);
        envp.push_back(nullptr);
        const std::string logPath = (dir_ / "server.log").string();

        pid_ = ::fork();
        if (pid_ == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            const int log = ::open(logPath.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
            ::dup2(log, STDOUT_FILENO);
            ::dup2(log, STDERR_FILENO);
            ::execvpe("pulseaudio", argv.data(), envp.data());
            ::_exit(127);
        }
        const auto deadline = Clock::now() + std::chrono::seconds(10);
        while (!accepting()) {
            int status = 0;
            if (::waitpid(pid_, &status, WNOHANG) == pid_ || Clock::now() > deadline) {
                stop();
                throw std::runtime_error("the private PulseAudio did not start:\n" + log());
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }

    // Without a word to its clients, as when the server crashes.
    void kill() {
        if (pid_ > 0) {
            ::kill(pid_, SIGKILL);
            ::waitpid(pid_, nullptr, 0);
            pid_ = 0;
        }
    }

    void stop() {
        if (pid_ <= 0) {
            return;
        }
        ::kill(pid_, SIGTERM);
        const auto deadline = Clock::now() + std::chrono::seconds(2);
        while (::waitpid(pid_, nullptr, WNOHANG) == 0) {
            if (Clock::now() > deadline) {
                kill();
                return;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        pid_ = 0;
    }

    std::vector<std::int16_t> recording() const {
        std::lock_guard lock(mutex_);
        return samples_;
    }

    // When the recording's sample `index` came out of the FIFO.
    Clock::time_point arrivalOf(std::size_t index) const {
        std::lock_guard lock(mutex_);
        for (const auto& [end, time] : arrivals_) {
            if (index < end) {
                return time;
            }
        }
        return Clock::time_point::max();
    }

    std::string socket() const { return (dir_ / "runtime" / "native").string(); }

    std::string log() const {
        std::ifstream file(dir_ / "server.log");
        std::stringstream text;
        text << file.rdbuf();
        return text.str();
    }

  private:
    static int& count() {
        static int n = 0;
        return n;
    }

    bool accepting() const {
        const int probe = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, socket().c_str(), sizeof address.sun_path - 1);
        const bool ok =
            ::connect(probe, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
        ::close(probe);
        return ok;
    }

    void record() {
        std::vector<char> bytes;
        char buffer[8192];
        while (reading_) {
            pollfd ready{fifo_, POLLIN, 0};
            if (::poll(&ready, 1, 20) <= 0) {
                continue;
            }
            const ssize_t got = ::read(fifo_, buffer, sizeof buffer);
            if (got <= 0) {
                continue;
            }
            const auto now = Clock::now();
            bytes.insert(bytes.end(), buffer, buffer + got);
            std::lock_guard lock(mutex_);
            const std::size_t whole = bytes.size() / 2 * 2;
            for (std::size_t i = 0; i < whole; i += 2) {
                samples_.push_back(
                    static_cast<std::int16_t>(static_cast<std::uint8_t>(bytes[i]) |
                                              static_cast<std::uint8_t>(bytes[i + 1]) << 8));
            }
            bytes.erase(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(whole));
            arrivals_.emplace_back(samples_.size(), now);
        }
    }

    std::filesystem::path dir_;
    int fifo_ = -1;
    pid_t pid_ = 0;
    std::atomic<bool> reading_{true};
    std::thread reader_;
    mutable std::mutex mutex_;
    std::vector<std::int16_t> samples_;
    std::vector<std::pair<std::size_t, Clock::time_point>> arrivals_;
};

}  // namespace marivox::test
