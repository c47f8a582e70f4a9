// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/help/HelpViewer.h"

#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QTextBrowser>
#include <QUrl>

#include "adapters/qt/ProgramIcon.h"

namespace marivox::qt {

HelpViewer::HelpViewer(const QString& path, QWidget* parent) : QMainWindow(parent) {
    setObjectName("HelpViewer");
    setWindowTitle("Marivox Help");
    setWindowIcon(programIcon());
    browser_ = new QTextBrowser(this);
    browser_->setObjectName("helpText");
    browser_->setAccessibleName("Marivox Help");
    browser_->setOpenExternalLinks(false);
    // A caret the arrow keys move, so a screen reader reads line by line.
    browser_->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    setCentralWidget(browser_);
    resize(720, 640);

    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        browser_->setSearchPaths({QFileInfo(path).absolutePath()});
        browser_->setHtml(QString::fromUtf8(file.readAll()));
    } else {
        // Said in the window itself, so a player who cannot see hears what went wrong.
        browser_->setPlainText(
            QString("The Marivox help could not be opened. The file %1 is missing or cannot be "
                    "read. Reinstalling Marivox puts it back.")
                .arg(path));
    }
    browser_->setFocus();
}

void HelpViewer::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape ||
        (event->key() == Qt::Key_W && event->modifiers() & Qt::ControlModifier)) {
        close();
        return;
    }
    QMainWindow::keyPressEvent(event);
}

}  // namespace marivox::qt
