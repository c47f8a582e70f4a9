// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/qt/QtTimers.h"

#include <QTimer>

#include "adapters/qt/Desktop.h"

namespace marivox::qt {
namespace {

class QtOneShotTimer : public OneShotTimer {
  public:
    QtOneShotTimer(std::string_view name, std::chrono::milliseconds interval,
                   std::function<void()> onTick)
        : onTick_(std::move(onTick)) {
        timer_.setObjectName(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
        timer_.setSingleShot(true);
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setInterval(interval);
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            if (on_) {
                guarded(timer_.objectName().toStdString(), onTick_);
            }
        });
    }

    void switchOn() override {
        if (on_) {
            return;  // already counting: the interval is not restarted
        }
        on_ = true;
        timer_.start();
    }
    void switchOff() override {
        on_ = false;
        timer_.stop();
    }
    bool isOn() const override { return on_; }

  private:
    std::function<void()> onTick_;
    QTimer timer_;
    bool on_ = false;
};

}  // namespace

std::unique_ptr<OneShotTimer> QtTimerFactory::createTimer(std::string_view name,
                                                          std::chrono::milliseconds interval,
                                                          std::function<void()> onTick) {
    return std::make_unique<QtOneShotTimer>(name, interval, std::move(onTick));
}

}  // namespace marivox::qt
