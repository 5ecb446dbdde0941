// SPDX-License-Identifier: MIT
// The exercises of a report: heading, statement, data. Knows no sheet.
#pragma once

#include <span>
#include <string_view>

#include "sheets/report_text.h"

namespace velmor::differential {

using Lines = std::span<const std::string_view>;

struct Exercise {
    std::string_view heading{};
    Lines statement{};
    Lines data{};
};

/// Appends them: the heading on one step, the statement on two, its data on tab lines.
void append(sheets::ReportText& report, std::span<const Exercise> exercises);

/// The reminder behind the exercises of an English and of a Spanish report.
extern const Lines englishReminder;
extern const Lines spanishReminder;

} // namespace velmor::differential
