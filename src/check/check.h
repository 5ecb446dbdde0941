// SPDX-License-Identifier: MIT
// The check of a finished design: what was asked, what the course's formula says, what the simulator measures, and why they
// part. A `Design` holds all it needs of its sheet, so that a check can run beside the program; nothing here waits for a window.
//
// For a window:
//   const Design design = designOf(sheet, table);          // in the program's thread, when `isAwake`
//   const Check check = checkDesign(design, simulator);    // anywhere; up to five seconds where the simulator hangs
//   const Swing swing = swingOf(simulatedBy(check, design), simulator, drive); // the slider: 0.1 to 4 times Ein
//   Bet, textTable and csvTable (bet.h, table_text.h) do the rest.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "check/circuit.h"
#include "check/ladder.h"
#include "check/measures.h"
#include "check/preset.h"
#include "check/quantity.h"
#include "check/sheet_table.h"
#include "check/simulator.h"

namespace velmor::check {

/// A row before the simulator has spoken.
struct Expected {
    Quantity quantity = Quantity::QIc;
    Measured asked{};      ///< what stood in the field when the student left it
    Measured course{};     ///< in the unit of the quantity
    host::BiText reason{}; ///< why the simulator parts from it on this sheet, where that is its own

    friend bool operator==(const Expected&, const Expected&) = default;
};

/// A finished design, taken off its sheet. Values only, but for the table, which lives as long as the program.
struct Design {
    const SheetTable* table = nullptr;
    Circuit circuit{};
    Stage stage{};
    double fo = 0;       ///< Hz
    double mostPeak = 0; ///< A, of a class B output: Ibias x Beta; 0 where it is no question
    std::vector<Expected> rows{};

    friend bool operator==(const Design&, const Design&) = default;
};

/// True while the design of the sheet has come to its end; only then has it values to check.
bool isAwake(const host::Window& sheet, const SheetTable& table);
/// What the tool says while it sleeps.
const host::BiText& whyAsleep();

Design designOf(const host::Window& sheet, const SheetTable& table);

enum class Judgement : std::uint8_t {
    agrees,      ///< within a tenth or 1 dB
    met,         ///< better than what was asked at least or at most
    differs,     ///< and the reason is known
    notReached,  ///< less than was asked
    unexplained, ///< the ladder ends beside the simulator: no verdict
    shown,       ///< nothing to compare it with
    missing,     ///< the simulator gave no value
};

struct Row {
    Quantity quantity = Quantity::QIc;
    Measured asked{};
    Measured course{};
    Measured simulated{};
    Ladder ladder{}; ///< without rungs where the textbook has none for it
    Judgement judgement = Judgement::missing;
    Words verdict{};
};

/// The wave at one drive, with what bounds it.
struct Swing {
    double drive = 1; ///< times the input that the course worked out
    Wave input{};
    Wave output{};
    Harmonics harmonics{};
    Measured peakToPeak{}; ///< V; nothing when the simulator failed
    Measured distortion{}; ///< %
};

/// How far the output can go from its rest before the transistor is cut off or saturated, V; the lesser bends first.
struct Ceilings {
    bool known = false;      ///< of a stage with one transistor at its output, or a pair
    bool cutOffAbove = true; ///< where the output ends when the transistor is cut off; of a follower it is below
    double cutOff = 0;       ///< QIc x RLac
    double saturation = 0;   ///< Vce less 0.2 V
    bool cutOffIsNearer() const { return cutOff <= saturation; }
};

enum class CheckEnd : std::uint8_t {
    done,
    impossible,  ///< a value of zero or below: not simulated
    noSimulator, ///< none is installed
    failed,      ///< it ended with a failure, or gave no plots
    incomplete,  ///< some plots are missing
    tooLong,
    tooMuch,
    stopped, ///< nobody waits for it any more
};

struct Check {
    CheckEnd end = CheckEnd::failed;
    Words excuse{};          ///< in one line, why columns are empty; empty when all is there
    std::vector<Row> rows{}; ///< asked, course and ladder of the course stand there whatever the end is
    Response response{};     ///< gain over frequency, 0.01 Hz to `midBand`
    Swing swing{};
    Ceilings ceilings{};
    Preset preset{};
    Circuit circuit{}; ///< as it was simulated, with the preset where the run has left it
    std::string netlist{};
    std::string details{}; ///< what the simulator said
};

Check checkDesign(const Design& design, Simulator& simulator, Run run = Run::trimmed);

/// The design with the circuit that the check has simulated.
Design simulatedBy(const Check& check, Design design);

/// Drive is kept between 0.1 and 10.
Swing swingOf(const Design& design, Simulator& simulator, double drive);

/// Null when the check has no such row.
const Row* rowOf(const Check& check, Quantity quantity);

} // namespace velmor::check
