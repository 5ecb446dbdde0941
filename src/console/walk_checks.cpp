// SPDX-License-Identifier: MIT
// The commands that check a finished design in the simulator, and ask what came out. A walk may name the simulator in its settings.
#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <sstream>

#include "check/check.h"
#include "check/verdict.h"
#include "console/verbs.h"
#include "designs/circuits.h"
#include "rules/numbers.h"

namespace velmor::console {

namespace checks_detail {

using check::Quantity;

/// The cell that a column's word names; nothing when it is empty.
check::Measured cellOf(const check::Row& row, std::string_view column)
{
    if (host::sameName(column, "asked"))
        return row.asked;
    if (host::sameName(column, "course"))
        return row.course;
    if (host::sameName(column, "simulated"))
        return row.simulated;
    throw WalkError("unknown column " + inQuotes(column) + ": asked, course or simulated");
}

Quantity quantityOf(std::string_view word)
{
    if (const auto quantity = check::quantityNamed(word))
        return *quantity;
    throw WalkError("unknown row " + inQuotes(word));
}

bool inEnglish(Walk& walk)
{
    return walk.engine().values().LanguageIsEnglish == host::trueValue;
}

/// What stands between the walk and a value, to be added to a failure.
std::string whyEmpty(Walk& walk)
{
    const std::string& excuse = walk.lastCheck()->excuse.in(inEnglish(walk));
    return excuse.empty() ? "" : ": " + excuse;
}

std::string cellText(const check::Measured& cell)
{
    return cell ? check::amountText(*cell, "") : "-";
}

/// Under --trace the whole table: a teacher can read it there.
void traceCheck(Walk& walk)
{
    const check::Check& check = *walk.lastCheck();
    for (const check::Row& row : check.rows) {
        const bool hasLadder = !row.ladder.rungs.empty();
        walk.trace("  " + std::string(check::textOf(row.quantity).name) + ": asked " + cellText(row.asked) +
                   ", course " + cellText(row.course) + ", simulated " + cellText(row.simulated) + "; " +
                   row.verdict.in(inEnglish(walk)) +
                   (hasLadder ? "; remainder " + check::amountText(row.ladder.remainder(), "dB") : ""));
    }
    std::istringstream netlist(check.netlist);
    for (std::string line; std::getline(netlist, line);)
        walk.trace("  | " + line);
    if (!check.excuse.en.empty())
        walk.trace("  " + check.excuse.in(inEnglish(walk)));
}

/// The row that is asked for; null after a failure that has been reported.
const check::Row* rowOf(Walk& walk, std::string_view word)
{
    const Quantity quantity = quantityOf(word);
    if (!walk.lastCheck()) {
        walk.fail("nothing has been checked");
        return nullptr;
    }
    const check::Row* row = check::rowOf(*walk.lastCheck(), quantity);
    if (row == nullptr)
        walk.fail("the check has no row " + inQuotes(word) + whyEmpty(walk));
    return row;
}

/// The current window, or the sheet behind a tool window.
const host::Window& sheetInHand(Walk& walk)
{
    const host::Window& current = walk.current();
    const host::Window* child = walk.engine().activeChild();
    return current.role() == host::Role::tool && child != nullptr ? *child : current;
}

void checkDesign(Walk& walk, Words)
{
    const host::Window& sheet = sheetInHand(walk);
    const check::SheetTable* table = designs::circuitTableOf(sheet.name());
    if (table == nullptr)
        throw WalkError(std::string(sheet.name()) + " has no design to check");
    if (!check::isAwake(sheet, *table)) {
        walk.lastCheck() =
            check::Check{.excuse = {std::string(check::whyAsleep().es), std::string(check::whyAsleep().en)}};
        return;
    }
    check::Ngspice simulator(walk.settings().value("Check", "Simulator").value_or(""));
    walk.lastCheck() = check::checkDesign(check::designOf(sheet, *table), simulator);
    traceCheck(walk);
}

void expectCheck(Walk& walk, Words words)
{
    constexpr double usualTolerance = 0.01;
    const double wanted = realNumber(words[2]);
    const double tolerance = words.size() > 3 ? realNumber(words[3]) : usualTolerance;
    const check::Row* row = rowOf(walk, words[0]);
    if (row == nullptr)
        return;
    const check::Measured cell = cellOf(*row, words[1]);
    if (!cell) {
        walk.fail("the cell is empty" + whyEmpty(walk));
        return;
    }
    walk.check(std::abs(*cell - wanted) <= tolerance * std::abs(wanted), words[2], check::amountText(*cell, ""));
}

/// Without regard to capitals: a reason may begin a sentence or go on in one.
bool containsWords(std::string_view text, std::string_view wanted)
{
    const auto sameLetter = [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
    };
    return std::search(text.begin(), text.end(), wanted.begin(), wanted.end(), sameLetter) != text.end();
}

void expectVerdict(Walk& walk, Words words)
{
    const check::Row* row = rowOf(walk, words[0]);
    if (row == nullptr)
        return;
    const std::string& verdict = row->verdict.in(inEnglish(walk));
    walk.check(containsWords(verdict, words[1]), "a verdict with " + inQuotes(words[1]), inQuotes(verdict));
}

void expectRemainder(Walk& walk, Words words)
{
    const double most = realNumber(words[1]);
    const check::Row* row = rowOf(walk, words[0]);
    if (row == nullptr)
        return;
    if (row->ladder.rungs.empty())
        walk.fail("the row has no ladder" + whyEmpty(walk));
    else
        walk.check(row->ladder.remainder() <= most, "at most " + words[1] + " dB",
                   check::amountText(row->ladder.remainder(), "dB"));
}

// clang-format off
constexpr Verb table[] = {
    {"check",            VerbKind::deed,     0, 0, checkDesign,     "nothing"},
    {"expect-check",     VerbKind::question, 3, 4, expectCheck,     "ROW COLUMN VALUE [TOLERANCE]"},
    {"expect-verdict",   VerbKind::question, 2, 2, expectVerdict,   "ROW TEXT"},
    {"expect-remainder", VerbKind::question, 2, 2, expectRemainder, "ROW DECIBEL"},
};
// clang-format on

} // namespace checks_detail

std::span<const Verb> checks()
{
    return checks_detail::table;
}

} // namespace velmor::console
