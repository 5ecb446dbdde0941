// SPDX-License-Identifier: MIT
// The closing of `Form2`: the transistor's data, the divider of the base, and the loop in which the student turns the preset
// until the collector current is the one designed.
#include "designs/common_emitter/emitter_formulas.h"
#include "designs/common_emitter/form2.h"
#include "sheets/formulas.h"

namespace velmor::form2 {

using namespace common_emitter; // NOLINT(google-build-using-namespace): formulas and texts of the family
using sheets::When;

// --- Beta

void Form2::focusText2(host::EventArgs& args)
{
    focusField(args);
    enable(Text16);
}

// --- Ic(max)

void Form2::lostText6()
{
    if (isEmpty(Text6))
        goTo(Text5);
    else
        correct(Text6);
}

// --- Rb2

void Form2::keyText18(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    if (unbypassed()) {
        hide(sta4, statu22);
        show(statu23, statu24, statu30, sta3);
        tell(Text18, When::enter);
    } else {
        write(statu24, noUpperResistorAtEnter);
        show(statu24);
    }
    goTo(Text19);
}

void Form2::lostText18()
{
    correct(Text18);
    sentBack(Text10, emptyLeft, Text10);
    const Real emitter = visible(Picture1) ? sheets::junctionResistance(takeQIc()) : takeRes();
    const Real BRes = transistorInput(takeBeta(), emitter);
    const Real Rin = inputWithoutRb1(takeRb2(), BRes);
    writeInput(BRes, Rin);
    if (polarisedByEmitter()) {
        show(Label20);
        write(statu24, noUpperResistor);
    } else {
        workOutDivider(BRes, Rin);
    }
    writeCapacitors();
    if (takeRb2() < takeRes() / 1000.0)
        tell(baseResistorTooLow);
    write(Text19, q_.Rb1Computed);
}

void Form2::workOutDivider(Real BRes, Real Rin)
{
    const Real ERb1 = upperBaseVoltage(at(Text16), takeQIc(), at(Text17), takeRes(), at(Text7));
    const Real Rb1 = upperBaseResistor(ERb1, Rin, takeRes(), takeQIc(), at(Text7));
    q_.Rb1Computed = Rb1;
    writePreset(Rb1, ERb1);
    // A student who comes here before there is a supply has no divider yet: its resistances would cancel each other.
    if (ERb1 <= 0)
        return;
    const Real Rb2 = takeRb2();
    q_.Zin = visible(Picture1) ? inputImpedanceBypassed(Rb2, Rb1, BRes) : inputImpedance(Rin, Rb1);
    q_.ZinBoot = inputImpedanceBootstrapped(takeBeta(), takeRes(), Rb2, Rb1);
    setText(statu31, " Zin= " + whole(q_.Zin * 1000.0) + "  ohms");
    const Real first = inputImpedanceFirstBootstrap(takeBeta(), takeRes(), Rb2, Rb1);
    setText(statu61, "Zin (Cbp1)= " + whole(first) + "  K " + "\n" + "Zin (Cbp1 y Cbp2)= " + whole(q_.ZinBoot) + " K");
}

// In every mode; what would divide by an impedance that was never worked out stays as it is.
void Form2::writeCapacitors()
{
    const Real fo = at(Text12);
    setText(statu71, "Cbp1=" + shown(firstBootstrapCapacitor(takeRb2(), fo)));
    if (q_.Zin != 0)
        setText(statu32, shown(couplingMicrofarads(fo, q_.Zin) / 1000.0) + " mf");
    setText(statu33, shown(couplingMicrofarads(fo, takeRLw()) / 1000.0) + " mf");
    if (q_.ZinBoot != 0)
        setText(statu62, whole((couplingMicrofarads(fo, q_.ZinBoot) / 1000.0) * 1000.0) + " nf");
}

// --- Rb1

void Form2::focusText19(host::EventArgs& args)
{
    focusField(args);
    show(SSPanel1);
    writeStability(takeRes());
}

void Form2::keyText19(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    correct(Text19);
    if (unbypassed())
        finishUnbypassed();
    else if (polarisedByEmitter())
        finishByEmitter();
    else if (bypassedByBase())
        finishBypassed();
    showImpedances();
}

void Form2::finishUnbypassed()
{
    show(Picture2);
    goTo(Picture4);
    write(STA70, bootstrapHint);
}

void Form2::finishByEmitter()
{
    writeImpedanceByEmitter();
    setText(statu33, shown(couplingMicrofarads(at(Text12), takeRLw() * 1000.0)) + " mf");
    writeBypassCapacitor();
    write(STA70, noBootstrapHint);
    goTo(Picture4);
    disable(Picture2);
}

void Form2::finishBypassed()
{
    hide(Picture1, Picture6, Picture2, Picture7);
    show(Text20);
    writeBypassCapacitor();
    write(STA70, noBootstrapHint);
    disable(Picture2);
}

void Form2::lostText19()
{
    if (!unbypassed()) {
        closeByEmitter();
        q_.passed = true;
        return;
    }
    correct(Text19);
    q_.passed = presetGivesItsCurrent();
    if (q_.passed)
        return;
    tell(adjustPreset);
    goTo(Text19);
}

bool Form2::presetGivesItsCurrent()
{
    const Real wanted = takeQIc();
    return obtainsItsCurrent(wanted, obtainedCurrent({.Es = at(Text16),
                                                      .QIc = wanted,
                                                      .ERes = takeRes() * (wanted / 1000.0),
                                                      .RL = at(Text17),
                                                      .Rb1 = at(Text19),
                                                      .Rb2 = takeRb2(),
                                                      .Beta = takeBeta()}));
}

// Without Rb1 nothing is to be adjusted: what is left to tell is the voltage of the emitter.
void Form2::closeByEmitter()
{
    const bool bypassed = bypassedByBase();
    writeEbias();
    disable(Picture2);
    goTo(Picture4);
    if (!bypassed)
        return;
    goTo(Text2);
    hide(Picture1, Picture6, Picture2, Picture7);
}

} // namespace velmor::form2
