/* SPDX-FileCopyrightText: 2026 Marivox Developers */
/* SPDX-License-Identifier: GPL-3.0-or-later */
#include "adapters/windows/NvdaCalls.h"

#include "NvdaController.h"

unsigned long nvdaCall(enum NvdaProcedure procedure, handle_t binding, const wchar_t* text) {
    /* Kept by the filter: MinGW's handler does not hand the code on to the __except block. */
    volatile unsigned long code = 0;
    __try {
        switch (procedure) {
            case NvdaSpeak:
                return speakText(binding, text);
            case NvdaBraille:
                return brailleMessage(binding, text);
            case NvdaCancel:
                break;
        }
        return cancelSpeech(binding);
    } __except (I_RpcExceptionFilter(code = GetExceptionCode())) {
        return code;
    }
}

/* Where the stubs take and give back the memory of what is sent. */
void* __RPC_USER MIDL_user_allocate(SIZE_T size) {
    return HeapAlloc(GetProcessHeap(), 0, size);
}

void __RPC_USER MIDL_user_free(void* memory) {
    HeapFree(GetProcessHeap(), 0, memory);
}
