// SPDX-License-Identifier: MIT
// The chain of `desaco` from the output signal to its end: supply, transistor, the divider of the base, and the loop in which the
// student turns the preset until the collector current is the one designed.
#include "designs/common_emitter/desaco.h"

namespace velmor::desaco {

using namespace common_emitter; // NOLINT(google-build-using-namespace): formulas and texts of the family

// --- Eopp

void Desaco::keyText13(host::EventArgs& args)
{
    enterOutput(args, takeQIc() * at(Text17));
}

// --- Es

void Desaco::clickText16()
{
    enable(Text16);
}

void Desaco::keyText16(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    hide(statu21);
    correct(Text16);
    judgeSupply(collectorEmitterVoltage(at(Text16), takeQIc(), at(Text15), at(Text17)), at(Text5));
}

void Desaco::judgeSupply(Real Eq, Real limit)
{
    if (supplyIsTooLow(Eq)) {
        backToOutput();
        return;
    }
    writeEq(Eq);
    if (!overTransistorLimit(Eq, limit))
        acceptSupply();
}

void Desaco::lostText16()
{
    if (isEmpty(Text16))
        tell(Text16, When::empty);
    else
        leaveSupply(at(Text15));
}

// --- Beta

void Desaco::lostText2()
{
    correct(Text2);
    disable(Text5, Text16);
}

// --- Ec(max): leaving Beta by the very click that leads here has disabled it

void Desaco::clickText5(host::EventArgs& args)
{
    enable(Text5, Text16);
    clickField(args);
}

// --- Ic(max)

void Desaco::lostText6()
{
    sentBack(Text6, Text5);
}

// --- Rb2

void Desaco::keyText18(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text18, press))
        return;
    hide(sta4, statu22);
    show(statu23, statu24, statu30, sta3);
    goOn(Text18, press);
}

void Desaco::lostText18()
{
    correct(Text18);
    workOutDivider();
    if (at(Text18) < at(Text15) / 1000.0) {
        tell(baseResistorTooLow);
        goTo(Text18);
        // To S as well would be to leave Rb2 once more, which is still too low: boxes without end.
        return;
    }
    sentBack(Text10, Text10);
}

// What would divide by a resistance or a frequency that an odd file has left at 0 stays as it was. Where the supply is too low
// Rb1 comes out below 0, and Zin with it.
void Desaco::workOutDivider()
{
    const Real QIc = takeQIc();
    const Real fo = at(Text12);
    const Real resistor = at(Text15);
    const Real Rb2 = at(Text18);
    const Real BRes = transistorInput(at(Text2), resistor);
    const Real Rin = inputWithoutRb1(Rb2, BRes);
    writeInput(BRes, Rin);
    const Real Vj = at(Text7);
    if (resistor * QIc + Vj <= 0 || fo <= 0)
        return;
    const Real ERb1 = upperBaseVoltage(at(Text16), QIc, at(Text17), resistor, Vj);
    q_.Rb1Computed = fullyBypassedUpperResistor(ERb1, Rin, resistor, QIc, Vj);
    writePreset(q_.Rb1Computed, ERb1);
    if (at(Text9) > 0)
        setText(statu33, shown(couplingMicrofarads(fo, at(Text9) * 1000.0)) + " mf");
    setText(Text20, shown(bypassMicrofarads(QIc, fo)) + " mf");
    if (q_.Rb1Computed == 0 || at(Text2) <= 0)
        return;
    q_.Zin = fullyBypassedInput(at(Text2), QIc, q_.Rb1Computed);
    setText(statu31, " Zin= " + whole(q_.Zin) + "  ohms");
    setText(statu32, shown(couplingMicrofarads(fo, q_.Zin)) + " mf");
}

// --- Rb1

void Desaco::focusText19(host::EventArgs& args)
{
    focusField(args);
    show(SSPanel1);
    writeStability(at(Text15));
}

void Desaco::keyText19(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    correctFrom(Text19, 0.001, 120);
    show(Text20);
    writeBypassCapacitor();
    goOn(Text19, Press::enter);
    showImpedances();
}

void Desaco::lostText19()
{
    if (sentBack(Text19, Text1))
        return;
    correct(Text19);
    // Only an odd file brings the student here without Rb2.
    if (at(Text18) <= 0)
        return;
    const Real QIc = takeQIc();
    q_.passed = obtainsItsCurrent(QIc, obtainedCurrent({.Es = at(Text16),
                                                        .QIc = QIc,
                                                        .ERes = at(Text15) * QIc / 1000.0,
                                                        .RL = at(Text17),
                                                        .Rb1 = at(Text19),
                                                        .Rb2 = at(Text18),
                                                        .Beta = at(Text2)}));
    if (q_.passed)
        return;
    tell(adjustPreset);
    goTo(Text19);
}

} // namespace velmor::desaco
