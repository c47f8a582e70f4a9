// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <thread>

#include "adapters/Contracts.h"
#include "adapters/windows/WinDesktop.h"
#include "adapters/windows/WinGrid.h"
#include "adapters/windows/WinSettingsStore.h"
#include "adapters/windows/WinTimers.h"
#include "adapters/windows/WindowsText.h"

// The Windows desktop's timers and board keep the contracts the fakes and the Qt desktop keep.
namespace marivox {
namespace {

// Lets the thread's own message loop run what has fallen due.
void deliver() {
    const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(20);
    for (MSG message; std::chrono::steady_clock::now() < until; Sleep(1)) {
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageW(&message);
        }
    }
}

TEST(TimerContract, Windows) {
    windows::Desktop desktop(GetModuleHandleW(nullptr));
    windows::WinTimerFactory timers;
    checkTimers(
        timers, [](auto ms) { std::this_thread::sleep_for(ms); }, deliver);
}

TEST(GridContract, Windows) {
    windows::Desktop desktop(GetModuleHandleW(nullptr));
    HWND frame = CreateWindowExW(0, L"STATIC", L"Board", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                 640, 480, nullptr, nullptr, desktop.instance(), nullptr);
    windows::WinGrid grid(frame, {0, 0, 600, 400});
    grid.setMovesVoiced([] { return false; });  // assistive technology hears each cell's name
    checkGrid(
        grid,
        [&](int row, int col) {
            const RECT cell = grid.cellRect(row, col);
            const LPARAM middle =
                MAKELPARAM((cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2);
            SendMessageW(grid.handle(), WM_LBUTTONDOWN, MK_LBUTTON, middle);
            SendMessageW(grid.handle(), WM_LBUTTONUP, 0, middle);
        },
        [&] {
            wchar_t name[256] = {};
            GetWindowTextW(grid.handle(), name, 256);
            return windows::utf8Text(name);
        });
    DestroyWindow(frame);
}

TEST(SettingsContract, Windows) {
    windows::WinSettingsStore store, later;
    checkSettings(store, later);
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\MarivoxContract");
}

}  // namespace
}  // namespace marivox
