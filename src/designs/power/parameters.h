// SPDX-License-Identifier: MIT
// Where the fields of the power sheets stand among their parameters: currents and powers that are not rounded show fifteen digits.
#pragma once

#include "sheets/schematic.h"

namespace velmor::power {

/// The field in the given row of a group, its top edge at `top`, wide enough for fifteen digits.
constexpr host::Place parameter(int top, int row)
{
    host::Place place = sheets::zones::parameter(top, row);
    place.left -= 30 * sheets::twipsPerUnit;
    place.width = 130 * sheets::twipsPerUnit;
    return place;
}

} // namespace velmor::power
