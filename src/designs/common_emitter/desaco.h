// SPDX-License-Identifier: MIT
// `desaco`: the class A common-emitter stage whose emitter resistor is wholly bypassed. Its tables, and its slots as far as they
// do more than the field's row says; what it does as the others of its family stands in emitter_sheet. `ParcDesac` is told as
// this sheet with differences.
#pragma once

#include <string>

#include "designs/common_emitter/desaco_controls.h"
#include "designs/common_emitter/desaco_texts.h"
#include "designs/common_emitter/emitter_sheet.h"
#include "sheets/sheet_slots.h"

namespace velmor::desaco {

using rules::Real;
using sheets::Press;

extern const host::WindowSpec spec;

class Desaco : public common_emitter::EmitterSheet<Control> {
public:
    explicit Desaco(host::SheetHost& host);

    std::string reportText() const override;

    // life of the sheet, and what all fields share (desaco.cpp)
    void load();
    void hoverBackground();
    void openHelpBoxes();
    void clickClone(host::EventArgs& args);
    void pressPicture6();
    void clickPicture6();
    void pressPicture1();
    void clickPicture1();

    // the chain up to the gain (desaco_chain.cpp)
    void focusText1(host::EventArgs& args);
    void lostText1();
    void focusText3(host::EventArgs& args);
    void lostText4();
    void keyText8(host::EventArgs& args);
    void lostText8();
    void keyText15(host::EventArgs& args);
    void lostText9();
    void keyText10(host::EventArgs& args);
    void keyText11(host::EventArgs& args);
    void lostText11();
    void focusText12(host::EventArgs& args);

    // signal, supply, transistor, divider (desaco_closing.cpp)
    void keyText13(host::EventArgs& args);
    void clickText16();
    void keyText16(host::EventArgs& args);
    void lostText16();
    void lostText2();
    void clickText5(host::EventArgs& args);
    void lostText6();
    void keyText18(host::EventArgs& args);
    void lostText18();
    void focusText19(host::EventArgs& args);
    void keyText19(host::EventArgs& args);
    void lostText19();

protected:
    /// A sheet that is told as this one with differences.
    Desaco(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet);
    void opened() override;

