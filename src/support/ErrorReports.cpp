// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ErrorReports.h"

#include <string>

#include "ports/Application.h"
#include "ports/MessageBoxes.h"
#include "support/Titles.h"

namespace marivox {

ErrorReports::ErrorReports(MessageBoxes& boxes, Application& application)
    : boxes_(boxes), application_(application) {}

void ErrorReports::ReportError(std::int32_t number, std::string_view description,
                               std::string_view label) {
    std::string text = "Error: ";
    text += std::to_string(number);
    text += ' ';
    text += description;
    text += label;
    boxes_.show(text, MsgBoxStyle::OkOnly + MsgBoxStyle::Information, kGameScreenCaption);
}

void ErrorReports::ShowError(const std::string& description, const std::string& label) {
    try {
        showErrorBody(description, label);
    } catch (const std::exception& failure) {
        // A report that cannot be made leaves the program in no state to go on.
        try {
            boxes_.show(std::string(failure.what()) + " ShowError()", MsgBoxStyle::OkOnly,
                        application_.title());
        } catch (const std::exception&) {
        }
        application_.endNow();
    }
}

void ErrorReports::showErrorBody(const std::string& description, const std::string& label) {
    if (speak_) {
        sayAsReport([&] {
            speak_(description);
            speak_(label);
        });
    }
    boxes_.show(description + ";" + label, MsgBoxStyle::OkOnly + MsgBoxStyle::Information,
                kGameScreenCaption);
}

void ErrorReports::RunHelpBox(std::string_view description, std::string_view label) {
    std::string text(description);
    text += label;
    boxes_.show(text, MsgBoxStyle::OkOnly, application_.title());
}

void ErrorReports::report(Procedure procedure, const Failure& failure) {
    const ProcedureInfo& info = procedureInfo(procedure);
    switch (info.form) {
        case ReportForm::ReportError:
            ReportError(failure.number(), failure.description(), info.label);
            break;
        case ReportForm::ShowError: {
            const bool speechFailure =
                procedure == Procedure::Speak || procedure == Procedure::StopSpeech;
            if (speechFailure && speakingReport_) {
                return;
            }
            ShowError(failure.description(), std::string(info.label));
            break;
        }
        case ReportForm::RunHelpBox:
            RunHelpBox(failure.description(), info.label);
            break;
    }
}

}  // namespace marivox
