// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fake/Transcript.h"

#include <algorithm>

namespace marivox::fake {

void Transcript::record(std::string line) {
    for (auto it = armed_.begin(); it != armed_.end(); ++it) {
        if (line.starts_with(it->prefix) && --it->remaining == 0) {
            Failure failure(it->number, it->description);
            armed_.erase(it);
            lines_.push_back("FAILED " + line);
            throw failure;
        }
    }
    lines_.push_back(std::move(line));
}

void Transcript::failAt(std::string prefix, int occurrence, std::int32_t number,
                        std::string description) {
    armed_.push_back({std::move(prefix), occurrence, number, std::move(description)});
}

std::vector<std::string> Transcript::linesStartingWith(std::string_view prefix) const {
    std::vector<std::string> found;
    std::copy_if(lines_.begin(), lines_.end(), std::back_inserter(found),
                 [&](const std::string& line) { return line.starts_with(prefix); });
    return found;
}

std::string Transcript::text() const {
    std::string all;
    for (const std::string& line : lines_) {
        all += line;
        all += '\n';
    }
    return all;
}

bool Transcript::contains(std::string_view line) const {
    return std::find(lines_.begin(), lines_.end(), line) != lines_.end();
}

}  // namespace marivox::fake
