// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/windows/WinDialogs.h"

#include <algorithm>

#include "adapters/windows/WinDesktop.h"
#include "adapters/windows/WinTwips.h"
#include "adapters/windows/WindowsText.h"
#include "ports/Failure.h"
#include "ports/FormLayouts.h"

namespace marivox::windows {
namespace {

constexpr int kList = 100;
constexpr int kIcon = 1;  // the program's icon in its resources
constexpr DWORD kDialogStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;

// A window that behaves as a dialog box: Tab, Enter and Escape work as in one.
HWND createDialog(const wchar_t* type, WNDPROC procedure, void* self, const char* caption,
                  int width, int height, HWND owner) {
    HINSTANCE instance = Desktop::current().instance();
    WNDCLASSEXW kind{};
    kind.cbSize = sizeof kind;
    kind.lpfnWndProc = procedure;
    kind.cbWndExtra = DLGWINDOWEXTRA;
    kind.hInstance = instance;
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    kind.lpszClassName = type;
    RegisterClassExW(&kind);
    RECT frame{0, 0, pixels(width), pixels(height)};
    AdjustWindowRectEx(&frame, kDialogStyle, FALSE, WS_EX_DLGMODALFRAME);
    RECT area;
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const int w = frame.right - frame.left;
    const int h = frame.bottom - frame.top;
    return CreateWindowExW(WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT, type,
                           wideText(caption).c_str(), kDialogStyle,
                           (area.left + area.right - w) / 2, (area.top + area.bottom - h) / 2, w, h,
                           owner, nullptr, instance, self);
}

template <typename Dialog>
Dialog* dialogOf(HWND window, UINT message, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        SetWindowLongPtrW(
            window, GWLP_USERDATA,
            reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams));
    }
    return reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

[[noreturn]] void notOpen() {
    throw Failure(FailureNumber::Platform, "The Screen Reader dialog is not open");
}

}  // namespace

void WinReaderDialog::showModal(ReaderDialogEvents& events) {
    events_ = &events;
    closed_ = false;
    window_ =
        createDialog(L"MarivoxReader", &WinReaderDialog::procedure, this, layout::kReaderCaption,
                     layout::kReaderWidth, layout::kReaderHeight, nullptr);
    // The label comes first, so that a screen reader names the list after it; the list is
    // still the first place the focus goes.
    createControl(window_, L"STATIC", wideText(layout::kReaderLabel.text).c_str(), SS_LEFT,
                  layout::kReaderLabel.place, 0);
    list_ = createControl(window_, L"LISTBOX", L"",
                          WS_BORDER | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP | LBS_NOTIFY,
                          layout::kReaderList, kList);
    createControl(window_, L"BUTTON", L"OK", WS_TABSTOP | BS_DEFPUSHBUTTON, layout::kReaderOk,
                  IDOK);
    events.Form_Load();
    ShowWindow(window_, SW_SHOW);
    SetForegroundWindow(window_);
    SetFocus(list_);
    Desktop::current().runModal(window_, closed_);
    window_ = nullptr;
    list_ = nullptr;
    events_ = nullptr;
}

void WinReaderDialog::unload() {
    if (window_ != nullptr) {
        SendMessageW(window_, WM_CLOSE, 0, 0);
    }
}

