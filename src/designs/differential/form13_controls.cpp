// SPDX-License-Identifier: MIT
// The controls of `Form13`: what each is before anything happens, where it lies, what it draws, and its keys.
#include "designs/differential/form13_controls.h"

#include "designs/differential/form13.h"
#include "designs/differential/form13_drawings.h"
#include "designs/differential/form13_texts.h"
#include "sheets/notation.h"
#include "sheets/rows.h"
#include "sheets/schematic.h"
#include "sheets/sheet_titles.h"

namespace velmor::form13 {

using host::ControlRow;
using host::KeyAction;
using host::Kind;
using host::Look;
using host::noControl;
using host::Place;
using sheets::at;

namespace table {

using namespace sheets; // NOLINT(google-build-using-namespace): the words of the table

constexpr int fieldsTop = 94;
constexpr Place help = at(898, 94, 296, 518);
constexpr Place wideHelp = at(806, 94, 388, 518);
constexpr Place besideStraightInput = at(246, 402, 120, 18);
constexpr int lowHeight = 32 * twipsPerUnit;
constexpr Place viewButton = at(966, 286, 228, 30);

constexpr ControlRow picture(host::Handle id, std::string_view name, host::BiText meaning,
                             std::span<const host::Mark> drawing)
{
    ControlRow row = paper(id, name, drawing);
    row.place = drawings::paper;
    row.meaning = meaning;
    return row;
}
template <std::size_t Count>
constexpr ControlRow grown(host::Handle id, std::string_view name, const Part<Count>& part)
{
    return hidden(drawn(id, name, Kind::shape, part));
}
/// A result has nothing to show at first.
constexpr ControlRow later(host::Handle id, std::string_view name, const Place& place)
{
    return hidden(result(id, name, place));
}
/// The current of a transistor: the part draws it, with its unit; the pointer finds it here.
constexpr ControlRow current(host::Handle id, std::string_view name, const Place& place)
{
    ControlRow row = later(id, name, place);
    row.look = Look::drawn;
    return row;
}
/// A field of the chain: each comes when the one before it is done.
constexpr ControlRow given(host::Handle id, std::string_view name, int row, std::string_view text,
                           const Quantity& quantity)
{
    return hidden(field(id, name, zones::parameter(fieldsTop, row), text, quantity));
}
constexpr ControlRow shown(ControlRow row)
{
    row.visible = true;
    return row;
}
constexpr ControlRow helpPage(host::Handle id, std::string_view name, host::BiText meaning)
{
    return hidden({.id = id, .name = name, .kind = Kind::page, .place = help, .meaning = meaning, .overlay = true});
}

// clang-format off
constexpr auto controls = std::to_array<ControlRow>({
    label(Label6, "Label6", zones::group(fieldsTop, 11), Look::group),
    picture(Image1, "Image1", {"Circuito completo", "Full circuit"}, drawings::circuit),
    hidden(picture(image2, "image2", {"Circuito con espejo", "Circuit with mirror"}, drawings::mirror)),
    grown(Shape1, "Shape1", drawings::secondPair),
    grown(Shape2, "Shape2", drawings::secondLoads),
    grown(Shape3, "Shape3", drawings::supply),
    grown(Shape4, "Shape4", drawings::firstPair),
    grown(Shape5, "Shape5", drawings::follower),
    grown(Shape6, "Shape6", drawings::load),
    grown(Shape7, "Shape7", drawings::source),
    grown(Shape8, "Shape8", drawings::mirrorSource),
    grown(Shape9, "Shape9", drawings::inputs),
    grown(Shape10, "Shape10", drawings::straightInputs),

    later(Label1,  "Label1",  at(572, 100, 120, 20)),
    later(Label2,  "Label2",  at(262, 152, 104, 18)),
    later(Label3,  "Label3",  at(262, 170, 104, 18)),
    current(Label4, "Label4", at(412, 435, 70, 34)),
    later(Label5,  "Label5",  at(486, 181, 78, 18)),
    later(Label7,  "Label7",  at(574, 341, 136, 18)),
    later(Label8,  "Label8",  at(564, 181, 78, 18)),
    later(Label9,  "Label9",  at(486, 199, 100, 18)),
    later(Label10, "Label10", at(734, 136, 84, 18)),
    later(Label11, "Label11", at(734, 181, 84, 18)),
    later(Label12, "Label12", at(728, 282, 80, 36)),
    later(Label13, "Label13", at(622, 398, 90, 18)),
    later(Label14, "Label14", at(572, 227, 74, 18)),
    later(Label15, "Label15", at(486, 227, 84, 18)),
    later(Label16, "Label16", at(412, 398, 84, 18)),
    later(Label17, "Label17", at(574, 322, 120, 18)),
    later(Label19, "Label19", at(246, 357, 140, 18)),
    later(Label20, "Label20", at(246, 444, 84, 18)),
    later(Label21, "Label21", at(830, 147, 116, 18)),
    later(Label22, "Label22", at(354, 490, 110, 18)),
    later(Label23, "Label23", at(830, 168, 116, 36)),
    later(Label24, "Label24", at(862, 386, 95, 18)),
    later(Label30, "Label30", at(730, 243, 86, 18)),
    current(Label31, "Label31", at(486, 281, 70, 20)),
    later(Label32, "Label32", at(322, 261, 72, 18)),
    current(Label33, "Label33", at(830, 266, 76, 20)),
    later(Label35, "Label35", at(246, 377, 140, 18)),
    shown(given(Text1, "Text1", 0, "",      notation::T)),
    given(Text2,  "Text2",  1,  "1000",  notation::Vg),
    given(Text3,  "Text3",  2,  "3",     notation::Eopp),
    given(Text4,  "Text4",  3,  "",      notation::Ein),
    given(Text5,  "Text5",  4,  "",      notation::Es),
    given(Text6,  "Text6",  5,  "",      notation::RL2),
    given(Text7,  "Text7",  6,  "Res",   notation::meaning(notation::in(notation::Res, "kΩ"),
                                             {"Resistor de emisores de Q3-4", "Resistor of the emitters of Q3-4"})),
    given(Text8,  "Text8",  7,  "Click", {.meaning = {"Calcula Q3-4 y sigue con Q1-2", "Works out Q3-4 and goes on with Q1-2"}}),
    given(Text9,  "Text9",  8,  "Text9", notation::RL1),
    given(Text10, "Text10", 9,  "",      notation::Res1),
    given(Text11, "Text11", 10, "Click", notation::RLw),

    hidden(label(Label29, "Label29", at(966, 324, 228, 129), Look::lesson)),
    label(Label26, "Label26", at(966, 461, 228, 105), Look::lesson),
    label(Label27, "Label27", at(8, 434, 220, 65), Look::lesson),
    {.id = Label25, .name = "Label25", .kind = Kind::label, .place = zones::voice, .look = Look::prompt, .overlay = true},
    label(Label28, "Label28", zones::nextStep, Look::hint),

    hidden(label(Label34, "Label34", at(8, 508, 220, 50), Look::lesson)),
    hidden({.id = Label18, .name = "Label18", .kind = Kind::label, .place = at(772, 558, 180, 30),
            .meaning = {"Diseñar la fuente en otra ventana", "Design the source in another window"}, .look = Look::toolButton}),
    {.id = SSCommand1, .name = "SSCommand1", .kind = Kind::button, .place = viewButton,
     .meaning = {"El circuito completo, ó su versión con espejo", "The full circuit, or its version with a mirror"}},

    cloneTool(Image3, "Image3"),
    cloneToolAgain(Image4, "Image4"),
    calculatorTool(Image5, "Image5"),
    guideTool(Image6, "Image6"),
    reportTool(Image7, "Image7"),
    helpTool(Image35, "Image35"),
    helpToolOpen(Image34, "Image34"),

    helpPage(Text22, "Text22", {"Ayuda en español", "Help in Spanish"}),
    helpPage(Text23, "Text23", {"Ayuda en inglés", "Help in English"}),
});
static_assert(host::rowsInOrder(controls));
static_assert(controls.size() == controlCount);

constexpr host::Handle tabOrder[] = {
    Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10, Text11, SSCommand1, Text22, Text23,
};

// keys, control, deed, target, meaning
constexpr auto shortcuts = joined(toolKeys<tools>(), std::to_array<host::ShortcutRow>({
    {"Ctrl+1",   SSCommand1, KeyAction::click, noControl, {"el circuito ó su espejo", "the circuit or its mirror"}},
    {"Ctrl+2",   Label18,    KeyAction::click, noControl, {"fuente de corriente constante", "constant current source"}},
    {"Ctrl+3",   Label29,    KeyAction::click, noControl, {"achica ó agranda las fórmulas", "makes the formulas small or large"}},
    {"Ctrl+4",   Label26,    KeyAction::click, noControl, {"achica ó agranda los datos", "makes the data small or large"}},
    {"Ctrl+5",   Label27,    KeyAction::click, noControl, {"achica ó agranda las consideraciones",
                                                            "makes the considerations small or large"}},
    {"Ctrl+6",   Label31,    KeyAction::hover, noControl, {"corriente de Q3-4", "current of Q3-4"}},
    {"Ctrl+7",   Label33,    KeyAction::hover, noControl, {"corriente de Q5", "current of Q5"}},
    {"Ctrl+8",   Label4,     KeyAction::hover, noControl, {"corriente de Q1-2", "current of Q1-2"}},
    {"Shift+F2", Image1,     KeyAction::hover, image2,    {"quita las notas", "takes the notes away"}},
}));

// part, field that brings it, the picture that has it
constexpr host::GrowthRow growth[] = {
    {.part = Shape1,  .field = Text2},
    {.part = Shape2,  .field = Text5},
    {.part = Shape3,  .field = Text6},
    {.part = Shape4,  .field = Text9},
    {.part = Shape5,  .field = Text10},
    {.part = Shape6,  .field = Text11},
    {.part = Shape7,  .field = Text10, .when = Image1},
    {.part = Shape8,  .field = Text10, .when = image2},
    {.part = Shape9,  .field = Text11, .when = Image1},
    {.part = Shape10, .field = Text11, .when = image2},
};
constexpr host::ValueRow values[] = {
    {Label17, Shape1}, {Label14, Shape1}, {Label15, Shape1}, {Label31, Shape1}, {Label7, Shape1},
    {Label5, Shape2}, {Label8, Shape2}, {Label9, Shape2},
    {Label1, Shape3},
    {Label2, Shape4}, {Label3, Shape4}, {Label10, Shape4}, {Label11, Shape4}, {Label13, Shape4}, {Label16, Shape4},
    {Label4, Shape4}, {Label32, Shape4},
    {Label12, Shape5}, {Label21, Shape5}, {Label30, Shape5}, {Label33, Shape5},
    {Label24, Shape6}, {Label23, Shape6},
};

constexpr FileLine lines[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8}, {Text9}, {Text10}, {Text11},
    {Label1, true}, {Label2, true}, {Label3, true}, {Label4, true}, {Label5, true}, {Label6, true}, {Label7, true},
    {Label8, true}, {Label9, true}, {Label10, true}, {Label11, true}, {Label12, true}, {Label13, true}, {Label14, true},
    {Label15, true}, {Label16, true}, {Label17, true}, {Label18, true}, {Label19, true}, {Label20, true}, {Label21, true},
    {Label23, true}, {Label26, true}, {Label27, true}, {Label31, true}, {Label33, true},
};
static_assert(std::size(lines) == 37);

constexpr host::Handle notes[] = {Label34};
// clang-format on

/// The pictures and what lies on them are placed by the course's own drawing; the screen keeps each beside its part. A box that
/// was made low still shows what it is. The help page takes what room its text needs.
Place place(const host::Window& window, host::Handle control)
{
    for (const Box& box : boxes)
        if (box.box == control) {
            Place low = window.placeOf(control);
            low.height = low.height == lowBox ? lowHeight : low.height;
            return low;
        }
    if (control == Text22 || control == Text23)
        return wideHelp;
    if ((control == Label22 || control == Label35) && window.visible(image2))
        return {}; // the mirror takes the inputs straight: it has no Rb1 and no C1
    if (control == Label24 && window.text(Label24).ends_with("=>"))
        return {}; // it led to the field of RLw, which the screen has among the parameters
    if (control == Label19 && window.visible(image2))
        return besideStraightInput;
    if (control == Image1 || control == image2 || (control >= Label1 && control <= Label35))
        return window.row(control).place;
    return window.placeOf(control);
}

} // namespace table

constinit const sheets::SheetSpec sheetSpec{
    .filter = {.es = "Diferencial Compuesto (*.DCC)|*.DCC", .en = "Long Tail Pair Compound (*.LTC)|*.LTC"},
    .written = table::lines,
    .read = table::lines,
    .temperatureField = Text1,
    .chain = chain,
    .sayings = texts::sayings,
    .voice = Label25,
    .notes = table::notes,
    .helpBoxes = {.spanish = Text22, .english = Text23, .place = table::help},
    .tools = tools,
    .guide = {.es = "difcom.Lab", .en = "DifSimIng.Lab"},
};

constinit const host::WindowSpec spec{
    .name = "Form13",
    .role = host::Role::sheet,
    .caption = sheets::titleOf("Form13").es,
    .place = sheets::sheetPlace,
    .controls = table::controls,
    .slots = slots,
    .tabOrder = table::tabOrder,
    .shortcuts = table::shortcuts,
    .create = create,
    .sheetTitle = sheets::titleOf("Form13"),
    .growth = table::growth,
    .values = table::values,
    .shownPlace = table::place,
};

} // namespace velmor::form13
