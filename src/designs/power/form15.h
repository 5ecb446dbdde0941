// SPDX-License-Identifier: MIT
// `Form15`, the single-ended class A power stage: from power and load back to supply, collector resistor, bias and generator. The
// Darlington sheet is told as this one with differences, so the steps of the chain are open to it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "designs/power/form15_controls.h"
#include "designs/power/form15_formulas.h"
#include "designs/power/form15_report.h"
#include "designs/power/form15_texts.h"
#include "sheets/design_sheet.h"
#include "sheets/sheet_slots.h"

namespace velmor::form15 {

std::unique_ptr<host::Window> create(host::SheetHost& host);

class Form15 : public sheets::DesignSheet {
public:
    explicit Form15(host::SheetHost& host);

    std::string reportText() const override;
    /// The working numbers, as the last events left them.
    const Quantities& quantities() const { return q_; }

    // the window
    void load();
    void closeCalculator();
    void hoverBackground();
    void hoverClone();
    void hoverCalculator();

    // every field of the chain: no Esc; a page of the help; a note under the pointer, which leaves the criterion alone
    void focusField(host::EventArgs& args);
    void keyField(host::EventArgs& args);
    void hoverField(host::EventArgs& args);
    void pressResistor(host::EventArgs& args);

    // power and load
    void focusText1(host::EventArgs& args);
    void lostText1();
    void keyText2(host::EventArgs& args);
    void lostText2();
    void focusText12(host::EventArgs& args);
    void keyText12(host::EventArgs& args);
    void clickImage1();
    void clickImage2();

    // output transistor and supply
    void lostText10();
    void lostText11();
    void focusText3(host::EventArgs& args);
    void lostText3();
    void lostText4();

    // driver and bias
    void focusText5(host::EventArgs& args);
    void keyText5(host::EventArgs& args);
    void lostText5();
    void focusText6(host::EventArgs& args);
    void lostText6();
    void focusText7(host::EventArgs& args);
    void lostText7();
    void focusText8(host::EventArgs& args);
    void lostText8();
    void focusText9(host::EventArgs& args);
    void keyText9(host::EventArgs& args);
    void clickText9();
    void lostText9();

protected:
    /// A sheet that is told as this one with differences.
    Form15(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet);
    void opened() override;

    // words of the steps
    sheets::Press pressed(host::EventArgs& args);
    std::string words(const host::BiText& text) const { return std::string(pick(text)); }
    void tellPage(host::Handle field, std::string_view more = {});
    /// Writes a result into a field, four decimals.
    void fill(host::Handle field, Real value) { setText(field, shown(value)); }
    /// What leaving writes into a field below its least value.
    void correctBelow(host::Handle field, Real otherwise);
    void warn(host::Handle control, bool tooHigh, const sheets::Saying& box);
    void restart();
    Real RLw() const { return at(Text2); }

    // power and load
    void startOver(host::EventArgs& args);
    void tellMeasured(std::string_view lineBreak);
    void leavePower(std::string_view label1);
    void takeLoad(double junctions);
    void tellERLw();
    void tellLoad();
    bool isEnterAlone(host::EventArgs& args);
    void offerLoads(host::EventArgs& args, int left);
    void placeLoudspeaker(int left);
    void chooseLoad(bool loudspeaker);
    void takeCoil(int left);

    // output transistor and supply
    void tellCriterionOfCurrent(const host::BiText& opening);
    void proposeCurrent();
    void takeEQ2();
    void tellSupply();

    // driver and bias
    Real Beta1() const { return at(Text11); }
    void showZinQ2(Real Zin);
    bool supplyIsBlamed() const { return q_.noSwing && q_.ERL <= Real(0.0); }
    bool outputIsLight();
    void takeLeastDriver(Real Zin);
    bool driverIsStrong(const sheets::Saying& tooMuch);
    bool weakDriver();
    void divideRb1();
    void takeBias(Real ERb1);
    bool takeRb2();
    bool takeRb1();
    void takeInput();
    void takeGenerator();
    void leaveGenerator();
    /// The report in the words of one of the sheets.
    std::string report(const ReportWords& report) const;
    /// Microfarads of a capacitor in farads.
    static Real microfarads(Real C) { return C * 1000000.0; }

