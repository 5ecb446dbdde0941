// SPDX-License-Identifier: MIT
// The template sheet, the smallest that works: a load resistor from supply, voltage and current. It is no sheet of the
// program; the next sheet is made from it (docs/adding-a-sheet.md), and on it the tests prove what all sheets share.
#pragma once

#include <string>

#include "host/own_values.h"
#include "sheets/design_sheet.h"
#include "sheets/sheet_slots.h"
#include "sheets/template_sheet_controls.h"
#include "sheets/template_sheet_texts.h"

namespace velmor::template_sheet {

using rules::Real;

extern const host::WindowSpec spec;

/// Load resistor in kilohms: RL = (Es - Eq - Ed) / QIc. Es, Eq and Ed (the lamp's voltage) in volts, QIc in milliamperes;
/// QIc of 0 is a failure.
Real loadResistor(Real Es, Real Eq, Real Ed, Real QIc);
/// Voltage across the load in volts: ERL = QIc x RL. QIc in milliamperes, RL in kilohms.
Real loadVoltage(Real QIc, Real RL);

/// The working numbers of one sheet.
struct Quantities {
    Real RLCalc;         ///< kilohm, as worked out
    Real RL;             ///< kilohm, as chosen
    Real ERL;            ///< V
    bool passed = false; ///< the last step of the chain has ended without a warning
};

// clang-format off
/// Their names, by which the state of a sheet is copied and kept; one that is left out does not compile.
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::RLCalc>("RLCalc"),
    host::own<&Quantities::RL>("RL"),
    host::own<&Quantities::ERL>("ERL"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

class TemplateSheet : public sheets::DesignSheet {
public:
    explicit TemplateSheet(host::SheetHost& host);

    std::string reportText() const override;
    const Quantities& quantities() const { return q_; }

    // life of the sheet
    void load();
    void activate();
    void unload();
    void hoverBackground();

    // the chain: fields that do more than their row says
    void focusText1(host::EventArgs& args);
    void focusText2(host::EventArgs& args);
    void pressText2(host::EventArgs& args);
    void lostText3();
    void focusText4(host::EventArgs& args);
    void keyText4(host::EventArgs& args);
    void lostText4();
    void focusText5(host::EventArgs& args);
    void keyText5(host::EventArgs& args);
    void pressText5(host::EventArgs& args);

    // option pictures
    void clickPicture6();
    void clickPicture1();

protected:
    /// A sheet that is told as this one with differences.
    TemplateSheet(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet);
    void opened() override;
    /// The lamp's voltage, V; 0 without a lamp.
    Real lampVoltage() const { return visible(Picture1) ? 2.0 : 0.0; }
    void propose(Real RLCalc);

private:
    Quantities q_;
};

// clang-format off
// field, next, Esc, from, to, otherwise
inline constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text1, Text2,           "12", 3,   30,              12},
    {Text2, Text3,           "75", 25,  200,             25},
    {Text3, Text4,           "10", 0.1, sheets::noLimit, 10},
    {Text4, Text5},
    {Text5},
});

// Slots of the sheet's own; the frame has the rest.
inline constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {host::noControl, host::Event::load,      host::slot<&TemplateSheet::load>},
    {host::noControl, host::Event::activate,  host::slot<&TemplateSheet::activate>},
    {host::noControl, host::Event::unload,    host::slot<&TemplateSheet::unload>},
    {host::noControl, host::Event::hover,     host::slot<&TemplateSheet::hoverBackground>},
    {Image1,          host::Event::hover,     host::slot<&TemplateSheet::hoverBackground>},
    {Text1,           host::Event::focus,     host::slot<&TemplateSheet::focusText1>},
    {Text2,           host::Event::focus,     host::slot<&TemplateSheet::focusText2>},
    {Text2,           host::Event::mouseDown, host::slot<&TemplateSheet::pressText2>},
    {Text3,           host::Event::lostFocus, host::slot<&TemplateSheet::lostText3>},
    {Text4,           host::Event::focus,     host::slot<&TemplateSheet::focusText4>},
    {Text4,           host::Event::key,       host::slot<&TemplateSheet::keyText4>},
    {Text4,           host::Event::lostFocus, host::slot<&TemplateSheet::lostText4>},
    {Text5,           host::Event::focus,     host::slot<&TemplateSheet::focusText5>},
    {Text5,           host::Event::key,       host::slot<&TemplateSheet::keyText5>},
    {Text5,           host::Event::lostFocus, nullptr},
    {Text5,           host::Event::mouseDown, host::slot<&TemplateSheet::pressText5>},
    {SSCommand3,      host::Event::click,     host::slot<&TemplateSheet::openReportAsking>},
    {Picture6,        host::Event::click,     host::slot<&TemplateSheet::clickPicture6>},
    {Picture1,        host::Event::click,     host::slot<&TemplateSheet::clickPicture1>},
});
// clang-format on
inline constexpr auto slots = sheets::sheetSlots<TemplateSheet, tools>(chain, ownSlots);

extern const std::span<const host::GrowthRow> growth;
extern const std::span<const host::Handle> tabOrder;
extern const std::span<const host::ShortcutRow> shortcuts;
extern const sheets::SheetSpec sheetSpec;

} // namespace velmor::template_sheet
