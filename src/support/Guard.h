// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <functional>
#include <utility>

#include "ports/Failure.h"
#include "support/ErrorReports.h"
#include "support/FaultInjector.h"
#include "support/Procedures.h"

namespace marivox {

// What a guarded procedure does around its report: a timer handler switches its timer off
// before reporting; the game screen's unload handler ends the program after it.
struct FailureSteps {
    std::function<void()> beforeReport;
    std::function<void()> afterReport;

    static FailureSteps before(std::function<void()> step) { return {std::move(step), {}}; }
    static FailureSteps after(std::function<void()> step) { return {{}, std::move(step)}; }
};

// Runs a procedure's body so that a failure inside it is reported at once and the rest of
// the body is abandoned; the caller carries on as if the call had succeeded.
class Guard {
  public:
    explicit Guard(ErrorReports& reports) : reports_(reports) {}

    void setFaultInjector(FaultInjector* faults) { faults_ = faults; }

    // A failure that no guarded procedure caught, met where the platform called in (a fault
    // of an adapter's own): reported as the error report does, naming that place, and the
    // program goes on.
    void reportEscaped(std::string_view where, const std::exception& failure);
    ErrorReports& reports() { return reports_; }
    // A failure of a call the procedure handed on, told after the procedure returned:
    // reported as if the procedure had met it.
    void reportLate(Procedure procedure, const std::exception_ptr& failure);

    template <class Body>
    void run(Procedure procedure, Body&& body, const FailureSteps& steps = {}) {
        try {
            if (faults_ != nullptr) {
                faults_->enter(procedure);
            }
            std::forward<Body>(body)();
        } catch (const Failure& failure) {
            handle(procedure, failure, steps);
        } catch (const std::exception& failure) {
            handle(procedure, Failure(FailureNumber::Internal, failure.what()), steps);
        }
    }

  private:
    void handle(Procedure procedure, const Failure& failure, const FailureSteps& steps);

    ErrorReports& reports_;
    FaultInjector* faults_ = nullptr;
};

}  // namespace marivox
