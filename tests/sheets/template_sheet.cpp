// SPDX-License-Identifier: MIT
// What holds the template sheet together: its tables of events, files and keys, its slots in the order of the chain, and its
// two formulas.
#include "sheets/template_sheet.h"

#include <array>
#include <memory>

namespace velmor::template_sheet {

using host::Event;
using host::Handle;
using host::noControl;
using host::slot;
using sheets::goTo;
using sheets::Press;
using sheets::say;

namespace template_tables {

// clang-format off
constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {noControl,  Event::load,      slot<&TemplateSheet::load>},
    {noControl,  Event::activate,  slot<&TemplateSheet::activate>},
    {noControl,  Event::unload,    slot<&TemplateSheet::unload>},
    {noControl,  Event::hover,     slot<&TemplateSheet::hoverBackground>},
    {Image1,     Event::hover,     slot<&TemplateSheet::hoverBackground>},
    {Text1,      Event::focus,     slot<&TemplateSheet::focusText1>},
    {Text1,      Event::key,       slot<&TemplateSheet::keyText1>},
    {Text1,      Event::lostFocus, slot<&TemplateSheet::lostText1>},
    {Text2,      Event::focus,     slot<&TemplateSheet::focusText2>},
    {Text2,      Event::key,       slot<&TemplateSheet::keyText2>},
    {Text2,      Event::lostFocus, slot<&TemplateSheet::lostText2>},
    {Text2,      Event::mouseDown, slot<&TemplateSheet::pressText2>},
    {Text3,      Event::focus,     slot<&TemplateSheet::focusText3>},
    {Text3,      Event::key,       slot<&TemplateSheet::keyText3>},
    {Text3,      Event::lostFocus, slot<&TemplateSheet::lostText3>},
    {Text4,      Event::focus,     slot<&TemplateSheet::focusText4>},
    {Text4,      Event::key,       slot<&TemplateSheet::keyText4>},
    {Text4,      Event::lostFocus, slot<&TemplateSheet::lostText4>},
    {Text5,      Event::focus,     slot<&TemplateSheet::focusText5>},
    {Text5,      Event::key,       slot<&TemplateSheet::keyText5>},
    {Text5,      Event::mouseDown, slot<&TemplateSheet::pressText5>},
    {Text1,      Event::hover,     slot<&TemplateSheet::hoverField>},
    {Text2,      Event::hover,     slot<&TemplateSheet::hoverField>},
    {Text3,      Event::hover,     slot<&TemplateSheet::hoverField>},
    {Text4,      Event::hover,     slot<&TemplateSheet::hoverField>},
    {Text5,      Event::hover,     slot<&TemplateSheet::hoverField>},
    {Image5,     Event::click,     slot<&TemplateSheet::clickClone>},
    {Image4,     Event::click,     slot<&TemplateSheet::clickClone>},
    {Image3,     Event::click,     slot<&TemplateSheet::clickImage3>},
    {SSCommand3, Event::click,     slot<&TemplateSheet::clickSSCommand3>},
    {SSCommand1, Event::click,     slot<&TemplateSheet::clickSSCommand1>},
    {Image35,    Event::click,     slot<&TemplateSheet::clickImage35>},
    {Image34,    Event::click,     slot<&TemplateSheet::clickImage34>},
});
constexpr auto slots = sheets::withSheetFrame(ownSlots);

constexpr sheets::FileLine lines[] = {{Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {noControl}, {ERL}, {RL, true}};

constexpr Handle tabOrder[] = {Text1, Text2, Text3, Text4, Text5, SSCommand3, SSCommand1};

using host::KeyAction;
constexpr host::ShortcutRow shortcuts[] = {
    {"F1",       noControl,  KeyAction::rightPress, noControl, {"Tabla del cuadro", "Table of the field"}},
    {"F2",       noControl,  KeyAction::hover,      noControl, {"Nota del cuadro", "Note on the field"}},
    {"Shift+F2", Image1,     KeyAction::hover,      noControl, {"Borrar las notas", "Take the notes away"}},
    {"Ctrl+8",   Image5,     KeyAction::click,      noControl, {"Nuevo circuito", "Clon Circuit"}},
    {"Ctrl+9",   Image4,     KeyAction::click,      noControl, {"Nuevo circuito", "Clon Circuit"}},
    {"Ctrl+K",   Image3,     KeyAction::click,      noControl, {"Calculadora", "Calculator"}},
    {"Ctrl+I",   SSCommand3, KeyAction::click,      noControl, {"Informe", "Report"}},
    {"Ctrl+G",   SSCommand1, KeyAction::click,      noControl, {"Guía", "Guide"}},
    {"Shift+F1", Image35,    KeyAction::click,      noControl, {"Ver la ayuda", "Show the help"}},
    {"Ctrl+F1",  Image34,    KeyAction::click,      noControl, {"Quitar la ayuda", "Take the help away"}},
};
// clang-format on

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<TemplateSheet>(host);
}

const sheets::SheetSpec sheetSpec{.filter = fileFilter, .written = lines, .read = lines, .temperatureField = Text2};

} // namespace template_tables

const host::WindowSpec spec{.name = "TemplateSheet",
                            .role = host::Role::sheet,
                            .place = {0, 0, 13500, 6900},
                            .controls = controls,
                            .slots = template_tables::slots,
                            .tabOrder = template_tables::tabOrder,
                            .shortcuts = template_tables::shortcuts,
                            .create = template_tables::create,
                            .sheetTitle = sheetTitle};

