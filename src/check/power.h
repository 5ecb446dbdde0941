// SPDX-License-Identifier: MIT
// Power stages: the preset turned until the middle stands where it should, the power at one drive, and the most that comes out
// clean. Each asks the simulator anew.
#pragma once

#include "check/check.h"

namespace velmor::check {

/// What a power stage gives at one drive.
struct PowerPoint {
    double drive = 0;      ///< times the input that the course worked out
    Measured power{};      ///< W into the load, of the signal alone
    Measured distortion{}; ///< %
    Measured supplied{};   ///< W out of the supply
    Measured gain{};       ///< of the fundamentals, from the driver's base to the output
};

/// The distortion at which power still counts as clean, %.
inline constexpr double cleanDistortion = 10;

PowerPoint powerPointOf(const Design& design, const std::vector<Plot>& plots, double drive, int cycles);

/// The same design with its preset where the middle stands at half the supply; unchanged where there is none to turn, or no
/// place for it.
Design trimmed(const Design& design, Simulator& simulator);

/// The highest drive at which the wave is clean, from the point at drive 1 on; of no power where none down to a thirtieth is,
/// and without one where the simulator fails.
PowerPoint cleanPoint(const Design& design, Simulator& simulator, const PowerPoint& atCourse);

/// Fills in what only further runs can tell: Pout and the heat it costs, Pclean, efficiency, and Vg at half the swing.
void measurePower(Check& check, const Design& design, Simulator& simulator, const std::vector<Plot>& plots);

} // namespace velmor::check
