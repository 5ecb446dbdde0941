// SPDX-License-Identifier: MIT
// The controls of `Form12`: what each is before anything happens, where it lies, what it draws, and its keys.
#include "designs/differential/form12_controls.h"

#include "designs/differential/form12.h"
#include "designs/differential/form12_drawings.h"
#include "designs/differential/form12_texts.h"
#include "sheets/notation.h"
#include "sheets/rows.h"
#include "sheets/schematic.h"
#include "sheets/sheet_titles.h"

namespace velmor::form12 {

using host::ControlRow;
using host::Kind;
using host::Look;
using host::noControl;
using host::Place;
using sheets::at;

namespace table {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table

constexpr int fieldsTop = 94;
constexpr Place help = at(898, 94, 296, 518);
constexpr Place page = at(966, 286, 228, 326);

/// A stroke of the schematic: its marks are counted on the paper.
template <std::size_t Count>
constexpr ControlRow stroke(host::Handle id, std::string_view name, const std::array<host::Mark, Count>& marks)
{
    const Kind kind = name.starts_with("Line") ? Kind::line : Kind::shape;
    return hidden({.id = id, .name = name, .kind = kind, .place = drawings::paper, .drawing = marks});
}
/// A field whose text bears its unit, with room for it.
constexpr ControlRow given(host::Handle id, std::string_view name, int row, std::string_view text, Quantity quantity)
{
    quantity.unit = {};
    return field(id, name, at(98, fieldsTop + 24 + 28 * row, 120, 22), text, quantity);
}
constexpr ControlRow helpPage(host::Handle id, std::string_view name, host::BiText meaning)
{
    return hidden({.id = id, .name = name, .kind = Kind::page, .place = help, .meaning = meaning, .overlay = true});
}
constexpr ControlRow ground()
{
    ControlRow row = paper(Image1, "Image1", drawings::title);
    row.place = drawings::paper;
    return row;
}

// clang-format off
constexpr auto controls = std::to_array<ControlRow>({
    label(Label11, "Label11", zones::group(fieldsTop, 10), Look::group),
    ground(),
    stroke(Line4,   "Line4",   drawings::line4),   stroke(Line5,   "Line5",   drawings::line5),
    stroke(Line6,   "Line6",   drawings::line6),   stroke(Line7,   "Line7",   drawings::line7),
    stroke(Line8,   "Line8",   drawings::line8),   stroke(Line9,   "Line9",   drawings::line9),
    stroke(Line10,  "Line10",  drawings::line10),  stroke(Line11,  "Line11",  drawings::line11),
    stroke(Line12,  "Line12",  drawings::line12),  stroke(Line13,  "Line13",  drawings::line13),
    stroke(Shape2,  "Shape2",  drawings::shape2),  stroke(Shape3,  "Shape3",  drawings::shape3),
    stroke(Shape4,  "Shape4",  drawings::shape4),  stroke(Shape5,  "Shape5",  drawings::shape5),
    stroke(Shape6,  "Shape6",  drawings::shape6),  stroke(Shape7,  "Shape7",  drawings::shape7),
    stroke(Line14,  "Line14",  drawings::line14),  stroke(Line15,  "Line15",  drawings::line15),
    stroke(Line17,  "Line17",  drawings::line17),  stroke(Line18,  "Line18",  drawings::line18),
    stroke(Line19,  "Line19",  drawings::line19),  stroke(Line20,  "Line20",  drawings::line20),
    stroke(Line34,  "Line34",  drawings::line34),
    stroke(Shape8,  "Shape8",  drawings::shape8),  stroke(Shape9,  "Shape9",  drawings::shape9),
    stroke(Shape10, "Shape10", drawings::shape10), stroke(Shape11, "Shape11", drawings::shape11),
    stroke(Shape12, "Shape12", drawings::shape12),
    stroke(Line28,  "Line28",  drawings::line28),  stroke(Line29,  "Line29",  drawings::line29),
    stroke(Line30,  "Line30",  drawings::line30),  stroke(Line31,  "Line31",  drawings::line31),
    stroke(Line32,  "Line32",  drawings::line32),  stroke(Line33,  "Line33",  drawings::line33),
    stroke(Shape15, "Shape15", drawings::shape15), stroke(Shape16, "Shape16", drawings::shape16),
    stroke(Shape17, "Shape17", drawings::shape17), stroke(Shape18, "Shape18", drawings::shape18),
    stroke(Shape19, "Shape19", drawings::shape19),
    stroke(Line16,  "Line16",  drawings::line16),  stroke(Line35,  "Line35",  drawings::line35),
    stroke(Line36,  "Line36",  drawings::line36),  stroke(Line37,  "Line37",  drawings::line37),
    stroke(Line38,  "Line38",  drawings::line38),  stroke(Line39,  "Line39",  drawings::line39),
    stroke(Line40,  "Line40",  drawings::line40),  stroke(Line41,  "Line41",  drawings::line41),
    stroke(Shape20, "Shape20", drawings::shape20), stroke(Shape21, "Shape21", drawings::shape21),
    stroke(Shape22, "Shape22", drawings::shape22), stroke(Shape23, "Shape23", drawings::shape23),
    stroke(Shape24, "Shape24", drawings::shape24),

    hidden(result(Label1, "Label1", at(462, 316, 96, 20))),
    hidden(result(Label2, "Label2", at(676, 302, 100, 20))),
    hidden(result(Label3, "Label3", at(546, 512, 130, 20))),
    hidden(result(Label4, "Label4", at(342, 346, 80, 20))),
    hidden(result(Label5, "Label5", at(462, 346, 60, 20))),
    hidden(result(Label6, "Label6", at(664, 401, 110, 20))),
    hidden(label(Label7, "Label7", at(16, 406, 204, 20), Look::heading)),

    given(Text1, "Text1", 0, "  QIc", notation::QIc),
    hidden(disabled(given(Text2, "Text2", 1, "  Eb", notation::Eb))),
    hidden(disabled(given(Text3, "Text3", 2, "   Eq", notation::Eq))),
    disabled(given(Text9, "Text9", 3, "", notation::Ebias)),
    disabled(given(Text4, "Text4", 4, "Res", notation::Res)),
    hidden(disabled(given(Text5, "Text5", 5, " Ibias", notation::Ibias))),
    disabled(given(Text6, "Text6", 6, " Rb1", notation::meaning(notation::Rb1,
                   {"Resistor superior de base, de masa a la base", "Upper base resistor, from ground to the base"}))),
    disabled(given(Text7, "Text7", 7, " Rb2", notation::meaning(notation::Rb2,
                   {"Resistor inferior de base, a -Ebias", "Lower base resistor, to -Ebias"}))),
    hidden(given(Text8, "Text8", 8, "", notation::ERes)),
    hidden(disabled(field(Text10, "Text10", at(16, 430, 204, 24), " Click... para recomenzar",
                    {.meaning = {"Análisis, y un click para recomenzar", "Analysis, and a click to begin anew"}}))),

    {.id = Label8, .name = "Label8", .kind = Kind::label, .place = zones::voice, .look = Look::prompt, .overlay = true},
    label(Label9, "Label9", zones::nextStep, Look::hint),
    {.id = SSPanel1, .name = "SSPanel1", .kind = Kind::panel, .place = page, .look = Look::lesson},

    cloneTool(Image3, "Image3"),
    cloneToolAgain(Image4, "Image4"),
    reportTool(image2, "image2"),
    guideTool(Image6, "Image6"),
    helpTool(Image35, "Image35"),
    helpToolOpen(Image34, "Image34"),

    helpPage(Text22, "Text22", {"Ayuda en español", "Help in Spanish"}),
    helpPage(Text23, "Text23", {"Ayuda en inglés", "Help in English"}),
});
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == controlCount);

constexpr host::Handle tabOrder[] = {
    Text1, Text2, Text3, Text9, Text4, Text5, Text6, Text7, Text10, Text8, Text22, Text23,
};

// keys, control, deed, target, meaning
constexpr auto shortcuts = joined(toolKeys<tools>(), std::to_array<host::ShortcutRow>({
    {"Shift+F2", Image1, host::KeyAction::hover, noControl, {"vuelve al cuadro en la mano", "back to the field in hand"}},
}));

// part, field that brings it when it is left
constexpr host::GrowthRow growth[] = {
    {Line4, Text1}, {Line5, Text1}, {Line6, Text1}, {Line7, Text1}, {Line8, Text1}, {Line9, Text1}, {Line10, Text1}, {Line11, Text1},
    {Line12, Text1}, {Line13, Text1}, {Shape2, Text1}, {Shape3, Text1}, {Shape4, Text1}, {Shape5, Text1}, {Shape6, Text1},
    {Shape7, Text1},
    {Line14, Text2}, {Line15, Text2}, {Line17, Text2}, {Line18, Text2}, {Line19, Text2}, {Line20, Text2}, {Line34, Text2},
    {Shape8, Text2}, {Shape9, Text2}, {Shape10, Text2}, {Shape11, Text2}, {Shape12, Text2},
    {Line28, Text3}, {Line29, Text3}, {Line30, Text3}, {Line31, Text3}, {Line32, Text3}, {Line33, Text3}, {Line34, Text3},
    {Shape15, Text3}, {Shape16, Text3}, {Shape17, Text3}, {Shape18, Text3}, {Shape19, Text3},
    {Line16, Text10}, {Line35, Text10}, {Line36, Text10}, {Line37, Text10}, {Line38, Text10}, {Line39, Text10}, {Line40, Text10},
    {Line41, Text10}, {Shape20, Text10}, {Shape21, Text10}, {Shape22, Text10}, {Shape23, Text10}, {Shape24, Text10},
};
constexpr host::ValueRow values[] = {
    {Label1, Shape10}, {Label2, Shape15}, {Label3, Shape17}, {Label4, Shape10}, {Label5, Shape11}, {Label6, Shape16},
};

constexpr FileLine lines[] = {
    {Text1}, {Text2, true}, {Text3, true}, {Text4}, {Text5, true}, {Text6}, {Text7}, {Text8, true}, {Text9}, {Text10, true},
};
// clang-format on

/// The pages of the help open where the main window has room; the screen keeps them inside the sheet.
Place place(const host::Window& window, host::Handle control)
{
    return control == Text22 || control == Text23 ? help : window.placeOf(control);
}

} // namespace table

constinit const sheets::SheetSpec sheetSpec{
    .filter = {.es = "Fuente de Corriente constante (*.FCC)|*.FCC", .en = "D.C. Source (*.DCS)|*.DCS"},
    .written = table::lines,
    .read = table::lines,
    .chain = chain,
    .sayings = texts::sayings,
    .voice = Label8,
    .helpBoxes = {.spanish = Text22, .english = Text23, .place = {0, 5, 3735, 6400}},
    .tools = tools,
    .guide = {.es = "fucoco.Lab", .en = "fucoco.Lab"},
};

constinit const host::WindowSpec spec{
    .name = "Form12",
    .role = host::Role::sheet,
    .caption = sheets::titleOf("Form12").es,
    .place = sheets::sheetPlace,
    .controls = table::controls,
    .slots = slots,
    .tabOrder = table::tabOrder,
    .shortcuts = table::shortcuts,
    .create = create,
    .sheetTitle = sheets::titleOf("Form12"),
    .growth = table::growth,
    .values = table::values,
    .shownPlace = table::place,
};

} // namespace velmor::form12
