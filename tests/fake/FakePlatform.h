// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <string>

#include "fake/Transcript.h"
#include "platform/Application.h"
#include "platform/Clock.h"
#include "platform/MessageBoxes.h"
#include "support/FaultInjector.h"

namespace marivox::fake {

// Answers boxes from a script. Lines: `box <style> "<title>" "<text>"` with CR and LF
// written as \r and \n, then `answer <code>`.
class FakeMessageBoxes : public MessageBoxes {
  public:
    explicit FakeMessageBoxes(Transcript& transcript) : transcript_(transcript) {}

    int show(std::string_view text, int style, std::string_view title) override;

    void answerNext(int answer) { answers_.push_back(answer); }
    // Answers every box that has no scripted answer (random play answers them all).
    void answerWith(std::function<int(std::string_view text, int style)> answerer) {
        answerer_ = std::move(answerer);
    }
    // Runs while the next box is open, as a modal box lets timers go on.
    void whileNextOpen(std::function<void()> action) { whileOpen_.push_back(std::move(action)); }
    int shown() const { return shown_; }

  private:
    Transcript& transcript_;
    std::deque<int> answers_;
    std::deque<std::function<void()>> whileOpen_;
    std::function<int(std::string_view, int)> answerer_;
    int shown_ = 0;
};

// Lines: `end program`.
class FakeApplication : public Application {
  public:
    explicit FakeApplication(Transcript& transcript) : transcript_(transcript) {}

    std::string programFolder() const override { return folder_; }
    std::string helpFile() const override { return helpFile_; }
    void setHelpFile(std::string path) override { helpFile_ = std::move(path); }
    std::string title() const override { return title_; }
    void setTitle(std::string title) override { title_ = std::move(title); }
    Version version() const override { return {1, 0, 0}; }
    void endNow() override;

    void setProgramFolder(std::string folder) { folder_ = std::move(folder); }
    bool ended() const { return ended_; }

  private:
    Transcript& transcript_;
    std::string folder_ = "/opt/marivox";
    std::string helpFile_;
    std::string title_ = "Marivox";
    bool ended_ = false;
};

// A clock whose every reading is `step` ticks after the last.
class FakeClock : public Clock {
  public:
    explicit FakeClock(std::uint64_t start = 0, std::uint64_t step = 1)
        : next_(start), step_(step) {}
    std::uint64_t ticks() override {
        const std::uint64_t now = next_;
        next_ += step_;
        return now;
    }

  private:
    std::uint64_t next_;
    std::uint64_t step_;
};

// Makes a procedure fail as it begins, on its n-th entry.
class FaultPlan : public FaultInjector {
  public:
    void failOn(Procedure procedure, int occurrence = 1, std::int32_t number = 1234,
                std::string description = "Injected failure") {
        armed_[procedure] = {occurrence, number, std::move(description)};
    }
    void enter(Procedure procedure) override;

  private:
    struct Armed {
        int remaining;
        std::int32_t number;
        std::string description;
    };
    std::map<Procedure, Armed> armed_;
};

}  // namespace marivox::fake
