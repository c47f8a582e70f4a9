// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "adapters/probe/LatencyLog.h"

#include <chrono>
#include <cstdlib>

namespace marivox::probe {
namespace {

std::int64_t now() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

}  // namespace

std::unique_ptr<LatencyLog> LatencyLog::fromEnvironment() {
    const char* path = std::getenv("MARIVOX_LATENCY_LOG");
    std::FILE* file = path != nullptr && *path != '\0' ? std::fopen(path, "w") : nullptr;
    return file != nullptr ? std::make_unique<LatencyLog>(file) : nullptr;
}

LatencyLog::~LatencyLog() {
    std::fclose(file_);
}

void LatencyLog::keyArrived() {
    key_ = now();
}

void LatencyLog::speechHandedOver() {
    say_ = now();
    saysKey_ = key_;
    key_ = 0;  // only the first request a key causes counts for it
}

void LatencyLog::speechDone() {
    if (say_ == 0) {
        return;
    }
    if (saysKey_ != 0) {
        std::fprintf(file_, "key %lld say %lld\n", static_cast<long long>(saysKey_),
                     static_cast<long long>(say_));
    } else {
        std::fprintf(file_, "say %lld\n", static_cast<long long>(say_));
    }
    std::fflush(file_);
    say_ = 0;
}

}  // namespace marivox::probe
