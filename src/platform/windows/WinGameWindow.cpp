// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/WinGameWindow.h"

#include <vector>

#include "platform/FormLayouts.h"
#include "platform/KeyCodes.h"
#include "platform/windows/WinApplication.h"
#include "platform/windows/WinDesktop.h"
#include "platform/windows/WinTwips.h"
#include "platform/windows/WindowsText.h"

namespace marivox::windows {
namespace {

constexpr wchar_t kClassName[] = L"MarivoxGameScreen";
constexpr int kIcon = 1;  // the program's icon in its resources
constexpr UINT kFirstCommand = 100;

// Menu commands are numbered by their place in the tree: 100 + 10 * menu + item.
const layout::MenuItem* itemOf(UINT command) {
    const UINT menu = (command - kFirstCommand) / 10;
    const UINT item = (command - kFirstCommand) % 10;
    if (command < kFirstCommand || menu >= layout::kMenus.size() ||
        item >= layout::kMenus[menu].items.size()) {
        return nullptr;
    }
    const layout::MenuItem& found = layout::kMenus[menu].items[item];
    return found.name != nullptr ? &found : nullptr;
}

std::int16_t shiftState() {
    std::int16_t state = 0;
    if (GetKeyState(VK_SHIFT) < 0) {
        state |= ShiftState::Shift;
    }
    if (GetKeyState(VK_CONTROL) < 0) {
        state |= ShiftState::Control;
    }
    if (GetKeyState(VK_MENU) < 0) {
        state |= ShiftState::Alt;
    }
    return state;
}

}  // namespace

WinGameWindow::WinGameWindow(WinApplication& application) : application_(application) {
    HINSTANCE instance = Desktop::current().instance();
    WNDCLASSEXW type{};
    type.cbSize = sizeof type;
    type.lpfnWndProc = &WinGameWindow::procedure;
    type.hInstance = instance;
    type.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(kIcon));
    type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    type.lpszClassName = kClassName;
    RegisterClassExW(&type);

    const DWORD style = WS_OVERLAPPEDWINDOW & ~(WS_MAXIMIZEBOX | WS_THICKFRAME);
    RECT frame{0, 0, pixels(layout::kGameClientWidth), pixels(layout::kGameClientHeight)};
    AdjustWindowRectEx(&frame, style, TRUE, 0);
    const std::wstring caption = wideText(layout::kGameCaption);
    window_ = CreateWindowExW(0, kClassName, caption.c_str(), style, CW_USEDEFAULT, CW_USEDEFAULT,
                              frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr,
                              instance, this);
    buildMenus();
    RECT board = pixelRect(layout::kBoard);
    RECT client;
    GetClientRect(window_, &client);
    board.right = std::min(board.right, client.right);  // as far as the window shows it
    grid_ = std::make_unique<WinGrid>(window_, board);
    buildLegend();
    ACCEL newGame{FCONTROL | FVIRTKEY, 'N', static_cast<WORD>(kFirstCommand)};
    shortcuts_ = CreateAcceleratorTableW(&newGame, 1);
}

WinGameWindow::~WinGameWindow() {
    DestroyAcceleratorTable(shortcuts_);
    if (IsWindow(window_)) {
        SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
        DestroyWindow(window_);
    }
}

void WinGameWindow::buildMenus() {
    HMENU bar = CreateMenu();
    for (std::size_t m = 0; m < layout::kMenus.size(); ++m) {
        HMENU menu = CreatePopupMenu();
        for (std::size_t i = 0; i < layout::kMenus[m].items.size(); ++i) {
            const layout::MenuItem& item = layout::kMenus[m].items[i];
            if (item.name != nullptr) {
                AppendMenuW(menu, MF_STRING, kFirstCommand + 10 * m + i,
                            wideText(item.caption).c_str());
            }
        }
        AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu),
                    wideText(layout::kMenus[m].caption).c_str());
    }
    SetMenu(window_, bar);
}

void WinGameWindow::buildLegend() {
    for (const layout::Label& label : layout::kLegend) {
        createControl(window_, L"STATIC", wideText(label.text).c_str(), SS_LEFT | SS_NOPREFIX,
                      label.place, 0);
    }
}

void WinGameWindow::load(GameScreenEvents& events) {
    events_ = &events;
    events.Form_Load();
}

void WinGameWindow::show() {
    ShowWindow(window_, SW_SHOW);
    SetForegroundWindow(window_);
    SetFocus(grid_->handle());
}

void WinGameWindow::unload() {
    close();
}

void WinGameWindow::close() {
    if (!application_.isEnding() && events_ != nullptr) {
        std::int16_t cancel = 0;
        guarded("GameScreen", [&] { events_->Form_Unload(cancel); });
        if (cancel != 0 && !application_.isEnding()) {
            return;
        }
    }
    DestroyWindow(window_);
}

void WinGameWindow::unloadOtherWindows() {
    std::vector<HWND> windows;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM list) {
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    for (HWND window : windows) {  // the front one first
        if (window != window_ && IsWindowVisible(window)) {
            SendMessageW(window, WM_CLOSE, 0, 0);
        }
    }
}

bool WinGameWindow::preview(MSG& message) {
    if (events_ == nullptr || !IsWindow(window_) ||
        (message.hwnd != window_ && !IsChild(window_, message.hwnd))) {
        return false;
    }
    if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) {
        const auto code = static_cast<std::int16_t>(message.wParam & 0xFF);
        guarded("flex", [&] { events_->Form_KeyDown(code, shiftState()); });
        if (code == KeyCode::F1) {
            guarded("flex", [this] { events_->helpKey(); });
            return true;
        }
    }
    return TranslateAcceleratorW(window_, shortcuts_, &message) != 0;
}

LRESULT CALLBACK WinGameWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* create = reinterpret_cast<CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* screen = reinterpret_cast<WinGameWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (screen == nullptr || screen->window_ == nullptr) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    LRESULT result = 0;
    guarded("GameScreen", [&] { result = screen->handle(message, wParam, lParam); });
    return result;
}

LRESULT WinGameWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            if (const layout::MenuItem* item = itemOf(LOWORD(wParam)); item && events_) {
                guarded(item->name, [this, item] { (events_->*item->handler)(); });
                return 0;
            }
            break;
        case WM_SETFOCUS:
            SetFocus(grid_->handle());
            return 0;
        case WM_CLOSE:
            close();
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            break;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

}  // namespace marivox::windows
