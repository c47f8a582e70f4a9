// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <mutex>

#include "adapters/speechd/VoiceSettings.h"

namespace marivox::qt {

// The player's speech settings as Orca keeps them (user-settings.conf in Orca's data folder),
// in speech-dispatcher's terms and mapped as Orca maps them: rate, pitch, volume, synthesizer,
// language and voice, each only where Orca's file gives it. The file is read again whenever
// it changes, so a new rate is heard from the next text on. Safe to ask from any thread.
class OrcaSettings {
  public:
    explicit OrcaSettings(QString file = defaultFile());
    speechd::VoiceSettings voice();

    static QString defaultFile();

  private:
    QString file_;
    std::mutex mutex_;
    QDateTime modified_;
    qint64 size_ = -1;
    speechd::VoiceSettings voice_;
};

}  // namespace marivox::qt
