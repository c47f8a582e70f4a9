// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// An automation object created by its class name and called by method name through
// IDispatch, late bound: the way screen readers publish their speech to programs (Window-Eyes's
// "GWSpeak.Speak", JAWS's "FreedomSci.JawsApi", Windows' own "SAPI.SpVoice").

#include <windows.h>
// After windows.h, which it needs.
#include <oleauto.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace marivox::windows {

// One argument of a call, owning what it holds.
class Argument {
  public:
    static Argument text(std::string_view utf8);
    static Argument flag(bool value);
    static Argument number(long value);
    ~Argument() { VariantClear(&value_); }
    Argument(Argument&& other) noexcept : value_(other.value_) { VariantInit(&other.value_); }
    Argument(const Argument&) = delete;
    Argument& operator=(const Argument&) = delete;
    Argument& operator=(Argument&&) = delete;
    const VARIANT& value() const { return value_; }

  private:
    Argument() { VariantInit(&value_); }
    VARIANT value_;
};

class AutomationObject {
  public:
    // Creates an object of the class; `owner` names the reader in failures. Throws a Failure
    // when the class is not installed or cannot be created.
    AutomationObject(std::string_view className, std::string owner);
    ~AutomationObject();
    AutomationObject(const AutomationObject&) = delete;
    AutomationObject& operator=(const AutomationObject&) = delete;

    // Calls the method with the arguments, first to last; its result is not read. A failure
    // is thrown.
    void call(const wchar_t* method, std::initializer_list<const Argument*> arguments = {});

  private:
    IDispatch* object_ = nullptr;
    std::string owner_;
};

}  // namespace marivox::windows
