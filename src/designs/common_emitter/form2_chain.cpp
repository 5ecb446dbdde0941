// SPDX-License-Identifier: MIT
// The chain of `Form2` from the allowed drift to the gain: what stabilises the stage, and the test of its load.
#include "designs/common_emitter/form2.h"

namespace velmor::form2 {

using sheets::correctFrom;
using sheets::correctToRange;
using sheets::goTo;
using sheets::isEmpty;
using sheets::Press;
using sheets::say;
using sheets::writeNumber;

// --- Delta QIc

void Form2::focusText1()
{
    LimpiarTags();
    setTag(Text1, "1");
    clearDrawing();
    show(Picture6);
    hide(Label21);
    write(SSPanel1, enabled(Text19) ? varyRb1Prompt : startPrompt);
    prompt(Text1, Trigger::focus);
    disable(Text2, Text3, Text4, Voltaje, Text8, Text15, Text9, Text10, Text11, Text12, Text16, Text13, Text14, Text5,
            Text6, Text7, Text21);
}

void Form2::clickText1()
{
    setTag(Text1, "0");
    show(Picture11, Picture6);
    hide(Label21);
}

void Form2::keyText1(host::EventArgs& args)
{
    const Press press = sheets::pressed(*this, args, sheets::placeANumber);
    if (press == Press::nothing)
        return;
    if (press == Press::escape)
        setText(Text1, "10");
    if (visible(Picture11)) {
        hide(Picture10, Picture11);
        prompt(Text1, Trigger::enter);
        enable(Text3);
        host().Unload("Form21");
    } else if (press == Press::escape) {
        show(Picture10);
    }
    goTo(*this, Text3);
}

void Form2::lostText1()
{
    hide(Label24);
    correctToRange(*this, Text1, 1, 10, 10);
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

void Form2::focusText3()
{
    takeInHand(Text3, "2");
    writeNumber(*this, Text3, rules::RoundToInt16(host().values().TemperaturaCompartida));
    if (visible(Picture6))
        hide(Picture6, Picture1, Picture10);
    disable(Text18, Text19);
    hide(Label24);
    show(SSPanel1);
}

void Form2::keyText3(host::EventArgs& args)
{
    const Press press = sheets::pressed(*this, args, emptyField);
    if (press == Press::nothing)
        return;
    if (press == Press::escape) {
        setText(Text3, "70");
        host().Unload("Form21");
    }
    prompt(Text3, Trigger::enter);
    goTo(*this, Text4);
}

void Form2::lostText3()
{
    correctToRange(*this, Text3, 25, 200, 25);
}

// --- Delta Vbe

void Form2::focusText4()
{
    takeInHand(Text4, "2");
}

void Form2::keyText4(host::EventArgs& args)
{
    const Press press = sheets::pressed(*this, args, emptyField);
    if (press == Press::nothing)
        return;
    if (press == Press::escape)
        setText(Text4, "2.5");
    prompt(Text4, press == Press::escape ? Trigger::escape : Trigger::enter);
    goTo(*this, Text8);
    host().Unload("Form21");
}

void Form2::lostText4()
{
    enable(Voltaje);
    correctToRange(*this, Text4, 2, 3, 2.5);
    workOutERes();
}

void Form2::workOutERes()
{
    ERes_ = stabilityVoltage(at(Text3), at(Text4), at(Text1));
    setText(Voltaje, fourDecimals(ERes_));
}

// --- QIc

void Form2::focusText8()
{
    takeInHand(Text8);
    disable(Text1, Text3, Text4);
}

void Form2::keyText8(host::EventArgs& args)
{
    const Press press = sheets::pressed(*this, args, emptyField);
    if (press == Press::nothing)
        return;
    if (press == Press::escape)
        setText(Text8, "1");
    correctFrom(*this, Text8, 0.4, 1);
    if (polarisedByEmitter())
        askForEmitterSupply(press);
    else
        askForEmitterResistor(press);
}

void Form2::askForEmitterSupply(Press press)
{
    if (press == Press::escape)
        show(Label19);
    goTo(*this, Text21);
    hide(res);
}

void Form2::askForEmitterResistor(Press press)
{
    workOutERes();
    const std::string ending = press == Press::escape ? " ohms, " : " ohms";
    setText(res, fourDecimals(idealEmitterResistor(ERes_, QIc())) + ending);
    writeJunctionResistance();
    hide(sta1, status40);
    show(res);
    goTo(*this, Text15);
    prompt(Text8, Trigger::enter);
}

void Form2::writeJunctionResistance()
{
    setText(statu17, " R'e =" + fourDecimals(junctionResistance(QIc())) + "     ohms");
}

void Form2::lostText8()
{
    correctFrom(*this, Text8, 0.4, 1);
    show(Text15, Text18);
    writeNumber(*this, Text15, idealEmitterResistor(ERes_, QIc()));
}

// --- -Es, of a stage polarised by emitter

void Form2::focusText21()
{
    takeInHand(Text21);
}

void Form2::keyText21(host::EventArgs& args)
{
    if (sheets::filteredKey(*this, args) != sheets::enterKey)
        return;
    if (isEmpty(*this, Text21)) {
        prompt(Text21, Trigger::empty);
        return;
    }
    sheets::makeBare(*this, Text21);
    correctFrom(*this, Text21, 1, 20);
    const Real resistor = idealEmitterResistor(at(Text21), QIc());
    setText(res, fourDecimals(resistor) + " ohms");
    writeJunctionResistance();
    show(res, statu17);
    hide(sta1);
    prompt(Text21, Trigger::enter);
    goTo(*this, Text15);
    writeNumber(*this, Text15, resistor);
}

void Form2::lostText21()
{
    if (at(Text21) < ERes_)
        writeNumber(*this, Text21, ERes_);
}

// --- Res

void Form2::focusText15()
{
    takeInHand(Text15);
}

void Form2::keyText15(host::EventArgs& args)
{
    if (sheets::pressed(*this, args, emptyField) != Press::enter)
        return;
    correctFrom(*this, Text15, 0.01, 0.01);
    // What `Text21` shows after a finished design, or out of a file, is no supply to divide.
    if (visible(Text21) && at(Text21) > 0)
        takeResistorOfSupply();
    else
        takeStandardResistor();
}

// The standard resistor moves QIc, not ERes.
void Form2::takeStandardResistor()
{
    const Real resistor = Res();
    if (resistor > 0.01 && resistor < 1) {
        workOutERes();
        setText(res, fourDecimals(idealEmitterResistor(ERes_, QIc())) + " ohms");
    } else {
        hide(Label19);
    }
    hide(res, statu17);
    const Real current = quiescentCurrent(ERes_, resistor);
    writeNumber(*this, Text8, current);
    setText(VRes, digits(ERes_) + "  Volt");
    show(sta1);
    enable(Text6);
    if (current > (40.0 / 100.0) * rules::RoundToInt16(at(Text6))) {
        say(*this, currentOverLimit);
        return;
    }
    prompt(Text15, Trigger::enter);
    goTo(*this, Text9);
}

void Form2::takeResistorOfSupply()
{
    writeNumber(*this, Text8, quiescentCurrent(at(Text21), Res()));
    prompt(Text15, Trigger::enter);
    goTo(*this, Text9);
}

void Form2::lostText15()
{
    correctFrom(*this, Text15, 1E-08, 1);
}

// --- RLw

void Form2::focusText9()
{
    takeInHand(Text9);
    disable(Text6, Text16);
    enable(Text17);
}

void Form2::keyText9(host::EventArgs& args)
{
    if (!goesOn(args, "10"))
        return;
    prompt(Text9, Trigger::enter);
    goTo(*this, Text10);
}

void Form2::lostText9()
{
    correctFrom(*this, Text9, 0.1, 10);
    RLw_ = RLwKilohm() * 1000.0;
    setText(statu35, "RLw " + text(Text9) + " K");
}

// --- S

void Form2::focusText10()
{
    takeInHand(Text10);
}

void Form2::keyText10(host::EventArgs& args)
{
    if (!goesOn(args, "10"))
        return;
    prompt(Text10, Trigger::enter);
    goTo(*this, Text11);
}

void Form2::lostText10()
{
    if (isEmpty(*this, Text10)) {
        say(*this, emptyLeft);
        goTo(*this, Text9);
        return;
    }
    correctToRange(*this, Text10, 1, 20, 10);
}

// --- Vg, and the test of the load

void Form2::focusText11()
{
    takeInHand(Text11);
    host().setVisible("Form21", "SSCommand1", false);
    host().setText("Form21", "SSCommand1", " Vg..");
}

void Form2::keyText11(host::EventArgs& args)
{
    if (!goesOn(args, "5"))
        return;
    hide(status40);
    show(ER, statu18, statu19);
    prompt(Text11, Trigger::enter);
    goTo(*this, Text17);
}

void Form2::lostText11()
{
    if (isEmpty(*this, Text11)) {
        say(*this, emptyGain);
        goTo(*this, Text10);
        return;
    }
    correctFrom(*this, Text11, 1, 5);
    if (!workOutRLac())
        return;
    RLcomputed_ = collectorResistor(RLw_, RLac_);
    const Real kilohms = RLcomputed_ / 1000.0;
    setText(statu19, "    " + digits(rules::TruncToInteger(kilohms)) + " K " + " ");
    writeNumber(*this, Text17, kilohms);
    if (kilohms < 0.501)
        refuseLoad(kilohms);
}

// False when no current is left for RL: the load that the gain asks for is as large as RLw itself.
bool Form2::workOutRLac()
{
    if (unbypassed())
        RLac_ = unbypassedLoad(Vg(), Res());
    else if (bypassedByBase() || polarisedByEmitter())
        RLac_ = bypassedLoad(Vg(), QIc());
    setText(statu18, " (Rlac)=           " + fourDecimals(RLac_) + "  ohms");
    if (RLw_ - RLac_ >= 0.1)
        return true;
    say(*this, loadTooLarge);
    goTo(*this, Text8);
    return false;
}

void Form2::refuseLoad(Real RL)
{
    hide(Text18, Text15);
    write(status40, loadImpossible.text);
    show(status40);
    say(*this, loadImpossible);
    goTo(*this, Text8);
    if (visible(Picture1) || (visible(Picture10) && RL > 0 && RL < 0.01))
        say(*this, raiseGain);
    else if (visible(Picture10) && RL <= 0)
        say(*this, lowerGain);
    else
        return;
    hide(status40);
    goTo(*this, Text8);
}

} // namespace velmor::form2
