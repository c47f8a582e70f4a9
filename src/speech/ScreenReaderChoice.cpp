// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ScreenReaderChoice.h"

#include <string>

#include "platform/MessageBoxes.h"
#include "platform/ScreenReaders.h"
#include "platform/SettingsStore.h"
#include "speech/ScreenReaderState.h"
#include "support/Flags.h"
#include "support/Guard.h"

namespace marivox {
namespace {

constexpr std::string_view kApplication = "Marivox";
constexpr std::string_view kSection = "StartUp";
constexpr std::string_view kKey = "Reader";
constexpr std::string_view kSpeechClass = "GWSpeak.Speak";

constexpr std::string_view kJawsItem = "JAWS For Windows";
constexpr std::string_view kWindowEyesItem = "Window-Eyes";
constexpr std::string_view kDialogCaption = "Screen Reader";
constexpr std::string_view kMustChoose =
    "You must choose the type of screen reader software you are using. ";

}  // namespace

std::string ScreenReaderChoice::readSetting() {
    return settings_.GetSetting(kApplication, kSection, kKey, kNoReader);
}

void ScreenReaderChoice::createSpeechObjectIfChosen() {
    if (isChosen(reader_, kWindowEyes)) {
        // A new object replaces the old only once it exists; a failed creation keeps it.
        reader_.WESpeech = automation_.CreateObject(kSpeechClass);
    }
}

namespace {

// An empty choice, stored by an older run whose first dialog was closed without a choice,
// would leave the game silent for good; it is asked again like no choice at all.
bool noChoice(std::string_view reader) {
    return reader == kNoReader || trimmedBlanks(reader).empty();
}

}  // namespace

void ScreenReaderChoice::GetScreenReader() {
    guard_.run(Procedure::GetScreenReader, [&] {
        if (noChoice(readSetting())) {
            dialog_.showModal(*this);
            SaveScreenReader();
        } else {
            reader_.ScreenReader = readSetting();
        }
        createSpeechObjectIfChosen();
    });
}

void ScreenReaderChoice::SaveScreenReader() {
    guard_.run(Procedure::SaveScreenReader, [&] {
        settings_.SaveSetting(kApplication, kSection, kKey, trimmedBlanks(reader_.ScreenReader));
    });
}

void ScreenReaderChoice::chooseAgain() {
    dialog_.showModal(*this);
    // Written again even when the dialog was closed without a choice.
    SaveScreenReader();
    createSpeechObjectIfChosen();
}

void ScreenReaderChoice::Form_Load() {
    dialog_.addItem(kJawsItem);
    dialog_.addItem(kWindowEyesItem);
    dialog_.setListIndex(0);
}

void ScreenReaderChoice::btnOK_Click() {
    guard_.run(Procedure::frmReader_btnOK_Click, [&] {
        switch (dialog_.listIndex()) {
            case 0:
                reader_.ScreenReader = kJaws;
                break;
            case 1:
                reader_.ScreenReader = kWindowEyes;
                break;
            default:
                reader_.ScreenReader = kNoReader;
                break;
        }
        dialog_.unload();
    });
}

void ScreenReaderChoice::Form_Unload(std::int16_t& cancel) {
    guard_.run(Procedure::frmReader_Form_Unload, [&] {
        // Closing the first dialog without a choice must not lose speech with one key.
        if (noChoice(trimmedBlanks(reader_.ScreenReader))) {
            boxes_.show(kMustChoose, MsgBoxStyle::OkOnly + MsgBoxStyle::Information,
                        kDialogCaption);
            cancel = kTrue;
        }
    });
}

}  // namespace marivox
