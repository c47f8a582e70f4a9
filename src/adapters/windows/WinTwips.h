// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Places and sizes are given in twips (1440 to the inch) and drawn at the screen's DPI.

#include <windows.h>

#include "ports/FormLayouts.h"

namespace marivox::windows {

inline int pixels(int twips) {
    HDC screen = GetDC(nullptr);
    const int dpi = screen != nullptr ? GetDeviceCaps(screen, LOGPIXELSY) : 96;
    ReleaseDC(nullptr, screen);
    return MulDiv(twips, dpi, 1440);
}

inline RECT pixelRect(const layout::Place& place) {
    const int left = pixels(place.left);
    const int top = pixels(place.top);
    return {left, top, left + pixels(place.width), top + pixels(place.height)};
}

// The desktop's dialog font, which every larger font of the game's windows starts from.
inline LOGFONTW guiFont() {
    LOGFONTW font{};
    GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    return font;
}

// A child control at its place in its parent's client area.
inline HWND createControl(HWND parent, const wchar_t* type, const wchar_t* text, DWORD style,
                          const layout::Place& place, int id) {
    const RECT r = pixelRect(place);
    HWND control = CreateWindowExW(
        0, type, text, WS_CHILD | WS_VISIBLE | style, r.left, r.top, r.right - r.left,
        r.bottom - r.top, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
        reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(parent, GWLP_HINSTANCE)), nullptr);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 TRUE);
    return control;
}

}  // namespace marivox::windows
