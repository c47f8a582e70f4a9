// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "fake/FakeGrid.h"
#include "fake/Transcript.h"
#include "platform/Forms.h"

namespace marivox::fake {

// The game window. Lines: `window load|show|unload|closed`, `unload other windows`.
class FakeGameWindow : public GameWindow {
  public:
    explicit FakeGameWindow(Transcript& transcript) : transcript_(transcript), grid_(transcript) {}

    void load(GameScreenEvents& events) override;
    void show() override { transcript_.record("window show"); }
    void unload() override;
    void unloadOtherWindows() override { transcript_.record("unload other windows"); }
    GridControl& grid() override { return grid_; }

    FakeGrid& fakeGrid() { return grid_; }
    bool closed() const { return closed_; }
    // A key as the player presses it: the window previews it, then the grid gets it.
    void pressKey(std::int16_t keyCode, std::int16_t shift = 0);
    GameScreenEvents& events() { return *events_; }

  private:
    Transcript& transcript_;
    FakeGrid grid_;
    GameScreenEvents* events_ = nullptr;
    bool closed_ = false;
};

// The screen-reader dialog, worked by a scripted player. Lines: `reader dialog open`,
// `reader item "<text>"`, `reader OK <index>`, `reader close box`, `reader dialog closed`.
class FakeReaderDialog : public ReaderDialog {
  public:
    explicit FakeReaderDialog(Transcript& transcript) : transcript_(transcript) {}

    // The player selects `index` (kNoSelection to clear it) and presses OK.
    void thenChoose(int index) { script_.push_back({Step::Ok, index}); }
    void thenCloseBox() { script_.push_back({Step::CloseBox, 0}); }

    void showModal(ReaderDialogEvents& events) override;
    void unload() override;
    void addItem(std::string_view item) override;
    int listIndex() const override { return index_; }
    void setListIndex(int index) override { index_ = index; }

    const std::vector<std::string>& items() const { return items_; }
    int indexWhenOpened() const { return indexWhenOpened_; }

  private:
    enum class Step { Ok, CloseBox };
    struct Action {
        Step step;
        int index;
    };
    Transcript& transcript_;
    std::deque<Action> script_;
    ReaderDialogEvents* events_ = nullptr;
    std::vector<std::string> items_;
    int index_ = kNoSelection;
    int indexWhenOpened_ = kNoSelection;
    bool open_ = false;
};

// The About box; the player presses OK as soon as it is shown. Lines: `about open`,
// `about title "<text>"`, `about version "<text>"`, `about closed`.
class FakeAboutBox : public AboutBox {
  public:
    explicit FakeAboutBox(Transcript& transcript) : transcript_(transcript) {}

    void showModal(AboutBoxEvents& events) override;
    void unload() override { transcript_.record("about closed"); }
    void setTitleLabel(std::string_view text) override;
    void setVersionLabel(std::string_view text) override;

  private:
    Transcript& transcript_;
};

}  // namespace marivox::fake