    Quantities q_;
};

// clang-format off
// field, next, Esc, from, to, otherwise; a value that is worked out takes the place of the last where the sheet has one
inline constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text1,  Text2,  "", 0.000001, 100,             0.78},
    {Text2,  Text12, "", 0.01,     sheets::noLimit, 1},
    {Text12, Text10},
    {Text10, Text11, "", 1,        sheets::noLimit, 50},
    {Text11, Text3,  "", 1,        sheets::noLimit, 100},
    {Text3,  Text4,  "", 0.01,     sheets::noLimit, 0.01},
    {Text4,  Text5,  "", 0.01,     sheets::noLimit, 0.01},
    {Text5,  Text6,  "", 0.01,     sheets::noLimit, 0.01},
    {Text6,  Text7,  "", 1,        sheets::noLimit, 1},
    {Text7,  Text8,  "", 1,        sheets::noLimit, 1},
    {Text8,  Text9},
    {Text9,  Text1,  "", 1,        sheets::noLimit, 1},
});

// Slots of the sheet's own; the frame has the rest.
inline constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {host::noControl, host::Event::load,        host::slot<&Form15::load>},
    {host::noControl, host::Event::click,       host::slot<&Form15::closeCalculator>},
    {host::noControl, host::Event::hover,       host::slot<&Form15::hoverBackground>},
    {Picture1,        host::Event::doubleClick, host::slot<&Form15::closeCalculator>},
    {Picture1,        host::Event::hover,       host::slot<&Form15::hoverBackground>},
    {Label15,         host::Event::doubleClick, host::slot<&Form15::closeCalculator>},
    {Label16,         host::Event::doubleClick, host::slot<&Form15::closeCalculator>},
    {Image3,          host::Event::hover,       host::slot<&Form15::hoverClone>},
    {Image4,          host::Event::hover,       host::slot<&Form15::hoverClone>},
    {SSCommand3,      host::Event::hover,       host::slot<&Form15::hoverCalculator>},
    // the chain
    {Text1,  host::Event::focus,     host::slot<&Form15::focusText1>},
    {Text1,  host::Event::lostFocus, host::slot<&Form15::lostText1>},
    {Text2,  host::Event::key,       host::slot<&Form15::keyText2>},
    {Text2,  host::Event::lostFocus, host::slot<&Form15::lostText2>},
    {Text12, host::Event::focus,     host::slot<&Form15::focusText12>},
    {Text12, host::Event::key,       host::slot<&Form15::keyText12>},
    {Text12, host::Event::lostFocus, nullptr},
    {Text10, host::Event::lostFocus, host::slot<&Form15::lostText10>},
    {Text11, host::Event::lostFocus, host::slot<&Form15::lostText11>},
    {Text3,  host::Event::focus,     host::slot<&Form15::focusText3>},
    {Text3,  host::Event::lostFocus, host::slot<&Form15::lostText3>},
    {Text4,  host::Event::lostFocus, host::slot<&Form15::lostText4>},
    {Text5,  host::Event::focus,     host::slot<&Form15::focusText5>},
    {Text5,  host::Event::key,       host::slot<&Form15::keyText5>},
    {Text5,  host::Event::lostFocus, host::slot<&Form15::lostText5>},
    {Text6,  host::Event::focus,     host::slot<&Form15::focusText6>},
    {Text6,  host::Event::lostFocus, host::slot<&Form15::lostText6>},
    {Text7,  host::Event::focus,     host::slot<&Form15::focusText7>},
    {Text7,  host::Event::lostFocus, host::slot<&Form15::lostText7>},
    {Text8,  host::Event::focus,     host::slot<&Form15::focusText8>},
    {Text8,  host::Event::lostFocus, host::slot<&Form15::lostText8>},
    {Text9,  host::Event::focus,     host::slot<&Form15::focusText9>},
    {Text9,  host::Event::key,       host::slot<&Form15::keyText9>},
    {Text9,  host::Event::click,     host::slot<&Form15::clickText9>},
    {Text9,  host::Event::lostFocus, host::slot<&Form15::lostText9>},
    // kinds of load
    {Image1, host::Event::click,     host::slot<&Form15::clickImage1>},
    {Image2, host::Event::click,     host::slot<&Form15::clickImage2>},
});
inline constexpr auto resistors = std::to_array<host::Handle>({Text5, Text6, Text7, Text8, Text9});
// clang-format on
inline constexpr auto slots = sheets::sheetSlots<Form15, tools>(
    chain,
    sheets::joined(sheets::alike(resistors, host::Event::mouseDown, host::slot<&Form15::pressResistor>), ownSlots));

