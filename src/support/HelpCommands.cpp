// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/HelpCommands.h"

#include "ports/Application.h"
#include "ports/MessageBoxes.h"
#include "ports/Shell.h"
#include "support/Guard.h"
#include "support/Titles.h"

namespace marivox {
namespace {

constexpr int kShowNormal = 1;

}  // namespace

void HelpCommands::showHelpContents() {
    const std::string helpFile = application_.helpFile();
    if (helpFile.empty()) {
        boxes_.show(
            "Unable to display Help Contents. There is no Help associated with this project.",
            MsgBoxStyle::OkOnly + MsgBoxStyle::Information, kGameScreenCaption);
        return;
    }
    RunHelp(helpFile);
}

void HelpCommands::RunHelp(const std::string& path) {
    // Whether the document exists is the viewer's business, not ours.
    guard_.run(Procedure::RunHelp,
               [&] { shell_.ShellExecute(0, nullptr, path, nullptr, "C:\\", kShowNormal); });
}

void AboutForm::Form_Load() {
    const Version version = application_.version();
    box_.setVersionLabel("Version " + std::to_string(version.major) + "." +
                         std::to_string(version.minor) + "." + std::to_string(version.revision));
    box_.setTitleLabel("About " + application_.title());
}

void AboutForm::cmdOK_Click() {
    box_.unload();
}

}  // namespace marivox
