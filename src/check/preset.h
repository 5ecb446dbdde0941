// SPDX-License-Identifier: MIT
// The preset of a stage that has one: which of the two runs has left it where, and what that is called.
#pragma once

#include <cstdint>
#include <string>

#include "check/circuit.h"
#include "check/measures.h"
#include "host/bitext.h"

namespace velmor::check {

/// A text that was put together, in both languages.
struct Words {
    std::string es{};
    std::string en{};

    const std::string& in(bool english) const { return english ? en : es; }
};

/// Which values are simulated. The two differ only on a sheet with a preset.
enum class Run : std::uint8_t {
    trimmed,    ///< the preset turned until the middle stands at half the supply
    yourValues, ///< the preset where the student has set it
};

/// The preset as one check has it.
struct Preset {
    std::string name{}; ///< empty on a sheet without one
    Run run = Run::trimmed;
    double typed = 0;     ///< ohm
    double simulated = 0; ///< ohm
    Measured middle{};    ///< V, where it rests
    double supply = 0;    ///< V

    bool isThere() const { return !name.empty(); }
};

/// A run in a word or two, as the first words of what `presetWords` says.
const host::BiText& runText(Run run);

/// Which run it is and where the preset stands, in one line; empty without a preset.
Words presetWords(const Preset& preset);

/// What the output can swing from its rest to the nearer end of the supply, V; nothing where the rest is not known.
Measured roomOfMiddle(const Preset& preset);

/// How far the middle is from half the supply, as a share of that: positive when it is too low; 0 where it is not known.
double lackOfMiddle(const Preset& preset);

} // namespace velmor::check
