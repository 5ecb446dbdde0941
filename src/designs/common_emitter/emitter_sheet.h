// SPDX-License-Identifier: MIT
// What the common-emitter sheets stabilised by current do alike: working numbers, slots that are the same on each of them, and
// the steps that their other slots are made of. `C` are the controls of one of them. What a sheet does otherwise stands in the
// sheet; what they say stands in emitter_texts, what they work out in emitter_formulas.
#pragma once

#include <string>
#include <string_view>

#include "designs/common_emitter/emitter_formulas.h"
#include "designs/common_emitter/emitter_texts.h"
#include "host/own_values.h"
#include "sheets/design_sheet.h"
#include "sheets/formulas.h"

namespace velmor::common_emitter {

using sheets::Press;

/// The working numbers of one sheet.
struct Quantities {
    Real ERes;           ///< V
    Real RLw;            ///< ohm
    Real RLac;           ///< ohm
    Real RLComputed;     ///< ohm
    Real ERL;            ///< V
    Real Rb1Computed;    ///< kilohm
    Real Zin;            ///< kilohm
    Real ZinBoot;        ///< ohm
    Real QIcCheck;       ///< mA
    bool passed = false; ///< the last step of the chain has ended without a warning
};

// clang-format off
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::ERes>("ERes"),
    host::own<&Quantities::RLw>("RLw"),
    host::own<&Quantities::RLac>("RLac"),
    host::own<&Quantities::RLComputed>("RLComputed"),
    host::own<&Quantities::ERL>("ERL"),
    host::own<&Quantities::Rb1Computed>("Rb1Computed"),
    host::own<&Quantities::Zin>("Zin"),
    host::own<&Quantities::ZinBoot>("ZinBoot"),
    host::own<&Quantities::QIcCheck>("QIcCheck"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

template <class C>
class EmitterSheet : public sheets::DesignSheet {
public:
    EmitterSheet(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet)
        : DesignSheet(host, window, sheet)
    {
        holds(q_, quantityTable, host::Undo::takesBack);
    }
    const Quantities& quantities() const { return q_; }

    // what all fields share
    void keyField(host::EventArgs& args)
    {
        const Press press = pressed(args);
        if (goesOn(args.control, press))
            goOn(args.control, press);
    }
    void clickField(host::EventArgs& args) { tell(args.control, When::click); }
    void pressTemperature(host::EventArgs& args) { pressAndShow(args, "Form22"); }
    void pressResistor(host::EventArgs& args) { pressAndShow(args, "Form14"); }
    void hoverButton(host::EventArgs& args);
    void clickSTA70() { setVisible(C::STA70, !visible(C::STA70)); }

    // the chain
    void focusText8(host::EventArgs& args);
    void focusText9(host::EventArgs& args);
    void keyText17(host::EventArgs& args);
    void keyText12(host::EventArgs& args);
    void keyText14(host::EventArgs& args);
    void focusText16(host::EventArgs& args);
    void keyText5(host::EventArgs& args);
    void keyText6(host::EventArgs& args);
    void keyText7(host::EventArgs& args);

protected:
    Press pressed(host::EventArgs& args);
    bool sentBack(host::Handle field, const sheets::Saying& box, host::Handle target);

    // quantities that stand in fields; these are made plain numbers
    Real takeQIc();
    Real takeRes() { return take(C::Text15); }
    Real takeRLw() { return take(C::Text9); } ///< kilohm
    Real takeVg() { return take(C::Text11); }
    Real takeBeta() { return take(C::Text2); }
    Real takeRb2() { return take(C::Text18); }

    // stability and emitter resistor
    void disableChain();
    void workOutERes();
    void writeJunctionResistance() { writeJunctionResistance(takeQIc()); }
    void writeJunctionResistance(Real QIc);
    void showIdealResistor(std::string_view ending);
    bool belowOneOhm(Real resistor) { return resistor > 0.01 && resistor < 1; }
    void takeStandardResistor(Real resistor);
    // load and gain
    bool leavesCurrentForRL(Real RLw);
    Real workOutRL(Real RLw);
    void refuseLoad(const sheets::Saying& box);
    Real showRealLoad(host::EventArgs& args);
    // signal and supply
    void enterOutput(host::EventArgs& args, Real ERL);
    bool supplyIsTooLow(Real Eq);
    void backToOutput();
    bool overTransistorLimit(Real Eq, Real limit);
    void writeEq(Real Eq) { setText(C::statu25, " Eq=  " + shown(Eq) + " Volts"); }
    void acceptSupply();
    void leaveSupply(Real Res);
    // divider and end of the design
    void writeInput(Real BRes, Real Rin);
    void writePreset(Real Rb1, Real ERb1);
    void writeStability(Real Res);
    void writeBypassCapacitor();
    bool obtainsItsCurrent(Real wanted, Real obtained);
    void showImpedances();

    Quantities q_; // NOLINT(misc-non-private-member-variables-in-classes): the sheets work with it

private:
    void pressAndShow(host::EventArgs& args, std::string_view window);
};

// --- what all fields share

template <class C>
void EmitterSheet<C>::hoverButton(host::EventArgs& args)
{
    tell(args.control, When::hover);
    show(C::Boost);
}

template <class C>
void EmitterSheet<C>::pressAndShow(host::EventArgs& args, std::string_view window)
{
    pressField(args);
    if (args.button == host::Button::right)
        host().Show(window);
}

// Any key that a field before the last takes: what was finished is so no longer.
template <class C>
Press EmitterSheet<C>::pressed(host::EventArgs& args)
{
    const Press press = DesignSheet::pressed(args);
    if (args.control != C::Text19 && args.key != 0)
        q_.passed = false;
    return press;
}

template <class C>
bool EmitterSheet<C>::sentBack(host::Handle field, const sheets::Saying& box, host::Handle target)
{
    if (!isEmpty(field))
        return false;
    tell(box);
    goTo(target);
    return true;
}

// A current that reads 0, as out of an odd file, counts as the usual 1 mA: all that follows divides by it.
template <class C>
Real EmitterSheet<C>::takeQIc()
{
    const Real QIc = take(C::Text8);
    return QIc > 0 ? QIc : Real(1);
}

// --- stability and emitter resistor

// A design that starts over keeps its figures; they are reached again one by one.
template <class C>
void EmitterSheet<C>::disableChain()
{
    disable(C::Text2, C::Text3, C::Text4, C::Voltaje, C::Text8, C::Text15, C::Text9, C::Text10, C::Text11, C::Text12,
            C::Text16, C::Text13, C::Text14, C::Text5, C::Text6, C::Text7, C::Text21);
}

// Only an odd file brings an allowed drift of 0; the voltage is then the one before.
template <class C>
void EmitterSheet<C>::workOutERes()
{
    if (at(C::Text1) > 0)
        q_.ERes = sheets::stabilityVoltage(at(C::Text3), at(C::Text4), at(C::Text1));
    setText(C::Voltaje, shown(q_.ERes));
}

template <class C>
void EmitterSheet<C>::focusText8(host::EventArgs& args)
{
    focusField(args);
    disable(C::Text1, C::Text3, C::Text4);
}

template <class C>
void EmitterSheet<C>::writeJunctionResistance(Real QIc)
{
    setText(C::statu17, " R'e =" + shown(sheets::junctionResistance(QIc)) + "     ohms");
}

template <class C>
void EmitterSheet<C>::showIdealResistor(std::string_view ending)
{
    workOutERes();
    setText(C::res, shown(sheets::emitterResistor(q_.ERes, takeQIc())).append(ending));
    writeJunctionResistance();
    hide(C::sta1, C::status40);
    show(C::res);
}

// The standard resistor moves QIc, not ERes.
template <class C>
void EmitterSheet<C>::takeStandardResistor(Real resistor)
{
    hide(C::res, C::statu17);
    const Real current = quiescentCurrent(q_.ERes, resistor);
    write(C::Text8, current);
    setText(C::VRes, digits(q_.ERes) + "  Volt");
    show(C::VRes, C::sta1);
    enable(C::Text6);
    if (current > (40.0 / 100.0) * rules::RoundToInt16(at(C::Text6)))
        tell(currentOverLimit);
    else
        goOn(C::Text15, Press::enter);
}

// --- load and gain

template <class C>
void EmitterSheet<C>::focusText9(host::EventArgs& args)
{
    focusField(args);
    disable(C::Text6, C::Text16);
    enable(C::Text17);
}

// False when no current is left for RL: the load that the gain asks for is as large as RLw (in ohm) itself.
template <class C>
bool EmitterSheet<C>::leavesCurrentForRL(Real RLw)
{
    if (RLw - q_.RLac >= 0.1)
        return true;
    tell(loadTooLarge);
    goTo(C::Text8);
    return false;
}

/// Writes RL, and returns it in kilohm; RLw in ohm.
template <class C>
Real EmitterSheet<C>::workOutRL(Real RLw)
{
    q_.RLComputed = sheets::collectorResistor(RLw, q_.RLac);
    const Real kilohms = q_.RLComputed / 1000.0;
    setText(C::statu19, "    " + whole(kilohms) + " K " + " ");
    write(C::Text17, kilohms);
    return kilohms;
}

template <class C>
void EmitterSheet<C>::refuseLoad(const sheets::Saying& box)
{
    hide(C::Text18, C::Text15);
    write(C::status40, loadImpossible.text);
    show(C::status40);
    tell(box);
    goTo(C::Text8);
}

template <class C>
void EmitterSheet<C>::keyText17(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(C::Text17, press))
        return;
    if (at(C::Text17) < 0.001)
        setText(C::Text17, whole(q_.RLComputed / 1000.0));
    hide(C::statu19);
    q_.ERL = takeQIc() * at(C::Text17);
    setText(C::ER, shown(q_.ERL) + "     Volts");
    show(C::ER, C::sta2);
    goOn(C::Text17, press);
}

/// The load for the signal with the RL that was accepted, in kilohm; 0 where an odd file has left nothing to work it out from.
template <class C>
Real EmitterSheet<C>::showRealLoad(host::EventArgs& args)
{
    focusField(args);
    disable(C::Text16, C::Text2, C::Text5, C::Text6, C::Text7, C::Text19, C::Text18, C::Text13, C::Text14);
    if (takeRLw() + at(C::Text17) <= 0)
        return 0;
    const Real realLoad = sheets::parallel(takeRLw(), at(C::Text17));
    setText(C::statu18, "Rlac = " + shown(realLoad) + " K");
    show(C::statu18);
    return realLoad;
}

template <class C>
void EmitterSheet<C>::keyText12(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(C::Text12, press))
        return;
    hide(C::statu18);
    goOn(C::Text12, press);
}

} // namespace velmor::common_emitter

#include "designs/common_emitter/emitter_closing.h" // IWYU pragma: export
