// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/help/QtShell.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

#include "ports/Failure.h"
#include "ports/NativePath.h"

namespace marivox::qt {

// The working directory is a Windows one; documents here open wherever they lie.
void QtShell::ShellExecute(std::intptr_t, const char* operation, std::string_view file, const char*,
                           std::string_view, int) {
    const QString path = QString::fromStdString(nativePath(std::string(file)));
    if (operation == nullptr && path.endsWith(".hlp", Qt::CaseInsensitive)) {
        const QString viewer = QString::fromStdString(viewerPath());
        if (!QProcess::startDetached(viewer, {path}, QString(), &lastViewer_)) {
            throw Failure(FailureNumber::Shell,
                          "The help viewer " + viewerPath() + " could not be started");
        }
        return;
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        throw Failure(FailureNumber::Shell, "No program could open " + path.toStdString());
    }
}

}  // namespace marivox::qt
