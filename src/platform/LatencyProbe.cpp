// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/LatencyProbe.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace marivox::probe {
namespace {

struct Log {
    Log() {
        const char* path = std::getenv("MARIVOX_LATENCY_LOG");
        file = path != nullptr && *path != '\0' ? std::fopen(path, "w") : nullptr;
    }
    ~Log() {
        if (file != nullptr) {
            std::fclose(file);
        }
    }
    std::FILE* file;
    std::int64_t key = 0;
    std::int64_t say = 0;
    std::int64_t saysKey = 0;
};

Log& log() {
    static Log instance;
    return instance;
}

std::int64_t now() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

}  // namespace

void keyArrived() {
    Log& l = log();
    if (l.file != nullptr) {
        l.key = now();
    }
}

void speechHandedOver() {
    Log& l = log();
    if (l.file != nullptr) {
        l.say = now();
        l.saysKey = l.key;
        l.key = 0;  // only the first request a key causes counts for it
    }
}

void speechDone() {
    Log& l = log();
    if (l.file == nullptr || l.say == 0) {
        return;
    }
    if (l.saysKey != 0) {
        std::fprintf(l.file, "key %lld say %lld\n", static_cast<long long>(l.saysKey),
                     static_cast<long long>(l.say));
    } else {
        std::fprintf(l.file, "say %lld\n", static_cast<long long>(l.say));
    }
    std::fflush(l.file);
    l.say = 0;
}

}  // namespace marivox::probe
