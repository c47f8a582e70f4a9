// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "platform/qt/Dialogs.h"
#include "platform/qt/QtMessageBoxes.h"

namespace marivox {
namespace {

// Runs `step` once the modal window it needs is showing.
void whenModalShows(std::function<void(QWidget*)> step) {
    QTimer::singleShot(0, [step = std::move(step)] {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal == nullptr) {
            whenModalShows(step);
            return;
        }
        step(modal);
    });
}

TEST(MessageBoxes, QuestionHasYesAndNoAndTheCloseBoxAnswersNo) {
    qt::QtMessageBoxes boxes;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    whenModalShows([&](QWidget* modal) {
        auto* box = qobject_cast<QMessageBox*>(modal);
        ASSERT_NE(box, nullptr);
        text = box->text();
        icon = box->icon();
        EXPECT_EQ(box->windowTitle(), "Marivox");
        EXPECT_EQ(box->buttons().size(), 2);
        box->close();
    });
    const int answer = boxes.show("Sorry, I win!\r\nDo you want to play again?\r\n", 36, "Marivox");
    EXPECT_EQ(answer, 7);
    EXPECT_EQ(icon, QMessageBox::Question);
    EXPECT_EQ(text, "Sorry, I win!\nDo you want to play again?");

    whenModalShows([](QWidget* modal) {
        qobject_cast<QMessageBox*>(modal)->button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(boxes.show("Again?\r\n", 36, "Marivox"), 6);
}

TEST(MessageBoxes, ReportHasOnlyOkAndTheIconAsked) {
    qt::QtMessageBoxes boxes;
    std::vector<QMessageBox::Icon> icons;
    for (int i = 0; i < 2; ++i) {
        whenModalShows([&](QWidget* modal) {
            auto* box = qobject_cast<QMessageBox*>(modal);
            EXPECT_EQ(box->buttons().size(), 1);
            icons.push_back(box->icon());
            QTest::keyClick(box, Qt::Key_Escape);
        });
    }
    EXPECT_EQ(boxes.show("Error: 1 x in MyShot()", 64, "Marivox"), 1);
    EXPECT_EQ(boxes.show("x in RunHelp()", 0, "Marivox"), 1);
    EXPECT_EQ(icons,
              (std::vector<QMessageBox::Icon>{QMessageBox::Information, QMessageBox::NoIcon}));
}

// The reader dialog's handlers, as the game's own behave: refuse to close with no choice.
struct ReaderForm : ReaderDialogEvents {
    explicit ReaderForm(ReaderDialog& d) : dialog(d) {}
    void Form_Load() override {
        dialog.addItem("JAWS For Windows");
        dialog.addItem("Window-Eyes");
        dialog.setListIndex(0);
    }
    void btnOK_Click() override {
        chosen = dialog.listIndex();
        dialog.unload();
    }
    void Form_Unload(std::int16_t& cancel) override {
        ++unloads;
        cancel = chosen < 0 ? -1 : 0;
    }
    ReaderDialog& dialog;
    int chosen = -1;
    int unloads = 0;
};

TEST(ReaderDialog, CloseBoxIsRefusedUntilAReaderIsChosenWithOk) {
    qt::ReaderDialogQt dialog;
    ReaderForm form(dialog);
    whenModalShows([&](QWidget* modal) {
        EXPECT_EQ(modal->windowTitle(), "Screen Reader");
        auto* list = modal->findChild<QListWidget*>("lstReader");
        EXPECT_EQ(list->count(), 2);
        EXPECT_EQ(list->currentRow(), 0);
        EXPECT_EQ(modal->focusWidget(), list);  // the list takes the focus first
        modal->close();
        QTest::keyClick(modal, Qt::Key_Escape);
        EXPECT_TRUE(modal->isVisible());
        list->setCurrentRow(1);
        modal->findChild<QPushButton*>("btnOK")->click();
    });
    dialog.showModal(form);
    EXPECT_EQ(form.chosen, 1);
    EXPECT_EQ(form.unloads, 3);
    EXPECT_EQ(dialog.current(), nullptr);
}

struct AboutForm : AboutBoxEvents {
    explicit AboutForm(AboutBox& b) : box(b) {}
    void Form_Load() override {
        box.setVersionLabel("Version 1.0.0");
        box.setTitleLabel("About Marivox");
    }
    void cmdOK_Click() override {
        ++oks;
        box.unload();
    }
    AboutBox& box;
    int oks = 0;
};

TEST(AboutBox, ShowsItsLabelsAndEscapeWorksAsOk) {
    qt::AboutBoxQt box([] { return nullptr; });
    AboutForm form(box);
    whenModalShows([&](QWidget* modal) {
        EXPECT_EQ(modal->windowTitle(), "About Marivox");
        EXPECT_EQ(modal->findChild<QLabel*>("lblTitle")->text(), "About Marivox");
        EXPECT_EQ(modal->findChild<QLabel*>("lblVersion")->text(), "Version 1.0.0");
        EXPECT_TRUE(modal->findChild<QPushButton*>("cmdOK")->isDefault());
        QTest::keyClick(modal, Qt::Key_Escape);
    });
    box.showModal(form);
    EXPECT_EQ(form.oks, 1);
}

}  // namespace
}  // namespace marivox
