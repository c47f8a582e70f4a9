// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/Forms.h"
#include "ports/MessageBoxes.h"
#include "speech/SpeechAfterSounds.h"

namespace marivox {

// Every modal window of the game opens only once the sounds asked for before it have begun
// and the words waiting behind them have been said. A screen reader reads a window as it
// appears: opened sooner, a box would be read before the words, which would then come over
// it, or never if the answer ends the program.

class BoxesAfterSounds : public MessageBoxes {
  public:
    BoxesAfterSounds(MessageBoxes& boxes, SpeechAfterSounds& heard)
        : boxes_(boxes), heard_(heard) {}
    int show(std::string_view text, int style, std::string_view title) override {
        heard_.awaitSoundsHeard();
        return boxes_.show(text, style, title);
    }

  private:
    MessageBoxes& boxes_;
    SpeechAfterSounds& heard_;
};

class ReaderDialogAfterSounds : public ReaderDialog {
  public:
    ReaderDialogAfterSounds(ReaderDialog& dialog, SpeechAfterSounds& heard)
        : dialog_(dialog), heard_(heard) {}
    void showModal(ReaderDialogEvents& events) override {
        heard_.awaitSoundsHeard();
        dialog_.showModal(events);
    }
    void unload() override { dialog_.unload(); }
    void addItem(std::string_view item) override { dialog_.addItem(item); }
    int listIndex() const override { return dialog_.listIndex(); }
    void setListIndex(int index) override { dialog_.setListIndex(index); }

  private:
    ReaderDialog& dialog_;
    SpeechAfterSounds& heard_;
};

class AboutBoxAfterSounds : public AboutBox {
  public:
    AboutBoxAfterSounds(AboutBox& box, SpeechAfterSounds& heard) : box_(box), heard_(heard) {}
    void showModal(AboutBoxEvents& events) override {
        heard_.awaitSoundsHeard();
        box_.showModal(events);
    }
    void unload() override { box_.unload(); }
    void setTitleLabel(std::string_view text) override { box_.setTitleLabel(text); }
    void setVersionLabel(std::string_view text) override { box_.setVersionLabel(text); }

  private:
    AboutBox& box_;
    SpeechAfterSounds& heard_;
};

}  // namespace marivox
