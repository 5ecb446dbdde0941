// SPDX-License-Identifier: MIT
// What a control draws, as data: textbook symbols, wires and texts on a grid. Knows nothing of painters.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "host/bitext.h"

namespace velmor::host {

using Handle = std::uint16_t;
/// No control; in slots and events it stands for the window itself.
inline constexpr Handle noControl = 0xFFFF;

/// The symbols of the drawing library. Two-ended ones lie centred between `from` and `to`, in any direction, with their
/// leads drawn from end to end: leave at least 50 u (resistor), 20 u (capacitor), 30 u (diode), 40 u (generator, meter,
/// loudspeaker). One-ended ones stand at `from`. Pictograms fill the box from `from` to `to`.
enum class Symbol : std::uint8_t {
    wire,         ///< straight lead from `from` to `to`
    node,         ///< filled dot where leads join
    terminal,     ///< hollow dot at the end of a lead
    resistor,     ///< two-ended
    preset,       ///< two-ended resistor with a slanted arrow through it
    capacitor,    ///< two-ended
    polarised,    ///< two-ended capacitor with a plus sign at the `from` side
    diode,        ///< two-ended, pointing from `from` to `to`
    npn,          ///< transistor: base at `from`; for its other ends see `collectorEnd` and `emitterEnd`
    pnp,          ///< as npn, emitter up and collector down
    npnLeft,      ///< as npn, mirrored: base at `from` on the right, collector and emitter to the left
    ground,       ///< one-ended, hangs down from `from`: a lead of 10 u, then the bars
    supplyUp,     ///< one-ended: a short bar at `from` with a lead of 10 u going down from it
    supplyDown,   ///< one-ended: a short bar at `from` with a lead of 10 u going up from it
    generator,    ///< two-ended circle with a sine wave
    loudspeaker,  ///< two-ended; from top to bottom its horn opens to the right
    meter,        ///< circle with the letter of `name` inside, two-ended; `side` places the value alone
    transformer,  ///< two windings: primary between `from` and `to`, secondary with its ends 40 u to the right of these
    arrow,        ///< thin arrow from `from` to `to` in the accent colour (currents, signals)
    pointer,      ///< thin leader line from `from` to `to`, ending in a small dot (from a note to its place)
    sine,         ///< a period of a sine wave in the box from `from` to `to`, accent colour
    sineInverted, ///< the same in opposite phase
    polyline,     ///< free stroke through `points` in the lead's weight
    fill,         ///< filled polygon through `points` in ink
    frame,        ///< rectangle from `from` to `to`, thin
    roundFrame,   ///< rounded rectangle from `from` to `to`, thin, filled with paper
    circle,       ///< circle with the diagonal from `from` to `to`
    text,         ///< `name` (or `note`) as upright text at `from`; "\n" breaks lines
    label,        ///< `name` as a symbol label at `from` (italic, what follows "_" as upright subscript)
    pnpLeft,      ///< as npnLeft, emitter up and collector down
    zener,        ///< two-ended diode with a bent bar
    led,          ///< two-ended diode that sends out two small arrows
    inductor,     ///< two-ended
    battery,      ///< two-ended, the long (positive) bar at the `from` side
    switchOpen,   ///< two-ended
    switchClosed, ///< two-ended
    dashedFrame,  ///< rectangle from `from` to `to`, thin and dashed (what belongs together)
    page,         ///< pictogram: sheet of paper with lines (report, editor)
    book,         ///< pictogram: open book (guide, help)
    calculator,   ///< pictogram
    thermometer,  ///< pictogram
    lamp,         ///< pictogram: bulb with rays
    question,     ///< pictogram: question mark in a circle
    oscilloscope, ///< pictogram
    multimeter,   ///< pictogram
    butterfly,    ///< pictogram
    door,         ///< pictogram: leave
    colourBands,  ///< pictogram: resistor with its colour rings
    count
};

/// A point on the drawing's grid, in units u (15 twips; the grid is 10 u), from the left top corner of the control.
struct GridPoint {
    std::int16_t x = 0;
    std::int16_t y = 0;
};

enum class Side : std::uint8_t { none, left, right, above, below };

/// Colours by role; the painter knows the shades for light and dark desktops.
enum class Ink : std::uint8_t { normal, accent, quiet, warning };

/// One drawn element. `name` bears "R_b1" style labels: what follows the underscore is the subscript.
/// `value` names a control of the same window whose text, when it has one and is visible or not, stands under the name.
/// `field` names the field in whose hand the element is highlighted.
///
/// Where name and value stand: beside the middle of a two-ended symbol, on `side` (left to the painter with `none`: to the
/// right of an upright part, above a lying one); beside `from` for nodes, terminals, `label` and `text`, which with
/// `none` begin at `from`, centred on its height. An arrow's, wire's or pointer's name stands beside its middle.
struct Mark {
    Symbol symbol = Symbol::wire;
    GridPoint from{};
    GridPoint to{};
    std::string_view name{};
    BiText note{};          ///< for `text`: bilingual text instead of `name`
    Side side = Side::none; ///< where name and value stand
    Handle value = noControl;
    std::string_view unit{}; ///< joined to the value when the value's text is a bare number
    Handle field = noControl;
    Ink ink = Ink::normal;
    std::uint8_t size = 100;             ///< per cent of the letters' normal size; symbols keep theirs
    std::span<const GridPoint> points{}; ///< polyline, fill
};

/// Ends of a transistor whose base is at `base`: 30 u to the side, 30 u up and down, so that all three lie on the
/// grid when the base does. Its circle (radius 21 u) stands 20 u to the side; the leads from it to the ends are drawn.
inline constexpr GridPoint transistorReach{30, 30};

constexpr bool isMirrored(Symbol transistor)
{
    return transistor == Symbol::npnLeft || transistor == Symbol::pnpLeft;
}
constexpr bool isPnp(Symbol transistor)
{
    return transistor == Symbol::pnp || transistor == Symbol::pnpLeft;
}

/// The end in the upper half: collector of an npn, emitter of a pnp.
constexpr GridPoint upperEnd(Symbol transistor, GridPoint base)
{
    const int side = isMirrored(transistor) ? -1 : 1;
    return {static_cast<std::int16_t>(base.x + side * transistorReach.x),
            static_cast<std::int16_t>(base.y - transistorReach.y)};
}
/// The end in the lower half: emitter of an npn, collector of a pnp.
constexpr GridPoint lowerEnd(Symbol transistor, GridPoint base)
{
    const GridPoint upper = upperEnd(transistor, base);
    return {upper.x, static_cast<std::int16_t>(base.y + transistorReach.y)};
}
constexpr GridPoint collectorEnd(Symbol transistor, GridPoint base)
{
    return isPnp(transistor) ? lowerEnd(transistor, base) : upperEnd(transistor, base);
}
constexpr GridPoint emitterEnd(Symbol transistor, GridPoint base)
{
    return isPnp(transistor) ? upperEnd(transistor, base) : lowerEnd(transistor, base);
}

} // namespace velmor::host
