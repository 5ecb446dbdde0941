// SPDX-License-Identifier: MIT
// Building a report line by line.
#include "sheets/report_text.h"

namespace velmor::sheets {

using host::BiText;

namespace report_detail {
constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view step = "        ";
} // namespace report_detail

ReportText& ReportText::empty()
{
    return plain("");
}

ReportText& ReportText::plain(std::string_view text)
{
    // A caption of several lines becomes several lines of the report.
    for (const char letter : text) {
        if (letter == '\n')
            text_.append(report_detail::lineEnd);
        else
            text_.push_back(letter);
    }
    text_.append(report_detail::lineEnd);
    return *this;
}

ReportText& ReportText::oneStep(std::string_view text)
{
    text_.append(report_detail::step);
    return plain(text);
}

ReportText& ReportText::twoSteps(std::string_view text)
{
    text_.append(report_detail::step);
    return oneStep(text);
}

ReportText& ReportText::tab(std::string_view text)
{
    text_.push_back('\t');
    return plain(text);
}

ReportText& ReportText::tabs(std::span<const std::string_view> lines)
{
    for (const std::string_view line : lines)
        tab(line);
    return *this;
}

ReportText& ReportText::rows(const host::Window& sheet, std::span<const ReportRow> rows)
{
    for (const ReportRow& row : rows) {
        std::string line(row.label);
        if (row.value != host::noControl)
            line += sheet.text(row.value);
        tab(line.append(row.ending));
    }
    return *this;
}

ReportText& ReportText::opening(const DesignSheet& sheet, std::string_view title, bool airy)
{
    const auto pick = [&sheet](std::string_view es, std::string_view en) { return std::string(sheet.pick({es, en})); };
    twoSteps(title);
    if (airy)
        empty();
    oneStep(pick("Alumno: ", "Student: "));
    oneStep(pick("Curso: ", "Course: "));
    oneStep(pick("Fecha: ", "Date: ") + sheet.host().Date());
    oneStep(pick("Hora: ", "Time: ") + sheet.host().Time());
    return airy ? empty() : *this;
}

ReportText& ReportText::heading(const DesignSheet& sheet, std::string_view title, std::string_view designName,
                                bool airy)
{
    return opening(sheet, title, airy).twoSteps(designName).empty();
}

} // namespace velmor::sheets
