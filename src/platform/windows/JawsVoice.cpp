// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/JawsVoice.h"

#include "platform/windows/WindowsText.h"
#include "support/Failure.h"

namespace marivox::windows {
namespace {

// JAWS installs its API library in its own folder and on the path as jfwapi.dll; 64-bit
// installations add a 64-bit build beside it, which a 64-bit game must load instead.
#ifdef _WIN64
constexpr const wchar_t* kLibraries[] = {L"jfwapi64.dll", L"jfwapi.dll"};
#else
constexpr const wchar_t* kLibraries[] = {L"jfwapi.dll", L"jfwapi32.dll"};
#endif

template <class Function>
Function exported(HMODULE library, const char* name) {
    // The API's functions are looked up by name; their type is the library's documented one.
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

}  // namespace

JawsVoice::~JawsVoice() {
    if (library_ != nullptr) {
        FreeLibrary(library_);
    }
}

void JawsVoice::load() {
    if (say_ != nullptr && stop_ != nullptr) {
        return;
    }
    for (const wchar_t* name : kLibraries) {
        library_ = LoadLibraryW(name);
        if (library_ != nullptr) {
            break;
        }
    }
    if (library_ == nullptr) {
        throw Failure(FailureNumber::SpeechUnavailable,
                      "JAWS For Windows could not be reached: its API library jfwapi.dll was "
                      "not found");
    }
    say_ = exported<SayString>(library_, "JFWSayString");
    stop_ = exported<StopSpeech>(library_, "JFWStopSpeech");
    if (say_ == nullptr || stop_ == nullptr) {
        FreeLibrary(library_);
        library_ = nullptr;
        say_ = nullptr;
        stop_ = nullptr;
        throw Failure(FailureNumber::SpeechUnavailable,
                      "The JAWS API library lacks JFWSayString or JFWStopSpeech");
    }
}

void JawsVoice::say(std::string_view text) {
    load();
    const std::string ansi = ansiText(text);
    say_(ansi.c_str(), FALSE);  // never interrupts: the text follows what is being said
}

void JawsVoice::stop() {
    load();
    stop_();
}

}  // namespace marivox::windows
