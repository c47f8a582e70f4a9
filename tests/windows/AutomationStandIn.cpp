// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// A stand-in for the readers' automation objects ("GWSpeak.Speak", "FreedomSci.JawsApi",
// "SAPI.SpVoice"), for tests only: an in-process COM server of any class the tests register
// it as, whose every method, called by name, is written down instead of done. The log's call
// is the method's name followed by its arguments after the first; its text, the first. It
// never asks to be unloaded: COM keeps a server loaded that has no DllCanUnloadNow.
#include <objbase.h>
#include <oleauto.h>

#include <atomic>
#include <vector>

#include "StandInLog.h"
#include "adapters/windows/WindowsText.h"

namespace {

using marivox::windows::utf8Text;

std::string shown(const VARIANT& value) {
    switch (value.vt) {
        case VT_BSTR:  // a null BSTR is the empty text
            return utf8Text(value.bstrVal != nullptr ? value.bstrVal : L"");
        case VT_BOOL:
            return value.boolVal ? "true" : "false";
        case VT_I4:
            return std::to_string(value.lVal);
        default:
            return "type " + std::to_string(value.vt);
    }
}

class Recorder final : public IDispatch {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
        if (id == IID_IUnknown || id == IID_IDispatch) {
            *out = static_cast<IDispatch*>(this);
            AddRef();
            return S_OK;
        }
        *out = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    // Every name is a method: its number is its place in the names asked for.
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) override {
        for (UINT i = 0; i < count; ++i) {
            names_.push_back(utf8Text(names[i]));
            ids[i] = static_cast<DISPID>(names_.size());
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters,
                                     VARIANT*, EXCEPINFO*, UINT*) override {
        if (id < 1 || static_cast<std::size_t>(id) > names_.size()) {
            return DISP_E_MEMBERNOTFOUND;
        }
        // IDispatch hands the arguments over last to first.
        const auto argument = [parameters](UINT k) {
            return shown(parameters->rgvarg[parameters->cArgs - 1 - k]);
        };
        std::string call = names_[static_cast<std::size_t>(id) - 1];
        for (UINT k = 1; k < parameters->cArgs; ++k) {
            call += " " + argument(k);
        }
        logCall(call.c_str(), parameters->cArgs > 0 ? argument(0) : "");
        return S_OK;
    }

  private:
    std::atomic<ULONG> references_{1};
    std::vector<std::string> names_;
};

class Factory final : public IClassFactory {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
        if (id == IID_IUnknown || id == IID_IClassFactory) {
            *out = static_cast<IClassFactory*>(this);
            return S_OK;
        }
        *out = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** out) override {
        if (outer != nullptr) {
            return CLASS_E_NOAGGREGATION;
        }
        auto* recorder = new Recorder;
        const HRESULT result = recorder->QueryInterface(id, out);
        recorder->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

Factory factory;

}  // namespace

extern "C" __declspec(dllexport) HRESULT STDAPICALLTYPE
    DllGetClassObject(REFCLSID, REFIID wanted, void** out) {
    return factory.QueryInterface(wanted, out);
}
