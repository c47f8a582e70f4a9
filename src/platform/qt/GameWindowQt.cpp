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
namespace {

struct MenuItem {
    const char* name;
    const char* caption;
    void (GameScreenEvents::*handler)();
};

struct Menu {
    const char* name;
    const char* caption;
    std::vector<MenuItem> items;
};

const std::vector<Menu>& menuTree() {
    static const std::vector<Menu> tree{
        {"mnuGame",
         "&Game",
         {{"mnuGameNew", "&New Game ", &GameScreenEvents::mnuGameNew_Click},
          {"mnuGameReader", "&Screen Reader...", &GameScreenEvents::mnuGameReader_Click},
          {"mnuGameExit", "E&xit Program", &GameScreenEvents::mnuGameExit_Click}}},
        {"mnuOptions",
         "&Options",
         {{"mnuOptionsStatus", "&Speak Status - F2", &GameScreenEvents::mnuOptionsStatus_Click},
          {"mnuOptionsShoot", "S&hoot - Enter", &GameScreenEvents::mnuOptionsShoot_Click}}},
        {"mnuHelp",
         "&Help",
         {{"mnuHelpContents", "&Help Topics F1", &GameScreenEvents::mnuHelpContents_Click},
          {"mnuHelpAbout", "&About Marivox", &GameScreenEvents::mnuHelpAbout_Click}}},
    };
    return tree;
}

struct LegendLabel {
    const char* name;
    const char* text;
    int top;
};

}  // namespace

GameWindowQt::GameWindowQt(QtApplication& application, probe::LatencyLog* latency)
    : application_(application), latency_(latency) {
    setObjectName("GameScreen");
    setWindowTitle("Marivox");
    setAccessibleName("Marivox");
    setWindowIcon(programIcon());
    auto* client = new QWidget(this);
    client->setObjectName("client");
    setCentralWidget(client);
    grid_ = new GridWidget(client);
    grid_->setGeometry(twipsRect(0, 0, 10000, 2800));
    buildMenus();
    buildLabels();
    client->setMinimumSize(twips(9660), twips(6015));
    resize(twips(9660), twips(6015) + menuBar()->sizeHint().height());
    setFocusProxy(grid_);
    grid_->setFocus();
    qApp->installEventFilter(this);
}

GameWindowQt::~GameWindowQt() {
    qApp->removeEventFilter(this);
}

void GameWindowQt::buildMenus() {
    for (const Menu& menu : menuTree()) {
        QMenu* submenu = menuBar()->addMenu(menu.caption);
        submenu->setObjectName(menu.name);
        for (const MenuItem& item : menu.items) {
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
    // The only real shortcut: the keys named in other captions are the key handler's.
    action("mnuGameNew")->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
}

void GameWindowQt::buildLabels() {
    const LegendLabel labels[] = {
        {"lblLabel0", "Click on a cell to shoot!", 3000},
        {"lblLabel1", "A = Aircraft Carrier   B = Battleship   C = Cruiser", 3500},
        {"lblLabel2", "D = Destroyer   M = Miss   P = Patrol Boat   S = Submarine", 3900},
    };
    for (const LegendLabel& wanted : labels) {
        auto* label = new QLabel(wanted.text, centralWidget());
        label->setObjectName(wanted.name);
        label->setGeometry(twipsRect(2500, wanted.top, 5000, 255));
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
