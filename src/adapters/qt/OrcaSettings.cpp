// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/OrcaSettings.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <algorithm>
#include <cmath>

namespace marivox::qt {
namespace {

// Orca's scales onto speech-dispatcher's, as the Orcas of Debian 12 and 13 (43 to 48) map
// them: rate 0..99 by 2, pitch 0..9 by 20, gain 0..9 by 15, each from its own offset.
int scaled(double value, double top, double step, double offset) {
    return static_cast<int>(std::trunc(step * std::clamp(value, 0.0, top) - offset));
}

// The general settings with the starting profile's over them, as Orca reads them.
QJsonObject effectiveSettings(const QJsonObject& prefs) {
    QJsonObject settings = prefs["general"].toObject();
    const QJsonArray starting = settings["startingProfile"].toArray();
    const QString profile = starting.size() > 1 ? starting[1].toString() : "default";
    const QJsonObject overrides = prefs["profiles"].toObject()[profile].toObject();
    for (auto it = overrides.begin(); it != overrides.end(); ++it) {
        settings[it.key()] = it.value();
    }
    return settings;
}

speechd::VoiceSettings voiceIn(const QJsonObject& settings) {
    speechd::VoiceSettings voice;
    const QJsonObject acss = settings["voices"].toObject()["default"].toObject();
    if (acss["rate"].isDouble()) {
        voice.rate = scaled(acss["rate"].toDouble(), 99, 2, 98);
    }
    if (acss["average-pitch"].isDouble()) {
        voice.pitch = scaled(acss["average-pitch"].toDouble(), 9, 20, 90);
    }
    if (acss["gain"].isDouble()) {
        voice.volume = scaled(acss["gain"].toDouble(), 9, 15, 35);
    }
    const QJsonObject family = acss["family"].toObject();
    const QString lang = family["lang"].toString();
    const QString dialect = family["dialect"].toString();
    voice.language =
        (dialect.isEmpty() || lang.isEmpty() ? lang : lang + "-" + dialect).toStdString();
    voice.synthesisVoice = family["name"].toString().toStdString();
    // The synthesizer counts only while Orca itself speaks through speech-dispatcher.
    const QString factory = settings["speechServerFactory"].toString();
    const QJsonArray server = settings["speechServerInfo"].toArray();
    if ((factory.isEmpty() || factory.endsWith("speechdispatcherfactory")) && server.size() > 1 &&
        server[1].toString() != "default") {
        voice.outputModule = server[1].toString().toStdString();
    }
    return voice;
}

}  // namespace

OrcaSettings::OrcaSettings(QString file) : file_(std::move(file)) {}

QString OrcaSettings::defaultFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           "/orca/user-settings.conf";
}

speechd::VoiceSettings OrcaSettings::voice() {
    const std::lock_guard lock(mutex_);
    const QFileInfo info(file_);
    const QDateTime modified = info.exists() ? info.lastModified() : QDateTime();
    const qint64 size = info.exists() ? info.size() : -1;
    if (modified == modified_ && size == size_) {
        return voice_;
    }
    modified_ = modified;
    size_ = size;
    QFile file(file_);
    // No file, or one Orca could not read either: the service's own voice.
    voice_ = file.open(QIODevice::ReadOnly)
                 ? voiceIn(effectiveSettings(QJsonDocument::fromJson(file.readAll()).object()))
                 : speechd::VoiceSettings{};
    return voice_;
}

}  // namespace marivox::qt
