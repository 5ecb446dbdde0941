// SPDX-License-Identifier: MIT
// `Form18` from the first design to the analysis: collector resistor, supply, divider, generator, bootstrapping.
#include "designs/common_emitter/feedback_formulas.h"
#include "designs/common_emitter/form18.h"

namespace velmor::form18 {

namespace closing_detail {

constexpr double currentTolerance = 10; // per cent
constexpr double leastRb2 = 0.1;
constexpr double microwatts = 1000000;

} // namespace closing_detail

using namespace closing_detail;

// --- Beta: the whole first design is worked out

void Form18::focusText2(host::EventArgs& args)
{
    focusField(args);
    enable(Text17);
    Real RLac;
    if (!workOutLoad(RLac))
        return;
    writeLoad(RLac);
    write(Text17, q_.RLCalc);
    setText(Label10, "RL (Kohm)");
    q_.ERL = loadVoltage(QIc(), q_.RLCalc);
    setText(Label22, "ERl = " + digits(q_.ERL) + " Volt");
    show(statu18, Label22, Label23);
    if (!loadVoltageSuffices(loadVoltageTooLow))
        return;
    q_.Eq = leastEq(Eopp());
    setText(Label23, "Eq =" + shown(q_.Eq) + " Volts");
    setText(Text16, shown(q_.Eq + q_.ERL));
}

void Form18::writeLoad(Real RLac)
{
    setText(statu18, " (Rlac)=           " + shown(RLac) + "  ohm");
}

// --- RL

void Form18::focusText17(host::EventArgs& args)
{
    focusField(args);
    lockParameters();
}

void Form18::keyText17(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    askAboutSupply();
    enable(Shape6);
}

// What the student has put there stays; only the test works it out anew.
void Form18::lostText17()
{
    Real RLac;
    if (!workOutLoad(RLac))
        return;
    writeLoad(RLac);
    testResistor();
}

// --- Es

void Form18::proposePreset()
{
    q_.Rb1Calc = at(Text10) * at(Text17);
    setText(Text19, shown(q_.Rb1Calc));
}

void Form18::clickCommand2()
{
    closeQuestion();
    enable(Text19);
    q_.Eq = at(Text16) - q_.ERL;
    setText(Label23, "Eq= " + shown(q_.Eq) + " Volt");
    proposePreset();
    tell(choosePreset);
    goTo(Text19);
}

// What is more than the least goes to Eq, which still takes the voltage that RL had before. Only in English does the focus
// come back for a supply that is too low.
void Form18::lostText16()
{
    const Real least = q_.Eq + q_.ERL;
    const Real Es = at(Text16) < 1 ? least : at(Text16);
    if (Es < least) {
        tell(supplyTooLow);
        if (!inEnglish())
            return;
        goTo(Text16);
        tell(raiseSupply);
        return;
    }
    q_.Eq = Es - q_.ERL;
    q_.ERL = loadVoltage(QIc(), at(Text17));
    setText(Label22, "ERl= " + digits(q_.ERL) + " Volt");
    setText(Label23, "Eq= " + shown(q_.Eq) + " Volt");
    proposePreset();
    tell(choosePreset);
}

// --- Rb1

void Form18::focusText19(host::EventArgs& args)
{
    hide(Text15, Image2, stas, Picture4);
    fade(Text15);
    show(Image8);
    setText(Label32, rb2Caption);
    focusField(args);
}

// Without a lowest frequency, as an odd file may bring it, nothing can be worked out.
void Form18::lostText19()
{
    correct(Text19);
    if (at(Text12) == 0)
        return;
    workOutDivider();
    Real RLac;
    if (workOutLoadInUse(RLac))
        takeGain(RLac);
    if (workOutZin())
        setText(Label21, "Zin= " + shown(q_.Zin) + " ohms");
    writeCapacitors();
    show(Label21, statu33);
}

// The base current is worked out with the lowest frequency in the place of Beta, and so the course keeps it. A divider without
// current has no Rb2.
void Form18::workOutDivider()
{
    divider_.IRb1 = feedbackCurrent(q_.Eq, at(Text7), at(Text19));
    divider_.Beta = at(Text12);
    const Real IRb2 = divider_.IRb1 - baseCurrent(QIc(), divider_.Beta);
    divider_.Rb2 = IRb2 == 0 ? Real() : Real(lowerBaseResistor(at(Text7), IRb2).toDouble());
    setText(Text18, shown(divider_.Rb2 / 1000.0));
}

// False where something would cancel: Zin keeps its value.
bool Form18::workOutZin()
{
    const Real Rb1 = at(Text19) * 1000.0;
    const Real Vg = at(Text11);
    if (Vg == 0 || Rb1 / Vg + divider_.Beta * q_.rE == 0)
        return false;
    takeZin(inputImpedance(Rb1, Vg, divider_.Beta, q_.rE));
    return true;
}

void Form18::takeZin(Real Z1)
{
    if (Z1 + 1000.0 * divider_.Rb2 != 0)
        q_.Zin = inputBesideRb2(Z1, divider_.Rb2);
}

// --- Rb2

void Form18::focusText18(host::EventArgs& args)
{
    focusField(args);
    if (divider_.Rb2 >= leastRb2)
        return;
    tell(noBaseResistor);
    goTo(Text16);
}

// --- Rg

void Form18::focusText15()
{
    grow(Text15);
    disable(Text17, Text16);
    show(Label25);
    const Real Rb2 = at(Text18) == 0 ? Real(0.001) : at(Text18);
    divider_.Rb2 = rules::CurrencyValue(Rb2).toDouble();
    divider_.Beta = at(Text2);
    const Real obtained = obtainedCurrent(divider_.IRb1, at(Text7), Rb2, divider_.Beta);
    setText(Label26, shown(obtained) + "A");
    write(Label27, tryValues);
    show(Label26, Label27);
    compareCurrent(obtained);
    if (q_.Eq > at(Text5)) {
        tell(overTransistor);
        setText(Text10, asIfAssigned);
        goTo(Text5);
        return;
    }
    show(Image2);
    hide(statu18);
    tell(Text15, When::focus);
}

void Form18::compareCurrent(Real obtained)
{
    const bool differs = isBeyond(obtained * 1000.0, QIc(), currentTolerance);
    if (differs)
        write(Label29, otherCurrent);
    setVisible(Label29, differs);
}

void Form18::keyText15(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    correctFrom(Text15, 0.001, 0.001);
    const Real load = at(Text9) * 1000.0;
    const Real Pout = load == 0 ? Real() : powerOfSwing(Eopp(), load);
    const Real squared = q_.Ein * q_.Ein;
    const Real Pg = squared / (at(Text15) * 1000.0);
    const Real Pin = q_.Zin == 0 ? Real() : squared / q_.Zin;
    openAnalysis(isHeavy()
                     ? heavyPage(words(), shown(Pout * microwatts), shown(Pg * microwatts), shown(Pin * microwatts))
                     : lightPage(Pout));
    q_.passed = true;
}

// --- bootstrapping

void Form18::clickImage2()
{
    hide(Image2);
    show(Image8, Picture4, Label21, stas);
    grow(Text19);
    const Real Rb1 = at(Text19);
    if (Rb1 / 2.0 * 1000.0 + divider_.Beta * q_.rE == 0)
        return;
    takeZin(halfResistorInput(Rb1, divider_.Beta, q_.rE));
    writeZin();
    writeDecoupling(Rb1 * 1000.0 / 2.0);
}

void Form18::clickImage8()
{
    show(Image2);
    hide(Image8, Picture4, stas);
    grow(Text19);
    if (workOutZin())
        writeZin();
    writeCapacitors();
}

} // namespace velmor::form18
