// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/GameWindowQt.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <string>

#include "adapters/probe/LatencyLog.h"
#include "adapters/qt/Desktop.h"
#include "adapters/qt/KeyMapping.h"
#include "adapters/qt/ProgramIcon.h"
#include "adapters/qt/QtApplication.h"
#include "adapters/qt/Twips.h"
#include "ports/Commands.h"
#include "ports/KeyCodes.h"

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
    const int boardHeight = twips(layout::kBoard.height);
    const int headings = grid_->horizontalHeader()->sizeHint().height() + 2 * grid_->frameWidth();
    normal_ = {twips(layout::kGameClientWidth),
               twips(layout::kGameClientHeight),
               boardHeight,
               twips(layout::kLegend.front().place.top),
               twips(layout::kLegend.back().place.top + layout::kLegend.back().place.height),
               std::max(1, (boardHeight - headings) / 9),
               static_cast<double>(QFontInfo(font()).pixelSize())};
    setFocusProxy(grid_);
    grid_->setFocus();
    qApp->installEventFilter(this);
}

GameWindowQt::~GameWindowQt() {
    qApp->removeEventFilter(this);
}

void GameWindowQt::buildMenus() {
    for (const commands::Menu& menu : commands::kMenus) {
        QMenu* submenu = menuBar()->addMenu(menu.caption);
        submenu->setObjectName(menu.name);
        for (const commands::Command* command : menu.items) {
            if (command == nullptr) {
                continue;
            }
            QAction* action = submenu->addAction(command->caption);
            action->setObjectName(command->name);
            if (command->kind == commands::KeyKind::Shortcut) {
                action->setShortcuts(shortcutsOf(*command));
            }
            // The command table is static, so the row outlives every connection to it.
            connect(action, &QAction::triggered, this, [this, command] {
                if (events_ != nullptr) {
                    guarded(command->name, [this, command] { (events_->*command->handler)(); });
                }
            });
        }
    }
}

void GameWindowQt::buildLabels() {
    for (const layout::Label& wanted : layout::kLegend) {
        auto* label = new QLabel(wanted.text, centralWidget());
        label->setObjectName(wanted.name);
        label->setGeometry(twipsRect(wanted.place));
        fitTextToWidth(*label);
        legend_.push_back(label);
        legendPoints_.push_back(label->font().pointSizeF());
    }
}

void GameWindowQt::setDisplay(int zoomPercent, bool highContrast) {
    zoom_ = zoomPercent;
    highContrast_ = highContrast;
    centralWidget()->setAttribute(Qt::WA_StyledBackground, highContrast);
    centralWidget()->setStyleSheet(
        highContrast ? "QWidget#client { background: black; } QLabel { color: yellow; }" : "");
    // The window grows and shrinks with the zoom as far as the screen has room; a maximised
    // one stays as it is.
    if (!isMaximized() && !isFullScreen()) {
        const QRect room = screen() != nullptr ? screen()->availableGeometry() : QRect();
        const int menu = menuBar()->sizeHint().height();
        QSize wanted(layout::zoomedWidth(normal_, zoom_),
                     layout::zoomedHeight(normal_, zoom_) + menu);
        if (room.isValid()) {
            wanted = wanted.boundedTo(room.size());
        }
        resize(wanted);
    }
    relayout();
}

// The board takes what the legend leaves; everything stands where it always did in the
// normal window at 100%.
void GameWindowQt::relayout() {
    const QSize client = centralWidget()->size();
    const layout::BoardPlaces places =
        layout::boardPlaces(normal_, client.width(), client.height(), zoom_);
    grid_->setGeometry(
        0, 0, twips(layout::kBoard.width) + std::max(0, client.width() - normal_.clientWidth),
        places.boardHeight);
    grid_->setLook(places.normal ? 0 : places.markPixels, places.normal ? 1 : places.headingScale,
                   highContrast_);
    for (std::size_t i = 0; i < legend_.size(); ++i) {
        const QRect normal = twipsRect(layout::kLegend[i].place);
        const layout::Rect place =
            layout::legendPlace(places, normal.x(), normal.y(), normal.width(), normal.height());
        legend_[i]->setGeometry(place.left, place.top, place.width, place.height);
        QFont font = legend_[i]->font();
        font.setPointSizeF(legendPoints_[i] * places.legendScale);
        legend_[i]->setFont(font);
        fitTextToWidth(*legend_[i]);  // text does not grow quite as its place does
    }
}

void GameWindowQt::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (normal_.clientWidth > 0) {
        relayout();
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
