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

/// The symbols of the drawing library. Two-ended ones lie centred between `from` and `to` with their leads drawn;
/// one-ended ones stand at `from`.
enum class Symbol : std::uint8_t {
    wire,         ///< straight lead from `from` to `to`
    node,         ///< filled dot where leads join
    terminal,     ///< hollow dot at the end of a lead
    resistor,     ///< two-ended
    preset,       ///< two-ended resistor with a slanted arrow through it
    capacitor,    ///< two-ended
    polarised,    ///< two-ended capacitor with a plus sign at the `from` side
    diode,        ///< two-ended, pointing from `from` to `to`
    npn,          ///< transistor: base at `from`; collector up and emitter down 30 u to the right, see `transistorReach`
    pnp,          ///< transistor: base at `from`; emitter up, collector down
    npnLeft,      ///< as npn, mirrored: base at `from` on the right, collector and emitter to the left
    ground,       ///< one-ended, hangs down from `from`
    supplyUp,     ///< one-ended, a short bar with the lead going down from `from`
    supplyDown,   ///< one-ended, mirrored
    generator,    ///< two-ended circle with a sine wave
    loudspeaker,  ///< two-ended
    meter,        ///< circle with the letter of `name` inside, two-ended
    transformer,  ///< two windings: primary between `from` and `to`, secondary 40 u to the right
    arrow,        ///< thin arrow from `from` to `to` in the accent colour (currents, signals)
    pointer,      ///< thin leader line from `from` to `to`, ending in a small dot (from a note to its place)
    sine,         ///< a period of a sine wave in the box from `from` to `to`, accent colour
    sineInverted, ///< the same in opposite phase
    polyline,     ///< free stroke through `points` in the lead's weight
    fill,         ///< filled polygon through `points` in ink
    frame,        ///< rectangle from `from` to `to`, thin
    roundFrame,   ///< rounded rectangle from `from` to `to`, thin, filled with paper
    circle,       ///< circle with the diagonal from `from` to `to`
    text,         ///< `name` as upright text at `from`
    label,        ///< `name` as a symbol label at `from` (italic, what follows "_" as upright subscript)
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
struct Mark {
    Symbol symbol = Symbol::wire;
    GridPoint from{};
    GridPoint to{};
    std::string_view name{};
    BiText note{};                       ///< for `text`: bilingual text instead of `name`
    Side side = Side::none;              ///< where name and value stand
    Handle value = noControl;
    std::string_view unit{};             ///< joined to the value when the value's text is a bare number
    Handle field = noControl;
    Ink ink = Ink::normal;
    std::uint8_t size = 100;             ///< per cent of the symbol's or letter's normal size
    std::span<const GridPoint> points{}; ///< polyline, fill
};

} // namespace velmor::host
