// SPDX-License-Identifier: MIT
// The chain of `Form10` from the driver's current to the resistors of its base, and the panel of the calculations.
#include "designs/power/form10.h"

namespace velmor::form10 {

// --- Ibias

void Form10::focusText5(host::EventArgs& args)
{
    focusField(args);
    q_.passed = false;
    setText(Text5, stage_.ibias);
}

void Form10::keyText5(host::EventArgs& args)
{
    if (!entered(args))
        return;
    setText(Text6, "Rb1a");
    goTo(Text6);
}

void Form10::lostText5()
{
    takeBias();
    q_.Rd = biasResistor(at(Text5));
    tellLoad();
    setText(Label13, "Rd= " + shown(q_.Rd) + "\nOhms");
}

void Form10::takeBias()
{
    correct(Text5);
    q_.RLtotal = driverLoad(q_.ERl, at(Text5));
}

void Form10::tellLoad()
{
    setText(Label4, "ERl =  " + shown(q_.ERl) + " Volts\nRL(total) : " + shown(q_.RLtotal) + " K");
    setText(Label11, "  Cbb");
    setText(Label12, " Cba");
    write(Label1, stage_.steps);
}

// --- the calculation page

void Form10::clickText6()
{
    takeBase(junctionVoltage);
    disable(Text6);
    showPanel(basePage);
}

// A divisor of zero leaves its quantity as it was.
void Form10::takeBase(Real junction)
{
    q_.passed = false;
    q_.Rb1 = upperBaseResistor(q_.RLtotal);
    q_.ERb1 = upperBaseVoltage(q_.Eq, junction);
    if (q_.Rb1 != 0.0)
        q_.IRb1 = upperBaseCurrent(q_.ERb1, q_.Rb1);
    q_.Ib = baseCurrent(at(Text5));
    q_.IRb2 = lowerBaseCurrent(q_.IRb1, q_.Ib);
    if (q_.IRb2 != 0.0)
        q_.Rb2Calc = lowerBaseResistor(junction, q_.IRb2);
}

// The panel covers the fields: the one in hand is not left by it.
void Form10::showPanel(std::span<const PageRow> page)
{
    hide(Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10);
    setText(SSPanel2, pageText(page));
    host::Place place = placeOf(SSPanel2);
    place.height = pagePlace.height;
    place.width = pagePlace.width;
    setPlaceOf(SSPanel2, place);
    show(SSPanel2, Command1);
    host().SetFocus(*this, Command1);
}

// Where it leads is read from the fields that are enabled.
void Form10::closePage()
{
    hide(SSPanel2);
    show(Text1, Text2, Text3, Text4, Text5, Text6, Text7, Text8, Text9, Text10);
    hide(Label8, Command1);
    disable(Text1, Text10, Text2, Text6);
    if (enabled(Text4) && enabled(Text3) && !enabled(Text7) && !enabled(Text6)) {
        enable(Text8);
        goTo(Text9);
    } else if (!enabled(Text4) && !enabled(Text3)) {
        disable(Text9);
        goTo(Text7);
    } else if (enabled(Text9) && !enabled(Text8)) {
        goTo(Text9);
    }
}

// --- Rb1b, the preset

void Form10::focusText7(host::EventArgs& args)
{
    focusField(args);
    q_.passed = false;
    setText(Text7, "Rb1b");
    tellBase();
    disable(Text8);
}

void Form10::tellBase()
{
    setText(Label8, "Rb1 = " + shown(q_.Rb1) + " K\nERb1 = " + shown(q_.ERb1) + " V");
    show(Label8);
}

void Form10::clickText7()
{
    tell(Text7, When::click);
    setText(Text7, "10");
}

void Form10::keyText7(host::EventArgs& args)
{
    if (!entered(args))
        return;
    write(Label1, fixedRb1a);
    setText(Label1, text(Label1) + shown(q_.Rb1 * 0.75) + words(kilohms));
    correctTo(Text7, 1, q_.Rb1 / 2.0);
    goTo(Text6);
    setText(Text6, "12");
}

void Form10::lostText7()
{
    disable(Text7);
}

void Form10::correctTo(host::Handle field, double from, Real otherwise)
{
    if (at(field) < from)
        setText(field, shown(otherwise));
}

// --- Rb1a

// Until the page has been read Enter goes nowhere, and leaves the field as it is.
void Form10::keyText6(host::EventArgs& args)
{
    const std::string before = text(Text6);
    if (!entered(args))
        return;
    if (!visible(Text7))
        setText(Text6, before);
    else if (!enabled(Text7))
        enterText6();
}

void Form10::enterText6()
{
    correctTo(Text6, 1, q_.Rb1 * 0.75);
    setText(Text8, "1");
    goTo(Text8);
}

void Form10::lostText6()
{
    if (!visible(SSPanel2))
        leaveText6();
}

void Form10::leaveText6()
{
    if (enabled(Text7) || enabled(Text6))
        return;
    correctTo(Text6, 1, q_.Rb1 * 0.75);
    setText(Text8, "Rb2");
    show(Text8);
    enable(Text8);
}

// --- Rb2

void Form10::focusText8(host::EventArgs& args)
{
    focusField(args);
    setText(Label1, words(valueOfRb2) + shown(q_.Rb2Calc / 1000.0) + words(kilohms));
    disable(Text6, Text7);
}

void Form10::keyText8(host::EventArgs& args)
{
    if (!entered(args))
        return;
    setText(Text3, "");
    goTo(Text3);
}

void Form10::lostText8()
{
    correctTo(Text8, 1, q_.Rb2Calc / 1000.0);
    enable(Text3, Text4);
    if (enabled(Text7))
        return;
    tellBase();
    setText(Label9, "IRb1 = " + shown(q_.IRb1 * 1000000.0) + " microÄ\nIb = " + shown(q_.Ib * 1000000.0) + " microA");
    setText(Label10, "IRb2 = " + shown(q_.IRb2) + " microA\nRb2 = " + shown(q_.Rb2Calc / 1000.0) + " K");
    show(Label9, Label10);
}

} // namespace velmor::form10
