// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/NvdaVoice.h"

#include "adapters/windows/WindowsText.h"
#include "ports/Failure.h"

namespace marivox::windows {
namespace {

// NVDA listens on an endpoint of its session and desktop, so that a program reaches the NVDA
// that reads its own screen.
std::wstring controllerEndpoint() {
    DWORD session = 0;
    ProcessIdToSessionId(GetCurrentProcessId(), &session);
    wchar_t desktop[256] = L"";
    GetUserObjectInformationW(GetThreadDesktop(GetCurrentThreadId()), UOI_NAME, desktop,
                              sizeof desktop, nullptr);
    return L"NvdaCtlr." + std::to_wstring(session) + L"." + desktop;
}

RPC_BINDING_HANDLE bindToController() {
    std::wstring protocol = L"ncalrpc";
    std::wstring endpoint = controllerEndpoint();
    // RPC's strings are unsigned shorts in MinGW's headers, wchar_t in the documentation.
    RPC_WSTR binding = nullptr;
    RPC_STATUS status =
        RpcStringBindingComposeW(nullptr, reinterpret_cast<RPC_WSTR>(protocol.data()), nullptr,
                                 reinterpret_cast<RPC_WSTR>(endpoint.data()), nullptr, &binding);
    RPC_BINDING_HANDLE handle = nullptr;
    if (status == RPC_S_OK) {
        status = RpcBindingFromStringBindingW(binding, &handle);
        RpcStringFreeW(&binding);
    }
    if (status != RPC_S_OK) {
        throw Failure(FailureNumber::SpeechUnavailable,
                      "NVDA could not be reached: no binding to its controller (RPC status " +
                          std::to_string(status) + ")");
    }
    return handle;
}

}  // namespace

NvdaVoice::~NvdaVoice() {
    if (binding_ != nullptr) {
        RpcBindingFree(&binding_);
    }
}

void NvdaVoice::say(std::string_view text) {
    const std::string& shown = braille_.add(text);
    outage_.run([&] {
        call(NvdaSpeak, wideText(text));
        call(NvdaBraille, wideText(shown));
    });
}

void NvdaVoice::stop() {
    braille_.clear();
    outage_.run([&] { call(NvdaCancel); });
}

void NvdaVoice::call(NvdaProcedure procedure, const std::wstring& text) {
    if (binding_ == nullptr) {
        binding_ = bindToController();
    }
    const unsigned long status = nvdaCall(procedure, binding_, text.c_str());
    if (status == RPC_S_OK) {
        return;
    }
    RpcBindingFree(&binding_);
    throw Failure(FailureNumber::SpeechUnavailable,
                  status == RPC_S_SERVER_UNAVAILABLE
                      ? std::string("NVDA could not be reached: it is not running")
                      : "NVDA did not answer the call (status " + std::to_string(status) + ")");
}

}  // namespace marivox::windows