void WinReaderDialog::addItem(std::string_view item) {
    if (list_ == nullptr) {
        notOpen();
    }
    const std::wstring text = wideText(item);
    SendMessageW(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    // A line wider than the list ("Windows voices (no screen reader)") can be scrolled into
    // view rather than cut off; the scroll bar shows only then.
    HDC context = GetDC(list_);
    const HGDIOBJ before =
        SelectObject(context, reinterpret_cast<HGDIOBJ>(SendMessageW(list_, WM_GETFONT, 0, 0)));
    SIZE size{};
    GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(context, before);
    ReleaseDC(list_, context);
    const LRESULT widest = SendMessageW(list_, LB_GETHORIZONTALEXTENT, 0, 0);
    SendMessageW(list_, LB_SETHORIZONTALEXTENT,
                 static_cast<WPARAM>(std::max<LRESULT>(widest, size.cx + 4)), 0);
}

int WinReaderDialog::listIndex() const {
    const LRESULT index = list_ != nullptr ? SendMessageW(list_, LB_GETCURSEL, 0, 0) : LB_ERR;
    return index == LB_ERR ? kNoSelection : static_cast<int>(index);
}

void WinReaderDialog::setListIndex(int index) {
    if (list_ != nullptr) {
        SendMessageW(list_, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
}

LRESULT CALLBACK WinReaderDialog::procedure(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
    auto* dialog = dialogOf<WinReaderDialog>(window, message, lParam);
    if (dialog == nullptr || dialog->events_ == nullptr) {
        return DefDlgProcW(window, message, wParam, lParam);
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDOK) {
        guarded("frmReader", [dialog] { dialog->events_->btnOK_Click(); });
        return 0;
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL) {  // Escape closes as the box does
        SendMessageW(window, WM_CLOSE, 0, 0);
        return 0;
    }
    if (message == WM_CLOSE) {
        std::int16_t cancel = 0;
        guarded("frmReader", [&] { dialog->events_->Form_Unload(cancel); });
        if (cancel == 0) {
            dialog->closed_ = true;
            DestroyWindow(window);
        }
        return 0;
    }
    return DefDlgProcW(window, message, wParam, lParam);
}

void WinAboutBox::showModal(AboutBoxEvents& events) {
    events_ = &events;
    closed_ = false;
    HWND owner = owner_ ? owner_() : nullptr;
    window_ = createDialog(L"MarivoxAbout", &WinAboutBox::procedure, this, layout::kAboutCaption,
                           layout::kAboutWidth, layout::kAboutHeight, owner);
    HWND icon = createControl(window_, L"STATIC", L"", SS_ICON, layout::kAboutIcon, 0);
    SendMessageW(
        icon, STM_SETICON,
        reinterpret_cast<WPARAM>(LoadIconW(Desktop::current().instance(), MAKEINTRESOURCEW(kIcon))),
        0);
    title_ = createControl(window_, L"STATIC", L"", SS_LEFT | SS_NOPREFIX, layout::kAboutTitle, 0);
    titleFont_ = CreateFontW(-pixels(240), 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                             OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                             DEFAULT_PITCH | FF_SWISS, L"MS Shell Dlg");
    SendMessageW(title_, WM_SETFONT, reinterpret_cast<WPARAM>(titleFont_), TRUE);
    version_ =
        createControl(window_, L"STATIC", L"", SS_LEFT | SS_NOPREFIX, layout::kAboutVersion, 0);
    createControl(window_, L"STATIC", L"", SS_ETCHEDHORZ,
                  {layout::kAboutLineInset, layout::kAboutLineTop,
                   layout::kAboutWidth - 2 * layout::kAboutLineInset, 30},
                  0);
    HWND ok = createControl(window_, L"BUTTON", L"OK", WS_TABSTOP | BS_DEFPUSHBUTTON,
                            layout::kAboutOk, IDOK);
    events.Form_Load();
    ShowWindow(window_, SW_SHOW);
    SetFocus(ok);
    Desktop::current().runModal(window_, closed_);
    DeleteObject(titleFont_);
    window_ = title_ = version_ = nullptr;
    events_ = nullptr;
}

void WinAboutBox::unload() {
    if (window_ != nullptr) {
        closed_ = true;
        DestroyWindow(window_);
    }
}

void WinAboutBox::setTitleLabel(std::string_view text) {
    SetWindowTextW(title_, wideText(text).c_str());
}

void WinAboutBox::setVersionLabel(std::string_view text) {
    SetWindowTextW(version_, wideText(text).c_str());
}

LRESULT CALLBACK WinAboutBox::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* box = dialogOf<WinAboutBox>(window, message, lParam);
    if (box == nullptr || box->events_ == nullptr) {
        return DefDlgProcW(window, message, wParam, lParam);
    }
    // OK is also the cancel button: Enter and Escape are a click on it.
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)) {
        guarded("frmAbout", [box] { box->events_->cmdOK_Click(); });
        return 0;
    }
    if (message == WM_CLOSE) {
        box->closed_ = true;
        DestroyWindow(window);
        return 0;
    }
    return DefDlgProcW(window, message, wParam, lParam);
}

}  // namespace marivox::windows
