// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WinGameWindow.h"

#include <cmath>
#include <vector>

#include "adapters/windows/WinApplication.h"
#include "adapters/windows/WinDesktop.h"
#include "adapters/windows/WinTwips.h"
#include "adapters/windows/WindowsText.h"
#include "ports/Commands.h"
#include "ports/FormLayouts.h"
#include "ports/KeyCodes.h"

namespace marivox::windows {
namespace {

constexpr wchar_t kClassName[] = L"MarivoxGameScreen";
constexpr int kIcon = 1;  // the program's icon in its resources
constexpr UINT kFirstCommand = 100;

// Menu commands are numbered by their place in the tree: 100 + 10 * menu + item.
WORD idOf(const commands::Command& command) {
    for (std::size_t m = 0; m < commands::kMenus.size(); ++m) {
        for (std::size_t i = 0; i < commands::kMenus[m].items.size(); ++i) {
            if (commands::kMenus[m].items[i] == &command) {
                return static_cast<WORD>(kFirstCommand + 10 * m + i);
            }
        }
    }
    return 0;
}

const commands::Command* commandOf(UINT id) {
    const UINT menu = (id - kFirstCommand) / 10;
    const UINT item = (id - kFirstCommand) % 10;
    if (id < kFirstCommand || menu >= commands::kMenus.size() ||
        item >= commands::kMenus[menu].items.size()) {
        return nullptr;
    }
    return commands::kMenus[menu].items[item];
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

    // A window a player who sees a little can grow: the board and legend fill it.
    const DWORD style = WS_OVERLAPPEDWINDOW;
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
    const int boardHeight = pixels(layout::kBoard.height);
    normal_ = {pixels(layout::kGameClientWidth),
               pixels(layout::kGameClientHeight),
               boardHeight,
               pixels(layout::kLegend.front().place.top),
               pixels(layout::kLegend.back().place.top + layout::kLegend.back().place.height),
               (boardHeight - pixels(300)) / 9,
               static_cast<double>(std::abs(guiFont().lfHeight))};
    std::vector<ACCEL> keys;
    commands::forEach([&](const commands::Command& command) {
        for (const commands::Key& key : command.keys) {
            if (command.kind == commands::KeyKind::Shortcut && key.code != 0) {
                const bool ctrl = (key.held & ShiftState::Control) != 0;
                const bool alt = (key.held & ShiftState::Alt) != 0;
                // Shift is never asked about: + is Shift and = on many keyboards.
                for (const int shift : {0, FSHIFT}) {
                    keys.push_back({static_cast<BYTE>(FVIRTKEY | shift | (ctrl ? FCONTROL : 0) |
                                                      (alt ? FALT : 0)),
                                    static_cast<WORD>(key.code), idOf(command)});
                }
            }
        }
    });
    shortcuts_ = CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
}

WinGameWindow::~WinGameWindow() {
    DestroyAcceleratorTable(shortcuts_);
    DeleteObject(legendFont_);
    DeleteObject(black_);
    if (IsWindow(window_)) {
        SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
        DestroyWindow(window_);
    }
}

void WinGameWindow::buildMenus() {
    HMENU bar = CreateMenu();
    for (std::size_t m = 0; m < commands::kMenus.size(); ++m) {
        HMENU menu = CreatePopupMenu();
        for (const commands::Command* command : commands::kMenus[m].items) {
            if (command != nullptr) {
                AppendMenuW(menu, MF_STRING, idOf(*command), wideText(command->caption).c_str());
            }
        }
        AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu),
                    wideText(commands::kMenus[m].caption).c_str());
    }
    SetMenu(window_, bar);
}

void WinGameWindow::buildLegend() {
    for (const layout::Label& label : layout::kLegend) {
        legend_.push_back(createControl(window_, L"STATIC", wideText(label.text).c_str(),
                                        SS_LEFT | SS_NOPREFIX, label.place, 0));
    }
}

void WinGameWindow::setDisplay(int zoomPercent, bool highContrast) {
    zoom_ = zoomPercent;
    highContrast_ = highContrast;
    // The window grows and shrinks with the zoom as far as the screen has room; a maximised
    // one stays as it is.
    if (!IsZoomed(window_)) {
        RECT frame{0, 0, layout::zoomedWidth(normal_, zoom_), layout::zoomedHeight(normal_, zoom_)};
        AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE)), TRUE,
                           0);
        RECT room{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0);
        SetWindowPos(window_, nullptr, 0, 0,
                     std::min(frame.right - frame.left, room.right - room.left),
                     std::min(frame.bottom - frame.top, room.bottom - room.top),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    relayout();
    InvalidateRect(window_, nullptr, TRUE);
}

bool WinGameWindow::desktopHighContrast() const {
    HIGHCONTRASTW contrast{sizeof contrast, 0, nullptr};
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != 0 &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

// The board takes what the legend leaves; everything stands where it always did in the
// normal window at 100%.
void WinGameWindow::relayout() {
    if (grid_ == nullptr || normal_.clientWidth == 0) {
        return;
    }
    RECT client;
    GetClientRect(window_, &client);
    const layout::BoardPlaces places =
        layout::boardPlaces(normal_, client.right, client.bottom, zoom_);
    const int boardWidth = std::min(pixels(layout::kBoard.width), normal_.clientWidth) +
                           std::max(0, static_cast<int>(client.right) - normal_.clientWidth);
    MoveWindow(grid_->handle(), 0, 0, boardWidth, places.boardHeight, TRUE);
    grid_->setLook(places.normal ? 0 : places.markPixels, places.normal ? 1 : places.headingScale,
                   highContrast_);
    DeleteObject(legendFont_);
    legendFont_ = nullptr;
    if (places.legendScale != 1) {
        LOGFONTW font = guiFont();
        font.lfHeight = static_cast<LONG>(std::lround(font.lfHeight * places.legendScale));
        legendFont_ = CreateFontIndirectW(&font);
    }
    for (std::size_t i = 0; i < legend_.size(); ++i) {
        const RECT normal = pixelRect(layout::kLegend[i].place);
        const layout::Rect place =
            layout::legendPlace(places, normal.left, normal.top, normal.right - normal.left,
                                normal.bottom - normal.top);
        MoveWindow(legend_[i], place.left, place.top, place.width, place.height, TRUE);
        SendMessageW(legend_[i], WM_SETFONT,
                     reinterpret_cast<WPARAM>(
                         legendFont_ != nullptr ? legendFont_ : GetStockObject(DEFAULT_GUI_FONT)),
                     TRUE);
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
            if (const commands::Command* command = commandOf(LOWORD(wParam)); command && events_) {
                guarded(command->name, [this, command] { (events_->*command->handler)(); });
                return 0;
            }
            break;
        case WM_SIZE:
            relayout();
            return 0;
        case WM_ERASEBKGND:
            if (highContrast_) {
                RECT client;
                GetClientRect(window_, &client);
                FillRect(reinterpret_cast<HDC>(wParam), &client, black_);
                return 1;
            }
            break;
        case WM_CTLCOLORSTATIC:
            if (highContrast_) {  // the legend: yellow on black
                SetTextColor(reinterpret_cast<HDC>(wParam), RGB(255, 255, 0));
                SetBkColor(reinterpret_cast<HDC>(wParam), RGB(0, 0, 0));
                return reinterpret_cast<LRESULT>(black_);
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
