// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fake/FakeServices.h"

namespace marivox::fake {
namespace {

std::string settingName(std::string_view application, std::string_view section,
                        std::string_view key) {
    return std::string(application) + "/" + std::string(section) + "/" + std::string(key);
}

class FakeSpeechObject : public SpeechAutomationObject {
  public:
    explicit FakeSpeechObject(Transcript& transcript) : transcript_(transcript) {}
    ~FakeSpeechObject() override {
        try {
            transcript_.record("we released");
        } catch (...) {
        }
    }
    void SpeakString(std::string_view text) override {
        transcript_.record("we speak \"" + std::string(text) + "\"");
    }
    void Silence() override { transcript_.record("we silence"); }

  private:
    Transcript& transcript_;
};

}  // namespace

std::string FakeSettings::GetSetting(std::string_view application, std::string_view section,
                                     std::string_view key, std::string_view defaultValue) {
    const std::string name = settingName(application, section, key);
    transcript_.record("setting get " + name);
    const auto it = stored.find(name);
    return it == stored.end() ? std::string(defaultValue) : it->second;
}

void FakeSettings::SaveSetting(std::string_view application, std::string_view section,
                               std::string_view key, std::string_view value) {
    const std::string name = settingName(application, section, key);
    transcript_.record("setting save " + name + " \"" + std::string(value) + "\"");
    stored[name] = value;
}

void FakeShell::ShellExecute(std::intptr_t owner, const char* operation, std::string_view file,
                             const char* parameters, std::string_view directory, int showCommand) {
    transcript_.record("shell " + std::to_string(owner) + " " + (operation ? operation : "null") +
                       " \"" + std::string(file) + "\" " + (parameters ? parameters : "null") +
                       " \"" + std::string(directory) + "\" " + std::to_string(showCommand));
}

void FakeWavPlayer::open(std::string_view path) {
    transcript_.record("sound " + std::string(path));
}

void FakeWavPlayer::play(std::int32_t from, std::int32_t to, bool wait) {
    ++plays;
    if (protocol) {
        transcript_.record("wav play " + std::to_string(from) + " " + std::to_string(to) + " " +
                           (wait ? "true" : "false"));
    }
}

std::int32_t FakeWavPlayer::status() {
    const std::int32_t status = busyReads > 0 ? kDeviceBusy : 0;
    busyReads = std::max(0, busyReads - 1);
    if (protocol) {
        transcript_.record("wav status " + std::to_string(status));
    }
    return status;
}

void FakeWavPlayer::closeSound() {
    if (protocol) {
        transcript_.record("wav close");
    }
}

void FakeJaws::JFWSayString(std::string_view text, bool interrupt) {
    transcript_.record((interrupt ? "speak! \"" : "speak \"") + std::string(text) + "\"");
}

std::unique_ptr<SpeechAutomationObject> FakeAutomation::CreateObject(std::string_view className) {
    transcript_.record("create " + std::string(className));
    return std::make_unique<FakeSpeechObject>(transcript_);
}

}  // namespace marivox::fake
