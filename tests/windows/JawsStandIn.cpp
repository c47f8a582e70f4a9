// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// A stand-in for the JAWS API library, for tests only: the two calls the game makes, written
// down instead of spoken.
#include "StandInLog.h"

extern "C" __declspec(dllexport) BOOL WINAPI JFWSayString(LPCSTR text, BOOL interrupt) {
    logCall(interrupt ? "JFWSayString interrupting" : "JFWSayString", text);
    return TRUE;
}

extern "C" __declspec(dllexport) BOOL WINAPI JFWStopSpeech() {
    logCall("JFWStopSpeech", "");
    return TRUE;
}
