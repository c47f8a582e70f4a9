// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

#include "fake/Fakes.h"
#include "ports/Application.h"
#include "ports/Clock.h"
#include "ports/Readers.h"
#include "ports/ScreenReaders.h"
#include "ports/SettingsStore.h"
#include "ports/Shell.h"
#include "ports/Sleeper.h"
#include "ports/WavPlayer.h"

// Fakes of the program's services (application, settings, shell, sound, screen readers, clock),
// writing into the same transcript as the desktop's.
namespace marivox::fake {

// Ending the program ends the timers' event loop.
struct FakeApplication : Application, Recorder {
    FakeApplication(Transcript& t, FakeTimers& timers) : Recorder(t), timers(timers) {}
    std::string programFolder() const override { return "/opt/marivox"; }
    std::string helpFile() const override { return help; }
    void setHelpFile(std::string path) override { help = std::move(path); }
    std::string title() const override { return name; }
    void setTitle(std::string title) override { name = std::move(title); }
    Version version() const override { return {1, 0, 0}; }
    unsigned platform() const override { return runsOn; }
    // Virtual time runs on to each thing that falls due, until `done` or nothing is left.
    void waitUntil(const std::function<bool()>& done) override {
        while (!done() && timers.fireNext()) {
        }
    }
    void endNow() override {
        t.record("end program");
        ended = timers.ended = true;
    }
    FakeTimers& timers;
    std::string help, name;
    unsigned runsOn = Platform::Linux;
    bool ended = false;
};

struct FakeSettings : SettingsStore, Recorder {
    using Recorder::Recorder;
    std::string GetSetting(std::string_view app, std::string_view section, std::string_view key,
                           std::string_view defaultValue) override {
        const std::string name = join(app, section, key);
        t.record("setting get " + name);
        return stored.contains(name) ? stored[name] : std::string(defaultValue);
    }
    void SaveSetting(std::string_view app, std::string_view section, std::string_view key,
                     std::string_view value) override {
        t.record("setting save " + join(app, section, key) + " " + quoted(value));
        stored[join(app, section, key)] = value;
    }
    static std::string join(std::string_view app, std::string_view section, std::string_view key) {
        return std::string(app) + "/" + std::string(section) + "/" + std::string(key);
    }
    std::map<std::string, std::string> stored;
};

struct FakeShell : Shell, Recorder {
    using Recorder::Recorder;
    void ShellExecute(std::intptr_t owner, const char* operation, std::string_view file,
                      const char* parameters, std::string_view folder, int show) override {
        t.record("shell " + std::to_string(owner) + " " + (operation ? operation : "null") + " " +
                 quoted(file) + " " + (parameters ? parameters : "null") + " " + quoted(folder) +
                 " " + std::to_string(show));
    }
};

struct FakeSleeper : Sleeper {
    void sleepFor(std::chrono::milliseconds duration) override { slept += duration; }
    std::chrono::milliseconds slept{0};
};

// An output that refuses requests as busy until the game has slept `busyUntil` in all.
// Sounds begin at once, unless a scene holds them back: until `sounds begin` (`late`), or
// one after another, each `length` ms long, in virtual time.
struct FakeWavPlayer : WavPlayer, Recorder {
    FakeWavPlayer(Transcript& t, FakeSleeper& sleeper, FakeTimers& timers)
        : Recorder(t), sleeper(sleeper), timers(timers) {}
    void open(std::string_view path) override {
        current = path;  // the same transcript whatever the platform's separator
        std::replace(current.begin(), current.end(), '\\', '/');
        t.record("sound " + current);
        opened = sleeper.slept;
    }
    void play(std::int32_t, std::int32_t, bool) override {}
    std::int32_t status() override { return busy = sleeper.slept < busyUntil ? kDeviceBusy : 0; }
    void closeSound() override {
        if (const auto waited = (sleeper.slept - opened).count(); waited > 0) {
            t.record(std::string(busy ? "sound given up" : "sound accepted") + " after " +
                     std::to_string(waited) + " ms busy");
        }
        if (length > 0 && busy == 0) {
            const std::int64_t starts = std::max(timers.now, silentFrom);
            silentFrom = starts + length;
            timers.at(starts, [this, sound = ++accepted, name = current] {
                t.record("sound " + name + " begins");
                begun = sound;
                std::vector<std::function<void()>> due;
                std::erase_if(waiting, [&](auto& notice) {
                    return notice.first <= begun && (due.push_back(std::move(notice.second)), true);
                });
                for (auto& then : due) {
                    then();
                }
            });
        }
    }
    void whenAcceptedSoundsHeard(std::function<void()> then) override {
        late || begun < accepted ? void(waiting.emplace_back(accepted, std::move(then))) : then();
    }
    void begin() {
        t.record("sounds begin");
        for (auto& then : std::exchange(waiting, {})) {
            then.second();
        }
    }
    bool late = false;
    std::int64_t length = 0, silentFrom = 0;  // `timed`: each sound's length, in ms
    std::uint64_t accepted = 0, begun = 0;
    std::vector<std::pair<std::uint64_t, std::function<void()>>> waiting;  // after which sound
    FakeSleeper& sleeper;
    FakeTimers& timers;
    std::string current;
    std::chrono::milliseconds busyUntil{0}, opened{0};
    std::int32_t busy = 0;
};

// Every screen reader, each voice writing its calls in its own words: JAWS "speak" and
// "stop", Window-Eyes's object "we speak", "we silence" and, once created ("create" and its
// name), "we released"; any other reader "<stored value> say" and "stop".
struct FakeReaders : ReaderDrivers, Recorder {
    using Recorder::Recorder;
    struct Voice : ReaderVoice {
        Voice(FakeReaders& o, std::string_view r) : owner(o), reader(r) {}
        ~Voice() override {
            reader == kWindowEyes.stored ? owner.t.lines.push_back("we released") : void();
        }
        void say(std::string_view text) override {
            owner.call(SpeechCall::Say, (reader == kJaws.stored         ? "speak "
                                         : reader == kWindowEyes.stored ? "we speak "
                                                                        : reader + " say ") +
                                            quoted(text));
        }
        void stop() override {
            owner.call(SpeechCall::Stop, reader == kJaws.stored         ? "stop"
                                         : reader == kWindowEyes.stored ? "we silence"
                                                                        : reader + " stop");
        }
        FakeReaders& owner;
        std::string reader;
    };
    std::unique_ptr<ReaderVoice> voiceOf(std::string_view reader) override {
        reader == kWindowEyes.stored ? t.record("create " + std::string(kWindowEyesClass)) : void();
        return std::make_unique<Voice>(*this, reader);
    }
    void onLateFailure(LateFailureHandler handler) override { lateFailures = std::move(handler); }
    // `late`: calls are handed on, as to speech-dispatcher, and a failure is told once the
    // scene lets the service answer.
    void call(SpeechCall kind, const std::string& line) {
        FailureTeller tell = late ? lateFailures(kind) : FailureTeller();
        try {
            t.record(line);
        } catch (...) {
            if (!late) {
                throw;
            }
            if (tell) {
                pending.push_back([tell, failure = std::current_exception()] { tell(failure); });
            }
        }
    }
    void answer() {
        t.record("speech answers");
        for (auto& told : std::exchange(pending, {})) {
            told();
        }
    }
    bool late = false;
    LateFailureHandler lateFailures;
    std::vector<std::function<void()>> pending;
};

// A clock whose every reading is `step` ticks after the last.
struct FakeClock : Clock {
    FakeClock(std::uint64_t start, std::uint64_t step) : next(start), step(step) {}
    std::uint64_t ticks() override { return std::exchange(next, next + step); }
    std::uint64_t next, step;
};

}  // namespace marivox::fake
