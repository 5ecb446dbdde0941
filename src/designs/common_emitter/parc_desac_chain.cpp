// SPDX-License-Identifier: MIT
// The chain of `ParcDesac` as far as it differs from that of `desaco`, up to the frequency: the split resistor, the negative
// supply, and the gain that the part without bypass fixes.
#include "designs/common_emitter/parc_desac.h"

namespace velmor::parc_desac {

using namespace common_emitter; // NOLINT(google-build-using-namespace): formulas and texts of the family

// --- Delta QIc

// The capacitor is part of this circuit from the start; the bypass of the whole resistor is not offered.
void ParcDesac::focusText1(host::EventArgs& args)
{
    focusField(args);
    clearDrawing();
    show(Image2);
    disableChain();
    write(SSPanel1, enabled(Text19) ? varyRb1Prompt : desaco::startPrompt);
}

void ParcDesac::lostText1()
{
    Desaco::lostText1();
    if (!visible(Picture6))
        return;
    if (visible(Picture11)) {
        hide(Picture1, Picture10, Picture11, Picture6);
    } else {
        hide(Picture6);
        show(Picture1);
    }
}

// --- T

void ParcDesac::focusText3(host::EventArgs& args)
{
    const bool bypassOffered = visible(Picture6);
    Desaco::focusText3(args);
    if (bypassOffered)
        hide(Picture10);
}

// --- QIc

// Worked out anew wherever it is needed; only an odd file brings an allowed drift of 0.
Real ParcDesac::stability()
{
    if (at(Text1) > 0)
        q_.ERes = sheets::stabilityVoltage(at(Text3), at(Text4), at(Text1));
    return q_.ERes;
}

Real ParcDesac::totalResistor()
{
    return sheets::emitterResistor(stability(), takeQIc());
}

Real ParcDesac::leastUnbypassed()
{
    return rules::ParseLeadingNumber(digits(sheets::junctionResistance(takeQIc()) * 10.0));
}

void ParcDesac::keyText8(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text8, press))
        return;
    correct(Text8);
    if (polarisedByEmitter())
        askForEmitterSupply(press);
    else
        askForUnbypassed(press);
}

void ParcDesac::askForEmitterSupply(Press press)
{
    if (press == Press::escape)
        show(Label19, Text21, res);
    goTo(Text21);
}

// Esc takes 1 mA and tells r'e alone; the whole resistor is told to who asks with Enter.
void ParcDesac::askForUnbypassed(Press press)
{
    writeJunctionResistance();
    if (press == Press::enter) {
        workOutERes();
        setText(res, " Valor total del resistor Res :\n" + shown(totalResistor()) + " ohms");
        hide(sta1, status40);
        show(res);
    }
    goOn(Text8, press);
}

// A tenth of the whole resistor is proposed to stay without bypass.
void ParcDesac::lostText8()
{
    Desaco::lostText8();
    if (isEmpty(Text8))
        return;
    write(Text15, sheets::emitterResistor(q_.ERes, currentInHand()) / 10.0);
    writeJunctionResistance(currentInHand());
}

// --- -Es, of a stage polarised by emitter

void ParcDesac::keyText21(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text21, press))
        return;
    correct(Text21);
    writeJunctionResistance();
    show(res, statu17);
    const Real resistor = sheets::emitterResistor(at(Text21), takeQIc());
    goOn(Text21, press);
    write(Text15, resistor);
}

// --- Res, the part without bypass

void ParcDesac::keyText15(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    if (hasEmitterSupply()) {
        correctFrom(Text15, 0.01, 0.01);
        goOnByEmitterSupply();
        return;
    }
    const Real least = leastUnbypassed();
    correctFrom(Text15, least.value(), least.value());
    hide(Label19, sta1);
    setText(VRes, digits(stability()) + "  Volt");
    enable(Text6);
    goOn(Text15, Press::enter);
}

void ParcDesac::lostText15()
{
    if (at(Text15) >= leastUnbypassed())
        return;
    tell(resistorTooLow);
    goTo(Text15);
}

// --- Vg, and the test of the load

void ParcDesac::lostText11()
{
    if (sentBack(Text11, Text10))
        return;
    correct(Text11);
    const Real load = at(Text9) * 1000.0;
    if (!visible(Picture6) && !visible(Picture1))
        q_.RLac = unbypassedLoad(at(Text11), at(Text15));
    else if (visible(Picture1))
        q_.RLac = fullyBypassedLoad(at(Text11), takeQIc());
    setText(statu18, " (Rlac)=           " + digits(q_.RLac) + "  ohms");
    if (!leavesCurrentForRL(load))
        return;
    const Real RL = workOutRL(load);
    if (RL < 0.501)
        refuseRL(RL);
}

void ParcDesac::refuseRL(Real RL)
{
    refuseLoad(desaco::smallLoad);
    const bool whole = visible(Picture1);
    const bool byEmitter = polarisedByEmitter();
    if (whole || (byEmitter && RL > 0 && RL < 0.01)) {
        tell(desaco::tinyLoad);
        hide(status40);
        goTo(Text8);
    }
    if (whole || (byEmitter && RL <= 0)) {
        tell(lowerGain);
        hide(status40);
        goTo(Text8);
    }
}

// --- RL

void ParcDesac::lostText17()
{
    if (at(Text17) >= at(Text9)) {
        tell(loadLowersGain);
        held_.Vg = held_.Vg - held_.Vg * 30.0 / 100.0;
    }
    write(Text11, held_.Vg);
}

// --- fo, the real gain, and the capacitor

void ParcDesac::focusText12(host::EventArgs& args)
{
    const Real realLoad = showRealLoad(args);
    if (realLoad <= 0 || at(Text15) <= 0)
        return;
    held_.Vg = realGain(realLoad, at(Text15));
    setText(Text11, shown(held_.Vg));
}

void ParcDesac::lostText12()
{
    correct(Text12);
    const Real bypassed = totalResistor() - at(Text15);
    if (bypassed != 0)
        setText(sta1, whole(couplingMicrofarads(at(Text12), bypassed)) + "\nmicroF");
    show(sta1);
}

} // namespace velmor::parc_desac