// clang-format off
// part, field that brings it, the control by which the circuit has it, and by which it has not
inline constexpr auto growth = std::to_array<host::GrowthRow>({
    {Line1,  Text2,  host::noControl, Label29},
    {Line2,  Text2,  Label29},
    {Line3,  Text10},
    {Line4,  Text11},
    {Line5,  Text3},
    {Line6,  Text4},
    {Line7,  Text5},
    {Shape2, Text6},
    {Line8,  Text6},
    {Line9,  Text7},
    {Line10, Text8},
    {Line11, Text8},
    {Line12, Text9},
});
inline constexpr auto values = std::to_array<host::ValueRow>({
    {Text4, Line6}, {Label1, Line6}, {Q1, Line6}, {Label14, Line1}, {Label17, Line5}, {Text5, Line7}, {Label10, Line7}, {Label19, Line7},
    {Label8, Shape2}, {Text6, Line8}, {Text7, Line9}, {Label5, Line10}, {Text8, Line11}, {Label13, Line12}, {Label2, Line12},
    {Text9, Line12}, {Label20, Line12}, {Label21, Line7},
});

// The file: texts, then captions. What is read shows the fields.
inline constexpr auto linesBeforeQ1 = std::to_array<sheets::FileLine>({
    {Text1}, {Text2}, {Text3, true}, {Text4, true}, {Text5, true}, {Text6, true}, {Text7, true}, {Text8, true}, {Text9, true}, {Text10},
    {Text11}, {Text12}, {Label4}, {Label1, true}, {Label2}, {Label3}, {Label5}, {Label6}, {Label7}, {Label8, true}, {Label9}, {Label10},
    {Label11}, {Label12}, {Label13}, {Label14}, {Label15}, {Label16}, {Label17}, {Label18}, {Label19}, {Label20}, {Label21},
});
inline constexpr auto lines = sheets::joined(linesBeforeQ1, std::to_array<sheets::FileLine>({{Q1}}));

inline constexpr auto tabOrder = std::to_array<host::Handle>({
    Text1, Text2, Text12, Text10, Text11, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Picture1, SSCommand1, SSCommand3, SSCommand5,
    Text22, Text23,
});

inline constexpr auto ownKeys = std::to_array<host::ShortcutRow>({
    {"Ctrl+1",   Image1,   host::KeyAction::click,       host::noControl, {"Carga: resistencia", "Load: resistor"}},
    {"Ctrl+2",   Image2,   host::KeyAction::click,       host::noControl, {"Carga: parlante", "Load: loudspeaker"}},
    {"Shift+F4", Label15,  host::KeyAction::doubleClick, host::noControl, {"Quitar la calculadora", "Take the calculator away"}},
});
inline constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), ownKeys);

inline constexpr auto notes = std::to_array<host::Handle>({status1});
// clang-format on

extern const sheets::SheetSpec sheetSpec;
extern const host::WindowSpec spec;

} // namespace velmor::form15
