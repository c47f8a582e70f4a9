// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/CellName.h"

#include "model/Int16.h"

namespace marivox {

std::string numberText(long long value) {
    std::string text = std::to_string(value);
    if (value >= 0) {
        text.insert(text.begin(), ' ');
    }
    return text;
}

std::string rowLetter(std::int16_t row) {
    const std::int16_t code = add16(64, row);
    if (code < 0 || code > 255) {
        throw Failure(FailureNumber::InvalidArgument, "Invalid character code");
    }
    return std::string(1, static_cast<char>(code));
}

std::string cellName(std::int16_t row, std::int16_t col) {
    return rowLetter(row) + " " + numberText(col);
}

std::string shortCellName(int row, int col) {
    return rowLetter(static_cast<std::int16_t>(row)) + " " + std::to_string(col);
}

}  // namespace marivox
