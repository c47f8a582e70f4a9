// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/Dialogs.h"

#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "adapters/qt/Desktop.h"
#include "adapters/qt/ProgramIcon.h"
#include "adapters/qt/Twips.h"
#include "ports/Failure.h"

namespace marivox::qt {
namespace {

QString q(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

class ReaderDialogQt::Form : public QDialog {
  public:
    explicit Form(ReaderDialogEvents& events) : QDialog(nullptr), events_(events) {
        setObjectName("frmReader");
        setWindowTitle(layout::kReaderCaption);
        setFixedSize(twips(layout::kReaderWidth), twips(layout::kReaderHeight));
        setWindowModality(Qt::ApplicationModal);
        list = new QListWidget(this);
        list->setObjectName("lstReader");
        list->setGeometry(twipsRect(layout::kReaderList));
        list->setAccessibleName(layout::kReaderLabel.text);
        auto* label = new QLabel(layout::kReaderLabel.text, this);
        label->setObjectName(layout::kReaderLabel.name);
        label->setGeometry(twipsRect(layout::kReaderLabel.place));
        label->setBuddy(list);
        fitTextToWidth(*label);
        auto* ok = new QPushButton("OK", this);
        ok->setObjectName("btnOK");
        ok->setGeometry(twipsRect(layout::kReaderOk));
        ok->setDefault(true);
        setTabOrder(list, ok);
        connect(ok, &QPushButton::clicked, this,
                [this] { guarded("frmReader", [this] { events_.btnOK_Click(); }); });
        list->setFocus();
    }

    // Escape closes like the close box: through the unload handler.
    void reject() override { close(); }

    QListWidget* list;

  protected:
    void closeEvent(QCloseEvent* event) override {
        std::int16_t cancel = 0;
        guarded("frmReader", [&] { events_.Form_Unload(cancel); });
        if (cancel != 0) {
            event->ignore();
            return;
        }
        event->accept();
        done(QDialog::Rejected);
    }

  private:
    ReaderDialogEvents& events_;
};

void ReaderDialogQt::showModal(ReaderDialogEvents& events) {
    Form form(events);
    dialog_ = &form;
    events.Form_Load();
    form.exec();
    dialog_ = nullptr;
}

QDialog* ReaderDialogQt::current() const {
    return dialog_;
}

void ReaderDialogQt::unload() {
    if (dialog_ != nullptr) {
        dialog_->close();
    }
}

void ReaderDialogQt::addItem(std::string_view item) {
    if (dialog_ == nullptr) {
        throw Failure(FailureNumber::Platform, "The Screen Reader dialog is not open");
    }
    dialog_->list->addItem(q(item));
}

int ReaderDialogQt::listIndex() const {
    if (dialog_ == nullptr || dialog_->list->selectedItems().isEmpty()) {
        return kNoSelection;
    }
    return dialog_->list->currentRow();
}

void ReaderDialogQt::setListIndex(int index) {
    if (dialog_ != nullptr) {
        dialog_->list->setCurrentRow(index);
    }
}

class AboutBoxQt::Form : public QDialog {
  public:
    Form(AboutBoxEvents& events, QWidget* owner) : QDialog(owner), events_(events) {
        setObjectName("frmAbout");
        setWindowTitle(layout::kAboutCaption);
        setFixedSize(twips(layout::kAboutWidth), twips(layout::kAboutHeight));
        setModal(true);
        auto* icon = new QLabel(this);
        icon->setObjectName("picIcon");
        icon->setPixmap(programIcon().pixmap(twips(layout::kAboutIcon.width)));
        icon->setGeometry(twipsRect(layout::kAboutIcon));
        title = new QLabel(this);
        title->setObjectName("lblTitle");
        title->setGeometry(twipsRect(layout::kAboutTitle));
        QFont big = title->font();
        big.setPointSizeF(big.pointSizeF() * 1.5);
        big.setBold(true);
        title->setFont(big);
        version = new QLabel(this);
        version->setObjectName("lblVersion");
        version->setGeometry(twipsRect(layout::kAboutVersion));
        const int lineTop = twips(layout::kAboutLineTop);
        const int inset = twips(layout::kAboutLineInset);
        for (const auto& [offset, colour] :
             {std::pair{0, QColor(128, 128, 128)}, std::pair{1, QColor(255, 255, 255)}}) {
            auto* line = new QFrame(this);
            line->setGeometry(inset, lineTop + offset, width() - 2 * inset, 1);
            line->setAutoFillBackground(true);
            QPalette p = line->palette();
            p.setColor(QPalette::Window, colour);
            line->setPalette(p);
        }
        auto* ok = new QPushButton("OK", this);
        ok->setObjectName("cmdOK");
        ok->setGeometry(twipsRect(layout::kAboutOk));
        ok->setDefault(true);
        connect(ok, &QPushButton::clicked, this,
                [this] { guarded("frmAbout", [this] { events_.cmdOK_Click(); }); });
        ok->setFocus();
    }

    // OK is also the cancel button: Escape is a click on it.
    void reject() override {
        guarded("frmAbout", [this] { events_.cmdOK_Click(); });
    }

    QLabel* title;
    QLabel* version;

  protected:
    void closeEvent(QCloseEvent* event) override {
        event->accept();
        done(QDialog::Rejected);
    }

  private:
    AboutBoxEvents& events_;
};

void AboutBoxQt::showModal(AboutBoxEvents& events) {
    Form form(events, owner_ ? owner_() : nullptr);
    dialog_ = &form;
    events.Form_Load();
    form.exec();
    dialog_ = nullptr;
}

QDialog* AboutBoxQt::current() const {
    return dialog_;
}

void AboutBoxQt::unload() {
    if (dialog_ != nullptr) {
        dialog_->done(QDialog::Accepted);
    }
}

void AboutBoxQt::setTitleLabel(std::string_view text) {
    if (dialog_ != nullptr) {
        dialog_->title->setText(q(text));
    }
}

void AboutBoxQt::setVersionLabel(std::string_view text) {
    if (dialog_ != nullptr) {
        dialog_->version->setText(q(text));
    }
}

}  // namespace marivox::qt
