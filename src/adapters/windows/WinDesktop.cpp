// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WinDesktop.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "ports/Failure.h"
#include "ports/ProgramName.h"

namespace marivox::windows {
namespace {

constexpr UINT kPosted = WM_APP + 1;
constexpr wchar_t kClassName[] = L"MarivoxMessages";
Desktop* running = nullptr;

struct Posted {
    std::chrono::milliseconds delay;
    std::function<void()> call;
};

}  // namespace

Desktop::Desktop(HINSTANCE instance) : instance_(instance) {
    running = this;
    WNDCLASSEXW type{};
    type.cbSize = sizeof type;
    type.lpfnWndProc = &Desktop::messages;
    type.hInstance = instance;
    type.lpszClassName = kClassName;
    RegisterClassExW(&type);
    messageWindow_ = CreateWindowExW(0, kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                     instance, nullptr);
}

Desktop::~Desktop() {
    DestroyWindow(messageWindow_);
    running = nullptr;
}

Desktop& Desktop::current() {
    return *running;
}

int Desktop::run() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (preview_ && preview_(message)) {
            continue;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

void Desktop::runModal(HWND window, const bool& closed) {
    // Every other window of ours stays as it is but takes no input.
    std::vector<HWND> disabled;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND other, LPARAM list) {
            auto& windows = *reinterpret_cast<std::vector<HWND>*>(list);
            windows.push_back(other);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&disabled));
    std::erase_if(disabled, [window](HWND other) {
        return other == window || !IsWindowEnabled(other) || !IsWindowVisible(other);
    });
    for (HWND other : disabled) {
        EnableWindow(other, FALSE);
    }
    MSG message;
    while (!closed) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got <= 0) {
            PostQuitMessage(static_cast<int>(message.wParam));  // for the outer loop
            break;
        }
        if (!IsDialogMessageW(window, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    for (HWND other : disabled) {
        EnableWindow(other, TRUE);
    }
    if (!disabled.empty()) {
        SetActiveWindow(disabled.front());
    }
}

void Desktop::runOwnUntil(const std::function<bool()>& done) {
    MSG message;
    while (!done()) {
        // Timers and posted calls all go to the message window; nothing else is taken.
        const BOOL got = GetMessageW(&message, messageWindow_, 0, 0);
        if (got == 0) {
            PostQuitMessage(static_cast<int>(message.wParam));  // for the outer loop
        }
        if (got <= 0) {
            return;
        }
        DispatchMessageW(&message);
    }
}

UINT_PTR Desktop::startTimer(std::chrono::milliseconds interval, std::function<void()> tick) {
    const UINT_PTR id = nextTimer_++;
    timers_[id] = std::move(tick);
    SetTimer(messageWindow_, id, static_cast<UINT>(std::max<long long>(1, interval.count())),
             nullptr);
    return id;
}

void Desktop::stopTimer(UINT_PTR id) {
    KillTimer(messageWindow_, id);
    timers_.erase(id);
}

LRESULT CALLBACK Desktop::messages(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kPosted) {
        std::unique_ptr<Posted> posted(reinterpret_cast<Posted*>(lParam));
        if (posted->delay.count() == 0) {
            guarded("posted call", posted->call);
        } else if (running != nullptr) {
            running->startTimer(posted->delay,
                                [call = std::move(posted->call)] { guarded("posted call", call); });
        }
        return 0;
    }
    if (message == WM_TIMER && running != nullptr) {
        const auto found = running->timers_.find(wParam);
        if (found != running->timers_.end()) {
            // Once only: the timer is gone before its call runs, which may start another.
            const std::function<void()> tick = std::move(found->second);
            running->stopTimer(wParam);
            guarded("timer", tick);
        }
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void Desktop::escaped(std::string_view where, const std::exception& failure) {
    if (running != nullptr && running->handler_) {
        try {
            running->handler_(where, failure);
            return;
        } catch (...) {
            // Reporting failed too; the note below is all that is left.
        }
    }
    std::fprintf(stderr, "%s: %s in %.*s\n", kProgramName, failure.what(),
                 static_cast<int>(where.size()), where.data());
}

void Desktop::escapedOnAnyThread(std::string_view where, const std::exception& failure) {
    const auto* known = dynamic_cast<const Failure*>(&failure);
    Failure copy = known != nullptr ? *known : Failure(FailureNumber::Internal, failure.what());
    post(std::chrono::microseconds{0},
         [where = std::string(where), copy] { escaped(where, copy); });
}

void Desktop::post(std::chrono::microseconds delay, std::function<void()> call) {
    if (running == nullptr) {
        return;
    }
    auto posted = std::make_unique<Posted>(
        Posted{std::chrono::ceil<std::chrono::milliseconds>(delay), std::move(call)});
    if (PostMessageW(running->messageWindow_, kPosted, 0, reinterpret_cast<LPARAM>(posted.get())) !=
        0) {
        posted.release();  // the user-interface thread owns it now
    }
}

}  // namespace marivox::windows
