// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "ports/Failure.h"
#include "ports/ProgramName.h"
#include "ports/SettingsStore.h"
#include "screen/GameScreen.h"
#include "speech/Speech.h"
#include "support/Guard.h"

// How a player who sees a little sees the board: its size and high contrast. Each change is
// shown, said and kept in the game's settings, in a section of its own beside the reader
// choice. The keys work in either turn, as the menu does: they change only what is seen.
namespace marivox {
namespace {

constexpr std::string_view kSection = "Display";
constexpr std::string_view kZoomKey = "Zoom";
constexpr std::string_view kContrastKey = "HighContrast";

// The sizes zoom steps through, in percent of the normal one.
constexpr std::array kZooms{100, 125, 150, 175, 200, 250, 300, 400};

std::string zoomSaid(int zoom) {
    return "Zoom " + std::to_string(zoom) + " percent";
}

// A stored number that is one of `allowed`, else nothing: an odd value is no reason to
// bother the player, and the default serves instead.
std::optional<int> storedNumber(std::string_view text, auto allowed) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && std::ranges::find(allowed, value) != allowed.end() ? std::optional(value)
                                                                       : std::nullopt;
}

// A stored value that cannot be read is as good as none: the board opens as it would on a
// first start, and the reader choice, read next, still reports a settings service that fails.
std::string storedText(SettingsStore& settings, std::string_view key) {
    try {
        return settings.GetSetting(kProgramName, kSection, key, "");
    } catch (const Failure&) {
        return {};
    }
}

}  // namespace

void GameScreen::LoadDisplay() {
    guard_.run(Procedure::LoadDisplay, [&] {
        zoom_ = storedNumber(storedText(services_.settings, kZoomKey), kZooms).value_or(100);
        const auto contrast =
            storedNumber(storedText(services_.settings, kContrastKey), std::array{0, 1});
        highContrast_ = contrast ? *contrast == 1 : services_.window.desktopHighContrast();
        services_.window.setDisplay(zoom_, highContrast_);
    });
}

// Only what the player changed is kept: high contrast left unchosen goes on following the
// desktop's however often the board is zoomed.
void GameScreen::changeDisplay(int zoom, bool highContrast, std::string_view spoken) {
    const bool zoomChanged = zoom != zoom_;
    const bool contrastChanged = highContrast != highContrast_;
    zoom_ = zoom;
    highContrast_ = highContrast;
    services_.window.setDisplay(zoom_, highContrast_);
    speech_.StopSpeech();
    speech_.Speak(spoken);
    if (zoomChanged) {
        services_.settings.SaveSetting(kProgramName, kSection, kZoomKey, std::to_string(zoom_));
    }
    if (contrastChanged) {
        services_.settings.SaveSetting(kProgramName, kSection, kContrastKey,
                                       highContrast_ ? "1" : "0");
    }
}

void GameScreen::mnuOptionsZoomIn_Click() {
    guard_.run(Procedure::mnuOptionsZoomIn_Click, [&] {
        const auto next = std::ranges::upper_bound(kZooms, zoom_);
        const int zoom = next != kZooms.end() ? *next : kZooms.back();
        changeDisplay(zoom, highContrast_, zoomSaid(zoom));
    });
}

void GameScreen::mnuOptionsZoomOut_Click() {
    guard_.run(Procedure::mnuOptionsZoomOut_Click, [&] {
        const auto below = std::ranges::lower_bound(kZooms, zoom_);
        const int zoom = below != kZooms.begin() ? *std::prev(below) : kZooms.front();
        changeDisplay(zoom, highContrast_, zoomSaid(zoom));
    });
}

void GameScreen::mnuOptionsZoomNormal_Click() {
    guard_.run(Procedure::mnuOptionsZoomNormal_Click,
               [&] { changeDisplay(kZooms.front(), highContrast_, zoomSaid(kZooms.front())); });
}

void GameScreen::mnuOptionsContrast_Click() {
    guard_.run(Procedure::mnuOptionsContrast_Click, [&] {
        changeDisplay(zoom_, !highContrast_,
                      highContrast_ ? "High contrast off" : "High contrast on");
    });
}

}  // namespace marivox
