// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// A stand-in for NVDA, for tests only: serves NVDA's controller interface where NVDA does,
// on the endpoint of its session and desktop, and writes down each call instead of speaking
// or showing it. Prints "ready" once it listens, and stops when its input ends.
#include <windows.h>
// After windows.h, which they need.
#include <rpc.h>

#include <cstdio>
#include <string>

#include "NvdaController.h"
#include "StandInLog.h"
#include "adapters/windows/WindowsText.h"

using marivox::windows::utf8Text;

error_status_t testIfRunning(handle_t) {
    logCall("testIfRunning", "");
    return 0;
}

error_status_t speakText(handle_t, const wchar_t* text) {
    logCall("speakText", utf8Text(text));
    return 0;
}

error_status_t cancelSpeech(handle_t) {
    logCall("cancelSpeech", "");
    return 0;
}

error_status_t brailleMessage(handle_t, const wchar_t* message) {
    logCall("brailleMessage", utf8Text(message));
    return 0;
}

void* __RPC_USER MIDL_user_allocate(SIZE_T size) {
    return HeapAlloc(GetProcessHeap(), 0, size);
}

void __RPC_USER MIDL_user_free(void* memory) {
    HeapFree(GetProcessHeap(), 0, memory);
}

int main() {
    DWORD session = 0;
    ProcessIdToSessionId(GetCurrentProcessId(), &session);
    wchar_t desktop[256] = L"";
    GetUserObjectInformationW(GetThreadDesktop(GetCurrentThreadId()), UOI_NAME, desktop,
                              sizeof desktop, nullptr);
    std::wstring endpoint = L"NvdaCtlr." + std::to_wstring(session) + L"." + desktop;
    std::wstring protocol = L"ncalrpc";
    if (RpcServerUseProtseqEpW(reinterpret_cast<RPC_WSTR>(protocol.data()),
                               RPC_C_PROTSEQ_MAX_REQS_DEFAULT,
                               reinterpret_cast<RPC_WSTR>(endpoint.data()), nullptr) != RPC_S_OK ||
        RpcServerRegisterIf(NvdaController_v1_0_s_ifspec, nullptr, nullptr) != RPC_S_OK ||
        RpcServerListen(1, RPC_C_LISTEN_MAX_CALLS_DEFAULT, TRUE) != RPC_S_OK) {
        std::fprintf(stderr, "cannot serve %ls\n", endpoint.c_str());
        return 1;
    }
    std::printf("ready\n");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    RpcMgmtStopServerListening(nullptr);
    RpcMgmtWaitServerListen();
    return 0;
}
