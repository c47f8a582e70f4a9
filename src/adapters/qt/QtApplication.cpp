// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/QtApplication.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QWidget>

namespace marivox::qt {

std::string QtApplication::programFolder() const {
    // The executable itself, through any symlink to it, so that an installed launcher link
    // still finds the sounds and help beside the real binary.
    const QFileInfo executable(QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath());
    QString folder =
        executable.exists() ? executable.absolutePath() : QCoreApplication::applicationDirPath();
    return QDir::cleanPath(folder).toStdString();
}

void QtApplication::setTitle(std::string title) {
    title_ = std::move(title);
    QGuiApplication::setApplicationDisplayName(QString::fromStdString(title_));
}

void QtApplication::waitUntil(const std::function<bool()>& done) {
    // Input that arrives meanwhile is kept for the next loop that takes it, such as a box's.
    while (!done()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::WaitForMoreEvents);
    }
}

void QtApplication::endNow() {
    ending_ = true;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        window->hide();
    }
    QCoreApplication::exit(0);
}

}  // namespace marivox::qt
