// SPDX-License-Identifier: MIT
// Writes the rows; the words stand in quantity.cpp and verdict.cpp.
#include "check/table_text.h"

#include <array>

#include "check/deck.h"
#include "check/verdict.h"

namespace velmor::check {

namespace table_text_detail {

constexpr std::string_view lineEnd = "\r\n";

constexpr host::BiText heading{"Magnitud\tPedido\tCurso\tSimulador\tVeredicto",
                               "Quantity\tAsked\tCourse\tSimulator\tVerdict"};
constexpr host::BiText csvHeading{"magnitud,unidad,pedido,curso,simulador,resto dB,veredicto",
                                  "quantity,unit,asked,course,simulator,remainder dB,verdict"};
constexpr host::BiText fromCourse{", del curso al simulador:", ", from the course to the simulator:"};
constexpr host::BiText course{"El curso.", "The course."};
constexpr host::BiText measured{"El simulador; sin explicar quedan ", "The simulator; left unexplained: "};
constexpr host::BiText assumed{"Supuesto: ", "Assumed: "};

std::string_view pick(const host::BiText& text, bool english)
{
    return english ? text.en : text.es;
}

std::string cell(const Measured& value, std::string_view unit)
{
    return value ? amountText(*value, unit) : "-";
}

std::string rowLine(const Row& row, bool english)
{
    const QuantityText& text = textOf(row.quantity);
    return std::string(reportedSignOf(row.quantity)) + '\t' + cell(row.asked, text.unit) + '\t' +
           cell(row.course, text.unit) + '\t' + cell(row.simulated, text.unit) + '\t' +
           std::string(pick(judgementText(row.judgement), english)) + std::string(lineEnd);
}

/// What the verdict says beyond the word that stands in the row.
std::string verdictLine(const Row& row, bool english)
{
    const std::string& verdict = row.verdict.in(english);
    if (verdict == pick(judgementText(row.judgement), english))
        return {};
    return std::string(reportedSignOf(row.quantity)) + ": " + verdict + std::string(lineEnd);
}

std::string ladderLines(const Row& row, bool english)
{
    const QuantityText& text = textOf(row.quantity);
    std::string lines(lineEnd);
    const auto add = [&](double value, const std::string& step, const std::string& reason) {
        lines += amountText(value, text.unit) + '\t' + step + '\t' + reason + std::string(lineEnd);
    };
    lines += std::string(reportedSignOf(row.quantity)) + std::string(pick(fromCourse, english)) + std::string(lineEnd);
    add(row.ladder.start, "", std::string(pick(course, english)));
    for (std::size_t i = 0; i < row.ladder.rungs.size(); ++i)
        add(row.ladder.rungs[i].value, stepText(row, i), sentence(pick(row.ladder.rungs[i].reason, english)));
    add(row.ladder.measured, "", std::string(pick(measured, english)) + amountText(row.ladder.remainder(), "dB") + '.');
    return lines;
}

std::string csvField(std::string_view text)
{
    if (text.find_first_of(",\"\r\n") == std::string_view::npos)
        return std::string(text);
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + '"';
}

std::string csvNumber(const Measured& value)
{
    return value ? plainNumber(*value) : std::string();
}

} // namespace table_text_detail

using namespace table_text_detail;

std::string textTable(const Check& check, const Design& design, bool english)
{
    std::string text;
    if (check.preset.isThere())
        text += presetWords(check.preset).in(english) + std::string(lineEnd);
    text += std::string(pick(heading, english)) + std::string(lineEnd);
    for (const Row& row : check.rows)
        text += rowLine(row, english);
    text += lineEnd;
    for (const Row& row : check.rows)
        text += verdictLine(row, english);
    for (const Row& row : check.rows)
        if (!row.ladder.rungs.empty())
            text += ladderLines(row, english);
    text += lineEnd;
    for (const host::BiText& assumption : design.table->assumed)
        text += std::string(pick(assumed, english)) + std::string(pick(assumption, english)) + std::string(lineEnd);
    if (!check.excuse.en.empty())
        text += check.excuse.in(english) + std::string(lineEnd);
    return text;
}

std::string csvTable(const Check& check, bool english)
{
    const std::string preset =
        check.preset.isThere() ? ',' + csvField(presetWords(check.preset).in(english)) : std::string();
    std::string text = std::string(pick(csvHeading, english)) + (preset.empty() ? "" : ",preset");
    text += lineEnd;
    for (const Row& row : check.rows) {
        const Measured rest = row.ladder.rungs.empty() ? Measured() : Measured(row.ladder.remainder());
        const QuantityText& words = textOf(row.quantity);
        const std::array fields{std::string(words.name),
                                std::string(words.unit),
                                csvNumber(row.asked),
                                csvNumber(row.course),
                                csvNumber(row.simulated),
                                csvNumber(rest),
                                csvField(row.verdict.in(english))};
        for (std::size_t i = 0; i < fields.size(); ++i)
            text += (i == 0 ? "" : ",") + fields[i];
        text += preset;
        text += lineEnd;
    }
    return text;
}

} // namespace velmor::check
