// SPDX-License-Identifier: MIT
// The controls of `Form3`: what each is before anything happens, where it lies, what it draws, and its keys.
#include "designs/differential/form3_controls.h"

#include "designs/differential/form3.h"
#include "designs/differential/form3_drawings.h"
#include "designs/differential/form3_texts.h"
#include "sheets/notation.h"
#include "sheets/rows.h"
#include "sheets/schematic.h"
#include "sheets/sheet_titles.h"

namespace velmor::form3 {

using host::ControlRow;
using host::KeyAction;
using host::Kind;
using host::Look;
using host::noControl;
using host::Place;
using sheets::at;

namespace table {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table

constexpr int circuitTop = 94;
constexpr int transistorTop = 404;

/// A place in the circuit, counted on its own grid.
constexpr Place in(int left, int top, int width, int height)
{
    return at(drawings::circuit.x + left, drawings::circuit.y + top, width, height);
}
/// A point of the circuit that takes clicks and drops.
constexpr Place spot(int x, int y)
{
    return in(x - 14, y - 14, 28, 28);
}

// The bench stands on the paper below the circuit: its switch, and the face of the instrument that is on.
constexpr Place powerSwitch = at(246, 546, 84, 58);
constexpr Place face = at(338, 544, 610, 62);
constexpr Place onFace(int left, int top, int width, int height)
{
    return at(338 + left, 544 + top, width, height);
}
constexpr Place note = at(8, 546, 220, 66);
constexpr Place page = at(966, 286, 228, 326);
constexpr Place help = at(898, 94, 296, 518);

constexpr ControlRow picture(host::Handle id, std::string_view name, host::BiText meaning,
                             std::span<const host::Mark> drawing)
{
    return {.id = id,
            .name = name,
            .kind = Kind::image,
            .place = drawings::paper,
            .meaning = meaning,
            .look = Look::paper,
            .drawing = drawing};
}
constexpr ControlRow part(host::Handle id, std::string_view name, std::span<const host::Mark> drawing)
{
    return hidden({.id = id, .name = name, .kind = Kind::shape, .place = drawings::paper, .drawing = drawing});
}
constexpr ControlRow shape(host::Handle id, std::string_view name, const Place& place,
                           std::span<const host::Mark> drawing)
{
    return hidden({.id = id, .name = name, .kind = Kind::shape, .place = place, .drawing = drawing});
}
/// A face that other controls borrow; by itself it is never seen.
constexpr ControlRow lent(host::Handle id, std::string_view name, const Place& place,
                          std::span<const host::Mark> drawing)
{
    ControlRow row = shape(id, name, place, drawing);
    row.look = Look::invisible;
    return row;
}
/// What the meter reads, with its unit.
constexpr ControlRow reading(host::Handle id, std::string_view name, std::span<const host::Mark> drawing)
{
    ControlRow row = shape(id, name, face, drawing);
    row.look = Look::result;
    return row;
}
/// A point of the circuit that the bench touches; without a drawing until the design is finished.
constexpr ControlRow touched(host::Handle id, std::string_view name, const Place& place, host::BiText meaning,
                             std::span<const host::Mark> drawing = {})
{
    return {.id = id, .name = name, .kind = Kind::image, .place = place, .meaning = meaning, .drawing = drawing};
}
constexpr ControlRow wave(host::Handle id, std::string_view name, const Place& place,
                          std::span<const host::Mark> drawing)
{
    return {.id = id, .name = name, .kind = Kind::image, .place = place, .drawing = drawing};
}
/// A button of an instrument: what is in force cannot be pressed again, and looks chosen.
constexpr ControlRow function(host::Handle id, std::string_view name, const Place& place, std::string_view text,
                              host::BiText meaning)
{
    return hidden({.id = id,
                   .name = name,
                   .kind = Kind::button,
                   .place = place,
                   .text = text,
                   .meaning = meaning,
                   .chosen = host::Chosen::whenDisabled,
                   .fontSize = 10});
}
constexpr ControlRow choice(host::Handle id, std::string_view name, const Place& place, std::string_view text,
                            host::BiText meaning, bool checked)
{
    return hidden({.id = id,
                   .name = name,
                   .kind = Kind::option,
                   .place = place,
                   .text = text,
                   .meaning = meaning,
                   .checked = checked});
}
/// A field beside its part, where the drawing has the symbol.
constexpr Quantity byItsPart(Quantity quantity, host::BiText meaning)
{
    quantity.symbol = {};
    quantity.meaning = meaning;
    return quantity;
}
constexpr ControlRow pageOf(host::Handle id, std::string_view name, const Place& place, host::BiText meaning)
{
    return hidden({.id = id, .name = name, .kind = Kind::page, .place = place, .meaning = meaning, .overlay = true});
}

// clang-format off
constexpr auto controls = std::to_array<ControlRow>({
    label(Label11, "Label11", zones::group(circuitTop, 10), Look::group),
    label(Label6, "Label6", zones::group(transistorTop, 4), Look::group),
    picture(Image1, "Image1", {"Circuito didáctico", "Didactic circuit"}, drawings::didactic),
    hidden(picture(image2, "image2", {"Circuito terminado", "Finished circuit"}, drawings::finished)),
    part(Shape1, "Shape1", drawings::negativeSupply),
    part(Shape2, "Shape2", drawings::tail),
    part(Shape3, "Shape3", drawings::collectorResistors),
    part(Shape4, "Shape4", drawings::positiveSupply),
    lent(Shape5, "Shape5", face, drawings::meterFace),
    lent(Shape6, "Shape6", spot(340, 180), drawings::point),
    hidden({.id = Image3, .name = "Image3", .kind = Kind::image, .place = face, .drawing = drawings::generatorFace}),

    result(Label22, "Label22", in(288, 276, 104, 24)),
    result(Label28, "Label28", in(206, 332, 122, 52)),
    result(Label29, "Label29", in(252, 78, 88, 62)),
    result(Label30, "Label30", in(344, 78, 88, 62)),
    result(Label31, "Label31", in(486, 28, 184, 24)),
    result(Label32, "Label32", in(288, 196, 112, 19)),
    result(Label33, "Label33", in(114, 298, 58, 44)),
    result(Label35, "Label35", in(288, 216, 112, 19)),
    result(Label38, "Label38", in(62, 216, 130, 20)),
    result(Label39, "Label39", in(112, 146, 120, 20)),
    result(Label40, "Label40", in(506, 216, 130, 20)),
    label(Label42, "Label42", in(548, 270, 44, 18), Look::drawn, "Ent 2"),
    label(Label43, "Label43", in(508, 145, 44, 18), Look::drawn, "Out 2"),
    hidden(label(Label44, "Label44", in(60, 124, 140, 20), Look::note)),

    field(Text1, "Text1", zones::parameter(circuitTop, 0), "1", notation::dQIc),
    disabled(field(Text2,  "Text2",  zones::parameter(transistorTop, 1), "30",   notation::EcMax)),
    disabled(field(Text3,  "Text3",  zones::parameter(transistorTop, 2), "100",  notation::IcMax)),
    disabled(field(Text4,  "Text4",  zones::parameter(transistorTop, 3), "0.6",  notation::Vj)),
    disabled(field(Text5,  "Text5",  zones::parameter(transistorTop, 0), "100",  notation::Beta)),
    disabled(field(Text6,  "Text6",  zones::parameter(circuitTop, 1),    "90",   notation::T)),
    disabled(field(Text7,  "Text7",  zones::parameter(circuitTop, 2),    "2.75", notation::dVbe)),
    disabled(field(Text8,  "Text8",  in(402, 429, 66, 22), "Ebias", byItsPart(notation::Ebias,
                    {"-Ebias, fuente negativa", "-Ebias, negative supply"}))),
    disabled(field(Text9,  "Text9",  zones::parameter(circuitTop, 3),    "0.5",  notation::QIc)),
    disabled(field(Text10, "Text10", zones::parameter(circuitTop, 4),    "16",   notation::RLw)),
    disabled(field(Text11, "Text11", zones::parameter(circuitTop, 5),    "1",    notation::S)),
    disabled(field(Text12, "Text12", zones::parameter(circuitTop, 6),    "64",   notation::Vg)),
    disabled(field(Text13, "Text13", zones::parameter(circuitTop, 7),    "20",   notation::fo)),
    disabled(field(Text14, "Text14", zones::parameter(circuitTop, 8),    "10",   notation::Eopp)),
    disabled(field(Text15, "Text15", zones::parameter(circuitTop, 9),    "",     notation::Ein)),
    hidden(disabled(field(Text16, "Text16", in(388, 349, 66, 22), "", byItsPart(notation::in(notation::Res, "kΩ"),
                    {"Res, resistor de emisores", "Res, resistor of the emitters"})))),
    hidden(disabled(field(Text17, "Text17", in(112, 99, 66, 22),  "", byItsPart(notation::RL,
                    {"RL, resistor de Colector", "RL, collector resistor"})))),
    hidden(disabled(field(Text18, "Text18", in(386, 29, 66, 22),  "", byItsPart(notation::Es,
                    {"+Es, fuente positiva", "+Es, positive supply"})))),

    hidden(touched(Image4, "Image4", spot(340, 180), {"Out 3, entre Colectores", "Out 3, between Collectors"}, drawings::point)),
    touched(Image5,  "Image5",  spot(340, 440), {"punto en -Ebias", "point at -Ebias"}),
    touched(Image6,  "Image6",  spot(340, 40),  {"punto en Es", "point at Es"}),
    touched(Image7,  "Image7",  spot(240, 70),  {"punto en la rama de Colector", "point in the branch of a Collector"}),
    touched(Image8,  "Image8",  spot(340, 310), {"punto en el emisor", "point at the emitter"}, drawings::point),
    touched(Image9,  "Image9",  spot(180, 250), {"punto en la base", "point at the base"}),
    touched(Image10, "Image10", spot(500, 274), {"punto en el resistor de base", "point at the resistor of the base"}),
    touched(Image11, "Image11", spot(570, 250), {"entrada 2 ó carga", "input 2 or load"}, drawings::point),
    touched(Image12, "Image12", spot(110, 250), {"entrada 1", "input 1"}, drawings::point),
    touched(Image22, "Image22", spot(150, 180), {"Out 1, Colector y masa", "Out 1, Collector and Ground"}, drawings::point),
    touched(Image24, "Image24", spot(340, 180), {"Out 3, entre Colectores", "Out 3, between Collectors"}, drawings::point),
    touched(Image26, "Image26", spot(530, 180), {"Out 2, Colector y masa", "Out 2, Collector and Ground"}, drawings::point),

    hidden(wave(Image16, "Image16", in(46, 230, 40, 56),  drawings::markA)),
    hidden(wave(Image17, "Image17", in(573, 230, 40, 56), drawings::markGround)),
    hidden(wave(Image18, "Image18", in(594, 230, 40, 56), drawings::markA)),
    hidden(wave(Image19, "Image19", in(67, 230, 40, 56),  drawings::groundLeft)),
    hidden(wave(Image20, "Image20", in(46, 230, 40, 56),  drawings::markB)),
    hidden(wave(Image21, "Image21", in(594, 230, 40, 56), drawings::markB)),
    wave(Image23, "Image23", in(84, 160, 50, 40),  drawings::waveB),
    wave(Image25, "Image25", in(546, 160, 50, 40), drawings::waveA),
    hidden(touched(Image14, "Image14", onFace(112, 5, 74, 52), {"senoide A", "sinusoid A"}, drawings::screenA)),
    hidden(touched(Image15, "Image15", onFace(196, 5, 74, 52), {"senoide B", "sinusoid B"}, drawings::screenB)),

    hidden({.id = SSPanel2, .name = "SSPanel2", .kind = Kind::panel, .place = onFace(12, 22, 220, 34), .look = Look::drawn}),
    reading(Shape12, "Shape12", drawings::readingV),
    reading(Shape13, "Shape13", drawings::readingMa),
    reading(Shape14, "Shape14", drawings::readingW),
    reading(Shape15, "Shape15", drawings::readingMw),
    reading(Shape16, "Shape16", drawings::readingOhms),
    function(c1, "c1", onFace(310, 16, 42, 30), "V", {"tensión", "voltage"}),
    function(c4, "c4", onFace(358, 16, 42, 30), "A", {"corriente", "current"}),
    function(c5, "c5", onFace(406, 16, 42, 30), "W", {"potencia", "power"}),
    function(C3, "C3", onFace(454, 16, 42, 30), "Z", {"impedancia", "impedance"}),
    choice(Option1, "Option1", onFace(246, 8, 54, 20),  "AC", {"corriente alterna", "alternating current"}, true),
    choice(Option2, "Option2", onFace(246, 34, 54, 20), "DC", {"corriente continua", "direct current"}, false),
    hidden(result(Label37, "Label37", onFace(508, 14, 96, 34))),
    function(c6, "c6", onFace(292, 16, 64, 30), "SMC", {"señal de modo común", "signal of common mode"}),
    function(c7, "c7", onFace(362, 16, 64, 30), "CMRR", {"rechazo de modo común", "common mode rejection"}),
    option(Image30, "Image30", Kind::image, powerSwitch, {"generador: encender", "generator: switch on"}, drawings::generatorButton),
    hidden(option(Image33, "Image33", Kind::image, powerSwitch, {"multímetro: encender", "multimeter: switch on"}, drawings::meterButton)),

    {.id = SSPanel1, .name = "SSPanel1", .kind = Kind::panel, .place = zones::nextStep, .look = Look::hint},
    hidden({.id = SSPanel3, .name = "SSPanel3", .kind = Kind::panel, .place = onFace(440, 14, 162, 34), .look = Look::balloon}),
    {.id = SSPanel4, .name = "SSPanel4", .kind = Kind::panel, .place = page, .look = Look::lesson, .fontSize = 11},
    {.id = StatusBar1, .name = "StatusBar1", .kind = Kind::label, .place = zones::voice, .look = Look::prompt, .overlay = true},
    hidden(label(Label36, "Label36", note, Look::hint)),

    hidden(label(Label34, "Label34", note, Look::invisible)),
    shape(Shape7,  "Shape7",  note, drawings::formulaERes),
    shape(Shape8,  "Shape8",  note, drawings::formulaRes),
    shape(Shape9,  "Shape9",  note, drawings::formulaRL),
    shape(Shape10, "Shape10", note, drawings::formulaEs),
    shape(Shape11, "Shape11", note, drawings::formulaRe),

    calculatorTool(Image27, "Image27"),
    reportTool(Image28, "Image28"),
    guideTool(Image29, "Image29"),
    cloneTool(Image32, "Image32"),
    cloneToolAgain(Image31, "Image31"),
    helpTool(Image35, "Image35"),
    helpToolOpen(Image34, "Image34"),

    pageOf(Text19, "Text19", help, {"ayuda en inglés", "help"}),
    pageOf(Text20, "Text20", help, {"ayuda", "help in Spanish"}),
    pageOf(Text21, "Text21", {9600, 690, 1104, 4536}, {"valores comerciales de resistores", "commercial values of resistors"}),
});
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == controlCount);

constexpr PointPlaces points[] = {
    // point    didactic        finished
    {Image8,  spot(340, 310), spot(240, 296)},
    {Image9,  spot(180, 250), spot(196, 250)},
    {Image11, spot(570, 250), spot(40, 180)},
    {Image12, spot(110, 250), spot(90, 250)},
    {Image22, spot(150, 180), spot(220, 180)},
    {Image26, spot(530, 180), spot(640, 180)},
};
constexpr GeneratorPart generator[] = {
    {Image14, onFace(112, 5, 74, 52), at(976, 300, 74, 52)},
    {Image15, onFace(196, 5, 74, 52), at(1060, 300, 74, 52)},
    {c6,      onFace(292, 16, 64, 30), at(976, 362, 64, 30)},
    {c7,      onFace(362, 16, 64, 30), at(1060, 362, 64, 30)},
};

constexpr host::Handle tabOrder[] = {
    Text1, Text6, Text7, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text5, Text2, Text3, Text4, Text8, Text16,
    Text17, Text18, c1, c4, c5, C3, Option1, Option2, c6, c7, Text19, Text20, Text21,
};

// keys, control, deed, target, meaning
constexpr auto ownKeys = std::to_array<host::ShortcutRow>({
    {"Ctrl+B",    noControl, KeyAction::run,    noControl, {"enciende y apaga el banco", "switches the bench on and off"}},
    {"Ctrl+E",    noControl, KeyAction::run,    noControl, {"vuelve a los cuadros", "goes back to the fields"}},
    {"Ctrl+1",    Image14,   KeyAction::dragTo, Image12,   {"senoide A a la entrada 1", "sinusoid A to input 1"}},
    {"Ctrl+2",    Image14,   KeyAction::dragTo, Image11,   {"senoide A a la entrada 2", "sinusoid A to input 2"}},
    {"Ctrl+3",    Image15,   KeyAction::dragTo, Image12,   {"senoide B a la entrada 1", "sinusoid B to input 1"}},
    {"Ctrl+4",    Image15,   KeyAction::dragTo, Image11,   {"senoide B a la entrada 2", "sinusoid B to input 2"}},
    {"Ctrl+5",    Image22,   KeyAction::click,  noControl, {"mide en Out 1", "tests Out 1"}},
    {"Ctrl+6",    Image26,   KeyAction::click,  noControl, {"mide en Out 2", "tests Out 2"}},
    {"Ctrl+7",    Image24,   KeyAction::click,  noControl, {"mide en Out 3", "tests Out 3"}},
    {"Ctrl+8",    Image4,    KeyAction::click,  noControl, {"mide entre colectores", "tests between collectors"}},
    {"Ctrl+9",    Image8,    KeyAction::click,  noControl, {"mide en el emisor", "tests the emitter"}},
    {"Shift+F3",  Image5,    KeyAction::click,  noControl, {"mide en -Ebias", "tests -Ebias"}},
    {"Shift+F4",  Image6,    KeyAction::click,  noControl, {"mide en Es", "tests Es"}},
    {"Shift+F5",  Image7,    KeyAction::click,  noControl, {"mide en la rama de colector", "tests the branch of a collector"}},
    {"Shift+F7",  Image9,    KeyAction::click,  noControl, {"mide en la base", "tests the base"}},
    {"Shift+F8",  Image10,   KeyAction::click,  noControl, {"mide en el resistor de base", "tests the resistor of the base"}},
    {"Shift+F9",  Image11,   KeyAction::click,  noControl, {"mide en la carga", "tests the load"}},
    {"Shift+F11", Image12,   KeyAction::click,  noControl, {"mide en la entrada", "tests the input"}},
    {"Ctrl+F2",   Label22,   KeyAction::hover,  noControl, {"fórmula de r'e", "formula of r'e"}},
});
constexpr auto shortcuts = joined(ownKeys, toolKeys<tools>());
static_assert(shortcuts[powerKey].action == KeyAction::run && shortcuts[backKey].action == KeyAction::run);

// part, field that brings it, the control in whose presence it gives way
constexpr host::GrowthRow growth[] = {
    {.part = Shape1, .field = Text8,  .unless = image2},
    {.part = Shape2, .field = Text16, .unless = image2},
    {.part = Shape3, .field = Text17, .unless = image2},
    {.part = Shape4, .field = Text18, .unless = image2},
};
constexpr host::ValueRow values[] = {
    {Text8, Shape1}, {Text16, Shape2}, {Label28, Shape2}, {Text17, Shape3}, {Label29, Shape3}, {Label30, Shape3},
    {Text18, Shape4}, {Label31, Shape4},
};

constexpr FileLine lines[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8, true}, {Text9}, {Text10}, {Text11}, {Text12},
    {Text13}, {Text14}, {Text15}, {Text16, true}, {Text17, true}, {Text18, true},
    {Label22, true}, {Label28, true}, {Label29, true}, {Label30, true}, {Label31, true}, {Label32, true}, {Label33, true},
    {Label35, true}, {Label38, true}, {Label39, true}, {Label40, true},
};
static_assert(std::size(lines) == 29);

