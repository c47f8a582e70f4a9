// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as the settings file, and any text as the choice saved over it: reading never
// crashes, a saved choice reads back exactly, and a file the store replaces is kept whole.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/qt/QtSettingsStore.h"
#include "support/Failure.h"

namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static QTemporaryDir home;
    static const QString path = home.path() + "/Marivox/Marivox.conf";
    static const bool ready = QDir().mkpath(home.path() + "/Marivox") &&
                              ::setenv("XDG_CONFIG_HOME", home.path().toUtf8().constData(), 1) == 0;
    if (!ready) {
        std::abort();
    }
    // The first byte says how much of the rest is the choice to save, as ASCII text; the
    // remainder is the file as found.
    const std::size_t valueLength = size == 0 ? 0 : std::min<std::size_t>(data[0], size - 1);
    std::string value;
    for (std::size_t i = 1; i <= valueLength; ++i) {
        value += static_cast<char>(1 + data[i] % 127);
    }
    const QByteArray found(reinterpret_cast<const char*>(data) + 1 + valueLength,
                           static_cast<qsizetype>(size == 0 ? 0 : size - 1 - valueLength));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(found) < 0) {
        std::abort();
    }
    file.close();
    QFile::remove(path + ".damaged");

    marivox::qt::QtSettingsStore store;
    try {
        store.GetSetting("Marivox", "StartUp", "Reader", "");
    } catch (const marivox::Failure&) {
        // An unreadable file is reported, and that is all reading may do.
    }
    store.SaveSetting("Marivox", "StartUp", "Reader", value);
    if (store.GetSetting("Marivox", "StartUp", "Reader", "\x01missing") != value ||
        (QFile::exists(path + ".damaged") && contents(path + ".damaged") != found)) {
        std::abort();  // the choice did not read back, or a replaced file was not kept whole
    }
    return 0;
}
