// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/audio/SoundCache.h"

#include <algorithm>

#include "adapters/audio/WavFile.h"
#include "ports/Failure.h"

namespace marivox::audio {

std::shared_ptr<const Samples> SoundCache::load(const std::string& path) {
    std::error_code error;
    const auto modified = std::filesystem::last_write_time(path, error);
    const auto size = error ? 0 : std::filesystem::file_size(path, error);
    if (error) {
        throw Failure(FailureNumber::SoundFile,
                      "The sound file " + path +
                          " is missing or cannot be read. Reinstalling Marivox restores it.");
    }
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.path == path; });
    if (found != entries_.end()) {
        Entry entry = std::move(*found);
        entries_.erase(found);
        if (entry.modified == modified && entry.size == size) {
            entries_.push_back(std::move(entry));
            return entries_.back().samples;
        }
    }
    auto samples = std::make_shared<const Samples>(toMono(readWavFile(path)));
    if (entries_.size() >= capacity_ && !entries_.empty()) {
        entries_.erase(entries_.begin());
    }
    entries_.push_back(Entry{path, modified, size, samples});
    return samples;
}

}  // namespace marivox::audio