constexpr host::Handle notes[] = {Label34, Label36, Text21, Shape7, Shape8, Shape9, Shape10, Shape11};
// clang-format on

/// Where the screen shows what has a place of its own in the model: inside the sheet, in a readable size.
Place shown(const host::Window& window, host::Handle control)
{
    if (control == Text19 || control == Text20)
        return help;
    if (control == Text21)
        return at(966, 94, 228, 518);
    if (control == Label43 && window.placeOf(Label43).left == finishedLeftOfLabel43)
        return in(618, 143, 44, 18);
    return window.placeOf(control);
}

} // namespace table

const std::span<const PointPlaces> pointPlaces = table::points;
const std::span<const GeneratorPart> generatorParts = table::generator;
const std::array<host::Handle, 5> meterPoints{Image5, Image6, Image7, Image9, Image10};
const std::array<WavePlaces, 3> wavePlaces{{
    {table::in(84, 160, 50, 40), table::in(60, 138, 50, 40)},
    {table::in(546, 160, 50, 40), table::in(560, 138, 50, 40)},
    {table::in(315, 226, 50, 40), table::in(315, 226, 50, 40)},
}};
const host::Place pageInsteadOfFields = sheets::at(8, 94, 220, 446);
const host::Place pageBelowTools = table::page;

constinit const sheets::SheetSpec sheetSpec{
    .filter = {.es = "Circuito Diferencial Simple (*.CDS)|*.CDS", .en = "Long Tail Pair (*.LTP)|*.LTP"},
    .written = table::lines,
    .read = table::lines,
    .temperatureField = Text6,
    .chain = chain,
    .sayings = texts::sayings,
    .voice = StatusBar1,
    .notes = table::notes,
    .helpBoxes = {.spanish = Text20, .english = Text19, .place = {0, 50, 3735, 6400}},
    .tools = tools,
    .guide = {.es = "difsim.Lab", .en = "difsimin.Lab"},
};

constinit const host::WindowSpec spec{
    .name = "Form3",
    .role = host::Role::sheet,
    .caption = sheets::titleOf("Form3").es,
    .place = sheets::sheetPlace,
    .controls = table::controls,
    .slots = slots,
    .tabOrder = table::tabOrder,
    .shortcuts = table::shortcuts,
    .create = create,
    .sheetTitle = sheets::titleOf("Form3"),
    .growth = table::growth,
    .values = table::values,
    .shownPlace = table::shown,
};

} // namespace velmor::form3
