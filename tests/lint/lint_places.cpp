// SPDX-License-Identifier: MIT
// The rules about places: marks inside their controls, fields inside their window and beside each other.
#include <algorithm>

#include "lint/lint.h"

namespace velmor::lint {

namespace lint_places_detail {

using host::ControlRow;
using host::Handle;
using host::Kind;
using host::Mark;
using host::Place;
using host::Symbol;

constexpr int twipsPerUnit = 15;

std::string named(const ControlRow& row)
{
    return "\"" + std::string(row.name) + "\"";
}

/// Ends of a mark: symbols with one end use `from` alone, free strokes their points.
std::vector<host::GridPoint> pointsOf(const Mark& mark)
{
    switch (mark.symbol) {
    case Symbol::polyline:
    case Symbol::fill:
        return {mark.points.begin(), mark.points.end()};
    case Symbol::node:
    case Symbol::terminal:
    case Symbol::ground:
    case Symbol::supplyUp:
    case Symbol::supplyDown:
    case Symbol::npn:
    case Symbol::pnp:
    case Symbol::npnLeft:
    case Symbol::pnpLeft:
    case Symbol::text:
    case Symbol::label:
        return {mark.from};
    default:
        return {mark.from, mark.to};
    }
}

bool saysSomething(const Mark& mark)
{
    return mark.symbol != Symbol::text || !mark.name.empty() || (!mark.note.es.empty() && !mark.note.en.empty());
}

/// A text may stand beside its control: its anchor is judged, with a hand's breadth of room; a stroke may frame it.
bool inside(const Mark& mark, host::GridPoint point, const Place& place)
{
    const bool isText = mark.symbol == Symbol::text || mark.symbol == Symbol::label;
    const int room = isText ? 90 : 6;
    const int x = point.x * twipsPerUnit;
    const int y = point.y * twipsPerUnit;
    return x >= -room * twipsPerUnit && y >= -room * twipsPerUnit && x <= place.width + room * twipsPerUnit &&
           y <= place.height + room * twipsPerUnit;
}

bool overlap(const Place& one, const Place& other)
{
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

bool isField(const ControlRow& row)
{
    return row.kind == Kind::field && !row.overlay;
}

bool matches(std::string_view pattern, std::string_view name)
{
    if (!pattern.ends_with('*'))
        return host::sameName(pattern, name);
    pattern.remove_suffix(1);
    return host::sameName(pattern, name.substr(0, pattern.size()));
}

bool told(std::span<const NeverTogether> exceptions, std::string_view window, const ControlRow& one,
          const ControlRow& other)
{
    return std::any_of(exceptions.begin(), exceptions.end(), [&](const NeverTogether& pair) {
        return host::sameName(pair.window, window) &&
               ((matches(pair.one, one.name) && matches(pair.other, other.name)) ||
                (matches(pair.one, other.name) && matches(pair.other, one.name)));
    });
}

} // namespace lint_places_detail

using namespace lint_places_detail;

Complaints marks(const host::Window& window)
{
    Complaints complaints;
    const std::size_t controls = window.spec().controls.size();
    for (const ControlRow& row : window.spec().controls)
        for (std::size_t i = 0; i < row.drawing.size(); ++i) {
            const Mark& mark = row.drawing[i];
            const std::string where = "mark " + std::to_string(i) + " of " + named(row);
            const std::vector<host::GridPoint> points = pointsOf(mark);
            if (points.empty())
                complaints.push_back(where + " has no points");
            if (!std::all_of(points.begin(), points.end(), [&](host::GridPoint point) {
                    return inside(mark, point, host::shownPlace(window, row.id));
                }))
                complaints.push_back(where + " leaves its control");
            if (mark.value != host::noControl && mark.value >= controls)
                complaints.push_back(where + " shows the value of a control that does not exist");
            if (mark.field != host::noControl && mark.field >= controls)
                complaints.push_back(where + " belongs to a field that does not exist");
            if (!saysSomething(mark))
                complaints.push_back(where + " is a text without words in both languages");
        }
    return complaints;
}

Complaints places(const host::Window& window)
{
    Complaints complaints;
    for (const ControlRow& row : window.spec().controls) {
        if (row.kind != Kind::field)
            continue;
        const Place place = host::shownPlace(window, row.id);
        const Place& whole = window.spec().place;
        if (place.width <= 0 || place.height <= 0)
            complaints.push_back(named(row) + " has no place");
        else if (place.left < 0 || place.top < 0 || place.left + place.width > whole.width ||
                 place.top + place.height > whole.height)
            complaints.push_back(named(row) + " lies outside its window");
    }
    return complaints;
}

Complaints overlaps(const host::Window& window, std::span<const NeverTogether> exceptions)
{
    Complaints complaints;
    const std::span<const ControlRow> rows = window.spec().controls;
    for (const ControlRow& one : rows)
        for (const ControlRow& other : rows.subspan(one.id + std::size_t{1}))
            if (isField(one) && isField(other) && !told(exceptions, window.name(), one, other) &&
                overlap(host::shownPlace(window, one.id), host::shownPlace(window, other.id)))
                complaints.push_back(named(one) + " lies upon " + named(other));
    return complaints;
}

} // namespace velmor::lint