    bool sentBack(host::Handle emptyField, host::Handle target);
    Real currentInHand() const; ///< QIc of `Text8` in mA, as leaving the field counts it
    void leaveCurrent();
    void workOutDivider();
    void judgeSupply(Real Eq, Real limit);
};

// clang-format off
// field, next, Esc, from, to, otherwise
inline constexpr auto chainToCurrent = std::to_array<sheets::ChainRow>({
    {Text1,  Text3,  "",    1,       10,              10},
    {Text3,  Text4,  "",    25,      200,             25},
    {Text4,  Text8,  "2.5", 2,       3,               2.5},
    {Text8,  Text15, "",    0.4,     sheets::noLimit, 1},
});
inline constexpr auto chainFromResistor = std::to_array<sheets::ChainRow>({
    {Text15, Text9,  "",    1E-08,   sheets::noLimit, 1},
    {Text9,  Text10, "10",  0.1,     sheets::noLimit, 10},
    {Text10, Text11, "10",  1,       10,              10},
    {Text11, Text17, "5",   1,       sheets::noLimit, 5},
    {Text17, Text12, "",    0.1,     sheets::noLimit, 0.1},
    {Text12, Text13, "20",  1,       sheets::noLimit, 20},
    {Text13, Text16, "1",   0.00001, sheets::noLimit, 1},
    {Text14, Text13, "",    1E-10,   sheets::noLimit, 0.001},
    {Text16, Text2,  "",    0.001,   sheets::noLimit, 21},
    {Text2,  Text6,  "80",  0.001,   sheets::noLimit, 80},
    {Text5,  Text16, "",    1,       sheets::noLimit, 25},
    {Text6,  Text7,  "100", 10,      sheets::noLimit, 100},
    {Text7,  Text18, "0.6", 0.2,     0.7,             0.6},
    {Text18, Text19, "",    0.001,   sheets::noLimit, 12},
    {Text19, Text18, "",    0.1,     sheets::noLimit, 0.1},
});
inline constexpr auto chain = sheets::joined(chainToCurrent, chainFromResistor);

namespace slots_detail {

using enum host::Event;
using host::noControl;
using host::slot;

// Slots of the sheet's own; the frame has the rest.
inline constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {noControl, load,  slot<&Desaco::load>},
    {noControl, hover, slot<&Desaco::hoverBackground>},
    {Image1,    hover, slot<&Desaco::hoverBackground>},
    // the chain: focus, keys, focus lost
    {Text1,  focus, slot<&Desaco::focusText1>}, {Text1,  lostFocus, slot<&Desaco::lostText1>},
    {Text3,  focus, slot<&Desaco::focusText3>},
    {Text4,  lostFocus, slot<&Desaco::lostText4>},
    {Text8,  focus, slot<&Desaco::focusText8>}, {Text8,  key, slot<&Desaco::keyText8>}, {Text8,  lostFocus, slot<&Desaco::lostText8>},
    {Text15, key, slot<&Desaco::keyText15>},
    {Text9,  focus, slot<&Desaco::focusText9>}, {Text9,  lostFocus, slot<&Desaco::lostText9>},
    {Text10, key, slot<&Desaco::keyText10>},
    {Text11, key, slot<&Desaco::keyText11>}, {Text11, lostFocus, slot<&Desaco::lostText11>},
    {Text17, key, slot<&Desaco::keyText17>},
    {Text12, focus, slot<&Desaco::focusText12>}, {Text12, key, slot<&Desaco::keyText12>},
    {Text13, key, slot<&Desaco::keyText13>}, {Text13, lostFocus, nullptr},
    {Text14, key, slot<&Desaco::keyText14>},
    {Text16, focus, slot<&Desaco::focusText16>}, {Text16, key, slot<&Desaco::keyText16>}, {Text16, lostFocus, slot<&Desaco::lostText16>},
    {Text2,  lostFocus, slot<&Desaco::lostText2>},
    {Text5,  key, slot<&Desaco::keyText5>}, {Text5,  lostFocus, nullptr},
    {Text6,  key, slot<&Desaco::keyText6>}, {Text6,  lostFocus, slot<&Desaco::lostText6>},
    {Text7,  key, slot<&Desaco::keyText7>},
    {Text18, key, slot<&Desaco::keyText18>}, {Text18, lostFocus, slot<&Desaco::lostText18>},
    {Text19, focus, slot<&Desaco::focusText19>}, {Text19, key, slot<&Desaco::keyText19>}, {Text19, lostFocus, slot<&Desaco::lostText19>},
    // the mouse on fields and results
    {Text16,  click,     slot<&Desaco::clickText16>},
    {Text5,   click,     slot<&Desaco::clickText5>},
    {Text19,  click,     slot<&Desaco::clickField>},
    {Text3,   mouseDown, slot<&Desaco::pressTemperature>},
    {Text15,  mouseDown, slot<&Desaco::pressResistor>},
    {Text17,  mouseDown, slot<&Desaco::pressResistor>},
    {Text18,  mouseDown, slot<&Desaco::pressResistor>},
    {Text19,  mouseDown, slot<&Desaco::pressResistor>},
    {Voltaje, hover,     slot<&Desaco::hoverField>},
    {statu17, hover,     slot<&Desaco::hoverField>},
    {statu18, hover,     slot<&Desaco::hoverField>},
    {statu23, hover,     slot<&Desaco::hoverField>},
    // the toggle and the tools
    {Picture6,   mouseDown, slot<&Desaco::pressPicture6>},  {Picture6, click, slot<&Desaco::clickPicture6>},
    {Picture6,   hover,     slot<&Desaco::hoverButton>},
    {Picture1,   mouseDown, slot<&Desaco::pressPicture1>},  {Picture1, click, slot<&Desaco::clickPicture1>},
    {Picture1,   hover,     slot<&Desaco::hoverButton>},
    {SSCommand3, click,     slot<&Desaco::openReportAsking>},
    {STA70,      click,     slot<&Desaco::clickSTA70>},
});

} // namespace slots_detail

inline constexpr auto slots = sheets::sheetSlots<Desaco, tools>(chain, slots_detail::ownSlots);
// clang-format on

extern const sheets::SheetSpec sheetSpec;

} // namespace velmor::desaco
