// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "fake/Transcript.h"
#include "ports/Commands.h"
#include "ports/Forms.h"
#include "ports/GridControl.h"
#include "ports/KeyCodes.h"
#include "ports/MessageBoxes.h"
#include "ports/OneShotTimer.h"

// Fakes of the desktop's ports (timers, board, window, boxes, dialogs), each writing what it is
// asked into one shared transcript (its lines are told in tests/golden/README.md); the
// program's services are faked in FakeServices.h.
namespace marivox::fake {

struct Recorder {
    explicit Recorder(Transcript& transcript) : t(transcript) {}
    Transcript& t;
};

// Virtual time: timers fire only as a test lets time pass, in the order they fall due (ties
// in the order they were switched on), and no more once the event loop has `ended`.
struct FakeTimers : TimerFactory, Recorder {
    using Recorder::Recorder;
    struct Timer : OneShotTimer {
        Timer(FakeTimers& o, std::string_view n, std::int64_t i, std::function<void()> f)
            : owner(o), name(n), interval(i), onTick(std::move(f)) {
            owner.timers.push_back(this);
        }
        ~Timer() override { std::erase(owner.timers, this); }
        void switchOn() override {
            owner.t.record("timer " + name + " on");
            ++switchedOn;
            if (!on) {  // a timer already counting keeps its time
                on = true;
                due = std::pair(owner.now + interval, ++owner.switches);
            }
        }
        void switchOff() override {
            owner.t.record("timer " + name + " off");
            on = false;
        }
        bool isOn() const override { return on; }
        FakeTimers& owner;
        std::string name;
        std::int64_t interval;
        std::function<void()> onTick;
        bool on = false;
        int switchedOn = 0;                         // how often the game has switched it on
        std::pair<std::int64_t, std::int64_t> due;  // when, and the order of switching on
    };

    std::unique_ptr<OneShotTimer> createTimer(std::string_view name,
                                              std::chrono::milliseconds interval,
                                              std::function<void()> onTick) override {
        return std::make_unique<Timer>(*this, name, interval.count(), onTick);
    }
    // Lets `ms` pass; with `deliver` false the event loop is held meanwhile, as by a call
    // that blocks, and what falls due fires at the next advance.
    void advance(std::int64_t ms, bool deliver = true) {
        const std::int64_t until = now + ms;
        while (deliver && fireNext(until)) {
        }
        now = std::max(now, until);  // what fired may have waited past `until` itself
    }
    // Fires what falls due first, if anything does by `until`: a timer, or something the
    // platform does of its own accord (`at`).
    bool fireNext(std::int64_t until = kNever - 1) {
        Timer* timer = nextDue();
        const auto event = events.begin();
        const auto timerDue = timer ? timer->due : std::pair(kNever, kNever);
        const auto eventDue = event != events.end() ? event->first : std::pair(kNever, kNever);
        if (ended || std::min(timerDue, eventDue).first > until) {
            return false;
        }
        if (timerDue < eventDue) {
            now = std::max(now, std::exchange(timer->due.first, kNever));  // once a switching on
            t.record("timer " + timer->name + " tick");
            timer->onTick();
        } else {
            now = std::max(now, eventDue.first);
            const auto what = std::move(event->second);
            events.erase(event);
            what();
        }
        return true;
    }
    void at(std::int64_t when, std::function<void()> what) {
        events.emplace(std::pair(when, ++switches), std::move(what));
    }
    Timer* nextDue() const {
        Timer* next = nullptr;
        for (Timer* timer : timers) {
            next = timer->on && (!next || timer->due < next->due) ? timer : next;
        }
        return next;
    }

