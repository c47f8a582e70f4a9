// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <functional>

#include "ports/Forms.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace marivox::qt {

// The "Screen Reader" dialog. A fresh one is built each time it is shown, as the game
// loads it anew each time; every way of closing it asks its unload handler first.
class ReaderDialogQt : public ReaderDialog {
  public:
    void showModal(ReaderDialogEvents& events) override;
    void unload() override;
    void addItem(std::string_view item) override;
    int listIndex() const override;
    void setListIndex(int index) override;

    // The dialog while it is shown, for tests and for the window that closes others.
    QDialog* current() const;

  private:
    class Form;
    Form* dialog_ = nullptr;
};

// The About box, modal over the game window.
class AboutBoxQt : public AboutBox {
  public:
    explicit AboutBoxQt(std::function<QWidget*()> owner) : owner_(std::move(owner)) {}

    void showModal(AboutBoxEvents& events) override;
    void unload() override;
    void setTitleLabel(std::string_view text) override;
    void setVersionLabel(std::string_view text) override;

    QDialog* current() const;

  private:
    class Form;
    std::function<QWidget*()> owner_;
    Form* dialog_ = nullptr;
};

}  // namespace marivox::qt
