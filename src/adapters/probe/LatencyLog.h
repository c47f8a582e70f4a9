// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>

namespace marivox::probe {

// Time stamps for the benchmarks of how quickly a key is heard, in nanoseconds of the
// monotonic clock, one line per speech request:
//   say <t>            speech not caused by a key
//   key <t> say <t>    a key and the first speech request it caused
// The program makes one only when MARIVOX_LATENCY_LOG names a file; the adapters that take
// one do nothing extra without it.
class LatencyLog {
  public:
    static std::unique_ptr<LatencyLog> fromEnvironment();
    explicit LatencyLog(std::FILE* file) : file_(file) {}
    ~LatencyLog();
    LatencyLog(const LatencyLog&) = delete;
    LatencyLog& operator=(const LatencyLog&) = delete;

    void keyArrived();
    // At the moment the text is handed to the speech service; the line is written by
    // speechDone(), after the hand-over, so writing never delays it.
    void speechHandedOver();
    void speechDone();

  private:
    std::FILE* file_;
    std::int64_t key_ = 0;
    std::int64_t say_ = 0;
    std::int64_t saysKey_ = 0;
};

}  // namespace marivox::probe
