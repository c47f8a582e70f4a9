// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as the settings file, and any text as the choice saved over it: reading never
// crashes, a saved choice reads back exactly, and a file the store replaces is kept whole.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/qt/QtSettingsStore.h"
#include "support/Failure.h"

namespace {

void require(bool condition, const char* what) {
    if (!condition) {
        std::fprintf(stderr, "broken promise: %s\n", what);
        std::abort();
    }
}

struct Home {
    Home() {
        require(folder.isValid(), "a scratch folder");
        ::setenv("XDG_CONFIG_HOME", folder.path().toUtf8().constData(), 1);
        QDir().mkpath(folder.path() + "/Marivox");
    }
    QString file() const { return folder.path() + "/Marivox/Marivox.conf"; }
    QTemporaryDir folder;
};

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Home home;
    // The first byte says how much of the rest is the choice to save; the remainder is
    // the file as found. A choice is text: no NUL, valid UTF-8 kept to ASCII here.
    const std::size_t valueLength = size == 0 ? 0 : std::min<std::size_t>(data[0], size - 1);
    std::string value;
    for (std::size_t i = 1; i <= valueLength; ++i) {
        value += static_cast<char>(1 + data[i] % 127);
    }
    const QByteArray found(reinterpret_cast<const char*>(data) + 1 + valueLength,
                           static_cast<qsizetype>(size == 0 ? 0 : size - 1 - valueLength));
    {
        QFile file(home.file());
        require(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "the file written");
        file.write(found);
    }
    QFile::remove(home.file() + ".damaged");

    marivox::qt::QtSettingsStore store;
    try {
        store.GetSetting("Marivox", "StartUp", "Reader", "");
    } catch (const marivox::Failure&) {
        // An unreadable file is reported, and that is all reading may do.
    }
    store.SaveSetting("Marivox", "StartUp", "Reader", value);
    require(store.GetSetting("Marivox", "StartUp", "Reader", "\x01missing") == value,
            "the saved choice reads back exactly");
    if (QFile::exists(home.file() + ".damaged")) {
        require(contents(home.file() + ".damaged") == found, "a replaced file is kept whole");
    }
    return 0;
}
