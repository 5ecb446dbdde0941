// SPDX-License-Identifier: MIT
// The data of `Form17`'s design: frequency, transistor, generator, load, signal and quiescent current.
#include "designs/base_collector/follower_formulas.h"
#include "designs/base_collector/form17.h"
#include "designs/base_collector/form17_texts.h"
#include "sheets/formulas.h"

namespace velmor::form17 {

// --- fo

void Form17::focusText12(host::EventArgs& args)
{
    focusField(args);
    show(Picture3);
    hide(Picture1, Picture2);
    setText(Label20, "  Res");
    setText(Label21, "Rb2");
    setText(Label24, "Rb1");
    setText(Label23, "    T1");
    setText(Label30, "RLw");
    show(Label20, Label21, Label24, Label23, Label30, SSPanel2);
}

// --- Ec(max)

void Form17::keyText5(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    correct(Text5);
    if (base_collector::transistorRoom(Eopp()) > at(Text5))
        tell(outputOverTransistor);
    else
        goOnFrom(Text5);
}

// --- Vbe

void Form17::lostText7(host::EventArgs& args)
{
    leaveField(args);
    std::string advice(pick(base_collector::leastSupplyAbove));
    advice += shown(base_collector::leastSupply(Eopp()));
    setText(Label19, advice.append(pick(base_collector::leastSupplyBelow)));
    show(Label19);
}

// --- Rg, which may be changed again at the end

void Form17::keyText4(host::EventArgs& args)
{
    if (pressed(args) == Press::enter)
        goTo(enabled(Text17) ? Text17 : Text9);
}

// --- RLw

void Form17::keyText9(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    setText(Label30, " Rlw=" + digits(at(Text9)) + "K");
    show(Label30);
    goOnFrom(Text9);
}

void Form17::lostText9(host::EventArgs& args)
{
    leaveField(args);
    q_.RLw = at(Text9);
}

void Form17::clickText9()
{
    rewrite(Text9, digits(q_.RLw));
}

// --- Eopp

void Form17::focusText13(host::EventArgs& args)
{
    focusField(args);
    disable(Text7, Text2);
}

void Form17::lostText13(host::EventArgs& args)
{
    leaveField(args);
    rewrite(Text11, "1");
}

// --- Ein

// A gain of nothing, from an odd file, leaves the field as it is.
void Form17::proposeEin()
{
    if (at(Text11) != 0)
        rewrite(Text14, shown(sheets::inputForOutput(Eopp(), at(Text11))));
}

void Form17::focusText14(host::EventArgs& args)
{
    focusField(args);
    proposeEin();
}

void Form17::clickText14()
{
    proposeEin();
}

void Form17::lostText14()
{
    if (at(Text14) < 0.000001)
        rewrite(Text14, digits(Eopp() / 2.0 * 0.707));
    else
        rewrite(Text13, shown(sheets::outputForInput(at(Text14), 1.0)));
}

// --- QIc

void Form17::focusText8(host::EventArgs& args)
{
    focusField(args);
    if (at(Text9) != 0) {
        q_.QIc = quiescentCurrent(Eopp(), at(Text9));
        rewrite(Text8, shown(q_.QIc));
    }
    if (overTransistorCurrent(q_.QIc))
        disable(Text8);
}

// Sends the student to another transistor.
bool Form17::overTransistorCurrent(Real QIc)
{
    if (QIc <= largestCurrent(at(Text6)))
        return false;
    tell(currentOverTransistor);
    goTo(Text6);
    return true;
}

void Form17::clickText8()
{
    rewrite(Text8, shown(q_.QIc));
}

// --- Vg, which is one

void Form17::lostText11()
{
    rewrite(Text11, "1");
}

void Form17::keyText11(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    tell(unityGain);
    rewrite(Text11, "1");
    goTo(Text14);
}

} // namespace velmor::form17
