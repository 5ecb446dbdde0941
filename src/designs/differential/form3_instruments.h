// SPDX-License-Identifier: MIT
// What the bench answers, as data: the pages of the probe for each pair of input signals, and the readings of the meter
// for each point, current and function.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "designs/differential/form3_formulas.h"
#include "host/bitext.h"
#include "host/drawing.h"

namespace velmor::form3 {

/// What stands at an input.
enum class Signal : std::uint8_t { none, ground, A, B };

struct InputSignals {
    Signal input1 = Signal::none;
    Signal input2 = Signal::none;
    friend bool operator==(const InputSignals&, const InputSignals&) = default;
};

/// Which wave images a probe leaves behind. `Image23` is in the phase of B, `Image25` in that of A.
enum class Waves : std::uint8_t { asTheyAre, Image23, Image25, both, neither };

/// A click on an output with these signals at the inputs.
struct ProbeRow {
    host::Handle point = host::noControl;
    InputSignals inputs{};
    std::string_view reading{}; ///< last line of the page
    Waves waves = Waves::asTheyAre;
    host::BiText panel{.es = " ", .en = " "}; ///< for `SSPanel3`
    bool englishOnly = false;                 ///< the page is the English one in both languages
};

/// Null for a pair of signals in which nothing happens.
const ProbeRow* probeRow(host::Handle point, const InputSignals& inputs);
std::span<const ProbeRow> probeRows();

enum class Current : std::uint8_t { dc, ac };
enum class Function : std::uint8_t { none, V, A, W, Z };

/// What the meter says beside a number.
struct MeterUnit {
    host::BiText prompt{};                 ///< for `SSPanel1`
    host::Handle onFace = host::noControl; ///< shows the reading with its unit
};

struct MeterRow {
    host::Handle point = host::noControl;
    Current current = Current::dc;
    Function function = Function::none;
    Real (*value)(const Quantities&) = nullptr;
    MeterUnit unit{};
    std::string_view comment{}; ///< for `Label37`
    bool whole = false;         ///< cut to a whole number, not rounded to four decimals
    bool finishedOnly = false;  ///< there is nothing to measure in the didactic picture
};

/// Null where the meter shows nothing.
const MeterRow* meterRow(host::Handle point, Current current, Function function);
std::span<const MeterRow> meterRows();
bool isMeterPoint(host::Handle point);

} // namespace velmor::form3
