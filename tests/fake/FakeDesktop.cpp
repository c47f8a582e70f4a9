// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fake/FakeDesktop.h"

#include <stdexcept>

#include "platform/KeyCodes.h"

namespace marivox::fake {

void FakeGameWindow::load(GameScreenEvents& events) {
    transcript_.record("window load");
    events_ = &events;
    events.Form_Load();
}

void FakeGameWindow::unload() {
    transcript_.record("window unload");
    std::int16_t cancel = 0;
    events_->Form_Unload(cancel);
    if (cancel == 0) {
        transcript_.record("window closed");
        closed_ = true;
    }
}

void FakeGameWindow::pressKey(std::int16_t keyCode, std::int16_t shift) {
    events_->Form_KeyDown(keyCode, shift);
    const int row = grid_.row();
    const int col = grid_.col();
    switch (keyCode) {
        case KeyCode::Up:
            grid_.playerMovesTo(std::max(1, row - 1), col);
            break;
        case KeyCode::Down:
            grid_.playerMovesTo(std::min(9, row + 1), col);
            break;
        case KeyCode::Left:
            grid_.playerMovesTo(row, std::max(1, col - 1));
            break;
        case KeyCode::Right:
            grid_.playerMovesTo(row, std::min(9, col + 1));
            break;
        default:
            break;
    }
}

void FakeReaderDialog::showModal(ReaderDialogEvents& events) {
    transcript_.record("reader dialog open");
    events_ = &events;
    items_.clear();
    index_ = kNoSelection;
    events.Form_Load();
    indexWhenOpened_ = index_;
    open_ = true;
    while (open_) {
        if (script_.empty()) {
            throw std::logic_error("the reader dialog is open and the script has no answer");
        }
        const Action action = script_.front();
        script_.pop_front();
        if (action.step == Step::Ok) {
            index_ = action.index;
            transcript_.record("reader OK " + std::to_string(action.index));
            events.btnOK_Click();
        } else {
            transcript_.record("reader close box");
            unload();
        }
    }
}

void FakeReaderDialog::unload() {
    std::int16_t cancel = 0;
    events_->Form_Unload(cancel);
    if (cancel == 0) {
        open_ = false;
        transcript_.record("reader dialog closed");
    }
}

void FakeReaderDialog::addItem(std::string_view item) {
    transcript_.record("reader item \"" + std::string(item) + "\"");
    items_.emplace_back(item);
}

void FakeAboutBox::showModal(AboutBoxEvents& events) {
    transcript_.record("about open");
    events.Form_Load();
    events.cmdOK_Click();
}

void FakeAboutBox::setTitleLabel(std::string_view text) {
    transcript_.record("about title \"" + std::string(text) + "\"");
}

void FakeAboutBox::setVersionLabel(std::string_view text) {
    transcript_.record("about version \"" + std::string(text) + "\"");
}

}  // namespace marivox::fake
