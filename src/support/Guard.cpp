// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Guard.h"

namespace marivox {

void Guard::handle(Procedure procedure, const Failure& failure, const FailureSteps& steps) {
    try {
        if (steps.beforeReport) {
            steps.beforeReport();
        }
    } catch (const std::exception&) {
        // The report matters more than the tidying before it.
    }
    try {
        reports_.report(procedure, failure);
    } catch (const std::exception&) {
        // With no way left to tell the player, the caller still carries on.
    }
    if (steps.afterReport) {
        steps.afterReport();
    }
}

}  // namespace marivox
