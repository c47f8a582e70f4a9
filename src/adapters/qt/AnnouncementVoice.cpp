// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/AnnouncementVoice.h"

#include <QAccessible>
#include <QPointer>
#include <QTimer>

namespace marivox::qt {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
namespace {

// Orca presents each announcement at once, cutting off the one before, so what one event
// says (the opening prompt's three lines, a score) is handed over together: texts said before
// control returns to the event loop make one announcement. After a stop the announcement is
// assertive, as the game means to cut in; otherwise polite.
class Announcer : public ReaderVoice {
  public:
    Announcer(QWidget& window, std::unique_ptr<ReaderVoice> fallback)
        : window_(&window), fallback_(std::move(fallback)) {}

    void say(std::string_view text) override {
        if (!QAccessible::isActive() || window_.isNull()) {
            fallback_->say(text);
            return;
        }
        const QString words = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
        pending_ += (pending_.isEmpty() ? "" : " ") + words.trimmed();
        if (!flushing_) {
            flushing_ = true;
            QTimer::singleShot(0, &context_, [this] { flush(); });
        }
    }

    void stop() override {
        if (!QAccessible::isActive()) {
            fallback_->stop();
        }
        pending_.clear();
        interrupting_ = true;
    }

  private:
    void flush() {
        flushing_ = false;
        if (pending_.trimmed().isEmpty() || window_.isNull()) {
            return;
        }
        QAccessibleAnnouncementEvent event(window_.data(), std::exchange(pending_, {}));
        event.setPoliteness(interrupting_ ? QAccessible::AnnouncementPoliteness::Assertive
                                          : QAccessible::AnnouncementPoliteness::Polite);
        interrupting_ = false;
        QAccessible::updateAccessibility(&event);
    }

    QPointer<QWidget> window_;
    std::unique_ptr<ReaderVoice> fallback_;
    QObject context_;  // posted flushes die with the voice
    QString pending_;
    bool flushing_ = false;
    bool interrupting_ = true;
};

}  // namespace

std::unique_ptr<ReaderVoice> announcementVoice(QWidget& window,
                                               std::unique_ptr<ReaderVoice> fallback) {
    return std::make_unique<Announcer>(window, std::move(fallback));
}

#else

std::unique_ptr<ReaderVoice> announcementVoice(QWidget&, std::unique_ptr<ReaderVoice> fallback) {
    return fallback;
}

#endif

}  // namespace marivox::qt