    static constexpr std::int64_t kNever = INT64_MAX;
    std::vector<Timer*> timers;
    std::map<std::pair<std::int64_t, std::int64_t>, std::function<void()>> events;
    std::int64_t now = 0, switches = 0;
    bool ended = false;
};

// The board control, recording what it shows a screen reader, its cell texts (not its shape
// and colours): moving the cursor raises the cursor-moved event when the cell changes; a
// click makes the clicked cell current first; the cursor never stands on a heading.
struct FakeGrid : GridControl, Recorder {
    using Recorder::Recorder;
    void setListener(GridEvents* e) override { events = e; }
    void setCellDescriber(CellDescriber d) override { describer = std::move(d); }
    void setMovesVoiced(MovesVoiced) override {}  // the fake tells assistive technology nothing
    int rows() const override { return rows_; }
    void setRows(int n) override { rows_ = n; }
    int cols() const override { return cols_; }
    void setCols(int n) override { cols_ = n; }
    void setFixedRows(int n) override { fixedRows_ = n; }
    void setFixedCols(int n) override { fixedCols_ = n; }
    void setRowHeight(int, int) override {}
    void setColWidth(int, int) override {}
    int row() const override { return row_; }
    void setRow(int row) override { playerMovesTo(row, col_); }
    int col() const override { return col_; }
    void setCol(int col) override { playerMovesTo(row_, col); }
    std::string text() const override { return textMatrix(row_, col_); }
    std::string textMatrix(int row, int col) const override {
        check(row, col, 0);
        return cells.contains({row, col}) ? cells.at({row, col}) : "";
    }
    void setTextMatrix(int row, int col, std::string_view text) override {
        check(row, col, 0);
        t.record("grid " + str(row) + "," + str(col) + " " + quoted(text));
        cells[{row, col}] = text;
        ++writes;
    }
    Rgb backColor() const override { return back_; }
    void setBackColor(Rgb c) override { back_ = c; }
    Rgb foreColor() const override { return fore_; }
    void setForeColor(Rgb c) override { fore_ = c; }
    // A cell's colours, copies of the grid's, are too many to read: only checked.
    void setCellBackColor(Rgb) override {
        t.record("grid colours " + str(row_) + "," + str(col_), false);
    }
    void setCellForeColor(Rgb) override {}

    // What a player does: one move of the cursor, or a click that moves it and fires.
    void playerMovesTo(int row, int col) {
        check(row, col, 1);
        const bool moved = std::pair(row, col) != std::pair(row_, col_);
        std::tie(row_, col_) = std::pair(row, col);
        if (moved && events) {
            events->onRowColChange();
        }
    }
    void playerClicks(int row, int col) {
        playerMovesTo(row, col);
        events->onClick();
    }

    GridEvents* events = nullptr;
    CellDescriber describer;
    std::map<std::pair<int, int>, std::string> cells;
    int writes = 0;  // cell texts set

