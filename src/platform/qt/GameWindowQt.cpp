// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/GameWindowQt.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <string>

#include "platform/KeyCodes.h"
#include "platform/probe/LatencyLog.h"
#include "platform/qt/Desktop.h"
#include "platform/qt/KeyMapping.h"
#include "platform/qt/ProgramIcon.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/Twips.h"

namespace marivox::qt {

GameWindowQt::GameWindowQt(QtApplication& application, probe::LatencyLog* latency)
    : application_(application), latency_(latency) {
    setObjectName("GameScreen");
    setWindowTitle(layout::kGameCaption);
    setAccessibleName(layout::kGameCaption);
    setWindowIcon(programIcon());
    auto* client = new QWidget(this);
    client->setObjectName("client");
    setCentralWidget(client);
    grid_ = new GridWidget(client);
    grid_->setGeometry(twipsRect(layout::kBoard));
    buildMenus();
    buildLabels();
    client->setMinimumSize(twips(layout::kGameClientWidth), twips(layout::kGameClientHeight));
    resize(twips(layout::kGameClientWidth),
           twips(layout::kGameClientHeight) + menuBar()->sizeHint().height());
    setFocusProxy(grid_);
    grid_->setFocus();
    qApp->installEventFilter(this);
}

GameWindowQt::~GameWindowQt() {
    qApp->removeEventFilter(this);
}

void GameWindowQt::buildMenus() {
    for (const layout::Menu& menu : layout::kMenus) {
        QMenu* submenu = menuBar()->addMenu(menu.caption);
        submenu->setObjectName(menu.name);
        for (const layout::MenuItem& item : menu.items) {
            if (item.name == nullptr) {
                continue;
            }
            QAction* action = submenu->addAction(item.caption);
            action->setObjectName(item.name);
            // The menu tree is static, so the item outlives every connection to it.
            connect(action, &QAction::triggered, this, [this, &item] {
                if (events_ != nullptr) {
                    guarded(item.name, [this, &item] { (events_->*item.handler)(); });
                }
            });
        }
    }
    action("mnuGameNew")->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
}

void GameWindowQt::buildLabels() {
    for (const layout::Label& wanted : layout::kLegend) {
        auto* label = new QLabel(wanted.text, centralWidget());
        label->setObjectName(wanted.name);
        label->setGeometry(twipsRect(wanted.place));
        fitTextToWidth(*label);
    }
}

QAction* GameWindowQt::action(const char* name) const {
    return findChild<QAction*>(name);
}

void GameWindowQt::load(GameScreenEvents& events) {
    events_ = &events;
    events.Form_Load();
}

bool GameWindowQt::isOwnControl(QObject* object) const {
    auto* widget = qobject_cast<QWidget*>(object);
    return widget != nullptr && widget->window() == this;
}

// Key preview: the window's handler hears each key first, once, and the key then goes on
// to the control that has the focus (an arrow still moves the board's cursor).
bool GameWindowQt::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || events_ == nullptr || !isOwnControl(watched)) {
        return false;
    }
    QWidget* firstReceiver = QApplication::focusWidget();
    if (watched != (firstReceiver != nullptr ? firstReceiver : this)) {
        return false;  // the same press travelling up to a parent
    }
    if (latency_ != nullptr) {
        latency_->keyArrived();
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const std::int16_t code = gameKeyCode(key);
    const std::string where = watched->objectName().toStdString();
    guarded(where, [&] { events_->Form_KeyDown(code, gameShiftState(key.modifiers())); });
    if (code == KeyCode::F1) {
        guarded(where, [this] { events_->helpKey(); });
        return true;
    }
    return false;
}

void GameWindowQt::closeEvent(QCloseEvent* event) {
    if (application_.isEnding() || events_ == nullptr) {
        event->accept();
        return;
    }
    std::int16_t cancel = 0;
    guarded("GameScreen", [&] { events_->Form_Unload(cancel); });
    if (cancel != 0 && !application_.isEnding()) {
        event->ignore();
    } else {
        event->accept();
    }
}

void GameWindowQt::unloadOtherWindows() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (auto it = windows.rbegin(); it != windows.rend(); ++it) {
        if (*it != this && (*it)->isVisible()) {
            (*it)->close();
        }
    }
}

}  // namespace marivox::qt
