// SPDX-License-Identifier: MIT
// The chain of `desaco` from the allowed drift to the gain that the standard RL really gives: stability, emitter resistor, load,
// and the test of the load.
#include "designs/common_emitter/desaco.h"

namespace velmor::desaco {

using namespace common_emitter; // NOLINT(google-build-using-namespace): formulas and texts of the family

// --- Delta QIc

// The design starts over: later fields are disabled, not cleared.
void Desaco::focusText1(host::EventArgs& args)
{
    focusField(args);
    clearDrawing();
    show(Picture6);
    disableChain();
    write(SSPanel1, enabled(Text19) ? varyRb1Prompt : startPrompt);
}

void Desaco::lostText1()
{
    correct(Text1);
    host().values().TemperaturaCompartida = 75;
}

// --- T

void Desaco::focusText3(host::EventArgs& args)
{
    focusField(args);
    write(Text3, rules::RoundToInt16(host().values().TemperaturaCompartida));
    if (visible(Picture6))
        hide(Picture6, Picture1);
    disable(Text18, Text19);
    hide(Label24);
}

// --- Delta Vbe

void Desaco::lostText4()
{
    if (sentBack(Text4, Text3))
        return;
    correct(Text4);
    enable(Voltaje);
    workOutERes();
}

// --- QIc

void Desaco::keyText8(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text8, press))
        return;
    correct(Text8);
    showIdealResistor(" ohms");
    goOn(Text8, press);
}

void Desaco::lostText8()
{
    if (isEmpty(Text8))
        tell(Text8, When::empty);
    else
        leaveCurrent();
}

// Less than the least current counts as 1 mA, and stays as it was typed.
Real Desaco::currentInHand() const
{
    return at(Text8) < chainRow(Text8).from ? Real(chainRow(Text8).otherwise) : at(Text8);
}

void Desaco::leaveCurrent()
{
    workOutERes();
    show(Text15, Text18);
    write(Text15, sheets::emitterResistor(q_.ERes, currentInHand()));
}

// --- Res

void Desaco::keyText15(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    correctFrom(Text15, 0.01, 0.01);
    const Real resistor = at(Text15);
    if (belowOneOhm(resistor))
        write(res, sheets::emitterResistor(q_.ERes, takeQIc()));
    else
        hide(Label19);
    takeStandardResistor(resistor);
}

// --- RLw

void Desaco::lostText9()
{
    correct(Text9);
    setText(statu35, "RLw " + text(Text9) + " K");
    show(statu35);
}

// --- S

void Desaco::keyText10(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text10, press))
        return;
    if (press == Press::escape)
        hide(status40);
    goOn(Text10, press);
}

// --- Vg, and the test of the load

void Desaco::keyText11(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text11, press))
        return;
    hide(status40);
    if (press == Press::escape)
        hide(sta2);
    else
        show(ER);
    show(statu18, statu19);
    goOn(Text11, press);
}

void Desaco::lostText11()
{
    if (sentBack(Text11, Text10))
        return;
    correct(Text11);
    const Real load = at(Text9) * 1000.0;
    q_.RLac = fullyBypassedLoad(at(Text11), takeQIc());
    setText(statu18, " (Rlac)=           " + digits(q_.RLac) + "  ohms");
    if (!leavesCurrentForRL(load))
        return;
    const Real RL = workOutRL(load);
    if (RL >= 0.501)
        return;
    refuseLoad(smallLoad);
    if (RL >= 0.01 || RL <= 0)
        return;
    tell(tinyLoad);
    hide(status40);
    goTo(Text8);
}

// --- fo, and the gain that the standard RL really gives

void Desaco::focusText12(host::EventArgs& args)
{
    const Real realLoad = showRealLoad(args);
    if (realLoad > 0)
        setText(Text11, shown(fullyBypassedGain(realLoad, takeQIc())));
}

} // namespace velmor::desaco
