// SPDX-License-Identifier: MIT
// The pictures of the design buttons, in a box of 69 by 72 units: each circuit with just what tells it apart. A table for
// the windows that have such buttons.
#pragma once

#include "sheets/small_symbols.h"

namespace velmor::palette::button_drawings {

using namespace sheets::small_symbols;

// clang-format off
inline constexpr auto longTailedPair = joined(
    Transistor<18, 38>::marks, Transistor<51, 38, Symbol::npnLeft>::marks,
    Resistor<22, 14>::marks, Resistor<47, 14>::marks, Resistor<34, 60>::marks,
    std::array{
        wire(34, 2, 34, 5), wire(22, 5, 47, 5), wire(22, 5, 22, 8), wire(47, 5, 47, 8), wire(22, 20, 22, 24), wire(47, 20, 47, 24),
        wire(22, 52, 47, 52), wire(34, 52, 34, 54), wire(34, 66, 34, 69), wire(28, 69, 40, 69),
    });

inline constexpr auto cascodePair = joined(
    Transistor<18, 21>::marks, Transistor<51, 21, Symbol::npnLeft>::marks,
    Transistor<18, 49>::marks, Transistor<51, 49, Symbol::npnLeft>::marks,
    std::array{
        wire(34, 1, 34, 4), wire(22, 4, 47, 4), wire(22, 4, 22, 7), wire(47, 4, 47, 7),
        wire(22, 63, 47, 63), wire(34, 63, 34, 69), wire(28, 69, 40, 69),
    });

inline constexpr GridPoint commonBaseBar[]       = {{28, 33}, {40, 33}, {40, 35}, {28, 35}};
inline constexpr GridPoint commonBaseEmitter[]   = {{31, 33}, {26, 27}, {5, 27}};
inline constexpr GridPoint commonBaseCollector[] = {{37, 33}, {42, 27}, {64, 27}};
inline constexpr GridPoint commonBaseArrow[]     = {{26, 27}, {31, 29}, {27, 32}};
inline constexpr auto commonBase = joined(
    std::array{
        Mark{.symbol = Symbol::circle, .from = {24, 20}, .to = {44, 40}},
        Mark{.symbol = Symbol::fill, .points = commonBaseBar},
        Mark{.symbol = Symbol::polyline, .points = commonBaseEmitter},
        Mark{.symbol = Symbol::polyline, .points = commonBaseCollector},
        Mark{.symbol = Symbol::fill, .points = commonBaseArrow},
        wire(34, 35, 34, 58), wire(53, 4, 53, 9), wire(47, 4, 59, 4), wire(53, 21, 53, 27),
        wire(14, 27, 14, 38), wire(14, 50, 14, 58),
    },
    Resistor<53, 15>::marks, Resistor<14, 44>::marks, Ground<34, 58>::marks, Ground<14, 58>::marks);

inline constexpr GridPoint currentSourceDiode[] = {{13, 44}, {23, 44}, {18, 52}, {13, 44}};
inline constexpr auto currentSource = joined(
    Transistor<38, 34>::marks, Resistor<42, 56>::marks, Resistor<18, 20>::marks,
    std::array{
        wire(42, 20, 42, 4), wire(42, 48, 42, 50), wire(42, 62, 42, 67), wire(18, 67, 42, 67),
        wire(18, 6, 18, 14), wire(18, 26, 18, 44), wire(18, 34, 24, 34), wire(13, 52, 23, 52), wire(18, 52, 18, 67),
        Mark{.symbol = Symbol::polyline, .points = currentSourceDiode},
        Mark{.symbol = Symbol::arrow, .from = {55, 6}, .to = {55, 30}, .ink = host::Ink::accent},
    });

inline constexpr auto paraphase = joined(
    Transistor<28, 36>::marks, Resistor<32, 14>::marks, Resistor<32, 58>::marks,
    std::array{
        wire(5, 36, 14, 36), wire(26, 4, 38, 4), wire(32, 4, 32, 8), wire(32, 20, 32, 22), wire(32, 50, 32, 52),
        wire(32, 64, 32, 68), wire(26, 68, 38, 68), wire(32, 22, 44, 22), wire(32, 50, 44, 50),
        Mark{.symbol = Symbol::sineInverted, .from = {47, 13}, .to = {65, 31}, .ink = host::Ink::accent},
        Mark{.symbol = Symbol::sine, .from = {47, 41}, .to = {65, 59}, .ink = host::Ink::accent},
    });

inline constexpr auto emitterFollower = joined(
    Transistor<28, 28>::marks, Resistor<32, 50>::marks, Ground<32, 61>::marks,
    std::array{
        wire(5, 28, 14, 28), wire(26, 5, 38, 5), wire(32, 5, 32, 14), wire(32, 42, 32, 44), wire(32, 56, 32, 61),
        wire(32, 42, 46, 42), wire(46, 35, 46, 49), wire(51, 35, 51, 49), wire(51, 42, 64, 42),
    });

inline constexpr auto classADarlington = joined(
    Transistor<16, 21>::marks, Transistor<36, 35>::marks, Loudspeaker<50, 49>::marks,
    std::array{
        wire(20, 4, 20, 7), wire(20, 35, 22, 35), wire(40, 4, 40, 21), wire(12, 4, 46, 4), wire(40, 49, 50, 49),
        Mark{.symbol = Symbol::text, .from = {53, 20}, .name = "A", .ink = host::Ink::accent, .size = 120},
    });

inline constexpr auto classASimple = joined(
    Transistor<24, 35>::marks, Loudspeaker<42, 49>::marks, Resistor<10, 18>::marks,
    std::array{
        wire(4, 4, 34, 4), wire(28, 4, 28, 21), wire(28, 49, 42, 49), wire(10, 4, 10, 12), wire(10, 24, 10, 35),
        Mark{.symbol = Symbol::text, .from = {48, 20}, .name = "A", .ink = host::Ink::accent, .size = 120},
    });

inline constexpr auto classBSimple = joined(
    Transistor<24, 20>::marks, Transistor<24, 51, Symbol::pnp>::marks, Loudspeaker<46, 35>::marks,
    std::array{
        wire(28, 3, 28, 6), wire(22, 3, 34, 3), wire(28, 34, 28, 37), wire(28, 65, 28, 68), wire(22, 68, 34, 68),
        wire(10, 20, 10, 51), wire(4, 35, 10, 35), wire(28, 35, 46, 35),
        Mark{.symbol = Symbol::text, .from = {52, 12}, .name = "B", .ink = host::Ink::accent, .size = 120},
    });

inline constexpr auto classBDarlington = joined(
    Transistor<14, 14, Symbol::npn, tiny>::marks, Transistor<35, 24, Symbol::npn, tiny>::marks,
    Transistor<14, 58, Symbol::pnp, tiny>::marks, Transistor<35, 48, Symbol::pnp, tiny>::marks,
    Loudspeaker<50, 36>::marks,
    std::array{
        wire(17, 24, 25, 24), wire(17, 48, 25, 48), wire(38, 4, 38, 14), wire(38, 34, 38, 38), wire(38, 58, 38, 68),
        wire(12, 4, 43, 4), wire(12, 68, 43, 68), wire(4, 14, 4, 58), wire(38, 36, 50, 36),
        Mark{.symbol = Symbol::text, .from = {52, 12}, .name = "B", .ink = host::Ink::accent, .size = 120},
    });

inline constexpr auto commonEmitter = joined(
    Transistor<36, 36>::marks, Resistor<40, 14>::marks, Resistor<40, 58>::marks, Resistor<14, 20>::marks, Resistor<14, 52>::marks,
    std::array{
        wire(8, 4, 46, 4), wire(40, 4, 40, 8), wire(40, 20, 40, 22), wire(40, 50, 40, 52), wire(40, 64, 40, 68),
        wire(14, 4, 14, 14), wire(14, 26, 14, 46), wire(14, 58, 14, 68), wire(4, 36, 22, 36), wire(8, 68, 46, 68),
        wire(40, 22, 64, 22),
    });

inline constexpr auto voltageFeedback = joined(
    Transistor<36, 44>::marks, Resistor<40, 14>::marks, Resistor<20, 26, false>::marks, Ground<40, 62>::marks,
    std::array{
        wire(34, 4, 46, 4), wire(40, 4, 40, 8), wire(40, 20, 40, 30), wire(40, 58, 40, 62), wire(26, 26, 64, 26),
        wire(8, 26, 14, 26), wire(8, 26, 8, 44), wire(8, 44, 22, 44),
        Mark{.symbol = Symbol::arrow, .from = {34, 18}, .to = {12, 18}, .ink = host::Ink::accent},
    });

inline constexpr std::array ornament{
    Mark{.symbol = Symbol::sine, .from = {10, 18}, .to = {58, 54}, .ink = host::Ink::accent},
    wire(6, 36, 62, 36),
};
// clang-format on

} // namespace velmor::palette::button_drawings
