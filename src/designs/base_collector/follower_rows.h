// SPDX-License-Identifier: MIT
// Rows that the tables of the emitter follower and of the phase splitter have alike. Knows no control.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "host/window.h"
#include "sheets/notation.h"
#include "sheets/schematic.h"

namespace velmor::base_collector {

constexpr host::ControlRow marked(host::ControlRow row, std::span<const host::Mark> drawing)
{
    row.drawing = drawing;
    return row;
}

/// A page of the general help, over the parameters.
constexpr host::ControlRow helpPage(host::Handle id, std::string_view name, host::BiText meaning)
{
    return sheets::hidden({.id = id,
                           .name = name,
                           .kind = host::Kind::page,
                           .place = sheets::at(8, 94, 249, 433),
                           .meaning = meaning,
                           .overlay = true});
}

/// A quantity that this circuit has a field for and no use.
constexpr sheets::Quantity unused(sheets::Quantity quantity)
{
    return sheets::notation::in(
        sheets::notation::meaning(quantity, {"Sin uso en este circuito", "Without use in this circuit"}), "");
}

/// A quantity whose part bears the symbol already.
constexpr sheets::Quantity besideItsPart(sheets::Quantity quantity)
{
    quantity.side = host::SymbolSide::part;
    return quantity;
}

/// "Rb1" beside a field that bears the symbol already; with its value it says more.
inline bool isBareName(const host::Window& window, host::Handle label)
{
    return window.text(label).find('=') == std::string::npos;
}

/// What the milliammeter shows.
inline constexpr sheets::Quantity obtained = sheets::notation::in(
    sheets::notation::meaning(sheets::notation::QIc, {"Miliamperímetro: QIc obtenida", "Milliammeter: QIc obtained"}),
    "");
inline constexpr std::array obtainedName{host::Mark{.symbol = host::Symbol::text,
                                                    .from = {0, 9},
                                                    .note = {"QIc obtenida", "QIc obtained"},
                                                    .ink = host::Ink::accent,
                                                    .size = 90}};

} // namespace velmor::base_collector
