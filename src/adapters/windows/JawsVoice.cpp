// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/JawsVoice.h"

#include <algorithm>

#include "adapters/windows/WindowsText.h"
#include "ports/Failure.h"

namespace marivox::windows {
namespace {

constexpr std::string_view kObjectClass = "FreedomSci.JawsApi";

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

// A call of JAWS's script function that shows the message on the braille display. Its
// scripts' strings have no escape for their own quotes, so the text's become apostrophes.
std::string brailleCall(std::string message) {
    std::replace(message.begin(), message.end(), '"', '\'');
    return "BrailleString(\"" + message + "\")";
}

}  // namespace

JawsVoice::~JawsVoice() {
    if (library_ != nullptr) {
        FreeLibrary(library_);
    }
}

void JawsVoice::reach() {
    if (object_ || (say_ != nullptr && stop_ != nullptr)) {
        return;
    }
    try {
        object_.emplace(kObjectClass, "JAWS For Windows");
    } catch (const Failure& failure) {
        loadLibrary(failure.description());
    }
}

void JawsVoice::loadLibrary(const std::string& objectFailure) {
    for (const wchar_t* name : kLibraries) {
        library_ = LoadLibraryW(name);
        if (library_ != nullptr) {
            break;
        }
    }
    if (library_ == nullptr) {
        throw Failure(FailureNumber::SpeechUnavailable,
                      "JAWS For Windows could not be reached: its API library jfwapi.dll was "
                      "not found, nor its automation object. " +
                          objectFailure);
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
    reach();
    if (!object_) {
        const std::string ansi = ansiText(text);
        say_(ansi.c_str(), FALSE);  // never interrupts: the text follows what is being said
        return;
    }
    const Argument spoken = Argument::text(text);
    const Argument flush = Argument::flag(false);
    object_->call(L"SayString", {&spoken, &flush});
    const Argument braille = Argument::text(brailleCall(braille_.add(text)));
    object_->call(L"RunFunction", {&braille});
}

void JawsVoice::stop() {
    reach();
    braille_.clear();
    if (object_) {
        object_->call(L"StopSpeech");
    } else {
        stop_();
    }
}

}  // namespace marivox::windows
