// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "ports/Failure.h"
#include "support/Procedures.h"

namespace marivox {

class Application;
class MessageBoxes;

// The two forms in which a guarded procedure tells the player about a failure.
class ErrorReports {
  public:
    ErrorReports(MessageBoxes& boxes, Application& application);

    // ShowError speaks through the game's speech, which in turn reports its own failures
    // here; the two are wired after both exist.
    void speakThrough(std::function<void(std::string_view)> speak) { speak_ = std::move(speak); }
    // While a report speaks and shows its box, speech failures go untold: the report is
    // already telling of one.
    bool speakingReport() const { return speakingReport_; }
    // Says a report's own words that had to wait (behind sounds) after the report itself:
    // their failure is still the report's, not a new one to tell.
    template <class Say>
    void sayAsReport(Say&& say) {
        const SpeakingReport speaking(speakingReport_);
        say();
    }

    void ReportError(std::int32_t number, std::string_view description, std::string_view label);
    void ShowError(const std::string& description, const std::string& label);
    void RunHelpBox(std::string_view description, std::string_view label);

    // Reports a failure of `procedure` in the form and with the label its table row gives.
    void report(Procedure procedure, const Failure& failure);

  private:
    struct SpeakingReport {
        explicit SpeakingReport(bool& flag) : flag_(flag), was_(flag) { flag_ = true; }
        ~SpeakingReport() { flag_ = was_; }
        SpeakingReport(const SpeakingReport&) = delete;
        SpeakingReport& operator=(const SpeakingReport&) = delete;
        bool& flag_;
        bool was_;
    };

    void showErrorBody(const std::string& description, const std::string& label);

    MessageBoxes& boxes_;
    Application& application_;
    std::function<void(std::string_view)> speak_;
    // Set while ShowError speaks a report: a speech failure then is the report's own and is
    // not reported again, or a broken speech service would report without end.
    bool speakingReport_ = false;
};

}  // namespace marivox
