// SPDX-License-Identifier: MIT
// `Form15` from the driver's collector resistor to the generator: RL, the divided Rb1, Rb2 with all that hangs on it, Rs.
#include "designs/power/form15.h"

#include "sheets/formulas.h"

namespace velmor::form15 {

using host::Handle;
using sheets::Press;

// --- RL

void Form15::focusText5(host::EventArgs& args)
{
    focusField(args);
    showZinQ2(RLw() * at(Text10));
}

void Form15::showZinQ2(Real Zin)
{
    q_.ZinQ2 = Zin;
    setText(Label19, "Zin= " + whole(q_.ZinQ2) + " Ohm");
}

// A supply that leaves nothing for RL cannot be mended by any RL: that is told once, then the way to Es is free, and Enter leads there.
void Form15::keyText5(host::EventArgs& args)
{
    if (pressed(args) == Press::enter)
        goTo(supplyIsBlamed() ? Text4 : Text6);
}

void Form15::lostText5()
{
    correctBelow(Text5, loadStability * RLw());
    if (supplyIsBlamed() || !outputIsLight())
        return;
    takeLeastDriver(RLw() * at(Text10));
    setText(Label15, words(texts::leastDriver) + text(Text10) + words(texts::leastDriverIs) + shown(q_.QIc1Min) + " A");
    if (driverIsStrong(texts::fortyPercent))
        divideRb1();
}

// False when the output is too heavy for RL; the student stays at RL.
bool Form15::outputIsLight()
{
    return at(Text5) * 10.0 > q_.ZinQ2 ? weakDriver() : true;
}

void Form15::takeLeastDriver(Real Zin)
{
    divide(q_.QIc1Min, q_.Eopp, Zin);
}

// False when Q1 gives less than the least; the student stays at RL. More than 40 % is told, and the chain goes on.
bool Form15::driverIsStrong(const sheets::Saying& tooMuch)
{
    divide(q_.QIc1, q_.ERL, at(Text5));
    if (q_.QIc1Min > q_.QIc1)
        return weakDriver();
    if (q_.QIc1 > Real(driverCurrent))
        tell(tooMuch);
    return true;
}

bool Form15::weakDriver()
{
    q_.noSwing = q_.ERL <= Real(0.0);
    tell(texts::driverTooWeak);
    goTo(Text5);
    return false;
}

void Form15::divideRb1()
{
    q_.Rb1 = 10.0 * at(Text5);
    q_.Rb1b = 10.0 * RLw();
    fill(Text6, q_.Rb1b);
    show(Shape2, Label8);
    setText(Label8, shown(q_.QIc1) + "\n   A");
    setText(Label16,
            "  Rb1 = 10 x RL = " + shown(q_.Rb1 / 1000.0) + " K\n  Rb1b = 10 x RLw = " + shown(q_.Rb1b) + " Ohms");
    disable(Text4);
}

// --- Rb1b

// From RL the way back to QIc2 is open, so that what has turned red can be mended; from here on it is closed.
void Form15::focusText6(host::EventArgs& args)
{
    focusField(args);
    disable(Text3);
}

void Form15::lostText6()
{
    correctBelow(Text6, 10.0 * RLw());
    q_.Rb1b = at(Text6);
    const Real Rb1a = q_.Rb1 - q_.Rb1b;
    fill(Text7, Rb1a);
    if (Rb1a < Real(1.0))
        restart();
}

// --- Rb1a

void Form15::focusText7(host::EventArgs& args)
{
    focusField(args);
    disable(Text5);
}

void Form15::lostText7()
{
    takeBias(q_.EQ1 - junction);
    setText(Label5, "Cbp= " + shown(microfarads(q_.Cbp)) + " mF");
}

void Form15::takeBias(Real ERb1)
{
    correctBelow(Text7, q_.Rb1 - q_.Rb1b);
    q_.Rb1 = at(Text7) + q_.Rb1b;
    q_.ERb1 = ERb1;
    divide(q_.IRb1, q_.ERb1, q_.Rb1);
    divide(q_.Ib, q_.QIc1, Beta1());
    q_.IRb2 = q_.IRb2Calc = q_.IRb1 - q_.Ib;
    divide(q_.Rb2Calc, junction, q_.IRb2Calc);
    fill(Text8, q_.Rb2Calc);
    divide(q_.Cbp, 1.0, capacitorFactor * q_.Rb1b);
    setText(Label16, "  Rb1 = Rb1a + Rb1b = " + shown(q_.Rb1 / 1000.0) + " K\n  ERb1 = " + shown(q_.ERb1) + " V");
    show(Label1);
}

// --- Rb2

void Form15::focusText8(host::EventArgs& args)
{
    focusField(args);
    disable(Text6);
    setText(Label1, "EQ2= " + shown(q_.EQ2) + " V");
}

void Form15::lostText8()
{
    if (!takeRb2() || !takeRb1())
        return;
    takeInput();
    setText(Label2, "Ccin= " + shown(microfarads(q_.Ccin)) + " mF (200 c/s)");
    takeGenerator();
}

// False when the design begins again. What is replaced is not rounded.
bool Form15::takeRb2()
{
    q_.biased = false;
    if (isBeyondTolerance(at(Text8), q_.Rb2Calc)) {
        tell(texts::Rb2Unfit);
        Real Rb2 = at(Text8);
        divide(Rb2, junction, q_.IRb2Calc);
        write(Text8, Rb2);
    }
    if (at(Text8) < Real(1.0)) {
        restart();
        return false;
    }
    q_.IRb2 = junction / at(Text8);
    return true;
}

// False when the preset that remains is out of its limits; the student stays at Rb2.
bool Form15::takeRb1()
{
    q_.IRb1 = q_.Ib + q_.IRb2;
    divide(q_.Rb1, q_.ERb1, q_.IRb1);
    const Real Rb1a = at(Text7);
    q_.Rb1b = q_.Rb1 - Rb1a;
    if (q_.Rb1b > q_.Rb1 * presetShare / 100.0) {
        tell(texts::presetTooLarge);
        goTo(Text8);
        return false;
    }
    write(Text6, wholeOhms(q_.Rb1b));
    q_.Rb1b = at(Text6);
    if (q_.Rb1b < 10.0 * RLw()) {
        tell(texts::Rb1TooSmall);
        goTo(Text8);
        return false;
    }
    write(Text7, Rb1a);
    return true;
}

void Form15::takeInput()
{
    const Real Rb1a = at(Text7);
    const Real Rb2 = at(Text8);
    divide(q_.ReDyn, junctionVolts, q_.QIc1);
    q_.Zb = Beta1() * q_.ReDyn;
    divide(q_.Rp, Rb1a * Rb2, Rb1a + Rb2);
    divide(q_.Zin, q_.Rp * q_.Zb, q_.Rp + q_.Zb);
    setText(Label13, "Zin= " + whole(q_.Zin) + " Ohms");
    show(Label13);
    divide(q_.Ccin, 1.0, capacitorFactor * q_.Zin);
    setText(Text9, whole(generatorShare * q_.Zin));
}

void Form15::takeGenerator()
{
    divide(q_.Vg, at(Text5), q_.ReDyn);
    divide(q_.EinPP, q_.Eopp, q_.Vg);
    q_.EgPP = generatorShare * q_.EinPP;
    q_.EgEff = effective(q_.EgPP);
    setText(Label21, "Vg (Q1)= " + whole(q_.Vg) + " ");
    setText(Label20, "Eg= " + shown(q_.EgEff) + " V(r.m.s.)");
    setText(Label16, "  Rb1 = " + shown(q_.Rb1 / 1000.0) + " K\n  EinPP = Eopp / Vg = " + shown(q_.EinPP) + " V");
    show(Label21, Label20);
    q_.biased = true;
}

// --- Rs

void Form15::focusText9(host::EventArgs& args)
{
    focusField(args);
    disable(Text7);
}

void Form15::keyText9(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    disable(Text8);
    goTo(Text1);
}

void Form15::clickText9()
{
    constexpr std::int32_t grey = 0xDFDFDF;
    setBackColor(Text9, grey);
}

void Form15::lostText9()
{
    leaveGenerator();
    q_.passed = q_.biased;
}

// The value of Rs is read from `Text7`, and is to stay so: an edited Rs has no effect on the figure.
void Form15::leaveGenerator()
{
    correctBelow(Text9, generatorShare * q_.Zin);
    if (q_.Zin != Real(0.0))
        q_.EgPP = at(Text7) / q_.Zin * q_.EinPP;
    q_.EgEff = effective(q_.EgPP);
    setText(Label20, "Ein= " + shown(q_.EgEff) + " V(ef)");
}

} // namespace velmor::form15
