// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/WindowsAutomation.h"

#include <windows.h>
// After windows.h, which it needs.
#include <ole2.h>

#include <cstdio>
#include <string>

#include "platform/windows/WindowsText.h"
#include "support/Failure.h"

namespace marivox::windows {
namespace {

std::string hex(HRESULT result) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(result));
    return text;
}

// A BSTR that frees itself.
class Bstr {
  public:
    explicit Bstr(std::string_view utf8) : value_(SysAllocString(wideText(utf8).c_str())) {}
    ~Bstr() { SysFreeString(value_); }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    BSTR get() const { return value_; }

  private:
    BSTR value_;
};

// What the object said went wrong, when it says anything.
std::string describe(HRESULT result, EXCEPINFO& exception) {
    std::string text = "HRESULT " + hex(result);
    if (exception.bstrDescription != nullptr) {
        const int length = WideCharToMultiByte(CP_UTF8, 0, exception.bstrDescription, -1, nullptr,
                                               0, nullptr, nullptr);
        std::string description(static_cast<std::size_t>(length > 0 ? length - 1 : 0), '\0');
        WideCharToMultiByte(CP_UTF8, 0, exception.bstrDescription, -1, description.data(), length,
                            nullptr, nullptr);
        text += ": " + description;
    }
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    return text;
}

class WindowsSpeechObject : public SpeechAutomationObject {
  public:
    explicit WindowsSpeechObject(IDispatch* object) : object_(object) {}
    ~WindowsSpeechObject() override { object_->Release(); }
    WindowsSpeechObject(const WindowsSpeechObject&) = delete;
    WindowsSpeechObject& operator=(const WindowsSpeechObject&) = delete;

    void SpeakString(std::string_view text) override {
        Bstr argument(text);
        VARIANT value;
        VariantInit(&value);
        value.vt = VT_BSTR;
        value.bstrVal = argument.get();
        call(L"SpeakString", &value, 1);
    }

    void Silence() override { call(L"Silence", nullptr, 0); }

  private:
    void call(const wchar_t* method, VARIANT* arguments, UINT count) {
        LPOLESTR name = const_cast<LPOLESTR>(method);
        DISPID id = 0;
        HRESULT result = object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
        if (FAILED(result)) {
            throw Failure(FailureNumber::SpeechUnavailable,
                          "Window-Eyes's speech object has no method " +
                              std::string(method, method + wcslen(method)) + " (" + hex(result) +
                              ")");
        }
        DISPPARAMS parameters{arguments, nullptr, count, 0};
        EXCEPINFO exception{};
        result = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                 nullptr, &exception, nullptr);
        if (FAILED(result)) {
            throw Failure(FailureNumber::SpeechUnavailable,
                          "Window-Eyes did not speak: " + describe(result, exception));
        }
    }

    IDispatch* object_;
};

}  // namespace

std::unique_ptr<SpeechAutomationObject> WindowsAutomationObjects::CreateObject(
    std::string_view className) {
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
    IDispatch* object = nullptr;
    result =
        CoCreateInstance(id, nullptr, CLSCTX_ALL, IID_IDispatch, reinterpret_cast<void**>(&object));
    if (FAILED(result) || object == nullptr) {
        throw Failure(FailureNumber::SpeechObjectCreation,
                      "The speech object " + std::string(className) + " could not be created (" +
                          hex(result) + ")");
    }
    return std::make_unique<WindowsSpeechObject>(object);
}

}  // namespace marivox::windows
