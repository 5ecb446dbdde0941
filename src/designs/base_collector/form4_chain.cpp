// SPDX-License-Identifier: MIT
// The chain of `Form4` from the allowed drift to the junction voltage: what the fields of the two groups do beyond their rows.
#include "designs/base_collector/form4.h"
#include "sheets/formulas.h"

namespace velmor::form4 {

// --- Delta QIc

void Form4::focusText1(host::EventArgs& args)
{
    clearDrawing();
    focusField(args);
    disable(Text3, Text4, Text8, Text9, Text13, Text11, Text14, Text10, Text12, Text5, Text6, Text7);
    for (const texts::PartName& part : texts::partNames)
        setText(part.label, part.name);
}

void Form4::leaveText1(host::EventArgs& args)
{
    leaveField(args);
    host().values().TemperaturaCompartida = 75;
}

// --- T

void Form4::focusText3(host::EventArgs& args)
{
    focusField(args);
    write(Text3, rules::RoundToInt16(host().values().TemperaturaCompartida));
}

void Form4::pressText3(host::EventArgs& args)
{
    pressField(args);
    if (args.button == host::Button::right)
        host().Show("Form22");
}

// --- Delta Vbe

// A wrong drift becomes 10, four times the usual one and outside its own range: so the course has it.
void Form4::leaveText4()
{
    correct(Text4, 2, 3, 10);
}

// --- RLw

void Form4::keyText9(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text9, press))
        return;
    setText(Label31, text(Text9) + "\nK");
    goOn(Text9, press);
}

// --- Ein and Eopp, each of which gives the other

Real Form4::inputVoltage() const
{
    return sheets::inputForOutput(at(Text13), at(Text11));
}

// Without a gain, as an odd file may have it, the field keeps its text.
void Form4::focusText14(host::EventArgs& args)
{
    focusField(args);
    if (canTellEin())
        write(Text14, inputVoltage());
}

void Form4::leaveText14()
{
    if (at(Text14) < 1E-06 && canTellEin())
        write(Text14, inputVoltage());
    else
        makeBare(Text14);
    setText(Text13, shown(sheets::outputForInput(at(Text14), at(Text11))));
}

// --- Beta

void Form4::keyText2(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text2, press))
        return;
    enable(Text12, Text5, Text6, Text7);
    goOn(Text2, press);
}

// --- the limits of the transistor

void Form4::keyText5(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text5, press))
        return;
    q_.EqWork = transistorVoltage(at(Text13));
    correct(Text5);
    if (q_.EqWork > at(Text5))
        tell(texts::voltageOverLimit);
    else
        goOn(Text5, press);
}

void Form4::keyText6(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text6, press))
        return;
    q_.QIc = at(Text8);
    if (q_.QIc > at(Text6))
        tell(texts::currentOverLimit);
    else
        goOn(Text6, press);
}

// --- Vj, and with it the voltage of stability

void Form4::leaveText7(host::EventArgs& args)
{
    leaveField(args);
    workOutERes();
    proposeRes();
    setText(Label32, "Res= " + shown(q_.ResCalc / 1000.0) + " KOhm\n" + words(texts::putStandardRes));
    show(Label32);
    setText(Label20, words(texts::stabilityVoltage) + "Eres = " + shown(q_.ERes) + " V");
}

// Fields that an odd file has left without a value give none.
void Form4::workOutERes()
{
    q_.ERL = leastLoadVoltage(at(Text13));
    q_.QIc = at(Text8);
    if (at(Text1) != Real(0.0))
        q_.ERes = sheets::stabilityVoltage(at(Text3), at(Text4), at(Text1));
    if (q_.QIc != Real(0.0))
        q_.ResCalc = sheets::emitterResistor(q_.ERes, q_.QIc);
}

void Form4::proposeRes()
{
    setText(Text18, shown(q_.ResCalc / 1000.0));
}

} // namespace velmor::form4
