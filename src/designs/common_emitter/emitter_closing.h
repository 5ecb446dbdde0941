// SPDX-License-Identifier: MIT
// The second half of what the common-emitter sheets do alike (emitter_sheet.h): signal, supply, transistor, divider and the end of
// a design. Included by the first half alone.
#pragma once

#include "designs/common_emitter/emitter_sheet.h"

namespace velmor::common_emitter {

// --- signal and supply

// Without an output voltage the student gives the input instead.
template <class C>
void EmitterSheet<C>::enterOutput(host::EventArgs& args, Real ERL)
{
    const Press press = pressed(args);
    if (!goesOn(C::Text13, press))
        return;
    setVisible(C::statu21, press == Press::enter);
    if (press == Press::escape) {
        tell(C::Text13, When::escape);
        goTo(C::Text14);
        return;
    }
    correct(C::Text13);
    if (ERL < at(C::Text13) / 2.0) {
        goTo(C::Text12);
        tell(loadVoltageTooLow);
    } else {
        goTo(C::Text16);
        // A gain that reads 0 after four decimals leaves the input as it is.
        if (takeVg() != 0)
            setText(C::Text14, shown(sheets::inputForOutput(at(C::Text13), takeVg())));
    }
    tell(C::Text13, When::enter);
}

template <class C>
void EmitterSheet<C>::keyText14(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(C::Text14, press))
        return;
    if (at(C::Text14) < 0.000001)
        write(C::Text14, at(C::Text13) / 2.0 * 0.707);
    show(C::statu21);
    setText(C::Text13, shown(sheets::outputForInput(at(C::Text14), takeVg())));
    goOn(C::Text14, press);
}

template <class C>
void EmitterSheet<C>::focusText16(host::EventArgs& args)
{
    focusField(args);
    write(C::Text16, leastSupply(q_.ERes, q_.ERL, at(C::Text13)));
    enable(C::Text5);
}

template <class C>
bool EmitterSheet<C>::supplyIsTooLow(Real Eq)
{
    if (Eq >= 3)
        return false;
    tell(raiseSupply);
    write(C::statu25, tooLow);
    tell(lowerOutput);
    return true;
}

template <class C>
void EmitterSheet<C>::backToOutput()
{
    goTo(C::Text13);
    // Leaving `Text16` has disabled it.
    enable(C::Text13);
}

template <class C>
bool EmitterSheet<C>::overTransistorLimit(Real Eq, Real limit)
{
    if (Eq <= limit)
        return false;
    tell(overTransistorVoltage);
    return true;
}

template <class C>
void EmitterSheet<C>::acceptSupply()
{
    show(C::statu25);
    goOn(C::Text16, Press::enter);
}

template <class C>
void EmitterSheet<C>::leaveSupply(Real Res)
{
    disable(C::Text8, C::Text9, C::Text10, C::Text11, C::Text12, C::Text13, C::Text14, C::Text15, C::Text17);
    const Real proposal = lowerBaseResistor(Res, at(C::Text10)).toDouble();
    setText(C::statu22, " Rb2= " + shown(proposal / 1000.0) + " K " + "        comercial...");
}

// --- transistor

// Reached by a click.
template <class C>
void EmitterSheet<C>::keyText5(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    tell(C::Text5, When::enter);
    const bool supplyIsOpen = enabled(C::Text16);
    if (supplyIsOpen)
        correct(C::Text5);
    goTo(supplyIsOpen ? C::Text16 : C::Text6);
}

template <class C>
void EmitterSheet<C>::keyText6(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(C::Text6, press))
        return;
    if (press == Press::escape) {
        goOn(C::Text6, press);
        return;
    }
    correct(C::Text6);
    if (takeQIc() > (at(C::Text6) * 40.0) / 100.0) {
        tell(overTransistorCurrent);
        return;
    }
    tell(C::Text6, When::enter);
    goTo(isEmpty(C::Text16) ? C::Text15 : C::Text7);
}

template <class C>
void EmitterSheet<C>::keyText7(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(C::Text7, press))
        return;
    hide(C::sta3);
    show(C::statu22);
    goOn(C::Text7, press);
}

// --- divider and end of the design

template <class C>
void EmitterSheet<C>::writeInput(Real BRes, Real Rin)
{
    setText(C::statu23, "B x Res=" + shown(BRes / 1000.0) + " K" + "\n" + "Rin=" + whole(Rin) + " K");
}

/// Rb1 in kilohm, ERb1 in V.
template <class C>
void EmitterSheet<C>::writePreset(Real Rb1, Real ERb1)
{
    setText(C::statu24, (" Preset  Rb1= " + shown(Rb1) + " K").append(pick(presetAdvice)));
    setText(C::statu30, digits(ERb1) + " Volts");
}

// Out of an odd file there may be no resistor to divide by.
template <class C>
void EmitterSheet<C>::writeStability(Real Res)
{
    if (Res > 0)
        write(C::Text10, stabilityFactor(CurrencyValue(takeRb2()), Res));
}

template <class C>
void EmitterSheet<C>::writeBypassCapacitor()
{
    if (at(C::Text12) > 0)
        setText(C::Text20, digits(bypassCapacitor(takeQIc(), at(C::Text12))) + " microF");
}

// The current that the preset in use really gives, within a tenth of the one designed. Both in mA.
template <class C>
bool EmitterSheet<C>::obtainsItsCurrent(Real wanted, Real obtained)
{
    q_.QIcCheck = obtained;
    write(C::statu24, adjustPresetAdvice);
    setText(C::Label24, shown(obtained) + " mA");
    show(C::Label24);
    const Real band = wanted * 10.0 / 100.0;
    return obtained >= wanted - band && obtained <= wanted + band;
}

template <class C>
void EmitterSheet<C>::showImpedances()
{
    hide(C::statu22, C::statu23, C::statu24);
    show(C::statu31, C::statu32, C::statu33, C::Boost, C::sta4);
}

} // namespace velmor::common_emitter
