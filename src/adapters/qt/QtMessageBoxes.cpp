// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/QtMessageBoxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace marivox::qt {
namespace {

constexpr int kButtonsMask = 0x0F;
constexpr int kIconMask = 0xF0;

QMessageBox::Icon iconOf(int style) {
    switch (style & kIconMask) {
        case 16:
            return QMessageBox::Critical;
        case MsgBoxStyle::Question:
            return QMessageBox::Question;
        case 48:
            return QMessageBox::Warning;
        case MsgBoxStyle::Information:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

}  // namespace

int QtMessageBoxes::show(std::string_view text, int style, std::string_view title) {
    // The game's texts break lines with CR LF; Qt draws a lone CR as a glyph, so the box
    // shows plain line feeds.
    QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.replace(QChar('\r'), QChar('\n'));
    QWidget* owner = QApplication::activeWindow();
    QMessageBox box(iconOf(style),
                    QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size())),
                    shown.trimmed(), QMessageBox::NoButton, owner);
    box.setObjectName("MessageBox");
    box.setWindowModality(Qt::ApplicationModal);
    box.setTextFormat(Qt::PlainText);
    if ((style & kButtonsMask) == MsgBoxStyle::YesNo) {
        QPushButton* yes = box.addButton(QMessageBox::Yes);
        QPushButton* no = box.addButton(QMessageBox::No);
        box.setDefaultButton(yes);
        box.setEscapeButton(no);  // the close box and Escape answer No
        box.exec();
        return box.clickedButton() == yes ? MsgBoxAnswer::Yes : MsgBoxAnswer::No;
    }
    QPushButton* ok = box.addButton(QMessageBox::Ok);
    box.setDefaultButton(ok);
    box.setEscapeButton(ok);
    box.exec();
    return MsgBoxAnswer::Ok;
}

}  // namespace marivox::qt
