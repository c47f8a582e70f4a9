/* SPDX-FileCopyrightText: 2026 Marivox Developers */
/* SPDX-License-Identifier: GPL-3.0-or-later */
#pragma once
/* The calls the game makes to NVDA's controller, in C: a remote call that fails raises a
   structured exception, which only __try/__except catches, and MinGW's g++ has neither. */

#include <windows.h>
/* After windows.h, which it needs. */
#include <rpc.h>

#ifdef __cplusplus
extern "C" {
#endif

enum NvdaProcedure { NvdaSpeak, NvdaCancel, NvdaBraille };

/* 0 once NVDA has taken the call; else the RPC status that says why not
   (RPC_S_SERVER_UNAVAILABLE: nothing serves the endpoint). `text` is for speaking and
   braille. */
unsigned long nvdaCall(enum NvdaProcedure procedure, handle_t binding, const wchar_t* text);

#ifdef __cplusplus
}
#endif
