// SPDX-License-Identifier: MIT
// `ParcDesac`: the class A common-emitter stage with a part of its emitter resistor left without bypass, told as `desaco` with
// differences: rows in the place of its rows, and the slots in which the split resistor, the polarisation by emitter and
// bootstrapping make a difference.
#pragma once

#include <string>

#include "designs/common_emitter/desaco.h"
#include "designs/common_emitter/emitter_modes.h"
#include "designs/common_emitter/parc_desac_controls.h"
#include "designs/common_emitter/parc_desac_texts.h"

namespace velmor::parc_desac {

using rules::Real;
using sheets::Press;

extern const host::WindowSpec spec;

/// The working number that this sheet has besides those of its family.
struct HeldGain {
    Real Vg; ///< the gain that the standard RL really gives; 0 before the frequency was asked for
};
inline constexpr auto heldGainTable = host::everyMember<HeldGain>(host::own<&HeldGain::Vg>("Vg"));

class ParcDesac : public common_emitter::EmitterModes<desaco::Desaco, Controls> {
public:
    explicit ParcDesac(host::SheetHost& host);

    std::string reportText() const override;

    // life of the sheet, options and tools (parc_desac.cpp)
    void load();
    void hoverField(host::EventArgs& args);
    void clickReport();
    void clickPicture8();
    void clickPicture6();
    void clickPicture2();
    void clickPicture7();

    // the chain (parc_desac_chain.cpp)
    void focusText1(host::EventArgs& args);
    void lostText1();
    void focusText3(host::EventArgs& args);
    void keyText8(host::EventArgs& args);
    void lostText8();
    void keyText21(host::EventArgs& args);
    void keyText15(host::EventArgs& args);
    void lostText15();
    void lostText11();
    void lostText17();
    void focusText12(host::EventArgs& args);
    void lostText12();

    // supply, divider, end of the design (parc_desac_closing.cpp)
    void keyText16(host::EventArgs& args);
    void lostText16();
    void keyText18(host::EventArgs& args);
    void lostText18();
    void focusText19(host::EventArgs& args);
    void keyText19(host::EventArgs& args);
    void lostText19();

private:
    void opened() override;

    Real stability();       ///< ERes in V, worked out anew
    Real totalResistor();   ///< ERes / QIc, ohm: what is left without bypass and what is bypassed
    Real leastUnbypassed(); ///< 10 x r'e, ohm, as its own text reads
    void askForEmitterSupply(Press press);
    void askForUnbypassed(Press press);
    void refuseRL(Real RL);
    void enterSupplyByEmitter();
    void enterSupplyByBase();
    void escapeSupply();
    void workOutPartlyBypassed();
    void workOutImpedances(Real Rb1);
    void finishByEmitter();
    void closeByEmitter();
    void closeBypassed();
    bool presetGivesItsCurrent();

    HeldGain held_;
};

// clang-format off
// field, next, Esc, from, to, otherwise
inline constexpr auto supplyRow = std::to_array<sheets::ChainRow>({
    {Text21, Text15, "", 1, sheets::noLimit, 20},
});
inline constexpr auto chain = sheets::withRowsOf(
    sheets::joined(desaco::chainToCurrent, supplyRow, desaco::chainFromResistor), std::to_array<sheets::ChainRow>({
    {Text1,  Text3,  "10", 1,   10,              10},
    {Text3,  Text4,  "70", 25,  200,             25},
    {Text8,  Text15, "1",  0.4, sheets::noLimit, 1},
    {Text2,  Text6,  "80", 1,   sheets::noLimit, 80},
    {Text19, host::noControl, "", 0.1, sheets::noLimit, 0.1},
}));

namespace slots_detail {

using enum host::Event;
using host::slot;

inline constexpr auto differentSlots = std::to_array<host::SlotRow>({
    {host::noControl, load, slot<&ParcDesac::load>},
    {Text1,  focus, slot<&ParcDesac::focusText1>}, {Text1,  key, slot<&ParcDesac::keyText1>},
    {Text1,  lostFocus, slot<&ParcDesac::lostText1>},
    {Text3,  focus, slot<&ParcDesac::focusText3>},
    {Text8,  key, slot<&ParcDesac::keyText8>}, {Text8,  lostFocus, slot<&ParcDesac::lostText8>},
    {Text21, key, slot<&ParcDesac::keyText21>}, {Text21, lostFocus, slot<&ParcDesac::lostText21>},
    {Text15, key, slot<&ParcDesac::keyText15>}, {Text15, lostFocus, slot<&ParcDesac::lostText15>},
    {Text11, lostFocus, slot<&ParcDesac::lostText11>},
    {Text17, lostFocus, slot<&ParcDesac::lostText17>},
    {Text12, focus, slot<&ParcDesac::focusText12>}, {Text12, lostFocus, slot<&ParcDesac::lostText12>},
    {Text16, key, slot<&ParcDesac::keyText16>}, {Text16, lostFocus, slot<&ParcDesac::lostText16>},
    {Text18, key, slot<&ParcDesac::keyText18>}, {Text18, lostFocus, slot<&ParcDesac::lostText18>},
    {Text19, focus, slot<&ParcDesac::focusText19>}, {Text19, key, slot<&ParcDesac::keyText19>},
    {Text19, lostFocus, slot<&ParcDesac::lostText19>},
    // option pictures and tools
    {Picture6,   click, slot<&ParcDesac::clickPicture6>},
    {Picture1,   click, slot<&ParcDesac::clickPicture1>},
    {Picture11,  click, slot<&ParcDesac::clickPicture11>},  {Picture11, hover, slot<&ParcDesac::hoverButton>},
    {Picture10,  click, slot<&ParcDesac::clickPicture10>},  {Picture10, hover, slot<&ParcDesac::hoverButton>},
    {Picture2,   click, slot<&ParcDesac::clickPicture2>},   {Picture2,  hover, slot<&ParcDesac::hoverButton>},
    {Picture7,   click, slot<&ParcDesac::clickPicture7>},   {Picture7,  hover, slot<&ParcDesac::hoverButton>},
    {Picture8,   click, slot<&ParcDesac::clickPicture8>},   {Picture8,  hover, slot<&ParcDesac::hoverButton>},
    {SSCommand3, click, slot<&ParcDesac::clickReport>},
    {Voltaje, hover, slot<&ParcDesac::hoverField>}, {statu17, hover, slot<&ParcDesac::hoverField>},
    {statu18, hover, slot<&ParcDesac::hoverField>}, {statu23, hover, slot<&ParcDesac::hoverField>},
});

} // namespace slots_detail

// The slots of `desaco` with those of the fields that hide their notes here, and without its clones.
inline constexpr auto slots = sheets::sheetSlots<ParcDesac, tools>(
    chain, sheets::joined(desaco::slots_detail::ownSlots, slots_detail::differentSlots));
// clang-format on

} // namespace velmor::parc_desac
