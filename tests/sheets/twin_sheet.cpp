// SPDX-License-Identifier: MIT
// The differences of the twin, and nothing else: rows in the place of the template's, and the one slot that works out
// something else.
#include "sheets/twin_sheet.h"

#include <memory>

namespace velmor::twin_sheet {

using namespace template_sheet; // the controls and tables that this sheet begins with
using sheets::ChainRow;
using sheets::joined;
using sheets::withRowsOf;

namespace twin_tables {

constexpr double junction = 0.7; // V

// clang-format off
constexpr auto chain = withRowsOf(template_sheet::chain, std::to_array<ChainRow>({
    {Text3, Text4, "20", 1, 40, 20},
}));

constexpr auto sayings = withRowsOf(template_sheet::sayings, std::to_array<Saying>({
    {Text5, When::focus, SSPanel1, {"La juntura necesita 0,7 Volts. Elija el valor normalizado más cercano.",
                                    "The junction needs 0.7 Volts. Choose the nearest standard value."}},
}));

constexpr auto controls = withRowsOf(template_sheet::controls, std::to_array<host::ControlRow>({
    sheets::disabled(sheets::field(Text3, "Text3", template_sheet::controls[Text3].place, "20",
                                   sheets::notation::QIc)),
}));

constexpr auto slots = joined(template_sheet::slots, std::to_array<host::SlotRow>({
    {Text5, host::Event::focus, host::slot<&TwinSheet::focusText5>},
}));
// clang-format on

constexpr host::BiText sheetTitle{"  Resistor de carga con juntura", "  Load resistor with junction"};

sheets::SheetSpec twinTables()
{
    sheets::SheetSpec tables = template_sheet::sheetSpec;
    tables.chain = chain;
    tables.sayings = sayings;
    return tables;
}

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<TwinSheet>(host);
}

host::WindowSpec twinWindow()
{
    host::WindowSpec window = template_sheet::spec;
    window.name = "TwinSheet";
    window.controls = controls;
    window.slots = slots;
    window.create = create;
    window.sheetTitle = sheetTitle;
    return window;
}

} // namespace twin_tables

// The template's tables are constants, so they are there before these copies of them are made.
const sheets::SheetSpec sheetSpec = twin_tables::twinTables();
const host::WindowSpec spec = twin_tables::twinWindow();

Real loadResistor(Real Es, Real Eq, Real Ed, Real QIc)
{
    return (Es - Eq - Ed - twin_tables::junction) / QIc;
}

TwinSheet::TwinSheet(host::SheetHost& host) : TemplateSheet(host, twin_sheet::spec, twin_sheet::sheetSpec) {}

void TwinSheet::focusText5(host::EventArgs& args)
{
    focusField(args);
    propose(twin_sheet::loadResistor(at(Text1), at(Text4), lampVoltage(), at(Text3)));
}

} // namespace velmor::twin_sheet