rules::Real loadResistor(rules::Real Es, rules::Real Eq, rules::Real QIc)
{
    return (Es - Eq) / QIc;
}

rules::Real loadVoltage(rules::Real QIc, rules::Real RL)
{
    return QIc * RL;
}

TemplateSheet::TemplateSheet(host::SheetHost& host)
    : DesignSheet(host, template_sheet::spec, template_tables::sheetSpec)
{}

void TemplateSheet::load()
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    setText(Label11, pick(circuitHeading));
    setText(Label6, pick(transistorHeading));
    setText(Text22, helpText.es);
    setText(Text23, helpText.en);
}

void TemplateSheet::activate()
{
    frameActivate();
    hide(status1);
}

void TemplateSheet::unload()
{
    host().Unload("Calculator");
}

void TemplateSheet::opened()
{
    setText(SSPanel1, pick(archived));
    show(Line1, Line2);
}

void TemplateSheet::prompt(Handle field)
{
    for (const Prompt& row : prompts)
        if (row.field == field)
            setText(SSPanel1, pick(row.panel));
}

void TemplateSheet::hoverBackground()
{
    hide(status1);
}

void TemplateSheet::hoverField(host::EventArgs& args)
{
    for (const Prompt& row : prompts)
        if (row.field == args.control)
            setText(status1, pick(row.note));
    show(status1);
    prompt(args.control);
}

// --- Es

void TemplateSheet::focusText1()
{
    prompt(Text1);
    disable(Text2, Text3, Text4, Text5);
}

void TemplateSheet::keyText1(host::EventArgs& args)
{
    const Press press = sheets::pressed(*this, args, sheets::placeANumber);
    if (press == Press::nothing)
        return;
    if (press == Press::escape)
        setText(Text1, "12");
    goTo(*this, Text2);
}

// Corrected in silence, an empty field too.
void TemplateSheet::lostText1()
{
    sheets::correctToRange(*this, Text1, 3, 30, 12);
    show(Line1);
}

// --- T

void TemplateSheet::focusText2()
{
    prompt(Text2);
    sheets::writeNumber(*this, Text2, rules::RoundToInt16(host().values().TemperaturaCompartida));
}

void TemplateSheet::keyText2(host::EventArgs& args)
{
    const Press press = sheets::pressed(*this, args, sheets::placeANumber);
    if (press == Press::escape)
        setText(Text2, "75");
    if (press != Press::nothing)
        goTo(*this, Text3);
}

void TemplateSheet::lostText2()
{
    sheets::correctToRange(*this, Text2, 25, 200, 25);
}

void TemplateSheet::pressText2(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        host().Show("Form22");
}

// --- QIc

void TemplateSheet::focusText3()
{
    prompt(Text3);
}

void TemplateSheet::keyText3(host::EventArgs& args)
{
    const Press press = sheets::pressed(*this, args, sheets::placeANumber);
    if (press == Press::escape)
        setText(Text3, "10");
    if (press != Press::nothing)
        goTo(*this, Text4);
}

void TemplateSheet::lostText3()
{
    if (sheets::correctFrom(*this, Text3, 0.1, 10))
        say(*this, currentTooLow);
    setText(Text3, sheets::digits(*this, at(Text3)) + " mA");
}

// --- Eq

void TemplateSheet::focusText4()
{
    prompt(Text4);
    setText(Text4, sheets::digits(*this, at(Text1) / 2.0) + " V");
}

void TemplateSheet::keyText4(host::EventArgs& args)
{
    if (sheets::pressed(*this, args, sheets::placeANumber) != Press::enter)
        return;
    if (at(Text4) < at(Text1)) {
        goTo(*this, Text5);
        return;
    }
    say(*this, supplyTooLow);
    goTo(*this, Text1);
}

void TemplateSheet::lostText4()
{
    if (!sheets::isEmpty(*this, Text4))
        return;
    say(*this, emptyLeft);
    goTo(*this, Text3);
}

// --- RL

void TemplateSheet::focusText5()
{
    prompt(Text5);
    sheets::writeNumber(*this, Text5, loadResistor(at(Text1), at(Text4), at(Text3)));
    show(Line2);
}

void TemplateSheet::keyText5(host::EventArgs& args)
{
    if (sheets::pressed(*this, args, sheets::placeANumber) != Press::enter)
        return;
    setText(RL, sheets::shown(*this, at(Text5)) + " K");
    setText(ERL, sheets::shown(*this, loadVoltage(at(Text3), at(Text5))) + " V");
}

void TemplateSheet::pressText5(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        host().Show("Form14");
}

// --- buttons

void TemplateSheet::clickClone(host::EventArgs& args)
{
    sheets::clone(*this, {.first = Image5, .second = Image4}, args.control);
}

void TemplateSheet::clickImage3()
{
    sheets::showCalculator(*this);
}

void TemplateSheet::clickSSCommand3()
{
    sheets::openReport(*this, true);
}

void TemplateSheet::clickSSCommand1()
{
    sheets::openGuide(*this, pick(guide));
}

void TemplateSheet::clickImage35()
{
    const bool english = host().values().LanguageIsEnglish == host::trueValue;
    setVisible(Text23, english);
    setVisible(Text22, !english);
    hide(Image35);
    show(Image34);
}

void TemplateSheet::clickImage34()
{
    hide(Text22, Text23, Image34);
    show(Image35);
}

} // namespace velmor::template_sheet
