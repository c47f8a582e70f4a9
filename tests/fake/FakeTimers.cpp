// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fake/FakeTimers.h"

namespace marivox::fake {

class FakeTimers::Timer : public OneShotTimer {
  public:
    Timer(FakeTimers& owner, Entry& entry) : owner_(owner), entry_(entry) {}

    void switchOn() override {
        owner_.transcript_.record("timer " + entry_.name + " on");
        if (entry_.on) {
            return;
        }
        entry_.on = true;
        entry_.fired = false;
        entry_.due = owner_.now_ + entry_.interval;
        entry_.order = ++owner_.switches_;
    }
    void switchOff() override {
        owner_.transcript_.record("timer " + entry_.name + " off");
        entry_.on = false;
    }
    bool isOn() const override { return entry_.on; }

  private:
    FakeTimers& owner_;
    Entry& entry_;
};

std::unique_ptr<OneShotTimer> FakeTimers::createTimer(std::string_view name,
                                                      std::chrono::milliseconds interval,
                                                      std::function<void()> onTick) {
    auto entry = std::make_unique<Entry>();
    entry->name = name;
    entry->interval = interval.count();
    entry->onTick = std::move(onTick);
    auto timer = std::make_unique<Timer>(*this, *entry);
    entries_.push_back(std::move(entry));
    return timer;
}

FakeTimers::Entry* FakeTimers::nextDue() const {
    Entry* next = nullptr;
    for (const auto& entry : entries_) {
        if (!entry->on || entry->fired) {
            continue;
        }
        if (next == nullptr || entry->due < next->due ||
            (entry->due == next->due && entry->order < next->order)) {
            next = entry.get();
        }
    }
    return next;
}

bool FakeTimers::anyPending() const {
    return nextDue() != nullptr;
}

bool FakeTimers::fireNext() {
    Entry* entry = nextDue();
    if (entry == nullptr) {
        return false;
    }
    now_ = std::max(now_, entry->due);
    entry->fired = true;
    transcript_.record("timer " + entry->name + " tick");
    entry->onTick();
    return true;
}

void FakeTimers::advance(std::int64_t ms) {
    const std::int64_t target = now_ + ms;
    for (Entry* entry = nextDue(); entry != nullptr && entry->due <= target; entry = nextDue()) {
        fireNext();
    }
    now_ = target;
}

}  // namespace marivox::fake
