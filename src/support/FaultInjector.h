// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/Procedures.h"

namespace marivox {

// A point where tests can make a guarded procedure fail as it begins, for procedures that
// touch no port through which a failure could otherwise be injected. The program itself
// installs none.
class FaultInjector {
  public:
    virtual ~FaultInjector() = default;
    virtual void enter(Procedure procedure) = 0;
};

}  // namespace marivox
