// SPDX-License-Identifier: MIT
// What holds the template sheet together: its tables of files, keys and growth, its slots in the order of the chain, and its two
// formulas.
#include "sheets/template_sheet.h"

#include <memory>

namespace velmor::template_sheet {

using host::Handle;
using host::noControl;
using sheets::Press;

namespace template_tables {

// clang-format off
constexpr sheets::FileLine lines[] = {{Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {noControl}, {ERL}, {RL, true}};

constexpr Handle tabOrder[] = {Text1, Text2, Text3, Text4, Text5, Picture6, Picture1, SSCommand1, SSCommand3};

constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), std::to_array<host::ShortcutRow>({
    {"Shift+F2", Image1,   host::KeyAction::hover, noControl, {"Borrar las notas", "Take the notes away"}},
    {"Ctrl+1",   Picture6, host::KeyAction::click, Picture1,  {"Con indicador o sin él", "With the lamp or without"}},
}));

// part, field that brings it, the control by which the circuit has it
constexpr host::GrowthRow growth[] = {
    {Line1, Text2},
    {Line2, Text5},
    {Line3, Text5, Picture1},
};
constexpr host::ValueRow values[] = {{RL, Line2}, {ERL, Line2}};
constexpr Handle notes[] = {status1};
// clang-format on

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<TemplateSheet>(host);
}

} // namespace template_tables

const std::span<const host::GrowthRow> growth = template_tables::growth;
const std::span<const Handle> tabOrder = template_tables::tabOrder;
const std::span<const host::ShortcutRow> shortcuts = template_tables::shortcuts;

constinit const sheets::SheetSpec sheetSpec{.filter = fileFilter,
                                            .written = template_tables::lines,
                                            .read = template_tables::lines,
                                            .temperatureField = Text2,
                                            .chain = chain,
                                            .sayings = sayings,
                                            .voice = SSPanel1,
                                            .notes = template_tables::notes,
                                            .helpPages = helpPages,
                                            .helpBoxes = {Text22, Text23, controls[Text22].place},
                                            .tools = tools,
                                            .guide = guideFile};

constinit const host::WindowSpec spec{.name = "TemplateSheet",
                                      .role = host::Role::sheet,
                                      .place = sheets::sheetPlace,
                                      .controls = controls,
                                      .slots = slots,
                                      .tabOrder = template_tables::tabOrder,
                                      .shortcuts = template_tables::shortcuts,
                                      .create = template_tables::create,
                                      .sheetTitle = sheetTitle,
                                      .growth = template_tables::growth,
                                      .values = template_tables::values};

Real loadResistor(Real Es, Real Eq, Real Ed, Real QIc)
{
    return (Es - Eq - Ed) / QIc;
}

Real loadVoltage(Real QIc, Real RL)
{
    return QIc * RL;
}

TemplateSheet::TemplateSheet(host::SheetHost& host) : TemplateSheet(host, template_sheet::spec, sheetSpec) {}

TemplateSheet::TemplateSheet(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet)
    : DesignSheet(host, window, sheet)
{
    holds(q_, quantityTable, host::Undo::takesBack);
}

void TemplateSheet::load()
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    write(Label11, circuitHeading);
    write(Label6, transistorHeading);
    setText(Text22, helpText.es);
    setText(Text23, helpText.en);
}

void TemplateSheet::activate()
{
    frameActivate();
    hideNotes();
}

void TemplateSheet::unload()
{
    host().Unload("Calculator");
}

void TemplateSheet::opened()
{
    write(SSPanel1, archived);
    growWhole();
    q_.passed = false;
}

void TemplateSheet::hoverBackground()
{
    hideNotes();
}

// --- Es

void TemplateSheet::focusText1(host::EventArgs& args)
{
    focusField(args);
    disable(Text2, Text3, Text4, Text5);
    q_.passed = false;
}

// --- T

void TemplateSheet::focusText2(host::EventArgs& args)
{
    focusField(args);
    write(Text2, rules::RoundToInt16(host().values().TemperaturaCompartida));
}

void TemplateSheet::pressText2(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        host().Show("Form22");
}

// --- QIc

void TemplateSheet::lostText3()
{
    if (correct(Text3))
        tell(currentTooLow);
    setText(Text3, digits(at(Text3)) + " mA");
}

// --- Eq

void TemplateSheet::focusText4(host::EventArgs& args)
{
    focusField(args);
    setText(Text4, digits(at(Text1) / 2.0) + " V");
}

void TemplateSheet::keyText4(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    if (at(Text4) < at(Text1)) {
        goTo(Text5);
        return;
    }
    tell(supplyTooLow);
    goTo(Text1);
}

void TemplateSheet::lostText4()
{
    if (!isEmpty(Text4))
        return;
    tell(emptyLeft);
    goTo(Text3);
}

// --- RL

void TemplateSheet::focusText5(host::EventArgs& args)
{
    focusField(args);
    propose(loadResistor(at(Text1), at(Text4), lampVoltage(), at(Text3)));
}

void TemplateSheet::propose(Real RLCalc)
{
    q_.RLCalc = RLCalc;
    write(Text5, RLCalc);
}

void TemplateSheet::keyText5(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    q_.RL = at(Text5);
    q_.ERL = loadVoltage(at(Text3), q_.RL);
    setText(RL, shown(q_.RL) + " K");
    setText(ERL, shown(q_.ERL) + " V");
    q_.passed = true;
}

void TemplateSheet::pressText5(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        host().Show("Form14");
}

// --- the lamp: a click on its picture changes the circuit and begins anew

void TemplateSheet::clickPicture6()
{
    hide(Picture6);
    show(Picture1);
    write(SSPanel1, lampHint);
    goTo(Text1);
}

void TemplateSheet::clickPicture1()
{
    hide(Picture1, Line3);
    show(Picture6);
    goTo(Text1);
}

} // namespace velmor::template_sheet
