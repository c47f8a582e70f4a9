// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace marivox::speechd {

// The player's voice in speech-dispatcher's terms. What is not given stays at the service's
// own default, so a player with no settings hears the service as it is set up.
struct VoiceSettings {
    std::optional<int> rate;    // -100..100
    std::optional<int> pitch;   // -100..100
    std::optional<int> volume;  // -100..100
    std::string outputModule;   // the synthesizer; empty: the service's default
    std::string language;       // such as "en" or "en-GB"
    std::string synthesisVoice;

    bool operator==(const VoiceSettings&) const = default;
};

// Asked before each text is said, from the thread that says it.
using VoiceSource = std::function<VoiceSettings()>;

}  // namespace marivox::speechd
