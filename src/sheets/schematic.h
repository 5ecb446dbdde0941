// SPDX-License-Identifier: MIT
// The strokes of a schematic and the rows of controls, in few words: places in units of the grid, parts counted from the corner
// of the sheet, fields, results and notes. Knows no sheet.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "host/window.h"

namespace velmor::sheets {

inline constexpr int twipsPerUnit = 15;
/// The drawing area that all sheets have, in twips.
inline constexpr host::Place sheetPlace{0, 0, 1200 * twipsPerUnit, 620 * twipsPerUnit};

/// A place in units of the drawing grid.
constexpr host::Place at(int left, int top, int width, int height)
{
    return {left * twipsPerUnit, top * twipsPerUnit, width * twipsPerUnit, height * twipsPerUnit};
}

/// Where things stand, the same on every sheet: the teacher's voice on top, under it the next step; the parameters on the left,
/// the drawing in the middle, tools, options, instruments and pages on the right.
namespace zones {

inline constexpr host::Place voice = at(0, 0, 1200, 40);
inline constexpr host::Place nextStep = at(8, 44, 1186, 46);
inline constexpr host::Place paper = at(236, 94, 778, 518);
inline constexpr int left = 8;    ///< of the parameters and the notes under them
inline constexpr int width = 220; ///< of the same
inline constexpr int right = 1022;
inline constexpr int belowTools = 286; ///< options and instruments begin here

/// A group of parameters: heading and `rows` fields, its top edge at `top`.
constexpr host::Place group(int top, int rows)
{
    return at(left, top, width, 24 + 28 * rows);
}
/// The field in the given row of a group.
constexpr host::Place parameter(int top, int row)
{
    return at(98, top + 24 + 28 * row, 73, 22);
}
/// The option picture at the given place, two in a row.
constexpr host::Place option(int index)
{
    return at(right + index % 2 * 88, belowTools + index / 2 * 62, 84, 58);
}

} // namespace zones

// --- strokes

constexpr host::GridPoint point(int x, int y)
{
    return {static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)};
}
constexpr host::Mark wire(int fromX, int fromY, int toX, int toY)
{
    return {.symbol = host::Symbol::wire, .from = point(fromX, fromY), .to = point(toX, toY)};
}
constexpr host::Mark node(int x, int y)
{
    return {.symbol = host::Symbol::node, .from = point(x, y)};
}
constexpr host::Mark ground(int x, int y)
{
    return {.symbol = host::Symbol::ground, .from = point(x, y)};
}
/// A lead through several corners: one wire for each stretch.
template <std::size_t Count>
constexpr std::array<host::Mark, Count - 1> wires(const host::GridPoint (&corners)[Count])
{
    std::array<host::Mark, Count - 1> leads{};
    for (std::size_t i = 0; i + 1 < Count; ++i)
        leads[i] = {.symbol = host::Symbol::wire, .from = corners[i], .to = corners[i + 1]};
    return leads;
}

namespace schematic_detail {

constexpr bool hasTwoEnds(const host::Mark& mark)
{
    return mark.to.x != 0 || mark.to.y != 0;
}

} // namespace schematic_detail

/// A part of the schematic: its place, and its marks counted from there.
template <std::size_t Count>
struct Part {
    host::Place place;
    std::array<host::Mark, Count> marks;
};

/// Makes a part of marks that are counted from the corner of the sheet.
template <std::size_t Count>
constexpr Part<Count> part(const std::array<host::Mark, Count>& marks)
{
    using schematic_detail::hasTwoEnds;
    int left = marks[0].from.x;
    int top = marks[0].from.y;
    int right = left;
    int bottom = top;
    const auto reach = [&](host::GridPoint end) {
        left = std::min<int>(left, end.x);
        top = std::min<int>(top, end.y);
        right = std::max<int>(right, end.x);
        bottom = std::max<int>(bottom, end.y);
    };
    for (const host::Mark& mark : marks) {
        reach(mark.from);
        if (hasTwoEnds(mark))
            reach(mark.to);
    }
    Part<Count> made{at(left, top, std::max(1, right - left), std::max(1, bottom - top)), marks};
    for (host::Mark& mark : made.marks) {
        const bool twoEnds = hasTwoEnds(mark);
        mark.from = point(mark.from.x - left, mark.from.y - top);
        if (twoEnds)
            mark.to = point(mark.to.x - left, mark.to.y - top);
    }
    return made;
}
template <std::size_t Count>
constexpr Part<Count> part(const host::Mark (&marks)[Count])
{
    return part(std::to_array(marks));
}

// --- rows of controls

/// What a field measures: symbol, unit and meaning.
struct Quantity {
    std::string_view symbol{};
    std::string_view unit{};
    host::BiText meaning{};
    host::SymbolSide side = host::SymbolSide::left;
};

constexpr host::ControlRow field(host::Handle id, std::string_view name, const host::Place& place,
                                 std::string_view text, const Quantity& quantity)
{
    return {.id = id,
            .name = name,
            .kind = host::Kind::field,
            .place = place,
            .text = text,
            .symbol = quantity.symbol,
            .unit = quantity.unit,
            .meaning = quantity.meaning,
            .symbolSide = quantity.side};
}
constexpr host::ControlRow label(host::Handle id, std::string_view name, const host::Place& place, host::Look look,
                                 std::string_view text = {})
{
    return {.id = id, .name = name, .kind = host::Kind::label, .place = place, .text = text, .look = look};
}
/// A value that the sheet works out, beside its part.
constexpr host::ControlRow result(host::Handle id, std::string_view name, const host::Place& place,
                                  std::string_view text = {})
{
    return label(id, name, place, host::Look::result, text);
}
/// Lines, shapes and images that show a part of the schematic.
template <std::size_t Count>
constexpr host::ControlRow drawn(host::Handle id, std::string_view name, host::Kind kind, const Part<Count>& part)
{
    return {.id = id, .name = name, .kind = kind, .place = part.place, .drawing = part.marks};
}
/// The title of a drawing, in the lower right corner of its paper. Counted from the corner of the paper.
constexpr std::array<host::Mark, 1> titleBlock(host::BiText title)
{
    return {host::Mark{.symbol = host::Symbol::text,
                       .from = point(770, 505),
                       .note = title,
                       .side = host::Side::left,
                       .ink = host::Ink::quiet,
                       .size = 80}};
}
/// The paper under the drawing.
constexpr host::ControlRow paper(host::Handle id, std::string_view name, std::span<const host::Mark> drawing)
{
    return {.id = id,
            .name = name,
            .kind = host::Kind::image,
            .place = zones::paper,
            .look = host::Look::paper,
            .drawing = drawing};
}
/// A picture or image that acts as a button: an option of the sheet, an instrument.
constexpr host::ControlRow option(host::Handle id, std::string_view name, host::Kind kind, const host::Place& place,
                                  host::BiText meaning, std::span<const host::Mark> drawing)
{
    return {.id = id,
            .name = name,
            .kind = kind,
            .place = place,
            .meaning = meaning,
            .look = host::Look::toolButton,
            .drawing = drawing};
}
/// A button that looks chosen while its choice is in force.
constexpr host::ControlRow chosen(host::ControlRow row, host::Chosen when)
{
    row.chosen = when;
    return row;
}

constexpr host::ControlRow hidden(host::ControlRow row)
{
    row.visible = false;
    return row;
}
constexpr host::ControlRow disabled(host::ControlRow row)
{
    row.enabled = false;
    return row;
}

} // namespace velmor::sheets
