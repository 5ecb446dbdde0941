// SPDX-License-Identifier: MIT
// The fields of the chain up to the junction voltage: what each does when it gets the focus, at a key, at a click and when
// it is left. The values that the student rounds come after them.
#include "designs/differential/form3.h"
#include "designs/differential/form3_texts.h"

namespace velmor::form3 {

using host::Handle;
using sheets::enterKey;
using sheets::goTo;
using sheets::isEmpty;
using sheets::makeBare;
using sheets::number;
using sheets::writeNumber;

void Form3::beginField(Handle field)
{
    const texts::FieldRow* row = texts::fieldRow(field);
    if (row != nullptr && isEmpty(*this, field))
        writeNumber(*this, field, row->whenEmpty);
    tellAbout(field);
    if (field == Text1)
        setText(SSPanel1, pick(texts::enterPrompt));
}

void Form3::focusField(host::EventArgs& args)
{
    beginField(args.control);
}

// What a key begins with. Enter also puts away the help on pointing that F2 has left there.
bool Form3::isEnter(host::EventArgs& args)
{
    if (sheets::filteredKey(*this, args) != enterKey)
        return false;
    endPointing();
    return true;
}

// The sheet has no Esc key and no test at Enter: an empty field is passed, and leaving it puts its default in.
void Form3::keyField(host::EventArgs& args)
{
    if (!isEnter(args))
        return;
    if (!isEmpty(*this, args.control))
        makeBare(*this, args.control);
    goTo(*this, texts::fieldRow(args.control)->next);
}

bool Form3::sayEmpty(Handle field)
{
    if (!isEmpty(*this, field))
        return false;
    say(*this, sheets::placeANumber);
    return true;
}

void Form3::settleField(Handle field)
{
    const texts::FieldRow& row = *texts::fieldRow(field);
    if (sayEmpty(field))
        writeNumber(*this, field, row.left);
    sheets::correctToRange(*this, field, row.low, row.high, row.otherwise);
}

void Form3::leaveField(host::EventArgs& args)
{
    settleField(args.control);
    if (args.control == Text1)
        host().values().TemperaturaCompartida = texts::startTemperature;
}

void Form3::clickField(host::EventArgs&)
{
    HideBench();
}

// Always what the conversion left, as a whole number.
void Form3::focusTemperature()
{
    writeNumber(*this, Text6, static_cast<double>(rules::RoundToInt16(host().values().TemperaturaCompartida)));
    beginField(Text6);
}

void Form3::pressTemperature(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        host().Show("Form22");
}

void Form3::focusQIc()
{
    disable(Text10, Text11, Text12, Text13, Text14, Text15, Text2, Text3, Text4, Text5);
    beginField(Text9);
}

bool Form3::tooMuchQIc() const
{
    return q_.QIc > q_.IcMax * stabilityShare;
}

void Form3::keyQIc(host::EventArgs& args)
{
    if (!isEnter(args))
        return;
    if (!isEmpty(*this, Text9))
        makeBare(*this, Text9);
    q_.QIc = number(*this, Text9);
    q_.IcMax = number(*this, Text3);
    if (tooMuchQIc())
        say(*this, texts::stability);
    else
        goTo(*this, Text10);
}

void Form3::clickQIc()
{
    HideBench();
    host().SetFocus(*this, Text9);
}

void Form3::leaveEopp()
{
    settleField(Text14);
    q_.Vg = number(*this, Text12);
    q_.Eopp = number(*this, Text14);
    fillEin();
}

void Form3::clickEopp()
{
    HideBench();
    host().SetFocus(*this, Text14);
}

// Without a gain yet the field keeps its text.
void Form3::fillEin()
{
    if (q_.Vg == Real(0.0))
        return;
    q_.Ein = einOf(q_.Eopp, q_.Vg);
    setText(Text15, sheets::shown(*this, q_.Ein));
}

void Form3::focusEin()
{
    fillEin();
    tellAbout(Text15);
}

void Form3::clickEin()
{
    HideBench();
    fillEin();
}

// Passing through the field changes Eopp by 0.707 x 1.41 and the rounding: 10 at Vg 64 becomes 9.9625, as on the blackboard.
void Form3::leaveEin()
{
    if (sayEmpty(Text15)) {
        goTo(*this, Text1);
        return;
    }
    settleField(Text15);
    q_.Vg = number(*this, Text12);
    q_.Ein = number(*this, Text15);
    q_.Eopp = eoppOf(q_.Ein, q_.Vg);
    setText(Text14, sheets::shown(*this, q_.Eopp));
}

// The only place where Beta is read: a value typed and left without coming back is not used. What is no number, as an odd
// file may bring it, counts as what leaving will make of it.
void Form3::focusBeta()
{
    beginField(Text5);
    q_.Beta = number(*this, Text5);
    if (q_.Beta == Real(0.0))
        q_.Beta = texts::fieldRow(Text5)->otherwise;
}

void Form3::leaveVj()
{
    if (sayEmpty(Text4))
        writeNumber(*this, Text4, texts::silicon);
    const Real vj = number(*this, Text4);
    if (vj < texts::silicon)
        writeNumber(*this, Text4, texts::germanium);
    else if (vj > texts::silicon)
        writeNumber(*this, Text4, texts::silicon);
    proposeEbias();
}

void Form3::clickVj()
{
    HideBench();
    disable(Text8, Text16, Text17, Text18);
    host().SetFocus(*this, Text4);
}

} // namespace velmor::form3
