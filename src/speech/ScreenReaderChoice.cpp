// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "speech/ScreenReaderChoice.h"

#include <string>

#include "ports/MessageBoxes.h"
#include "ports/ProgramName.h"
#include "ports/ScreenReaders.h"
#include "ports/SettingsStore.h"
#include "speech/ScreenReaderState.h"
#include "support/Flags.h"
#include "support/Guard.h"

namespace marivox {
namespace {

constexpr std::string_view kSection = "StartUp";
constexpr std::string_view kKey = "Reader";

constexpr std::string_view kDialogCaption = "Screen Reader";
constexpr std::string_view kMustChoose =
    "You must choose the type of screen reader software you are using. ";

}  // namespace

std::string ScreenReaderChoice::readSetting() {
    return settings_.GetSetting(kProgramName, kSection, kKey, kNoReader);
}

void ScreenReaderChoice::startReaderIfChosen() {
    if (const ReaderRow* reader = reader_.chosen(); reader != nullptr && reader->startedOnChoice) {
        // A new voice replaces the old only once it exists; a failed start keeps it.
        auto voice = drivers_.voiceOf(reader->stored);
        reader_.voices.insert_or_assign(std::string(reader->stored), std::move(voice));
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
        startReaderIfChosen();
    });
}

void ScreenReaderChoice::SaveScreenReader() {
    guard_.run(Procedure::SaveScreenReader, [&] {
        settings_.SaveSetting(kProgramName, kSection, kKey, trimmedBlanks(reader_.ScreenReader));
    });
}

void ScreenReaderChoice::chooseAgain() {
    dialog_.showModal(*this);
    // Written again even when the dialog was closed without a choice.
    SaveScreenReader();
    startReaderIfChosen();
}

void ScreenReaderChoice::Form_Load() {
    for (const ReaderRow* reader : readersOn(reader_.platform)) {
        dialog_.addItem(reader->item);
    }
    dialog_.setListIndex(0);
}

void ScreenReaderChoice::btnOK_Click() {
    guard_.run(Procedure::frmReader_btnOK_Click, [&] {
        const auto offered = readersOn(reader_.platform);
        const int selected = dialog_.listIndex();
        reader_.ScreenReader = selected >= 0 && selected < static_cast<int>(offered.size())
                                   ? offered[static_cast<std::size_t>(selected)]->stored
                                   : kNoReader;
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
