// SPDX-License-Identifier: MIT
// Everything that `Form2` says: prompts by field and trigger, boxes, captions. Texts only; misprints are the course's.
#pragma once

#include <span>
#include <string_view>

#include "designs/common_emitter/form2_controls.h"
#include "host/bitext.h"
#include "sheets/steps.h"

namespace velmor::form2 {

enum class Trigger : std::uint8_t {
    focus,
    click,
    empty,  ///< Enter in the empty field
    enter,  ///< Enter, the chain goes on
    escape, ///< Esc, where its prompt differs from that of Enter
    hover,
};

/// What is written where when something happens to a field. An empty text leaves the place as it is.
struct Prompt {
    host::Handle field;
    Trigger trigger;
    host::Handle place;
    host::BiText text;
};
extern const std::span<const Prompt> prompts;

/// Name of a button in the balloon, and on the button itself.
struct ButtonName {
    host::Handle button;
    host::BiText balloon;
    host::BiText caption;
};
extern const std::span<const ButtonName> buttonNames;

// Boxes, in the order in which a student may meet them.
extern const sheets::BoxText emptyField; ///< Enter in an empty field
extern const sheets::BoxText emptyLeft;  ///< an empty field was left
extern const sheets::BoxText emptyGain;  ///< an empty `Text11` was left: a box without a text
extern const sheets::BoxText bypassAssigned;
extern const sheets::BoxText currentOverLimit;
extern const sheets::BoxText loadTooLarge;
extern const sheets::BoxText loadImpossible;
extern const sheets::BoxText raiseGain;
extern const sheets::BoxText lowerGain;
extern const sheets::BoxText loadVoltageTooLow;
extern const sheets::BoxText raiseSupply;
extern const sheets::BoxText lowerOutput;
extern const sheets::BoxText overTransistorVoltage;
extern const sheets::BoxText overTransistorCurrent;
extern const sheets::BoxText baseResistorTooLow;
extern const sheets::BoxText adjustPreset;

// Captions and prompts that belong to no single trigger.
extern const host::BiText sheetTitle;
extern const host::BiText desacoTitle;
extern const host::BiText parcDesacTitle;
extern const host::BiText noteWindowTitle;
extern const host::BiText fileFilter;
extern const host::BiText headingTransistor; ///< `Label6`
extern const host::BiText headingCircuit;    ///< `Label11`
extern const host::BiText captionLabel19;
extern const host::BiText captionLabel20;
extern const host::BiText captionSta4;
extern const host::BiText beginHere;     ///< `status1` on activation
extern const host::BiText startPrompt;   ///< `SSPanel1` on the focus of `Text1`, at the start
extern const host::BiText varyRb1Prompt; ///< the same, once Rb1 has been in hand
extern const host::BiText helpTitle;     ///< `SSPanel1` made small again
extern const host::BiText bypassHint;
extern const host::BiText tooLowAtEscape;
extern const host::BiText tooLow;
extern const host::BiText noUpperResistorAtEnter;
extern const host::BiText noUpperResistor;
extern const host::BiText presetAdvice;
extern const host::BiText adjustPresetAdvice;
extern const host::BiText bootstrapHint;
extern const host::BiText noBootstrapHint;
extern const host::BiText archivedBase;
extern const host::BiText archivedEmitter;

} // namespace velmor::form2
