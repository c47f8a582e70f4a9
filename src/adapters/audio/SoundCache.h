// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace marivox::audio {

using Samples = std::vector<std::int16_t>;

// Decoded sounds by path, so a shot costs a file check rather than a decode. A file that
// changes on disk is decoded afresh.
class SoundCache {
  public:
    explicit SoundCache(std::size_t capacity = 16) : capacity_(capacity) {}

    // The file as mono samples at the output rate; throws Failure(SoundFile).
    std::shared_ptr<const Samples> load(const std::string& path);

  private:
    struct Entry {
        std::string path;
        std::filesystem::file_time_type modified;
        std::uintmax_t size = 0;
        std::shared_ptr<const Samples> samples;
    };
    std::size_t capacity_;
    std::vector<Entry> entries_;  // least recently used first
};

}  // namespace marivox::audio