  private:
    static std::string str(int n) { return std::to_string(n); }
    // `cursor` 1: the cell must also lie past the headings.
    void check(int row, int col, int cursor) const {
        if (row < cursor * fixedRows_ || row >= rows_ || col < cursor * fixedCols_ ||
            col >= cols_) {
            throw Failure(FailureNumber::IndexOutOfRange, "Grid cell out of range");
        }
    }
    int rows_ = 2, cols_ = 2, fixedRows_ = 1, fixedCols_ = 1, row_ = 1, col_ = 1;
    Rgb back_{}, fore_{};
};

// The game window; once it has closed no window is left, and the event loop ends.
struct FakeWindow : GameWindow, Recorder {
    FakeWindow(Transcript& t, FakeTimers& timers) : Recorder(t), board(t), timers(timers) {}
    void load(GameScreenEvents& e) override {
        t.record("window load");
        events = &e;
        e.Form_Load();
    }
    void show() override { t.record("window show"); }
    void unload() override {
        t.record("window unload");
        std::int16_t cancel = 0;
        events->Form_Unload(cancel);
        if (cancel == 0) {
            t.record("window closed");
            closed = timers.ended = true;
        }
    }
    void unloadOtherWindows() override { t.record("unload other windows"); }
    GridControl& grid() override { return board; }
    void setDisplay(int zoom, bool highContrast) override {
        t.record("window display " + std::to_string(zoom) + "% " +
                 (highContrast ? "high contrast" : "normal contrast"));
    }
    bool desktopHighContrast() const override { return desktopAsksHighContrast; }
    // A key as the player presses it: a shortcut runs its command and goes no further, as on
    // a desktop; any other key the window hears first, then the board takes an arrow, or Home,
    // End, Page Up and Page Down to its edges as both desktops' boards do; F1 also opens the
    // help, as the platform's help key.
    void press(std::int16_t key, std::int16_t shift = 0) {
        const auto* shortcut = commands::commandFor(commands::KeyKind::Shortcut, key, shift);
        if (shortcut != nullptr) {
            return (events->*shortcut->handler)();
        }
        events->Form_KeyDown(key, shift);
        const int down = key == KeyCode::Down ? 1 : key == KeyCode::Up ? -1 : 0;
        const int right = key == KeyCode::Right ? 1 : key == KeyCode::Left ? -1 : 0;
        const int row = key == KeyCode::PageUp ? 1 : key == KeyCode::PageDown ? 9 : board.row();
        const int col = key == KeyCode::Home ? 1 : key == KeyCode::End ? 9 : board.col();
        board.playerMovesTo(std::clamp(row + down, 1, 9),
                            std::clamp(col + right, 1, 9));  // no event if it stays
        key == KeyCode::F1 ? events->helpKey() : void();
    }
    FakeGrid board;
    FakeTimers& timers;
    GameScreenEvents* events = nullptr;
    bool closed = false;
    bool desktopAsksHighContrast = false;
};

// Answers as scripted, else a question by `answerer` or No, anything else with OK.
struct FakeBoxes : MessageBoxes, Recorder {
    using Recorder::Recorder;
    int show(std::string_view text, int style, std::string_view title) override {
        t.record("box " + std::to_string(style) + " " + quoted(title) + " " + quoted(text));
        shown.push_back({style, std::string(title)});
        const bool question = (style & 0xF) == MsgBoxStyle::YesNo;
        int answer = !question ? MsgBoxAnswer::Ok : answerer ? answerer(text) : MsgBoxAnswer::No;
        if (!answers.empty()) {
            answer = answers.front();
            answers.pop_front();
        }
        t.record("answer " + std::to_string(answer));
        return answer;
    }
    struct Shown {
        int style;
        std::string title;
    };
    std::vector<Shown> shown;
    std::deque<int> answers;
    std::function<int(std::string_view text)> answerer;
};

// The screen-reader dialog, worked by a scripted player: each step selects an item (or
// none) and presses OK, or presses the close box.
struct FakeReaderDialog : ReaderDialog, Recorder {
    static constexpr int kCloseBox = -2;
    using Recorder::Recorder;
    void showModal(ReaderDialogEvents& e) override {
        t.record("reader dialog open");
        events = &e;
        index = kNoSelection;
        e.Form_Load();
        for (open = true; open;) {
            if (steps.empty()) {
                throw std::logic_error("the reader dialog is open and the script says no more");
            }
            const int step = steps.front();
            steps.pop_front();
            t.record(step == kCloseBox ? "reader close box" : "reader OK " + std::to_string(step));
            step == kCloseBox ? unload() : (index = step, e.btnOK_Click());
        }
    }
    void unload() override {
        std::int16_t cancel = 0;
        events->Form_Unload(cancel);
        if (cancel == 0) {
            open = false;
            t.record("reader dialog closed");
        }
    }
    void addItem(std::string_view item) override { t.record("reader item " + quoted(item)); }
    int listIndex() const override { return index; }
    void setListIndex(int i) override {
        t.record("reader list " + std::to_string(i));
        index = i;
    }
    std::deque<int> steps;
    ReaderDialogEvents* events = nullptr;
    int index = kNoSelection;
    bool open = false;
};

// The About box, its OK button pressed as soon as it shows.
struct FakeAboutBox : AboutBox, Recorder {
    using Recorder::Recorder;
    void showModal(AboutBoxEvents& e) override {
        t.record("about open");
        e.Form_Load();
        e.cmdOK_Click();
    }
    void unload() override { t.record("about closed"); }
    void setTitleLabel(std::string_view text) override { t.record("about title " + quoted(text)); }
    void setVersionLabel(std::string_view text) override {
        t.record("about version " + quoted(text));
    }
};

}  // namespace marivox::fake
