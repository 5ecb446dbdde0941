// SPDX-License-Identifier: MIT
// Flight and drawings of the butterfly.
#include "tools/butterfly.h"

#include "host/sheet_host.h"

namespace velmor::butterfly {

using host::GridPoint;
using host::Ink;
using host::Mark;
using host::Symbol;

namespace drawings {

// clang-format off
constexpr GridPoint upperLeft[]  = {{28, 24}, {20, 8}, {8, 2}, {2, 8}, {6, 20}, {28, 26}};
constexpr GridPoint upperRight[] = {{32, 24}, {40, 8}, {52, 2}, {58, 8}, {54, 20}, {32, 26}};
constexpr GridPoint lowerLeft[]  = {{28, 28}, {14, 26}, {8, 36}, {14, 46}, {24, 40}, {29, 30}};
constexpr GridPoint lowerRight[] = {{32, 28}, {46, 26}, {52, 36}, {46, 46}, {36, 40}, {31, 30}};
constexpr GridPoint foldedUp[]   = {{30, 26}, {34, 8}, {44, 2}, {46, 14}, {32, 28}};
constexpr GridPoint foldedLow[]  = {{30, 28}, {42, 28}, {44, 40}, {34, 44}, {30, 32}};
constexpr GridPoint leftFeeler[]  = {{29, 18}, {26, 10}, {22, 6}};
constexpr GridPoint rightFeeler[] = {{31, 18}, {34, 10}, {38, 6}};

constexpr Mark open[] = {
    {.symbol = Symbol::fill, .ink = Ink::accent, .points = upperLeft},
    {.symbol = Symbol::fill, .ink = Ink::accent, .points = upperRight},
    {.symbol = Symbol::fill, .ink = Ink::accent, .points = lowerLeft},
    {.symbol = Symbol::fill, .ink = Ink::accent, .points = lowerRight},
    {.symbol = Symbol::wire, .from = {30, 18}, .to = {30, 42}},
    {.symbol = Symbol::polyline, .points = leftFeeler},
    {.symbol = Symbol::polyline, .points = rightFeeler},
};
constexpr Mark closed[] = {
    {.symbol = Symbol::fill, .ink = Ink::accent, .points = foldedUp},
    {.symbol = Symbol::fill, .ink = Ink::accent, .points = foldedLow},
    {.symbol = Symbol::wire, .from = {30, 18}, .to = {30, 42}},
    {.symbol = Symbol::polyline, .points = leftFeeler},
    {.symbol = Symbol::polyline, .points = rightFeeler},
};
// clang-format on

} // namespace drawings

const std::span<const Mark> openWings = drawings::open;
const std::span<const Mark> closedWings = drawings::closed;

void fly(host::Window& window, const Images& images, bool& wingsOpen)
{
    wingsOpen = !wingsOpen;
    window.borrowDrawing(images.main, wingsOpen ? images.openWings : images.closeWings);
    host::Place place = window.placeOf(images.main);
    place.left += stepRight;
    place.top -= stepUp;
    if (place.left > window.spec().place.width || place.top + place.height < 0)
        place = window.row(images.main).place;
    window.setPlaceOf(images.main, place);
}

} // namespace velmor::butterfly
