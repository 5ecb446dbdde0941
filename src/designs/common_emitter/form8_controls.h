// SPDX-License-Identifier: MIT
// The controls of `Form8`: those of both sheets fed back by voltage, and its own. Knows no slot and no formula.
#pragma once

#include <array>

#include "designs/common_emitter/feedback_controls.h"

namespace velmor::form8 {

using namespace feedback; // NOLINT(google-build-using-namespace): the controls that this sheet's begin with

/// Behind those of the family: the preset in one piece.
enum OwnControl : host::Handle { Shape2 = feedback::controlCount, ownControlCount };

namespace controls_detail {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table
using host::Kind;

inline constexpr auto title = titleBlock({"Realimentado por tensión, simple", "Voltage feedback, simple"});

} // namespace controls_detail

// clang-format off
inline constexpr auto controls = [] {
    using namespace controls_detail; // NOLINT(google-build-using-namespace)
    return joined(
        withRowsOf(feedback::controls, std::to_array<host::ControlRow>({
            paper(Image1, "Image1", title),
            hidden(feedback::controls[Image7]),
        })),
        std::to_array<host::ControlRow>({
            disabled(hidden(drawn(Shape2, "Shape2", Kind::shape, drawing::feedbackPreset))),
        }));
}();
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == ownControlCount);

inline constexpr auto growth = sheets::joined(feedback::growth, std::to_array<host::GrowthRow>({
    {Shape2, Text19, host::noControl, Picture4},
}));
inline constexpr auto values = sheets::joined(feedback::values, std::to_array<host::ValueRow>({
    {Text19, Shape2}, {Label19, Shape2},
}));
// clang-format on

} // namespace velmor::form8
