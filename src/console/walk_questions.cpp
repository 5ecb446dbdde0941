// SPDX-License-Identifier: MIT
// The commands that ask: every `expect`, and the four that print.
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

#include "console/properties.h"
#include "console/verbs.h"
#include "rules/code_page.h"
#include "rules/numbers.h"
#include "rules/whole_file.h"

namespace velmor::console {

namespace questions_detail {

using host::Handle;
using host::Window;

constexpr int large = std::numeric_limits<int>::max();

void expect(Walk& walk, Words words)
{
    walk.compare(words[1], propertyText(walk, words[0]));
}

void expectNear(Walk& walk, Words words)
{
    constexpr double relativeTolerance = 1e-9;
    const double expected = realNumber(words[1]);
    const double tolerance = words.size() > 2 ? realNumber(words[2]) : relativeTolerance * std::abs(expected);
    const std::string found = propertyText(walk, words[0]);
    const bool holds = std::abs(rules::ParseLeadingNumber(found) - expected) <= tolerance;
    walk.check(holds, words[1] + (words.size() > 2 ? " within " + words[2] : ""), inQuotes(found));
}

bool contains(Walk& walk, const std::string& found, const std::string& part)
{
    return found.find(walk.screen().plain(part)) != std::string::npos;
}

void expectContains(Walk& walk, Words words)
{
    const std::string found = walk.screen().plain(propertyText(walk, words[0]));
    walk.check(contains(walk, found, words[1]), "a text with " + inQuotes(words[1]), inQuotes(found));
}

void expectLacks(Walk& walk, Words words)
{
    const std::string found = walk.screen().plain(propertyText(walk, words[0]));
    walk.check(!contains(walk, found, words[1]), "a text without " + inQuotes(words[1]), inQuotes(found));
}

std::string controlName(const Window& window, Handle control)
{
    return control == host::noControl ? "none" : std::string(window.row(control).name);
}

void expectFocus(Walk& walk, Words words)
{
    const Window& window = walk.current();
    const Handle wanted = walk.controlOrBackground(window, words[0]);
    walk.check(window.focus() == wanted, "the focus on " + controlName(window, wanted),
               controlName(window, window.focus()));
}

bool accepts(Walk& walk, const std::string& wanted, const std::string& found)
{
    return wanted == "*" || walk.screen().plain(wanted) == walk.screen().plain(found);
}

std::string described(Walk& walk, const host::MessageBox& box)
{
    return "box " + inQuotes(walk.screen().plain(box.text)) + " " + inQuotes(box.title) + " " +
           std::to_string(box.flags);
}

std::string joined(std::string what, Words words)
{
    for (const std::string& word : words)
        what += " " + inQuotes(word);
    return what;
}

void expectBox(Walk& walk, Words words)
{
    const std::optional<int> flags = words.size() > 2 ? std::optional(wholeNumber(words[2], 0, large)) : std::nullopt;
    const std::optional<host::MessageBox> box = walk.screen().takeBox();
    const bool holds = box && accepts(walk, words[0], box->text) &&
                       (words.size() < 2 || accepts(walk, words[1], box->title)) && (!flags || *flags == box->flags);
    walk.check(holds, joined("box", words), box ? described(walk, *box) : "no box");
}

void expectNoBox(Walk& walk, Words)
{
    const auto& boxes = walk.screen().boxes();
    walk.check(boxes.empty(), "no box", boxes.empty() ? "" : described(walk, boxes.front()));
}

void expectWindow(Walk& walk, Words words)
{
    const host::WindowSpec& spec = walk.specOf(words[0]);
    const int expected = words.size() > 1 ? wholeNumber(words[1], 0, large) : 1;
    const std::vector<Window*> open = walk.engine().windows();
    const auto found = std::count_if(open.begin(), open.end(),
                                     [&](const Window* window) { return host::sameName(window->name(), spec.name); });
    walk.check(found == expected, std::to_string(expected) + " open", std::to_string(found));
}

void expectActive(Walk& walk, Words words)
{
    const host::WindowSpec& spec = walk.specOf(words[0]);
    const std::string_view found = walk.current().name();
    walk.check(host::sameName(found, spec.name), spec.name, found);
}

void expectIn(Walk& walk, Words words)
{
    checkProperty(walk.specOf(windowWord(words[0]).name), words[1]);
    Window* window = walk.window(words[0]);
    if (window == nullptr)
        walk.fail("the window " + inQuotes(words[0]) + " is not open");
    else
        walk.compare(words[2], propertyText(walk, *window, words[1]));
}

void expectDialog(Walk& walk, Words words)
{
    constexpr std::array<std::string_view, 6> kinds{"open", "save", "colour", "font", "print", "input"};
    if (std::find(kinds.begin(), kinds.end(), words[0]) == kinds.end())
        throw WalkError("unknown kind of dialog " + inQuotes(words[0]));
    const std::optional<ShownDialog> dialog = walk.screen().takeDialog();
    const bool holds = dialog && dialog->kind == words[0] && accepts(walk, words[1], dialog->title) &&
                       (words.size() < 3 || accepts(walk, words[2], dialog->detail));
    walk.check(holds, joined("dialog", words),
               dialog ? "dialog " + dialog->kind + " " + inQuotes(dialog->title) + " " + inQuotes(dialog->detail)
                      : "no dialog");
}

void expectPrinted(Walk& walk, Words words)
{
    if (walk.screen().printed())
        walk.compare(words[0], *walk.screen().printed());
    else
        walk.fail("expected " + inQuotes(words[0]) + ", found nothing printed");
}

void expectRan(Walk& walk, Words words)
{
    if (walk.screen().ran())
        walk.compare(words[0], *walk.screen().ran());
    else
        walk.fail("expected " + inQuotes(words[0]) + ", found nothing run");
}

void expectFile(Walk& walk, Words words)
{
    constexpr std::size_t largest = std::size_t{256} * 1024 * 1024;
    const std::optional<std::string> bytes = rules::readWhole(walk.screen().resolved(words[0]), largest);
    if (!bytes) {
        walk.fail("expected a file, found none that can be read");
        return;
    }
    const std::string found = rules::decodeDocument(*bytes);
    walk.check(found == words[1], inQuotes(words[1]), inQuotes(found));
}

void expectSetting(Walk& walk, Words words)
{
    const std::string found = walk.settings().value(words[0], words[1]).value_or("*none*");
    walk.check(found == words[2], inQuotes(words[2]), inQuotes(found));
}

void expectPopup(Walk& walk, Words words)
{
    const std::string& found = walk.screen().popup();
    walk.check(host::sameName(found, words[0]), words[0], found.empty() ? "none" : found);
}

void expectArranged(Walk& walk, Words words)
{
    constexpr int lastKind = 2;
    const int found = walk.engine().arrangement();
    walk.check(wholeNumber(words[0], 0, lastKind) == found, words[0],
               found < 0 ? "never arranged" : std::to_string(found));
}

void expectEnded(Walk& walk, Words)
{
    walk.check(walk.engine().ended(), "an ended program", "a running one");
}

void expectRunning(Walk& walk, Words)
{
    walk.check(!walk.engine().ended(), "a running program", "an ended one");
}

void expectBeeps(Walk& walk, Words words)
{
    const int expected = wholeNumber(words[0], 0, large);
    const int found = walk.screen().takeBeeps();
    walk.check(found == expected, words[0] + " beeps", std::to_string(found));
}

void print(Walk& walk, Words words)
{
    walk.print(words[0] + " " + inQuotes(walk.screen().plain(propertyText(walk, words[0]))));
}

std::string entries(Walk& walk, const host::ListState& list)
{
    std::string result = " entries";
    for (const std::string& entry : list.items)
        result += " " + inQuotes(walk.screen().plain(entry));
    return result;
}

void dump(Walk& walk, Words)
{
    Window& window = walk.current();
    walk.print(windowTitle(walk.engine(), window) + " " + inQuotes(window.caption()) + " state " +
               std::to_string(window.windowState()) + " focus " + controlName(window, window.focus()));
    for (const host::ControlRow& row : window.spec().controls) {
        const std::string name(row.name);
        std::string line =
            "  " + name + " " + inQuotes(walk.screen().plain(propertyText(walk, window, name + ".text")));
        line += window.visible(row.id) ? "" : " hidden";
        line += window.enabled(row.id) ? "" : " disabled";
        line += window.checked(row.id) ? " checked" : "";
        line += row.kind == host::Kind::list ? entries(walk, window.list(row.id)) : "";
        walk.print(line);
    }
}

void windows(Walk& walk, Words)
{
    for (const Window* window : walk.engine().windows())
        walk.print(windowTitle(walk.engine(), *window) + " " + inQuotes(window->caption()) +
                   (window->shown() ? "" : " hidden") + (window == walk.engine().current() ? " current" : ""));
}

void boxes(Walk& walk, Words)
{
    for (const host::MessageBox& box : walk.screen().boxes())
        walk.print(described(walk, box));
}

// clang-format off
constexpr Verb table[] = {
    {"expect",          VerbKind::question, 2, 2, expect,         "CONTROL.PROPERTY VALUE"},
    {"expect-near",     VerbKind::question, 2, 3, expectNear,     "CONTROL.PROPERTY NUMBER [TOLERANCE]"},
    {"expect-contains", VerbKind::question, 2, 2, expectContains, "CONTROL.PROPERTY TEXT"},
    {"expect-lacks",    VerbKind::question, 2, 2, expectLacks,    "CONTROL.PROPERTY TEXT"},
    {"expect-focus",    VerbKind::question, 1, 1, expectFocus,    "CONTROL"},
    {"expect-box",      VerbKind::question, 1, 3, expectBox,      "TEXT [TITLE] [FLAGS]"},
    {"expect-no-box",   VerbKind::question, 0, 0, expectNoBox,    "nothing"},
    {"expect-window",   VerbKind::question, 1, 2, expectWindow,   "NAME [COUNT]"},
    {"expect-active",   VerbKind::question, 1, 1, expectActive,   "NAME"},
    {"expect-in",       VerbKind::question, 3, 3, expectIn,       "WINDOW CONTROL.PROPERTY VALUE"},
    {"expect-dialog",   VerbKind::question, 2, 3, expectDialog,   "KIND TITLE [FILTER]"},
    {"expect-printed",  VerbKind::question, 1, 1, expectPrinted,  "TEXT"},
    {"expect-ran",      VerbKind::question, 1, 1, expectRan,      "COMMAND"},
    {"expect-file",     VerbKind::question, 2, 2, expectFile,     "PATH TEXT"},
    {"expect-setting",  VerbKind::question, 3, 3, expectSetting,  "SECTION KEY VALUE"},
    {"expect-popup",    VerbKind::question, 1, 1, expectPopup,    "MENU"},
    {"expect-arranged", VerbKind::question, 1, 1, expectArranged, "0|1|2"},
    {"expect-ended",    VerbKind::question, 0, 0, expectEnded,    "nothing"},
    {"expect-running",  VerbKind::question, 0, 0, expectRunning,  "nothing"},
    {"expect-beeps",    VerbKind::question, 1, 1, expectBeeps,    "COUNT"},
    {"print",           VerbKind::question, 1, 1, print,          "CONTROL.PROPERTY"},
    {"dump",            VerbKind::question, 0, 0, dump,           "nothing"},
    {"windows",         VerbKind::question, 0, 0, windows,        "nothing"},
    {"boxes",           VerbKind::question, 0, 0, boxes,          "nothing"},
};
// clang-format on

} // namespace questions_detail

std::span<const Verb> questions()
{
    return questions_detail::table;
}

} // namespace velmor::console
