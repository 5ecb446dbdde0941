// SPDX-License-Identifier: MIT
// The controls of `Form18`: those of both sheets fed back by voltage, and its own. Knows no slot and no formula.
#pragma once

#include <array>
#include <span>

#include "designs/common_emitter/feedback_controls.h"

namespace velmor::form18 {

using namespace feedback; // NOLINT(google-build-using-namespace): the controls that this sheet's begin with

// clang-format off
/// Behind those of the family.
enum OwnControl : host::Handle {
    // the currents of the divider, the obtained one; the preset in one piece, Rb2
    Line1 = feedback::controlCount, Line2, Line3, Shape2, Shape6, Line19,
    Text18,
    // the current obtained, what it tells, and the name of what the pointer is on
    Label26, Label27, Label29, Label28,
    ownControlCount
};

namespace own_drawing {

using feedback::drawing::Mark;
using feedback::drawing::Side;
using feedback::drawing::Symbol;

inline constexpr auto title = sheets::titleBlock({"Realimentado por tensión, estabilizado", "Voltage feedback, stabilised"});
inline constexpr auto lowerResistor = feedback::drawing::lowerDivider<OwnControl>;
inline constexpr auto feedbackCurrent = sheets::part({
    Mark{.symbol = Symbol::arrow, .from = {446, 272}, .to = {446, 308}, .name = "I_Rb1", .side = Side::right},
});
inline constexpr auto baseCurrent = sheets::part({
    Mark{.symbol = Symbol::arrow, .from = {480, 329}, .to = {516, 329}, .name = "I_b", .side = Side::above},
});
inline constexpr auto lowerCurrent = sheets::part({
    Mark{.symbol = Symbol::arrow, .from = {446, 370}, .to = {446, 406}, .name = "I_Rb2", .side = Side::right},
});
inline constexpr Mark obtainedCurrentName[] = {
    {.symbol = Symbol::text, .from = {0, -4}, .note = {"QIc obtenida", "QIc obtained"}, .side = Side::right, .ink = host::Ink::accent,
     .size = 90},
};
inline constexpr auto obtainedCurrent = sheets::part({
    Mark{.symbol = Symbol::arrow, .from = {634, 398}, .to = {634, 430}},
});

/// A result with its name beside it.
constexpr host::ControlRow named(host::ControlRow row, std::span<const Mark> name)
{
    row.drawing = name;
    return row;
}

} // namespace own_drawing

inline constexpr auto controls = [] {
    using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table
    using host::Kind;
    using host::Look;
    return joined(
        withRowsOf(feedback::controls, std::to_array<host::ControlRow>({
            paper(Image1, "Image1", own_drawing::title),
            disabled(feedback::controls[Text5]),
            field(Text10, "Text10", feedback::controls[Text10].place, "16.6", notation::S),
            label(Label10, "Label10", feedback::controls[Label10].place, Look::invisible, "RL (Kohm)"),
            hidden(option(Image8, "Image8", Kind::image, zones::option(3), {"Quitar el bootstrapping", "Take bootstrapping away"},
                          feedback::drawing::noBootstrapMarks)),
            hidden(option(Image2, "image2", Kind::image, zones::option(2), {"Hacer bootstrapping", "Make bootstrapping"},
                          feedback::drawing::bootstrapMarks)),
        })),
        std::to_array<host::ControlRow>({
            hidden(drawn(Line1,  "Line1",  Kind::line, own_drawing::feedbackCurrent)),
            hidden(drawn(Line2,  "Line2",  Kind::line, own_drawing::baseCurrent)),
            hidden(drawn(Line3,  "Line3",  Kind::line, own_drawing::lowerCurrent)),
            disabled(hidden(drawn(Shape2, "Shape2", Kind::shape, own_drawing::obtainedCurrent))),
            disabled(hidden(drawn(Shape6, "Shape6", Kind::shape, feedback::drawing::feedbackPreset))),
            hidden(drawn(Line19, "Line19", Kind::line, own_drawing::lowerResistor)),
            hidden(disabled(field(Text18, "Text18", at(446, 459, 64, 22), "", notation::above(notation::Rb2)))),
            own_drawing::named(hidden(result(Label26, "Label26", at(644, 410, 110, 18))), own_drawing::obtainedCurrentName),
            hidden(label(Label27, "Label27", at(644, 430, 210, 52), Look::note)),
            hidden(label(Label29, "Label29", at(644, 484, 210, 34), Look::warning)),
            hidden(label(Label28, "Label28", at(1022, 540, 172, 22), Look::balloon)),
        }));
}();
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == ownControlCount);

inline constexpr auto growth = sheets::joined(feedback::growth, std::to_array<host::GrowthRow>({
    {Shape6, Text19, host::noControl, Picture4},
    {Line19, Text18},
    {Shape2, Text15}, {Line1, Text15}, {Line2, Text15}, {Line3, Text15},
}));
inline constexpr auto values = sheets::joined(feedback::values, std::to_array<host::ValueRow>({
    {Text19, Shape6}, {Label19, Shape6}, {Text18, Line19}, {Label26, Shape2}, {Label27, Shape2}, {Label29, Shape2},
}));
// clang-format on

} // namespace velmor::form18
