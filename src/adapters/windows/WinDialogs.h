// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <windows.h>

#include <functional>

#include "ports/Forms.h"

namespace marivox::windows {

// The dialog "Screen Reader" on Windows: a real list box, its label and OK, shown modally
// with no owner. Escape and the close box ask the game first, as OK does.
class WinReaderDialog : public ReaderDialog {
  public:
    void showModal(ReaderDialogEvents& events) override;
    void unload() override;
    void addItem(std::string_view item) override;
    int listIndex() const override;
    void setListIndex(int index) override;

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    ReaderDialogEvents* events_ = nullptr;
    HWND window_ = nullptr;
    HWND list_ = nullptr;
    bool closed_ = true;
};

// The dialog "About Marivox", owned by the game screen; OK, Enter, Escape and the close box
// all close it.
class WinAboutBox : public AboutBox {
  public:
    explicit WinAboutBox(std::function<HWND()> owner) : owner_(std::move(owner)) {}
    void showModal(AboutBoxEvents& events) override;
    void unload() override;
    void setTitleLabel(std::string_view text) override;
    void setVersionLabel(std::string_view text) override;

  private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::function<HWND()> owner_;
    AboutBoxEvents* events_ = nullptr;
    HWND window_ = nullptr;
    HWND title_ = nullptr;
    HWND version_ = nullptr;
    HFONT titleFont_ = nullptr;
    bool closed_ = true;
};

}  // namespace marivox::windows
