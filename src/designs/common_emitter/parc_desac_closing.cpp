// SPDX-License-Identifier: MIT
// The chain of `ParcDesac` from the supply to its end as far as it differs from that of `desaco`: supply, the divider of the base,
// and what closes each of the circuits.
#include "designs/common_emitter/emitter_formulas.h"
#include "designs/common_emitter/parc_desac.h"

namespace velmor::parc_desac {

using namespace common_emitter; // NOLINT(google-build-using-namespace): formulas and texts of the family

// --- Es

void ParcDesac::keyText16(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (press == Press::escape)
        escapeSupply();
    else if (press == Press::enter && polarisedByEmitter())
        enterSupplyByEmitter();
    else if (press == Press::enter)
        enterSupplyByBase();
}

void ParcDesac::enterSupplyByBase()
{
    hide(statu21);
    correct(Text16);
    const Real Eq = partlyBypassedVoltage(at(Text16), stability(), takeQIc(), at(Text17));
    if (supplyIsTooLow(Eq)) {
        backToOutput();
        return;
    }
    writeEq(Eq);
    if (!overTransistorLimit(Eq, rules::RoundToInt16(at(Text5))))
        acceptSupply();
}

void ParcDesac::enterSupplyByEmitter()
{
    const Real Eq = collectorEmitterVoltageByEmitter(at(Text16), takeQIc(), at(Text17));
    if (supplyIsTooLow(Eq)) {
        goTo(Text16);
        return;
    }
    writeEq(Eq);
    if (overTransistorLimit(Eq, rules::RoundToInt16(at(Text5))))
        return;
    hide(Label19);
    show(statu25);
    write(STA70, betaByEmitter);
    goTo(Text2);
}

// By emitter the usual supply is written, and to be entered.
void ParcDesac::escapeSupply()
{
    hide(statu21);
    if (polarisedByEmitter()) {
        setText(Text16, "10");
        return;
    }
    setText(Text16, "25");
    const Real Eq = escapedVoltage(25, takeQIc(), at(Text15), at(Text17));
    if (Eq < 1) {
        write(statu25, tooLowAtEscape);
        return;
    }
    writeEq(Eq);
    show(statu25);
    goOn(Text16, Press::escape);
}

void ParcDesac::lostText16()
{
    if (isEmpty(Text16))
        tell(Text16, When::empty);
    else
        leaveSupply(totalResistor());
}

// --- Rb2

void ParcDesac::keyText18(host::EventArgs& args)
{
    if (unbypassed()) {
        Desaco::keyText18(args);
        return;
    }
    if (pressed(args) != Press::enter)
        return;
    write(STA70, sameImpedance);
    write(statu24, noUpperResistorAtEnter);
    show(statu24);
    goTo(Text19);
}

void ParcDesac::lostText18()
{
    correct(Text18);
    workOutPartlyBypassed();
    sentBack(Text10, Text10);
}

void ParcDesac::workOutPartlyBypassed()
{
    const Real BRes = transistorInput(at(Text2), totalResistor());
    const Real Rin = partlyBypassedInput(at(Text18), BRes);
    writeInput(BRes, Rin / 1000.0);
    const Real Vj = at(Text7);
    if (stability() + Vj <= 0)
        return;
    const Real ERb1 = partlyBypassedUpperVoltage(at(Text16), totalResistor(), takeQIc(), at(Text17), Vj);
    const Real Rb1 = partlyBypassedUpperResistor(ERb1, Rin, stability(), Vj);
    q_.Rb1Computed = Rb1;
    if (!polarisedByEmitter())
        writePreset(Rb1 / 1000.0, ERb1);
    else
        setText(statu30, digits(ERb1) + " Volts");
    // Without a supply there is no divider yet: its resistances would cancel each other.
    if (ERb1 > 0 && at(Text15) > 0 && at(Text2) > 0 && at(Text12) > 0)
        workOutImpedances(Rb1);
    if (at(Text9) > 0 && at(Text12) > 0)
        setText(statu33, whole(couplingMicrofarads(at(Text12), at(Text9) * 1000.0)) + " mf");
}

// What odd units a formula has is told beside it.
void ParcDesac::workOutImpedances(Real Rb1)
{
    const Real Beta = at(Text2);
    const Real resistor = at(Text15);
    const Real Rb2 = at(Text18);
    const Real fo = at(Text12);
    q_.Zin = partlyBypassedImpedance(Rb2, Rb1, Beta, resistor);
    q_.ZinBoot = inputImpedanceBootstrapped(Beta, resistor, Rb2, Rb1);
    const Real first = inputImpedanceFirstBootstrap(Beta, resistor, Rb2, Rb1);
    setText(statu31, " Zin= " + whole(q_.Zin * 1000.0) + "  ohms");
    setText(statu61, "Zin (Cbp1)= " + whole(first) + "  K " + "\n" + "Zin (Cbp1 y Cbp2)= " + whole(q_.ZinBoot) + " K");
    setText(statu32, whole(couplingMicrofarads(fo, q_.Zin * 1000.0)) + " mf");
    setText(statu62, whole(couplingMicrofarads(fo, q_.ZinBoot)) + " mf");
    setText(statu71, "Cbp1=" + shown(firstBootstrapCapacitor(Rb2, fo)));
}

// --- Rb1

void ParcDesac::focusText19(host::EventArgs& args)
{
    focusField(args);
    show(SSPanel1);
    if (!unbypassed())
        write(SSPanel1, capacitorHelp);
    writeStability(totalResistor());
}

void ParcDesac::keyText19(host::EventArgs& args)
{
    // Without Rb1 there is nothing to fill in.
    const bool mayBeEmpty = !unbypassed();
    if (mayBeEmpty && isEmpty(Text19)) {
        if (filteredKey(args) != sheets::enterKey)
            return;
    } else if (pressed(args) != Press::enter) {
        return;
    }
    correctFrom(Text19, 0.001, 120);
    if (unbypassed()) {
        show(Picture2, Picture8);
        write(STA70, bootstrapHint);
    } else if (polarisedByEmitter() && !visible(Picture6)) {
        finishByEmitter();
        return;
    } else {
        hide(Picture1, Picture6, Picture2, Picture7);
        show(Text20);
        writeBypassCapacitor();
        write(STA70, noBootstrapHint);
    }
    showImpedances();
}

void ParcDesac::finishByEmitter()
{
    writeImpedanceByEmitter();
    setText(statu33, shown(couplingMicrofarads(at(Text12), at(Text9)) / 1000.0) + " mf");
    writeBypassCapacitor();
    write(STA70, noBootstrapHint);
    show(Picture8);
    hide(Picture2);
}

void ParcDesac::lostText19()
{
    if (unbypassed() && sentBack(Text19, Text1))
        return;
    correct(Text19);
    if (polarisedByEmitter()) {
        closeByEmitter();
    } else if (visible(Picture1)) {
        closeBypassed();
    } else {
        hide(Picture2, Picture7);
        // Only an odd file brings the student here without Rb2.
        if (at(Text18) <= 0)
            return;
        q_.passed = presetGivesItsCurrent();
        if (q_.passed)
            return;
        tell(adjustPreset);
        goTo(Text19);
    }
}

bool ParcDesac::presetGivesItsCurrent()
{
    const Real QIc = takeQIc();
    return obtainsItsCurrent(QIc, obtainedCurrent({.Es = at(Text16),
                                                   .QIc = QIc,
                                                   .ERes = stability(),
                                                   .RL = at(Text17),
                                                   .Rb1 = at(Text19),
                                                   .Rb2 = at(Text18),
                                                   .Beta = at(Text2),
                                                   .Vj = at(Text7)}));
}

void ParcDesac::closeByEmitter()
{
    show(Label20);
    write(statu24, noUpperResistor);
    writeEbias();
    hide(Picture2);
    q_.passed = true;
}

void ParcDesac::closeBypassed()
{
    write(statu24, adjustPresetAdvice);
    setText(Label24, shown(q_.QIcCheck) + " mA");
    show(Label24);
    goTo(Text2);
    hide(Picture1, Picture6, Picture2, Picture7);
    q_.passed = true;
}

} // namespace velmor::parc_desac
