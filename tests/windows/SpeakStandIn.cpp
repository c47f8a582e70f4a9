// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// A stand-in for the "GWSpeak.Speak" automation object, for tests only: an in-process COM
// server whose SpeakString and Silence, called by name, are written down instead of spoken.
// The tests register it in their own Wine prefix.
#include <objbase.h>
#include <oleauto.h>

#include <atomic>

#include "StandInLog.h"

namespace {

// {6D1C2B7E-3F0A-4E59-9C1D-8A2B5E7F4C31}
constexpr CLSID kClass{
    0x6d1c2b7e, 0x3f0a, 0x4e59, {0x9c, 0x1d, 0x8a, 0x2b, 0x5e, 0x7f, 0x4c, 0x31}};
constexpr DISPID kSpeakString = 1;
constexpr DISPID kSilence = 2;
std::atomic<long> objects{0};

std::string utf8(const wchar_t* wide) {
    const int length = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(length > 0 ? length - 1 : 0), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), length, nullptr, nullptr);
    return text;
}

class Speaker final : public IDispatch {
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
            --objects;
        }
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) override {
        for (UINT i = 0; i < count; ++i) {
            ids[i] = _wcsicmp(names[i], L"SpeakString") == 0 ? kSpeakString
                     : _wcsicmp(names[i], L"Silence") == 0   ? kSilence
                                                             : DISPID_UNKNOWN;
        }
        return count == 1 && ids[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters,
                                     VARIANT*, EXCEPINFO*, UINT*) override {
        if (id == kSilence && parameters->cArgs == 0) {
            logCall("Silence", "");
            return S_OK;
        }
        if (id == kSpeakString && parameters->cArgs == 1 && parameters->rgvarg[0].vt == VT_BSTR) {
            logCall("SpeakString", utf8(parameters->rgvarg[0].bstrVal));
            return S_OK;
        }
        return DISP_E_BADPARAMCOUNT;
    }

  private:
    std::atomic<ULONG> references_{1};
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
        auto* speaker = new Speaker;
        ++objects;
        const HRESULT result = speaker->QueryInterface(id, out);
        speaker->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

Factory factory;

}  // namespace

extern "C" __declspec(dllexport) HRESULT STDAPICALLTYPE
    DllGetClassObject(REFCLSID id, REFIID wanted, void** out) {
    if (id != kClass) {
        *out = nullptr;
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    return factory.QueryInterface(wanted, out);
}

extern "C" __declspec(dllexport) HRESULT STDAPICALLTYPE DllCanUnloadNow() {
    return objects == 0 ? S_OK : S_FALSE;
}
