// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Uses every Windows component the way the game does, so that linking proves each import
// resolves. It is built, never run here.
#include "platform/windows/WindowsAutomation.h"
#include "platform/windows/WindowsJawsApi.h"
#include "platform/windows/WindowsShell.h"

int main(int argc, char**) {
    if (argc < 1000) {
        return 0;
    }
    marivox::windows::WindowsJawsApi jaws;
    jaws.JFWSayString(" was a miss  ", false);
    jaws.JFWStopSpeech();
    marivox::windows::WindowsAutomationObjects objects;
    auto speech = objects.CreateObject("GWSpeak.Speak");
    speech->SpeakString("It is my turn targeting E  7");
    speech->Silence();
    marivox::windows::WindowsShell shell;
    shell.ShellExecute(0, nullptr, "C:\\Marivox\\marvox.hlp", nullptr, "C:\\", 1);
    return 0;
}
