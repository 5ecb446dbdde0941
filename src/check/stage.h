// SPDX-License-Identifier: MIT
// The textbook's small-signal formulas of the stages, with each simplification of the course as a switch: with none replaced they
// give the course's figure, with all replaced what a simulator measures in the middle of the band. Ohm, ampere, volt. It knows
// no sheet and no simulator.
#pragma once

#include <cstdint>
#include <initializer_list>

namespace velmor::check {

/// Which formulas a circuit obeys.
enum class StageKind : std::uint8_t {
    commonEmitter,   ///< Res unbypassed, or 0
    voltageFeedback, ///< Rb1 from collector to base
    commonBase,
    follower,
    splitter, ///< the output at the collector; Res and RL each with a load of its own
    pair,     ///< the output at the collector of the transistor that is driven
    compound, ///< two pairs and a follower
    other,    ///< no small-signal formula: current source, power stages
};

/// A simplification of the course that a step of the ladder takes away.
enum class Truth : std::uint8_t {
    asMeant,         ///< units that the course mixes, or a slip of its, put right: of use as the first step alone
    junction,        ///< r'e stands in series with Res
    thermal,         ///< 25.865 mV for 25 mV
    current,         ///< the current that really flows for the one designed
    alpha,           ///< the emitter carries Beta + 1 parts, the collector Beta
    ownInput,        ///< the transistor's own input resistance counts
    upperResistor,   ///< Rb1 loads the input
    lowerResistor,   ///< Rb2 loads the input
    load,            ///< RLw stands beside the emitter's resistor
    feedbackLoad,    ///< Rb1 loads the collector, and takes a little of the gain
    oneMore,         ///< Rb1 counts 1 + Vg times smaller, not Vg times
    emitterResistor, ///< Res lies beside r'e
    pairFactor,      ///< 2 for 2.5
    tail,            ///< the emitters' common resistor is no perfect source
    secondLoad,      ///< what the second stage and its follower really load
    middle,          ///< where the output really rests, for the half of the supply
    nextBase,        ///< the base of the output takes its current in front of the driver's collector
};

/// Which simplifications have been taken away.
class Truths {
public:
    constexpr Truths() = default;
    constexpr Truths(std::initializer_list<Truth> truths)
    {
        for (const Truth truth : truths)
            add(truth);
    }
    constexpr void add(Truth truth) { bits_ |= 1U << static_cast<unsigned>(truth); }
    constexpr bool has(Truth truth) const { return (bits_ >> static_cast<unsigned>(truth) & 1U) != 0; }

private:
    friend constexpr Truths allTruths();
    unsigned bits_ = 0;
};
/// None is left out: the textbook's formula whole.
constexpr Truths allTruths()
{
    Truths all;
    all.bits_ = ~0U;
    return all;
}

/// One stage in numbers. A resistor that is not there is 0.
struct Stage {
    StageKind kind = StageKind::other;
    double Beta = 0;
    double designedQIc = 0; ///< A
    double trueQIc = 0;     ///< A
    double RL = 0;          ///< ohm, and so on
    double RLw = 0;
    double Res = 0;      ///< without bypass
    double otherRLw = 0; ///< load at the emitter of a phase splitter
    // the compound amplifier: its second pair, and the follower at its end
    double secondDesigned = 0; ///< A
    double secondTrue = 0;     ///< A
    double followerTrue = 0;   ///< A
    double secondRL = 0;
    double followerRes = 0;
    double Rb1 = 0;
    double Rb2 = 0;
    // the driver of a class A power stage
    double supply = 0;           ///< V
    double designedVce = 0;      ///< V
    double trueVce = 0;          ///< V
    double outputQIc = 0;        ///< A, of the output transistor
    double outputBeta = 0;       ///< of all transistors between the driver and the output
    bool middleGrounded = false; ///< Rb1 in two halves, their middle taken to ground for the signal

    friend bool operator==(const Stage&, const Stage&) = default;
};

/// Two resistors side by side, ohm; 0 stands for one that is not there.
double beside(double one, double other);

/// Vg from the input (behind the generator's resistance) to the output, without its sign.
double gainOf(const Stage& stage, Truths truths);

/// QIc of the driver = (Es - Vce) / RL less the base current of the output, mA.
double driverCurrentOf(const Stage& stage, Truths truths);

/// Zin, ohm.
double inputOf(const Stage& stage, Truths truths);

} // namespace velmor::check
