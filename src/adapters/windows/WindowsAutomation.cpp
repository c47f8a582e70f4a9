// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WindowsAutomation.h"

#include <ole2.h>

#include <cstdio>
#include <vector>

#include "adapters/windows/WindowsText.h"
#include "ports/Failure.h"

namespace marivox::windows {
namespace {

std::string hex(HRESULT result) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(result));
    return text;
}

// What the object said went wrong, when it says anything.
std::string describe(HRESULT result, EXCEPINFO& exception) {
    std::string text = "HRESULT " + hex(result);
    if (exception.bstrDescription != nullptr) {
        text += ": " + utf8Text(exception.bstrDescription);
    }
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    return text;
}

}  // namespace

Argument Argument::text(std::string_view utf8) {
    Argument argument;
    argument.value_.vt = VT_BSTR;
    argument.value_.bstrVal = SysAllocString(wideText(utf8).c_str());
    return argument;
}

Argument Argument::flag(bool value) {
    Argument argument;
    argument.value_.vt = VT_BOOL;
    argument.value_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    return argument;
}

Argument Argument::number(long value) {
    Argument argument;
    argument.value_.vt = VT_I4;
    argument.value_.lVal = value;
    return argument;
}

AutomationObject::AutomationObject(std::string_view className, std::string owner)
    : owner_(std::move(owner)) {
    // The game's thread may not have met COM yet; a thread set up otherwise is fine as it is.
    const HRESULT initialised = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    (void)initialised;
    CLSID id{};
    HRESULT result = CLSIDFromProgID(wideText(className).c_str(), &id);
    if (FAILED(result)) {
        throw Failure(FailureNumber::SpeechObjectCreation,
                      "The speech object " + std::string(className) + " is not installed (" +
                          hex(result) + ")");
    }
    result = CoCreateInstance(id, nullptr, CLSCTX_ALL, IID_IDispatch,
                              reinterpret_cast<void**>(&object_));
    if (FAILED(result) || object_ == nullptr) {
        throw Failure(FailureNumber::SpeechObjectCreation,
                      "The speech object " + std::string(className) + " could not be created (" +
                          hex(result) + ")");
    }
}

AutomationObject::~AutomationObject() {
    object_->Release();
}

void AutomationObject::call(const wchar_t* method,
                            std::initializer_list<const Argument*> arguments) {
    LPOLESTR name = const_cast<LPOLESTR>(method);
    DISPID id = 0;
    HRESULT result = object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(result)) {
        throw Failure(FailureNumber::SpeechUnavailable, owner_ + "'s speech object has no method " +
                                                            utf8Text(method) + " (" + hex(result) +
                                                            ")");
    }
    // IDispatch takes the arguments last to first.
    std::vector<VARIANT> reversed;
    for (auto it = std::rbegin(arguments); it != std::rend(arguments); ++it) {
        reversed.push_back((*it)->value());
    }
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    EXCEPINFO exception{};
    VARIANT ignored;
    VariantInit(&ignored);
    result = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                             &ignored, &exception, nullptr);
    VariantClear(&ignored);
    if (FAILED(result)) {
        throw Failure(FailureNumber::SpeechUnavailable,
                      owner_ + " did not speak: " + describe(result, exception));
    }
}

}  // namespace marivox::windows
