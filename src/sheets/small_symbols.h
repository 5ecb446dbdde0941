// SPDX-License-Identifier: MIT
// Small symbols for picture buttons, made of the drawing library's strokes at compile time: the library's own symbols keep
// their size, which is that of a whole sheet.
#pragma once

#include <array>
#include <cstddef>

#include "sheets/rows.h"
#include "sheets/schematic.h"

namespace velmor::sheets::small_symbols {

using host::GridPoint;
using host::Mark;
using host::Symbol;

using sheets::joined;
using sheets::point;
using sheets::wire;

/// Measures of a transistor's inside, from the middle of its circle; right-hand side of an npn.
struct TransistorSize {
    int radius;  ///< of the circle
    int bar;     ///< distance of the base bar
    int barHalf; ///< half its length
    int root;    ///< where collector and emitter leave the bar
    int knee;    ///< to the side, where they turn into the upright leads
    int kneeUp;  ///< and how far up or down
    int reach;   ///< where the upright leads end
    int base;    ///< where the base lead ends
};
inline constexpr TransistorSize usual{10, 4, 6, 3, 4, 8, 14, 14};
inline constexpr TransistorSize tiny{7, 3, 4, 2, 3, 6, 10, 10};

/// A transistor with the middle of its circle at X, Y. Base at X - base, collector and emitter at X + knee, Y -+ reach.
template <int X, int Y, Symbol Type = Symbol::npn, const TransistorSize& Size = usual>
struct Transistor {
    static constexpr int s = host::isMirrored(Type) ? -1 : 1;
    static constexpr int up = host::isPnp(Type) ? -1 : 1; ///< the emitter is drawn as the lower lead, times this
    static constexpr GridPoint bar[] = {
        point(X - s * (Size.bar + 1), Y - Size.barHalf), point(X - s * (Size.bar - 1), Y - Size.barHalf),
        point(X - s * (Size.bar - 1), Y + Size.barHalf), point(X - s * (Size.bar + 1), Y + Size.barHalf)};
    static constexpr GridPoint upper[] = {point(X - s * Size.bar, Y - Size.root),
                                          point(X + s * Size.knee, Y - Size.kneeUp),
                                          point(X + s * Size.knee, Y - Size.reach)};
    static constexpr GridPoint lower[] = {point(X - s * Size.bar, Y + Size.root),
                                          point(X + s * Size.knee, Y + Size.kneeUp),
                                          point(X + s * Size.knee, Y + Size.reach)};
    // Out of the emitter of an npn, into that of a pnp.
    static constexpr GridPoint outward[] = {point(X + s * Size.knee, Y + Size.kneeUp),
                                            point(X + s * (Size.knee - 5), Y + Size.kneeUp - 1),
                                            point(X + s * (Size.knee - 3), Y + Size.kneeUp - 5)};
    static constexpr GridPoint inward[] = {point(X - s * (Size.bar - 1), Y - Size.root - 1),
                                           point(X - s * (Size.bar - 3), Y - Size.root - 5),
                                           point(X - s * (Size.bar - 6), Y - Size.root - 2)};
    static constexpr std::array<Mark, 6> marks{
        Mark{.symbol = Symbol::circle,
             .from = point(X - Size.radius, Y - Size.radius),
             .to = point(X + Size.radius, Y + Size.radius)},
        Mark{.symbol = Symbol::wire, .from = point(X - s * Size.base, Y), .to = point(X - s * Size.bar, Y)},
        Mark{.symbol = Symbol::fill, .points = bar},
        Mark{.symbol = Symbol::polyline, .points = upper},
        Mark{.symbol = Symbol::polyline, .points = lower},
        Mark{.symbol = Symbol::fill,
             .points = up > 0 ? std::span<const GridPoint>(outward) : std::span<const GridPoint>(inward)},
    };
};

/// A resistor's body, its middle at X, Y, upright or lying.
template <int X, int Y, bool Upright = true>
struct Resistor {
    static constexpr int wide = Upright ? 3 : 6;
    static constexpr int high = Upright ? 6 : 3;
    static constexpr GridPoint box[] = {point(X - wide, Y - high), point(X + wide, Y - high), point(X + wide, Y + high),
                                        point(X - wide, Y + high), point(X - wide, Y - high)};
    static constexpr std::array<Mark, 1> marks{Mark{.symbol = Symbol::polyline, .points = box}};
};

/// A loudspeaker with the middle of its coil's left side at X, Y; it opens to the right.
template <int X, int Y>
struct Loudspeaker {
    static constexpr GridPoint coil[] = {point(X, Y - 5), point(X + 5, Y - 5), point(X + 5, Y + 5), point(X, Y + 5),
                                         point(X, Y - 5)};
    static constexpr GridPoint horn[] = {point(X + 5, Y - 5), point(X + 13, Y - 12), point(X + 13, Y + 12),
                                         point(X + 5, Y + 5)};
    static constexpr std::array<Mark, 2> marks{Mark{.symbol = Symbol::polyline, .points = coil},
                                               Mark{.symbol = Symbol::polyline, .points = horn}};
};

/// Ground bars at X, Y.
template <int X, int Y>
struct Ground {
    static constexpr std::array<Mark, 3> marks{
        Mark{.symbol = Symbol::wire, .from = point(X - 6, Y), .to = point(X + 6, Y)},
        Mark{.symbol = Symbol::wire, .from = point(X - 4, Y + 3), .to = point(X + 4, Y + 3)},
        Mark{.symbol = Symbol::wire, .from = point(X - 1, Y + 6), .to = point(X + 1, Y + 6)},
    };
};

} // namespace velmor::sheets::small_symbols
