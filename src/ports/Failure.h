// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace marivox {

// A run-time failure as a guarded procedure sees it: a number and a description.
// The numbers are ours; reports show them in decimal with their sign.
enum class FailureNumber : std::int32_t {
    Overflow = 1001,
    IndexOutOfRange = 1002,
    InvalidArgument = 1003,
    SpeechUnavailable = 2001,
    SpeechObjectMissing = 2002,
    SpeechObjectCreation = 2003,
    SoundDevice = 3001,
    SoundFile = 3002,
    SettingsStore = 4001,
    Shell = 5001,
    Platform = 6001,
    Internal = 9001,
};

class Failure : public std::runtime_error {
  public:
    Failure(FailureNumber number, std::string description)
        : Failure(static_cast<std::int32_t>(number), std::move(description)) {}
    Failure(std::int32_t number, std::string description)
        : std::runtime_error(description), number_(number), description_(std::move(description)) {}

    std::int32_t number() const { return number_; }
    const std::string& description() const { return description_; }

  private:
    std::int32_t number_;
    std::string description_;
};

}  // namespace marivox
