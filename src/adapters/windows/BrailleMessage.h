// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a reader's braille display shows: everything said since speech was last stopped,
// joined with a blank, so the sentences of one event read as one message and a key that
// silences speech begins the next. Blanks around each text would only waste cells.

#include <string>
#include <string_view>

#include "ports/Readers.h"

namespace marivox::windows {

class BrailleMessage {
  public:
    // The message with the text added.
    const std::string& add(std::string_view text) {
        const std::string_view shown = trimmedBlanks(text);
        if (!shown.empty()) {
            message_ += message_.empty() ? "" : " ";
            message_ += shown;
        }
        return message_;
    }
    void clear() { message_.clear(); }

  private:
    std::string message_;
};

}  // namespace marivox::windows
