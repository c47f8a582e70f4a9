// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <string>

#include "fake/Transcript.h"
#include "platform/ScreenReaders.h"
#include "platform/SettingsStore.h"
#include "platform/Shell.h"
#include "platform/Sleeper.h"
#include "platform/WavPlayer.h"

namespace marivox::fake {

// Lines: `setting get <section>/<key>`, `setting save <section>/<key> "<value>"`.
class FakeSettings : public SettingsStore {
  public:
    explicit FakeSettings(Transcript& transcript) : transcript_(transcript) {}

    std::string GetSetting(std::string_view application, std::string_view section,
                           std::string_view key, std::string_view defaultValue) override;
    void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) override;

    // What is stored under application "Marivox", section "StartUp", key "Reader".
    std::map<std::string, std::string> stored;

  private:
    Transcript& transcript_;
};

// Lines: `shell <operation|null> "<file>" <parameters|null> "<directory>" <show>`.
class FakeShell : public Shell {
  public:
    explicit FakeShell(Transcript& transcript) : transcript_(transcript) {}
    void ShellExecute(std::intptr_t owner, const char* operation, std::string_view file,
                      const char* parameters, std::string_view directory, int showCommand) override;

  private:
    Transcript& transcript_;
};

// Lines: `sound <path>` when a sound is opened; with `protocol` also `wav play ...`,
// `wav status <n>` and `wav close`.
class FakeWavPlayer : public WavPlayer {
  public:
    explicit FakeWavPlayer(Transcript& transcript) : transcript_(transcript) {}

    void open(std::string_view path) override;
    void play(std::int32_t from, std::int32_t to, bool wait) override;
    std::int32_t status() override;
    void closeSound() override;

    bool protocol = false;
    // How many of the next status reads report the output busy.
    int busyReads = 0;
    int plays = 0;

  private:
    Transcript& transcript_;
};

// Lines: `speak "<text>"` (`speak! ` when asked to interrupt), `stop`.
class FakeJaws : public JawsApi {
  public:
    explicit FakeJaws(Transcript& transcript) : transcript_(transcript) {}
    void JFWSayString(std::string_view text, bool interrupt) override;
    void JFWStopSpeech() override { transcript_.record("stop"); }

  private:
    Transcript& transcript_;
};

// Lines: `create <class>`, then the object's `we speak "<text>"`, `we silence`,
// `we released`.
class FakeAutomation : public AutomationObjects {
  public:
    explicit FakeAutomation(Transcript& transcript) : transcript_(transcript) {}
    std::unique_ptr<SpeechAutomationObject> CreateObject(std::string_view className) override;

  private:
    Transcript& transcript_;
};

class FakeSleeper : public Sleeper {
  public:
    void sleepFor(std::chrono::milliseconds duration) override { slept += duration; }
    std::chrono::milliseconds slept{0};
};

}  // namespace marivox::fake
