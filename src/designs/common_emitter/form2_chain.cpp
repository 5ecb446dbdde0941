// SPDX-License-Identifier: MIT
// The chain of `Form2` from the allowed drift to the gain: stability, emitter resistor, load, and the test of its load.
#include "designs/common_emitter/emitter_formulas.h"
#include "designs/common_emitter/form2.h"
#include "sheets/formulas.h"

namespace velmor::form2 {

using namespace common_emitter; // NOLINT(google-build-using-namespace): formulas and texts of the family
using sheets::emitterResistor;
using sheets::When;

// --- Delta QIc

void Form2::focusText1(host::EventArgs& args)
{
    focusField(args);
    clearDrawing();
    show(Picture6);
    hide(Label21);
    write(SSPanel1, enabled(Text19) ? varyRb1Prompt : startPrompt);
    disableChain();
}

void Form2::clickText1()
{
    setTag(Text1, "0");
    show(Picture11, Picture6);
    hide(Label21);
}

void Form2::lostText1()
{
    hide(Label24);
    correct(Text1);
    if (!unbypassed()) {
        if (visible(Picture6))
            hide(Picture6);
        else
            show(Picture1, Image2);
    }
    if (visible(Picture11) && visible(Picture6))
        hide(Picture6, Picture11, Picture10, Picture1);
    host().values().TemperaturaCompartida = 75;
}

// --- T

void Form2::focusText3(host::EventArgs& args)
{
    focusField(args);
    write(Text3, rules::RoundToInt16(host().values().TemperaturaCompartida));
    if (visible(Picture6))
        hide(Picture6, Picture1, Picture10);
    disable(Text18, Text19);
    hide(Label24);
    show(SSPanel1);
}

void Form2::keyText3(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text3, press))
        return;
    if (press == Press::escape)
        host().Unload("Form21");
    goOn(Text3, press);
}

// --- Delta Vbe

void Form2::keyText4(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text4, press))
        return;
    goOn(Text4, press);
    host().Unload("Form21");
}

void Form2::lostText4()
{
    enable(Voltaje);
    correct(Text4);
    workOutERes();
}

// --- QIc

void Form2::keyText8(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text8, press))
        return;
    correct(Text8);
    if (polarisedByEmitter())
        askForEmitterSupply(press);
    else
        askForEmitterResistor(press);
}

void Form2::askForEmitterSupply(Press press)
{
    if (press == Press::escape)
        show(Label19);
    goTo(Text21);
    hide(res);
}

void Form2::askForEmitterResistor(Press press)
{
    showIdealResistor(press == Press::escape ? " ohms, " : " ohms");
    goOn(Text8, press);
}

void Form2::lostText8()
{
    correct(Text8);
    show(Text15, Text18);
    write(Text15, emitterResistor(q_.ERes, takeQIc()));
}

// --- -Es, of a stage polarised by emitter

void Form2::keyText21(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text21, press))
        return;
    correct(Text21);
    const Real resistor = emitterResistor(at(Text21), takeQIc());
    setText(res, shown(resistor) + " ohms");
    writeJunctionResistance();
    show(res, statu17);
    hide(sta1);
    goOn(Text21, press);
    write(Text15, resistor);
}

// --- Res

void Form2::keyText15(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text15, press))
        return;
    correctFrom(Text15, 0.01, 0.01);
    if (hasEmitterSupply())
        goOnByEmitterSupply();
    else
        enterStandardResistor();
}

void Form2::enterStandardResistor()
{
    const Real resistor = takeRes();
    if (belowOneOhm(resistor)) {
        workOutERes();
        setText(res, shown(emitterResistor(q_.ERes, takeQIc())) + " ohms");
    } else {
        hide(Label19);
    }
    takeStandardResistor(resistor);
}

// --- RLw

void Form2::lostText9()
{
    correct(Text9);
    q_.RLw = takeRLw() * 1000.0;
    setText(statu35, "RLw " + text(Text9) + " K");
}

// --- S

void Form2::lostText10()
{
    if (!sentBack(Text10, emptyLeft, Text9))
        correct(Text10);
}

// --- Vg, and the test of the load

void Form2::focusText11(host::EventArgs& args)
{
    focusField(args);
    host().setVisible("Form21", "SSCommand1", false);
    host().setText("Form21", "SSCommand1", " Vg..");
}

void Form2::keyText11(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text11, press))
        return;
    hide(status40);
    show(ER, statu18, statu19);
    goOn(Text11, press);
}

void Form2::lostText11()
{
    if (sentBack(Text11, emptyGain, Text10))
        return;
    correct(Text11);
    if (!workOutRLac())
        return;
    const Real RL = workOutRL(q_.RLw);
    if (RL < 0.501)
        refuseRL(RL);
}

// False when no current is left for RL: the load that the gain asks for is as large as RLw itself.
bool Form2::workOutRLac()
{
    if (unbypassed())
        q_.RLac = unbypassedLoad(takeVg(), takeRes());
    else if (bypassedByBase() || polarisedByEmitter())
        q_.RLac = bypassedLoad(takeVg(), takeQIc());
    setText(statu18, " (Rlac)=           " + shown(q_.RLac) + "  ohms");
    return leavesCurrentForRL(q_.RLw);
}

void Form2::refuseRL(Real RL)
{
    refuseLoad(loadImpossible);
    if (visible(Picture1) || (visible(Picture10) && RL > 0 && RL < 0.01))
        tell(raiseGain);
    else if (visible(Picture10) && RL <= 0)
        tell(lowerGain);
    else
        return;
    hide(status40);
    goTo(Text8);
}

} // namespace velmor::form2
