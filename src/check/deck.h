// SPDX-License-Identifier: MIT
// Writes a circuit as the text that a simulator reads: plain numbers with exponents, whatever the locale, never a suffix.
#pragma once

#include <string>

#include "check/circuit.h"

namespace velmor::check {

/// What is to be worked out, and for which input.
struct Orders {
    bool bias = true;       ///< operating point
    bool response = true;   ///< gain against frequency, 0.01 Hz to 1 MHz
    bool wave = true;       ///< output wave at 1 kHz
    bool drift = true;      ///< operating points at two temperatures, if the circuit has any
    double drive = 1;       ///< times the input that the course worked out
    double settling = 0.02; ///< s before the wave is looked at
    int cycles = 10;        ///< of the wave
    int stepsPerCycle = 200;
    const Part* turned = nullptr; ///< a resistor that is turned from one value to another, ohm
    double turnFrom = 0;
    double turnTo = 0;
    double turnStep = 0;
};

/// Of the input signal, Hz.
inline constexpr double waveFrequency = 1000;
/// What of the wave is looked at.
inline constexpr int waveCycles = 10;

/// A number as both simulator and student read it: at most ten digits, "e" and an exponent where due.
std::string plainNumber(double value);

/// The netlist with its orders, line by line.
std::string deckOf(const Circuit& circuit, const Orders& orders);

} // namespace velmor::check
