// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "ports/Failure.h"

namespace marivox::fake {

// Everything the fakes were asked to do, in order, one line per call. A failure armed at a
// line is thrown by the fake instead of doing what the line records: that is how failures
// reach the procedures that call the ports.
struct Transcript {
    struct Armed {
        std::string prefix;
        int remaining;
        std::int32_t number;  // 0: a plain standard exception, as a fault of an adapter's own
        bool every = false;   // every call so made fails, as through a component that is gone
        bool met = false;
    };
    // `kept` false: only checked for an armed failure, as calls too many to read.
    void record(const std::string& line, bool kept = true) {
        for (auto it = armed.begin(); it != armed.end(); ++it) {
            if (line.starts_with(it->prefix) && (it->every || --it->remaining == 0)) {
                const std::int32_t number = it->number;
                it->every ? void(it->met = true) : void(armed.erase(it));
                lines.push_back("FAILED " + line);
                number == 0 ? throw std::runtime_error("Injected fault")
                            : throw Failure(number, "Injected failure");
            }
        }
        kept ? lines.push_back(line) : void();
    }
    std::vector<std::string> lines;
    std::vector<Armed> armed;  // failures not met yet
};

// Text as the transcript shows it: quoted, with CR and LF written as \r and \n.
inline std::string quoted(std::string_view text) {
    std::string out = "\"";
    for (const char c : text) {
        out += c == '\r' ? "\\r" : c == '\n' ? "\\n" : std::string(1, c);
    }
    return out + "\"";
}

}  // namespace marivox::fake
