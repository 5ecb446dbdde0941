// SPDX-License-Identifier: MIT
// The controls of `Form4` by handle, which of them are its tools, and where the signal source stands in both connections. Knows no
// slot and no formula.
#pragma once

#include <span>

#include "host/window.h"
#include "sheets/tools.h"

namespace velmor::form4 {

// clang-format off
enum Control : host::Handle {
    // ground of the drawing and headings of the two groups of fields
    Image1, Label11, Label6,
    // parts of the drawing, as the chain reaches them
    Line1, Line2, Line3, Line4, Line5, Line6, Line7, Line8, Line9, Line10, Line11, Line12, Line13, Line14, Line15, Line16, Line17,
    Shape1, Shape2,
    // the two connections, the source that goes from one to the other, and the capacitor that waits for it
    Image3, Image5, image2, Image4,
    // fields
    Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text16,
    Text17, Text18, Text20,
    // results beside the drawing
    Label2, Label10, Label19, Label20, Label21, Label22, Label23, Label24, Label25, Label26, Label27, Label28, Label30, Label31,
    Label32,
    // the leaf of analysis: closed and open
    Picture2, Picture1,
    // tools
    Image6, Image10, Image7, Image8, Image9, Image35, Image34,
    // the teacher's voice
    Label5, Label33,
    // help pages, Spanish and English
    Text22, Text23,
    controlCount
};
// clang-format on

inline constexpr sheets::Tools tools{
    .guide = Image6, .calculator = Image10, .report = Image7, .clone = {Image8, Image9}, .help = {Image35, Image34}};

/// Where the source stands: at the emitter of the common-base stage, at the base when the emitter is bypassed.
extern const host::Place sourceAtEmitter;
extern const host::Place sourceAtBase;

/// Places that `Label19` has in the course of the design, in the model.
inline constexpr host::Place loadPlace{7200, 1200, 1935, 495};
inline constexpr host::Place supplyPlace{7300, 600, 2310, 735};
inline constexpr host::Place smallLoadPlace{7680, 1200, 1935, 495};

extern const std::span<const host::ControlRow> controls;
/// What of the drawing comes with which field.
extern const std::span<const host::GrowthRow> growth;
/// What stands on the drawing and is pale while its part is.
extern const std::span<const host::ValueRow> values;
/// Where the screen shows what has a place of its own in the model.
host::Place shownPlace(const host::Window& window, host::Handle control);

} // namespace velmor::form4
