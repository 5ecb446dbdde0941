// SPDX-License-Identifier: MIT
// A report as text under construction: two kinds of indent, lines ended by CR LF. Knows no sheet.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "sheets/design_sheet.h"

namespace velmor::sheets {

/// A row "label + text of a control + ending", in one or both languages.
struct ReportRow {
    std::string_view label{};
    host::Handle value = host::noControl; ///< noControl: the label alone
    std::string_view ending{};
};

class ReportText {
public:
    ReportText& empty();                         ///< an empty line
    ReportText& plain(std::string_view text);    ///< no indent
    ReportText& oneStep(std::string_view text);  ///< eight blanks
    ReportText& twoSteps(std::string_view text); ///< sixteen blanks
    ReportText& tab(std::string_view text);      ///< data line
    ReportText& tabs(std::span<const std::string_view> lines);
    ReportText& rows(const host::Window& sheet, std::span<const ReportRow> rows); ///< tab lines

    /// Title (two steps), student, course, date and time of this moment (one step each). `airy`: also an empty line after the
    /// title and after the time.
    ReportText& opening(const DesignSheet& sheet, std::string_view title, bool airy = false);
    /// The opening, then the design name (two steps) and an empty line behind it.
    ReportText& heading(const DesignSheet& sheet, std::string_view title, std::string_view designName,
                        bool airy = false);

    const std::string& text() const { return text_; }

private:
    std::string text_;
};

} // namespace velmor::sheets
