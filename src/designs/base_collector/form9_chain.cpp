// SPDX-License-Identifier: MIT
// The data of `Form9`'s design: generator, current, load, signal and transistor.
#include "designs/base_collector/follower_formulas.h"
#include "designs/base_collector/form9.h"
#include "designs/base_collector/form9_texts.h"
#include "sheets/formulas.h"

namespace velmor::form9 {

// --- Rg, which may be changed again at the end

void Form9::focusText4(host::EventArgs& args)
{
    focusField(args);
    setText(Label21, "\nRb2");
    setText(Label20, "\nRes");
    show(SSPanel2);
}

void Form9::keyText4(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    if (!enabled(Text8)) {
        goTo(Text17);
        return;
    }
    show(Text16, Text15);
    goTo(Text8);
}

// --- RLw

void Form9::keyText9(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    const std::string load = text(Text9) + "\nK";
    setText(Label30, load);
    setText(Label31, load);
    show(Label30, Label31);
    goTo(Text13);
}

// --- Eopp

void Form9::lostText13(host::EventArgs& args)
{
    leaveField(args);
    rewrite(Text11, "1");
}

// --- Ein

// A gain of nothing leaves the field as it is.
void Form9::proposeEin()
{
    if (at(Text11) != 0)
        rewrite(Text14, shown(sheets::inputForOutput(Eopp(), at(Text11))));
}

void Form9::focusText14(host::EventArgs& args)
{
    focusField(args);
    proposeEin();
}

void Form9::clickText14()
{
    proposeEin();
}

void Form9::lostText14()
{
    if (at(Text14) < 0.000001)
        rewrite(Text14, digits((Eopp() / 2.0) * 0.707));
    rewrite(Text13, shown(sheets::outputForInput(at(Text14), 1.0)));
}

// --- Ec(max)

void Form9::keyText5(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    correct(Text5);
    q_.EQ = base_collector::transistorRoom(Eopp());
    if (q_.EQ > at(Text5))
        tell(outputOverTransistor);
    else
        goTo(Text6);
}

// --- Ic(max)

void Form9::keyText6(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    if (at(Text8) > at(Text6))
        tell(currentOverTransistor);
    else
        goTo(Text7);
}

// --- Vj: one too small is a germanium junction, one too large one of silicon

void Form9::lostText7()
{
    if (at(Text7) < 0.2)
        rewrite(Text7, digits(0.2));
    else if (at(Text7) > 0.7)
        rewrite(Text7, digits(0.6));
    proposeSupply();
    show(Label19);
}

// --- Vg, which is one

void Form9::keyText11(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    tell(unityGain);
    rewrite(Text11, "1");
    goTo(Text14);
}

} // namespace velmor::form9
