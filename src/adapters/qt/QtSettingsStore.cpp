// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/QtSettingsStore.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include "ports/Failure.h"

namespace marivox::qt {
namespace {

QString q(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Looked up at every call rather than cached, so the store follows XDG_CONFIG_HOME.
QString settingsFile(std::string_view application) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + "/" + q(application) + "/" + q(application) + ".conf";
}

QString settingName(std::string_view section, std::string_view key) {
    return q(section) + "/" + q(key);
}

[[noreturn]] void fail(const QSettings& settings, const char* what) {
    const QString file = settings.fileName();
    const char* reason = settings.status() == QSettings::FormatError
                             ? "it is damaged"
                             : "it cannot be read or written";
    throw Failure(FailureNumber::SettingsStore, std::string("The settings file ") +
                                                    file.toStdString() + " could not be " + what +
                                                    ": " + reason);
}

}  // namespace

std::string QtSettingsStore::GetSetting(std::string_view application, std::string_view section,
                                        std::string_view key, std::string_view defaultValue) {
    QSettings settings(settingsFile(application), QSettings::IniFormat);
    const QFileInfo file(settings.fileName());
    // Qt reads an unreadable file as an empty one; the player's choice would silently vanish.
    if (settings.status() != QSettings::NoError || (file.exists() && !file.isReadable())) {
        fail(settings, "read");
    }
    return settings.value(settingName(section, key), q(defaultValue)).toString().toStdString();
}

void QtSettingsStore::SaveSetting(std::string_view application, std::string_view section,
                                  std::string_view key, std::string_view value) {
    const QString path = settingsFile(application);
    QByteArray before;
    if (QFile old(path); old.open(QIODevice::ReadOnly)) {
        before = old.readAll();
    }
    {
        QSettings settings(path, QSettings::IniFormat);
        if (settings.status() != QSettings::NoError) {
            fail(settings, "read");
        }
        settings.setValue(settingName(section, key), q(value));
        settings.sync();
        if (settings.status() == QSettings::NoError) {
            return;
        }
        if (settings.status() != QSettings::FormatError) {
            fail(settings, "written");
        }
    }
    // Qt finds a damaged file only as it writes. Nothing in it can be read back, but it is
    // the player's: it is kept aside whole and a fresh file takes its place.
    QFile aside(path + ".damaged");
    if (!aside.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        aside.write(before) != before.size() || !aside.flush()) {
        fail(QSettings(path, QSettings::IniFormat), "written");
    }
    QFile::remove(path);
    QSettings fresh(path, QSettings::IniFormat);
    fresh.setValue(settingName(section, key), q(value));
    fresh.sync();
    if (fresh.status() != QSettings::NoError) {
        fail(fresh, "written");
    }
}

}  // namespace marivox::qt
