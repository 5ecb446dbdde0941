// SPDX-License-Identifier: MIT
// What holds `Form10` together: its window, its life, what every field does, and what a file brings.
#include "designs/power/form10.h"

#include <algorithm>

namespace velmor::form10 {

using host::Handle;

namespace window_detail {

// clang-format off
constexpr auto editorKey = std::to_array<host::ShortcutRow>({
    {"Ctrl+1", Image1, host::KeyAction::click, host::noControl, {"Quitar el editor de informes", "Put the report editor away"}},
});
// clang-format on
constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), ownKeys, editorKey);
constexpr auto order = sheets::joined(tabOrder, std::to_array<Handle>({Command1}));

// Where the labels of the signal lie from there on, as the file's reading finds them.
constexpr int topOfLabel2 = 560;
constexpr int topOfLabel9 = 2200;
constexpr int topOfLabel10 = 7500;
constexpr int widthOfSignal = 4500;
// While the voice has more to say than two lines, the next step stands beside it.
constexpr host::Place longVoice = sheets::at(0, 0, 790, 90);
constexpr host::Place stepBesideVoice = sheets::at(798, 4, 396, 86);
constexpr host::Place helpOnPaper = sheets::at(246, 104, 300, 460);

bool isLong(const std::string& text)
{
    return std::count(text.begin(), text.end(), '\n') > 1;
}

// The calculations cover the drawing whole.
host::Place shownPlace(const host::Window& window, Handle control)
{
    return control == SSPanel2 ? sheets::zones::paper : placeOnScreen(window, control);
}

} // namespace window_detail

using namespace window_detail;

constinit const sheets::SheetSpec sheetSpec{.filter = fileFilter,
                                            .written = lines,
                                            .read = lines,
                                            .chain = chain,
                                            .sayings = sayings,
                                            .voice = Label1,
                                            .notes = notes,
                                            .helpBoxes = {.spanish = Text22, .english = Text23, .place = helpPlace},
                                            .tools = tools,
                                            .guide = guideFile};

constinit const host::WindowSpec spec{.name = "Form10",
                                      .role = host::Role::sheet,
                                      .caption = "Amplificador Clase B",
                                      .place = sheets::sheetPlace,
                                      .controls = controls,
                                      .slots = slots,
                                      .tabOrder = order,
                                      .shortcuts = shortcuts,
                                      .create = create,
                                      .sheetTitle = sheets::titleOf("Form10"),
                                      .growth = growth,
                                      .values = values,
                                      .shownPlace = shownPlace};

host::Place placeOnScreen(const host::Window& window, Handle control)
{
    if (control == Text22 || control == Text23)
        return helpOnPaper;
    if (control == Label1 || control == Label28) {
        const bool beside = isLong(window.text(Label1));
        return !beside ? window.placeOf(control) : control == Label1 ? longVoice : stepBesideVoice;
    }
    const bool laid = control == Label2 || control == Label9 || control == Label10;
    return laid ? window.row(control).place : window.placeOf(control);
}

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form10>(host);
}

Form10::Form10(host::SheetHost& host) : Form10(host, form10::spec, sheetSpec, simpleStage) {}

Form10::Form10(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet,
               const Stage& stage)
    : DesignSheet(host, window, sheet), stage_(stage)
{
    holds(q_, quantityTable, host::Undo::takesBack);
}

void Form10::load()
{
    writeHeadings(helpText);
    write(Command1, goOnButton);
}

void Form10::writeHeadings(const host::BiText& help)
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    write(Label31, circuitHeading);
    write(Label32, transistorHeading);
    setText(Text22, help.es);
    setText(Text23, help.en);
}

void Form10::unload()
{
    host().Unload("Form6");
    host().Unload("Form7");
}

void Form10::clickBackground()
{
    host().Hide("frmEdito3");
}

void Form10::hoverBackground()
{
    hideNotes();
}

void Form10::opened()
{
    show(Shape1, Label14, Label15);
    hide(Text11, Text12, Label13);
    layLabels();
    growWhole();
    write(Label1, archived);
    enable(Text1);
    q_.passed = false;
}

void Form10::layLabels()
{
    const auto lay = [this](Handle label, int top, int width) {
        host::Place place = placeOf(label);
        place.top = top;
        place.width = width;
        setPlaceOf(label, place);
    };
    lay(Label2, topOfLabel2, widthOfSignal);
    lay(Label9, topOfLabel9, placeOf(Label9).width);
    lay(Label10, topOfLabel10, widthOfSignal);
}

// --- every field

void Form10::focusField(host::EventArgs& args)
{
    for (const Default& row : defaults)
        if (row.field == args.control && isEmpty(row.field))
            write(row.field, row.value);
    DesignSheet::focusField(args);
}

// What a key begins with. One that the filter lets through changes the design. True for Enter in a filled field, which is bare by
// then.
bool Form10::entered(host::EventArgs& args)
{
    const sheets::Press press = pressed(args);
    if (press == sheets::Press::nothing && args.key != 0)
        q_.passed = false;
    return press == sheets::Press::enter;
}

void Form10::keyField(host::EventArgs& args)
{
    if (entered(args))
        goTo(chainRow(args.control).next);
}

// The voice stays with the field in hand.
void Form10::hoverField(host::EventArgs& args)
{
    hideNotes();
    tell(args.control, When::hover);
    show(Label7);
}

void Form10::pressResistor(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        host().Show("Form14");
}

std::string Form10::pageText(std::span<const PageRow> page) const
{
    std::string text;
    for (const PageRow& row : page) {
        if (!text.empty())
            text += "\n";
        text += words(row.before);
        if (row.value != nullptr)
            text += shown(q_.*row.value / row.per) + words(row.after);
    }
    return text;
}

} // namespace velmor::form10
