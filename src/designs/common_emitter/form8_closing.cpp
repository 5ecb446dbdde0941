// SPDX-License-Identifier: MIT
// `Form8` from the first design to the analysis: collector resistor, supply, preset, generator, bootstrapping.
#include "designs/common_emitter/feedback_formulas.h"
#include "designs/common_emitter/form8.h"

namespace velmor::form8 {

namespace closing_detail {

constexpr int leftOfRequest = 255;     // twips
constexpr double presetTolerance = 20; // per cent

} // namespace closing_detail

using namespace closing_detail;

// --- Beta: the whole first design is worked out

void Form8::focusText2(host::EventArgs& args)
{
    focusField(args);
    enable(Text17);
    Real RLac;
    if (!workOutLoad(RLac))
        return;
    setText(statu18, " (Rlac)=           " + shown(RLac) + "  ohms");
    setText(Text17, shown(q_.RLCalc));
    setText(Label10, "RL (Kohms)");
    q_.ERL = loadVoltage(QIc(), q_.RLCalc);
    writeLoadVoltage();
    show(statu18, Label22, Label23);
    if (!loadVoltageSuffices(loadVoltageTooLow))
        return;
    q_.Eq = leastEq(Eopp());
    setText(Label23, "Eq =" + shown(q_.Eq) + " Volt");
    setText(Text16, shown(q_.Eq + q_.ERL));
}

void Form8::writeLoadVoltage()
{
    setText(Label22, "ERl = " + shown(q_.ERL) + " Volts");
}

// --- RL

void Form8::focusText17(host::EventArgs& args)
{
    focusField(args);
    lockParameters();
}

void Form8::keyText17(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    askAboutSupply();
    enable(Shape2);
}

// What the student has put there stays; only the test works it out anew.
void Form8::lostText17()
{
    Real RLac;
    if (!workOutLoad(RLac))
        return;
    setText(statu18, " (Rlac)=           " + shown(RLac) + "  ohms");
    testResistor();
}

// --- Es

// Without a current or a Beta, as an odd file may bring them, there is no preset yet.
void Form8::workOutPreset()
{
    if (QIc() != 0 && at(Text2) != 0)
        q_.Rb1Calc = feedbackResistor(q_.Eq, at(Text7), QIc(), at(Text2));
}

// The supply as it stands. The preset is proposed in ohm, although it is judged in kilohm.
void Form8::clickCommand2()
{
    closeQuestion();
    enable(Text19);
    q_.ERL = loadVoltage(QIc(), at(Text17));
    q_.Eq = at(Text16) - q_.ERL;
    setText(Label22, shown(q_.ERL) + " Volt");
    setText(Label23, "Eq= " + shown(q_.Eq) + " volt");
    workOutPreset();
    setText(Text19, shown(q_.Rb1Calc));
    tell(choosePreset);
    goTo(Text19);
}

// Another supply: what is more than the least goes to RL.
void Form8::lostText16()
{
    const Real Es = at(Text16);
    tell(Es < q_.Eq + q_.ERL ? raiseSupply : choosePreset);
    q_.ERL = Es - q_.Eq;
    writeLoadVoltage();
    if (QIc() == 0)
        return;
    setText(Text17, shown(q_.ERL / QIc()));
    workOutPreset();
    setText(Text19, shown(q_.Rb1Calc / 1000.0));
    Real RLac;
    workOutLoadInUse(RLac);
}

// --- Rb1

void Form8::focusText19(host::EventArgs& args)
{
    hide(Text15, Image2, stas, Picture4);
    fade(Text15);
    show(Image8);
    focusField(args);
}

void Form8::lostText19()
{
    if (isBeyond(at(Text19), q_.Rb1Calc / 1000.0, presetTolerance)) {
        tell(steadyHand);
        goTo(Text19);
        return;
    }
    Real RLac;
    if (workOutLoadInUse(RLac))
        takeGain(RLac);
    workOutZin();
    writeCapacitors();
    show(Label21, statu33);
    writeStability();
}

void Form8::workOutZin()
{
    const Real Vg = at(Text11);
    const Real Beta = at(Text2);
    if (Vg == 0 || q_.Rb1Calc / Vg + Beta * q_.rE == 0)
        return;
    q_.Zin = inputImpedance(q_.Rb1Calc, Vg, Beta, q_.rE);
    writeZin();
}

void Form8::writeStability()
{
    if (at(Text17) != 0)
        write(Text10, stabilityFactor(at(Text19), at(Text17)));
}

// --- Rg

void Form8::focusText15(host::EventArgs& args)
{
    mark(args.control);
    grow(Text15);
    disable(Text17, Text16);
    show(Label25);
    writeStability();
    if (q_.Eq > q_.ERL) {
        refuseSupply();
        return;
    }
    show(Image8, Image7, statu18);
    write(Label25, generatorCaption);
    tell(Text15, When::focus);
}

// Less voltage on RL than on the transistor: no stability, whatever S says.
void Form8::refuseSupply()
{
    tell(notStable);
    setText(Text10, asIfAssigned);
    enable(Text16, Text17, Text19);
    goTo(Text16);
    setText(statu18, askForSupply);
    host::Place place = placeOf(statu18);
    place.left = leftOfRequest;
    setPlaceOf(statu18, place);
    show(statu18);
}

// The powers of generator and input bear a factor of 100 where the output's bears a million: so the sheet has always told them.
void Form8::keyText15(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    correctFrom(Text15, 0.001, 0.001);
    const Real load = at(Text9) * 1000.0;
    const Real Pout = load == 0 ? Real() : powerOfSwing(Eopp(), load);
    const Real Pg = powerOfSwing(Eopp(), at(Text15) * 1000.0);
    const Real Pin = q_.Zin == 0 ? Real() : powerOfSwing(Eopp(), q_.Zin);
    openAnalysis(isHeavy() ? heavyPage(analysisWords(), shown(Pout * 1000000.0), shown(Pg * 100.0), shown(Pin * 100.0))
                           : lightPage(Pout));
    q_.passed = true;
}

// --- bootstrapping

void Form8::clickImage8()
{
    hide(Image8);
    show(Image2, Picture4, Label21, stas);
    grow(Text19);
    writeDecoupling(q_.Rb1Calc / 2.0);
    if (q_.Rb1Calc != 0) {
        q_.Zin = inputImpedanceBootstrapped(q_.Rb1Calc, at(Text2), q_.rE);
        writeZin();
    }
    writeCapacitors();
}

// The other way round. Zin stays to be read, as when the preset has been left.
void Form8::clickImage2()
{
    hide(Image2, Picture4, stas);
    show(Image8, Label21);
    grow(Text19);
    workOutZin();
    writeCapacitors();
}

} // namespace velmor::form8
