// SPDX-License-Identifier: MIT
// The controls of `Form3` by handle, from the ground of the window to what lies on top. Knows no slot and no formula.
#pragma once

#include <array>
#include <span>

#include "host/window.h"
#include "sheets/design_sheet.h"
#include "sheets/tools.h"

namespace velmor::form3 {

// clang-format off
enum Control : host::Handle {
    // grounds, headings and pictures
    Label11, Label6, Image1, image2,
    // parts of the didactic picture that come with the chain: -Ebias, Res, both RL, Es
    Shape1, Shape2, Shape3, Shape4,
    // the meter's face, which `Image3` borrows, and the ring that the meter's points borrow
    Shape5, Shape6, Image3,
    // results beside their parts
    Label22, Label28, Label29, Label30, Label31, Label32, Label33, Label35, Label38, Label39, Label40,
    Label42, Label43, Label44,
    // fields
    Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text16,
    Text17, Text18,
    // points of the picture that the bench touches
    Image4, Image5, Image6, Image7, Image8, Image9, Image10, Image11, Image12, Image22, Image24, Image26,
    // what stands at the inputs and outputs, and the two sinusoids
    Image16, Image17, Image18, Image19, Image20, Image21, Image23, Image25, Image14, Image15,
    // the instrument; the reading with its unit: V, mA, W, mW, ohm
    SSPanel2, Shape12, Shape13, Shape14, Shape15, Shape16, c1, c4, c5, C3, Option1, Option2, Label37, c6, c7, Image30, Image33,
    // the teacher's voice
    SSPanel1, SSPanel3, SSPanel4, StatusBar1, Label36,
    // help on pointing: its text, and the five formulas as they are drawn
    Label34, Shape7, Shape8, Shape9, Shape10, Shape11,
    // buttons
    Image27, Image28, Image29, Image32, Image31, Image35, Image34,
    // pages above everything
    Text19, Text20, Text21,
    controlCount
};
// clang-format on

inline constexpr sheets::Tools tools{.guide = Image29,
                                     .calculator = Image27,
                                     .report = Image28,
                                     .clone = {Image32, Image31},
                                     .help = {Image35, Image34}};

/// The rows of the shortcut table that run a deed of their own; they stand before the others.
enum Shortcut : std::int16_t { powerKey, backKey };

/// Where a point lies in the didactic picture and where in the finished design.
struct PointPlaces {
    host::Handle point = host::noControl;
    host::Place didactic{};
    host::Place finished{};
};
extern const std::span<const PointPlaces> pointPlaces;

/// Points that only the meter touches: they are marked once the design is finished.
extern const std::array<host::Handle, 5> meterPoints;

/// Where the waves of outputs 1, 2 and 3 are drawn.
struct WavePlaces {
    host::Place didactic{};
    host::Place finished{};
};
extern const std::array<WavePlaces, 3> wavePlaces;

/// The sinusoids and buttons of the generator: on its face, or beside the picture when the meter has taken its place.
struct GeneratorPart {
    host::Handle part = host::noControl;
    host::Place onFace{};
    host::Place besideMeter{};
};
extern const std::span<const GeneratorPart> generatorParts;

/// The page `SSPanel4`: in the place of the fields while they are hidden, else below the tools.
extern const host::Place pageInsteadOfFields;
extern const host::Place pageBelowTools;

/// Where `Label43` goes when the design is finished.
inline constexpr int finishedLeftOfLabel43 = 9040;

extern const host::WindowSpec spec;
extern const sheets::SheetSpec sheetSpec;

} // namespace velmor::form3
