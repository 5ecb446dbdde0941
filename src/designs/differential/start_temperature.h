// SPDX-License-Identifier: MIT
// The temperature that the sheets of differential stages start from. Knows no sheet.
#pragma once

namespace velmor::differential {

/// What these sheets make of `TemperaturaCompartida`, degrees Celsius.
inline constexpr double startTemperature = 90.0;

} // namespace velmor::differential
