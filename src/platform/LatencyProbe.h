// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// Time stamps for the benchmarks of how quickly a key is heard. Off unless the environment
// names a log file in MARIVOX_LATENCY_LOG; then each speech request is logged with the
// key that caused it, in nanoseconds of the monotonic clock:
//   say <t>            speech not caused by a key
//   key <t> say <t>    a key and the first speech request it caused
namespace marivox::probe {

void keyArrived();
// At the moment the text is handed to the speech service; the log is written by
// speechDone(), after the hand-over, so writing never delays it.
void speechHandedOver();
void speechDone();

}  // namespace marivox::probe
