// SPDX-License-Identifier: MIT
// The texts of `Form3`: prompts, status lines, boxes, pages of the bench, names of its parts. Slips are the program's own.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "designs/differential/form3_instruments.h"
#include "sheets/steps.h"

namespace velmor::form3::texts {

using host::BiText;
using sheets::BoxText;

inline constexpr double startTemperature = 90.0; ///< what this sheet makes of `TemperaturaCompartida`
inline constexpr double silicon = 0.6;           ///< junction voltages, V
inline constexpr double germanium = 0.2;

/// A field of the chain that takes a number in a range.
struct FieldRow {
    host::Handle field = host::noControl;
    host::Handle next = host::noControl; ///< where Enter goes
    double whenEmpty = 0.0;              ///< what the focus writes into an empty field
    double low = 0.0;
    double high = 0.0;
    double otherwise = 0.0; ///< correction of a value out of range
    double left = 0.0;      ///< what leaving writes into an empty field
};
/// Null for the fields that are told step by step.
const FieldRow* fieldRow(host::Handle field);

/// What is said about a field: in `StatusBar1` when it gets the focus and when the pointer is over it.
struct StatusRow {
    host::Handle field = host::noControl;
    BiText line{};
};
std::span<const StatusRow> statusRows();

/// The short page of `SSPanel4` about the field in hand, while the bench is off.
std::span<const StatusRow> lessonRows();

/// Help on pointing: the text of `Label34` and the control that holds its drawing.
struct PointingRow {
    host::Handle over = host::noControl;
    host::Handle drawing = host::noControl;
    std::string_view text{}; ///< the same in both languages
    bool values = false;     ///< the table of commercial values, `Text21`, comes too
};
std::span<const PointingRow> pointingRows();

/// Names of what the bench offers, for `Label36`.
struct PartRow {
    host::Handle part = host::noControl;
    BiText name{};
};
std::span<const PartRow> partRows();

extern const BiText transistorHeading;
extern const BiText circuitHeading;
extern const BiText enterPrompt;
extern const BiText minimumSource;
extern const BiText minimumSourceEnd;
extern const BiText pointAtResults;
extern const BiText resPrompt;
extern const BiText rlPrompt;
extern const BiText nextField;
extern const BiText archivePrompt;

extern const BiText resValue;
extern const BiText resValueEnd;
extern const BiText commercialRL;
extern const BiText leastSource;
extern const BiText leastVoltage;

extern const BoxText belowEResMin;
extern const BoxText stability;
extern const BoxText insufficientQIc;
extern const BoxText lowERL;
extern const BoxText highEQ;
extern const BoxText lowEQ;

extern const BiText benchPage;
extern const BiText meterPage;
extern const BiText teachingPage;
extern const BiText testInOut;
extern const BiText testInEmitter;
extern const BiText smcPage;
extern const BiText cmrrPage;
extern const BiText cmrrMeasured;
extern const BiText toGround;
extern const BiText betweenCollectors;
extern const BiText zeroExplained;

extern const std::string_view englishHelp;
extern const std::string_view spanishHelp;
extern const std::string_view commercialValues;

} // namespace velmor::form3::texts
