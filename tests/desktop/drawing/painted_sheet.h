// SPDX-License-Identifier: MIT
// Windows made to be painted: a common-emitter stage with its fields and every look, and a page of all symbols.
#pragma once

#include "host/engine.h"
#include "quiet_screen.h"

namespace velmor::test {

enum StageControl : host::Handle {
    Paper,
    Circuit,
    GroupSupply,
    GroupStage,
    FieldSupply,
    FieldCollector,
    FieldEmitter,
    FieldBase1,
    FieldBase2,
    FieldLoad,
    FieldGain,
    Voice,
    Hint,
    Balloon,
    Note,
    Result,
    Warning,
    Title,
    ButtonReport,
    ButtonOff,
    ToolPage,
    ToolCalculator,
    OptionOne,
    OptionTwo,
    CheckOne,
    PlainLabel,
    OverlayPanel,
};

/// A program that holds both windows, shown, with the stage in front.
struct PaintedProgram {
    PaintedProgram();
    host::Window& stage() { return *engine.instance("Stage", 0); }
    host::Window& symbols() { return *engine.instance("Symbols", 0); }

    QuietScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
};

} // namespace velmor::test
