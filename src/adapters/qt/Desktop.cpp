// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/Desktop.h"

#include <QTimer>
#include <cstdio>
#include <stdexcept>
#include <string>

#include "ports/Failure.h"
#include "ports/ProgramName.h"

namespace marivox::qt {
namespace {

std::string whereDelivered(const QObject* receiver) {
    if (receiver == nullptr) {
        return "the event loop";
    }
    const QString name = receiver->objectName();
    return (name.isEmpty() ? QString(receiver->metaObject()->className()) : name).toStdString();
}

}  // namespace

Desktop::Desktop(int& argc, char** argv) : QApplication(argc, argv) {}

bool Desktop::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        escaped(whereDelivered(receiver), failure);
    } catch (...) {
        escaped(whereDelivered(receiver), std::runtime_error("An unknown failure"));
    }
    return false;
}

void Desktop::escaped(std::string_view where, const std::exception& failure) {
    auto* desktop = dynamic_cast<Desktop*>(QCoreApplication::instance());
    if (desktop != nullptr && desktop->handler_) {
        try {
            desktop->handler_(where, failure);
            return;
        } catch (const std::exception&) {
            // Telling the player failed too; the note below is all that is left.
        }
    }
    std::fprintf(stderr, "%s: %s in %.*s\n", kProgramName, failure.what(),
                 static_cast<int>(where.size()), where.data());
}

void Desktop::post(std::chrono::microseconds delay, std::function<void()> call) {
    QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr) {
        return;
    }
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(delay);
    QMetaObject::invokeMethod(
        application,
        [application, wait, call = std::move(call)] {
            QTimer::singleShot(wait, Qt::PreciseTimer, application,
                               [call] { guarded("posted call", call); });
        },
        Qt::QueuedConnection);
}

void Desktop::escapedOnAnyThread(std::string_view where, const std::exception& failure) {
    const auto* known = dynamic_cast<const Failure*>(&failure);
    Failure copy = known != nullptr ? *known : Failure(FailureNumber::Internal, failure.what());
    QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr) {
        escaped(where, copy);
        return;
    }
    QMetaObject::invokeMethod(
        application, [where = std::string(where), copy] { escaped(where, copy); },
        Qt::QueuedConnection);
}

}  // namespace marivox::qt
