// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fake/FakePlatform.h"

namespace marivox::fake {
namespace {

std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '\r') {
            out += "\\r";
        } else if (c == '\n') {
            out += "\\n";
        } else {
            out += c;
        }
    }
    return out;
}

}  // namespace

int FakeMessageBoxes::show(std::string_view text, int style, std::string_view title) {
    transcript_.record("box " + std::to_string(style) + " \"" + std::string(title) + "\" \"" +
                       escaped(text) + "\"");
    ++shown_;
    if (!whileOpen_.empty()) {
        auto action = std::move(whileOpen_.front());
        whileOpen_.pop_front();
        action();
    }
    int answer = MsgBoxAnswer::Ok;
    if (!answers_.empty()) {
        answer = answers_.front();
        answers_.pop_front();
    } else if (answerer_) {
        answer = answerer_(text, style);
    } else if ((style & 0xF) == MsgBoxStyle::YesNo) {
        answer = MsgBoxAnswer::No;
    }
    transcript_.record("answer " + std::to_string(answer));
    return answer;
}

void FakeApplication::endNow() {
    transcript_.record("end program");
    ended_ = true;
}

void FaultPlan::enter(Procedure procedure) {
    const auto it = armed_.find(procedure);
    if (it == armed_.end() || --it->second.remaining != 0) {
        return;
    }
    const Failure failure(it->second.number, it->second.description);
    armed_.erase(it);
    throw failure;
}

}  // namespace marivox::fake
