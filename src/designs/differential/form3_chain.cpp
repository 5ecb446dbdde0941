// SPDX-License-Identifier: MIT
// The fields of the chain up to the junction voltage: what each does when it gets the focus, at a key, at a click and when
// it is left. The values that the student rounds come after them.
#include "designs/differential/form3.h"
#include "designs/differential/form3_texts.h"
#include "sheets/formulas.h"

#include <algorithm>

namespace velmor::form3 {

using host::Handle;

namespace chain_detail {

constexpr double silicon = 0.6; // V
constexpr double germanium = 0.2;

double defaultOf(Handle field)
{
    return std::find_if(defaults.begin(), defaults.end(), [field](const Default& row) { return row.field == field; })
        ->value;
}

} // namespace chain_detail

using namespace chain_detail;

// --- every field

void Form3::focusField(host::EventArgs& args)
{
    if (isEmpty(args.control))
        write(args.control, defaultOf(args.control));
    tellAbout(args.control);
}

// What a key begins with. A key that the filter lets through changes the design; Enter makes the field bare and puts away the
// help on pointing that F2 has left there.
bool Form3::entered(host::EventArgs& args)
{
    const std::int16_t key = filteredKey(args);
    if (key != sheets::enterKey) {
        q_.passed = q_.passed && !sheets::changesField(key);
        return false;
    }
    hideNotes();
    if (!isEmpty(args.control))
        makeBare(args.control);
    return true;
}

void Form3::keyField(host::EventArgs& args)
{
    if (entered(args))
        goTo(chainRow(args.control).next);
}

bool Form3::sayEmpty(Handle field)
{
    if (!isEmpty(field))
        return false;
    q_.passed = false;
    tell(field, sheets::When::empty);
    return true;
}

void Form3::leaveField(host::EventArgs& args)
{
    if (sayEmpty(args.control))
        write(args.control, defaultOf(args.control));
    if (correct(args.control))
        q_.passed = false;
}

// A click runs the field's slots anew on the sheet of the design.
void Form3::clickField(host::EventArgs& args)
{
    HideBench();
    host().SetFocus(*this, args.control);
}

// --- T

// Always what the conversion left, as a whole number.
void Form3::focusTemperature(host::EventArgs& args)
{
    write(Text6, rules::RoundToInt16(host().values().TemperaturaCompartida));
    focusField(args);
}

void Form3::pressTemperature(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        host().Show("Form22");
}

// --- QIc

void Form3::focusQIc(host::EventArgs& args)
{
    disable(Text10, Text11, Text12, Text13, Text14, Text15, Text2, Text3, Text4, Text5);
    focusField(args);
}

bool Form3::tooMuchQIc() const
{
    return q_.QIc > q_.IcMax * stabilityShare;
}

void Form3::keyQIc(host::EventArgs& args)
{
    if (!entered(args))
        return;
    q_.QIc = at(Text9);
    q_.IcMax = at(Text3);
    if (tooMuchQIc())
        tell(texts::stability);
    else
        goTo(Text10);
}

// --- Eopp and Ein

void Form3::leaveEopp(host::EventArgs& args)
{
    leaveField(args);
    q_.Vg = at(Text12);
    q_.Eopp = at(Text14);
    fillEin();
}

// Without a gain yet the field keeps its text.
void Form3::fillEin()
{
    if (q_.Vg == Real(0.0))
        return;
    q_.Ein = sheets::inputForOutput(q_.Eopp, q_.Vg);
    setText(Text15, shown(q_.Ein));
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
void Form3::leaveEin(host::EventArgs& args)
{
    if (sayEmpty(Text15)) {
        goTo(Text1);
        return;
    }
    leaveField(args);
    q_.Vg = at(Text12);
    q_.Ein = at(Text15);
    q_.Eopp = sheets::outputForInput(q_.Ein, q_.Vg);
    setText(Text14, shown(q_.Eopp));
}

// --- Beta

// The only place where Beta is read: a value typed and left without coming back is not used. What is no number, as an odd
// file may bring it, counts as what leaving will make of it.
void Form3::focusBeta(host::EventArgs& args)
{
    focusField(args);
    q_.Beta = at(Text5);
    if (q_.Beta == Real(0.0))
        q_.Beta = chainRow(Text5).otherwise;
}

// --- Vj

void Form3::leaveVj()
{
    if (sayEmpty(Text4))
        write(Text4, silicon);
    const Real vj = at(Text4);
    if (vj < silicon)
        write(Text4, germanium);
    else if (vj > silicon)
        write(Text4, silicon);
    proposeEbias();
}

void Form3::clickVj(host::EventArgs& args)
{
    clickField(args);
    disable(Text8, Text16, Text17, Text18);
}

} // namespace velmor::form3
