// SPDX-License-Identifier: MIT
// The rules about the chain and what is said along it.
#include <algorithm>
#include <set>

#include "lint/grammar.h"

namespace velmor::lint {

namespace grammar_words_detail {

using host::Handle;
using host::noControl;
using sheets::ChainRow;
using sheets::Saying;
using sheets::When;

bool isField(const Sheet& sheet, Handle control)
{
    return sheet.has(control) && sheet.window.controls[control].kind == host::Kind::field;
}

std::set<Handle> reachedFromTheFirst(std::span<const ChainRow> chain)
{
    std::set<Handle> reached;
    Handle field = chain.empty() ? noControl : chain.front().field;
    while (field != noControl && reached.insert(field).second) {
        const auto row =
            std::find_if(chain.begin(), chain.end(), [field](const ChainRow& other) { return other.field == field; });
        field = row == chain.end() ? noControl : row->next;
    }
    return reached;
}

/// A drawing that is a note has nothing to write: its row shows it.
bool isNote(const Sheet& sheet, Handle place)
{
    const auto& notes = sheet.tables.notes;
    return std::find(notes.begin(), notes.end(), place) != notes.end();
}

bool oneLanguageIsRight(const Sheet& sheet, Handle about, std::span<const OneLanguage> exceptions)
{
    return sheet.has(about) && std::any_of(exceptions.begin(), exceptions.end(), [&](const OneLanguage& told) {
               return host::sameName(told.window, sheet.window.name) &&
                      host::sameName(told.about, sheet.window.controls[about].name) && !told.reason.empty();
           });
}

bool inBothLanguages(const host::BiText& text)
{
    return !text.es.empty() && !text.en.empty();
}

} // namespace grammar_words_detail

using namespace grammar_words_detail;

Complaints chain(const Sheet& sheet, std::span<const Unreached> unreached)
{
    Complaints complaints;
    const std::span<const ChainRow> rows = sheet.tables.chain;
    const std::set<Handle> reached = reachedFromTheFirst(rows);
    for (const ChainRow& row : rows) {
        if (!isField(sheet, row.field)) {
            complaints.push_back(sheet.named(row.field) + " is no field and stands in the chain");
            continue;
        }
        const std::string name = sheet.named(row.field);
        if (row.next != noControl && !sheet.isInChain(row.next))
            complaints.push_back(name + " leads to " + sheet.named(row.next) + ", which is not in the chain");
        const bool ranged = row.from != -sheets::noLimit || row.to != sheets::noLimit;
        if (ranged && (row.from > row.otherwise || row.otherwise > row.to))
            complaints.push_back(name + " is corrected to a value that it does not accept");
        const bool told = std::any_of(unreached.begin(), unreached.end(), [&](const Unreached& one) {
            return host::sameName(one.window, sheet.window.name) && "\"" + std::string(one.field) + "\"" == name &&
                   !one.reason.empty();
        });
        if (reached.count(row.field) == 0 && !told)
            complaints.push_back(name + " is not reached from the first field");
    }
    if (rows.empty())
        complaints.emplace_back("the sheet has no chain");
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (i >= sheet.window.tabOrder.size() || sheet.window.tabOrder[i] != rows[i].field) {
            complaints.emplace_back("the order of the Tab key does not begin with the chain");
            break;
        }
    return complaints;
}

Complaints sayings(const Sheet& sheet, std::span<const OneLanguage> exceptions)
{
    Complaints complaints;
    bool answersEmptyFields = false;
    for (std::size_t i = 0; i < sheet.tables.sayings.size(); ++i) {
        const Saying& row = sheet.tables.sayings[i];
        const std::string where = "saying " + std::to_string(i + 1);
        if (row.place != sheets::inBox && !sheet.has(row.place))
            complaints.push_back(where + " has no place");
        if (row.about != noControl && !sheet.has(row.about))
            complaints.push_back(where + " is about what does not exist");
        if (row.when == When::named)
            complaints.push_back(where + " is never said");
        const bool onlyShown = row.text.es.empty() && row.text.en.empty() && isNote(sheet, row.place);
        if (!onlyShown && !inBothLanguages(row.text) && !oneLanguageIsRight(sheet, row.about, exceptions))
            complaints.push_back(where + " is not there in both languages");
        if (row.place == sheets::inBox && !inBothLanguages(row.title))
            complaints.push_back(where + " is a box without a title in both languages");
        answersEmptyFields = answersEmptyFields || (row.about == noControl && row.when == When::empty);
    }
    if (!answersEmptyFields)
        complaints.emplace_back("Enter in an empty field is not answered");
    return complaints;
}

Complaints helpPages(const Sheet& sheet, std::span<const OneLanguage> exceptions)
{
    Complaints complaints;
    std::set<Handle> seen;
    for (const sheets::HelpPage& row : sheet.tables.helpPages) {
        const std::string where = "the help page of " + sheet.named(row.field);
        if (!sheet.isInChain(row.field))
            complaints.push_back(where + " belongs to no field of the chain");
        else if (!seen.insert(row.field).second)
            complaints.push_back(where + " is there twice");
        if (row.shortName.empty())
            complaints.push_back(where + " has no short name");
        if (!inBothLanguages(row.page) && !oneLanguageIsRight(sheet, row.field, exceptions))
            complaints.push_back(where + " is not there in both languages");
    }
    const sheets::HelpBoxes& boxes = sheet.tables.helpBoxes;
    if (sheet.has(boxes.spanish) != sheet.has(boxes.english))
        complaints.emplace_back("a help box is there in one language only");
    if (sheet.has(boxes.spanish) && sheet.tables.tools.help.first == noControl)
        complaints.emplace_back("the help boxes have no tool");
    return complaints;
}

} // namespace velmor::lint
