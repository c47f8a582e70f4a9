// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Guard.h"

#include <string>

namespace marivox {

void Guard::reportEscaped(std::string_view where, const std::exception& failure) {
    const auto* known = dynamic_cast<const Failure*>(&failure);
    const std::int32_t number =
        known != nullptr ? known->number() : static_cast<std::int32_t>(FailureNumber::Internal);
    const std::string description = known != nullptr ? known->description() : failure.what();
    reports_.ReportError(number, description, " in " + std::string(where) + "()");
}

void Guard::reportLate(Procedure procedure, const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const Failure& known) {
        handle(procedure, known, {});
    } catch (const std::exception& other) {
        handle(procedure, Failure(FailureNumber::Internal, other.what()), {});
    }
}

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
