// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "adapters/qt/AnnouncementVoice.h"
#include "adapters/speechd/SpeechdReaders.h"
#include "ports/Readers.h"

namespace marivox {

// The readers on Linux: "Orca" hands the game's words to Orca as announcements from the game
// window; the others, and "Orca" where announcements cannot be made, speak through
// speech-dispatcher in the player's Orca voice.
class LinuxReaders : public ReaderDrivers {
  public:
    LinuxReaders(speechd::SpeechdReaderDrivers& speechd, QWidget& window)
        : speechd_(speechd), window_(window) {}

    std::unique_ptr<ReaderVoice> voiceOf(std::string_view reader) override {
        auto voice = speechd_.voiceOf(reader);
        return reader == kOrca.stored ? qt::announcementVoice(window_, std::move(voice))
                                      : std::move(voice);
    }
    void onLateFailure(LateFailureHandler handler) override {
        speechd_.onLateFailure(std::move(handler));
    }

  private:
    speechd::SpeechdReaderDrivers& speechd_;
    QWidget& window_;
};

}  // namespace marivox
