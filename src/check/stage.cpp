// SPDX-License-Identifier: MIT
// One small function a resistance or gain, in the symbols of the course.
#include "check/stage.h"

#include "check/circuit.h"

namespace velmor::check {

namespace stage_detail {

constexpr double courseVoltage = 0.025; ///< V, the course's VT

/// r'e = VT / QIc, ohm.
double junctionOf(const Stage& stage, Truths truths)
{
    const double volts = truths.has(Truth::thermal) ? thermalVoltage : courseVoltage;
    return volts / (truths.has(Truth::current) ? stage.trueQIc : stage.designedQIc);
}

/// What the emitter carries for each part of the collector: (Beta + 1) / Beta, or 1.
double emitterShare(const Stage& stage, Truths truths)
{
    return truths.has(Truth::alpha) ? (stage.Beta + 1) / stage.Beta : 1.0;
}

/// r'e where it is not left out. A stage without Res has nothing else, so there it always counts.
double countedJunction(const Stage& stage, Truths truths)
{
    return stage.Res == 0 || truths.has(Truth::junction) ? junctionOf(stage, truths) : 0.0;
}

/// The resistors that bias the base, as far as they are counted; ohm, 0 for none.
double dividerOf(const Stage& stage, Truths truths)
{
    return beside(truths.has(Truth::upperResistor) ? stage.Rb1 : 0, truths.has(Truth::lowerResistor) ? stage.Rb2 : 0);
}

/// What the emitter sees but for r'e, ohm.
double emitterLoad(const Stage& stage, Truths truths)
{
    const double load = stage.kind == StageKind::splitter ? stage.otherRLw : stage.RLw;
    const bool isLoaded = stage.kind == StageKind::follower || stage.kind == StageKind::splitter;
    return isLoaded && truths.has(Truth::load) ? beside(stage.Res, load) : stage.Res;
}

/// Beta x (r'e + Res), with Beta + 1 for the second where alpha counts; ohm.
double transistorInput(const Stage& stage, Truths truths)
{
    return stage.Beta * (countedJunction(stage, truths) + emitterShare(stage, truths) * emitterLoad(stage, truths));
}

/// RLac / (r'e + Res): of the stages driven at the base. The course's phase splitter has a gain of 1 whatever loads it.
double collectorGain(const Stage& stage, Truths truths)
{
    const bool isLoaded = stage.kind != StageKind::splitter || truths.has(Truth::load);
    return beside(stage.RL, isLoaded ? stage.RLw : 0) /
           (countedJunction(stage, truths) + emitterShare(stage, truths) * emitterLoad(stage, truths));
}

/// RLac / (r'e + RLac): what the follower leaves of its input.
double followerGain(const Stage& stage, Truths truths)
{
    const double load = emitterLoad(stage, truths);
    const double junction = truths.has(Truth::junction) ? junctionOf(stage, truths) : 0.0;
    return load / (load + junction / emitterShare(stage, truths));
}

/// The part of Rb1 that lies between collector and base, or base and ground where its middle is grounded.
double feedbackPart(const Stage& stage)
{
    return stage.middleGrounded ? stage.Rb1 / 2 : stage.Rb1;
}

/// (1 / r'e - 1 / Rb1) x RLac, with Rb1 beside RLac; the half of Rb1 that is grounded in its middle only loads.
double feedbackGain(const Stage& stage, Truths truths)
{
    const double load = beside(stage.RL, stage.RLw);
    const double slope = 1 / junctionOf(stage, truths);
    if (!truths.has(Truth::feedbackLoad))
        return slope * load;
    const double part = feedbackPart(stage);
    return (stage.middleGrounded ? slope : slope - 1 / part) * beside(load, part);
}

/// Beta x r'e beside Rb1 / (1 + Vg), or beside half of Rb1; and Rb2.
double feedbackInput(const Stage& stage, Truths truths)
{
    const double gain = feedbackGain(stage, truths) + (truths.has(Truth::oneMore) ? 1 : 0);
    const double seen = stage.middleGrounded ? feedbackPart(stage) : stage.Rb1 / gain;
    const double own = stage.Beta * junctionOf(stage, truths);
    const double withUpper = truths.has(Truth::upperResistor) ? beside(own, seen) : own;
    return beside(withUpper, truths.has(Truth::lowerResistor) ? stage.Rb2 : 0);
}

/// How far the emitters of a pair follow the driven base: a half, less what the tail takes.
double pairFollowing(const Stage& stage, Truths truths)
{
    if (!truths.has(Truth::tail))
        return 0.5;
    const double junction = junctionOf(stage, truths) / emitterShare(stage, truths);
    return 1 / (2 + junction / stage.Res);
}

double pairGain(const Stage& stage, Truths truths)
{
    const double stageGain = beside(stage.RL, stage.RLw) / junctionOf(stage, truths);
    return truths.has(Truth::pairFactor) ? stageGain * (1 - pairFollowing(stage, truths)) : stageGain / 2.5;
}

double pairInput(const Stage& stage, Truths truths)
{
    const double own = stage.Beta * junctionOf(stage, truths) / (1 - pairFollowing(stage, truths));
    return beside(own, truths.has(Truth::lowerResistor) ? stage.Rb2 : 0);
}

/// The two gains of the compound amplifier: RLac / r'e of the first pair, RL / (2 x r'e) of the second, and what the follower
/// leaves of it. The course counts 1.25 and 2.5, and no follower.
double compoundGain(const Stage& stage, Truths truths)
{
    Stage second = stage;
    second.designedQIc = stage.secondDesigned;
    second.trueQIc = stage.secondTrue;
    Stage last = stage;
    last.kind = StageKind::follower;
    last.Res = stage.followerRes;
    last.trueQIc = stage.followerTrue;
    const bool hasFollower = truths.has(Truth::secondLoad);
    const Truths all{Truth::junction, Truth::thermal, Truth::current, Truth::alpha, Truth::load};
    const double factor = truths.has(Truth::pairFactor) ? 1.0 : 1.25;
    const double firstLoad = beside(stage.RL, stage.Beta * junctionOf(second, truths));
    const double secondLoad = beside(stage.secondRL, hasFollower ? transistorInput(last, all) : 0);
    return firstLoad / (factor * junctionOf(stage, truths)) * secondLoad / (2 * factor * junctionOf(second, truths)) *
           (hasFollower ? followerGain(last, all) : 1.0);
}

/// Beta x 2 x r'e, and Rb1 beside it.
double compoundInput(const Stage& stage, Truths truths)
{
    return beside(2 * stage.Beta * junctionOf(stage, truths), truths.has(Truth::upperResistor) ? stage.Rb1 : 0);
}

double baseInput(const Stage& stage, Truths truths)
{
    const double junction = junctionOf(stage, truths) / emitterShare(stage, truths);
    return beside(junction, truths.has(Truth::emitterResistor) ? stage.Res : 0);
}

} // namespace stage_detail

using namespace stage_detail;

double beside(double one, double other)
{
    if (one == 0 || other == 0)
        return one + other;
    return one * other / (one + other);
}

double gainOf(const Stage& stage, Truths truths)
{
    switch (stage.kind) {
    case StageKind::commonEmitter:
    case StageKind::splitter:
        return collectorGain(stage, truths);
    case StageKind::voltageFeedback:
        return feedbackGain(stage, truths);
    case StageKind::commonBase:
        return beside(stage.RL, stage.RLw) / junctionOf(stage, truths);
    case StageKind::follower:
        return followerGain(stage, truths);
    case StageKind::pair:
        return pairGain(stage, truths);
    case StageKind::compound:
        return compoundGain(stage, truths);
    case StageKind::other:
        break;
    }
    return 0;
}

double driverCurrentOf(const Stage& stage, Truths truths)
{
    constexpr double milliamperes = 1000;
    const double Vce = truths.has(Truth::middle) ? stage.trueVce : stage.designedVce;
    const double base = truths.has(Truth::nextBase) ? stage.outputQIc / stage.outputBeta : 0;
    return milliamperes * ((stage.supply - Vce) / stage.RL - base);
}

double inputOf(const Stage& stage, Truths truths)
{
    switch (stage.kind) {
    case StageKind::commonEmitter:
    case StageKind::follower:
    case StageKind::splitter:
        return beside(truths.has(Truth::ownInput) ? transistorInput(stage, truths) : 0, dividerOf(stage, truths));
    case StageKind::voltageFeedback:
        return feedbackInput(stage, truths);
    case StageKind::commonBase:
        return baseInput(stage, truths);
    case StageKind::pair:
        return pairInput(stage, truths);
    case StageKind::compound:
        return compoundInput(stage, truths);
    case StageKind::other:
        break;
    }
    return 0;
}

} // namespace velmor::check
