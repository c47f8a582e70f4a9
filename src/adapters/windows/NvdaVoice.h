// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The "NVDA" choice: NVDA's controller, which a running NVDA serves to programs on the same
// desktop over local RPC, called with stubs of our own. Bound at the first call and afresh
// after a call fails, so an NVDA started or restarted later is found.

#include <windows.h>
// After windows.h, which it needs.
#include <rpc.h>

#include <string>

#include "adapters/windows/BrailleMessage.h"
#include "adapters/windows/NvdaCalls.h"
#include "adapters/windows/OutageReport.h"
#include "ports/ScreenReaders.h"

namespace marivox::windows {

class NvdaVoice : public ReaderVoice {
  public:
    NvdaVoice() = default;
    ~NvdaVoice() override;
    NvdaVoice(const NvdaVoice&) = delete;
    NvdaVoice& operator=(const NvdaVoice&) = delete;

    // Speaks the text and shows what has been said since the last stop in braille.
    void say(std::string_view text) override;
    void stop() override;

  private:
    void call(NvdaProcedure procedure, const std::wstring& text = {});

    RPC_BINDING_HANDLE binding_ = nullptr;
    BrailleMessage braille_;
    OutageReport outage_;
};

}  // namespace marivox::windows
