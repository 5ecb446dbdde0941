// SPDX-License-Identifier: MIT
// What the student gives: temperature, gain, output or input, supply. Enter reads the number; it is tested when the next field
// gets the focus.
#include "designs/differential/form13.h"
#include "designs/differential/form13_texts.h"

#include <algorithm>

namespace velmor::form13 {

using host::Handle;

namespace inputs {

constexpr double startCurrent = 0.5; // mA, of each of Q3-4
constexpr double leastVg = 1000.0;
constexpr double largestEopp = 1000.0;
constexpr double noEopp = 0.001;
constexpr double noEin = 1e-06;
constexpr int leftOfLabel14 = 3720;

} // namespace inputs

using namespace inputs;

// --- every field

// What a key begins with: a key that the filter lets through changes the design. True at Enter.
bool Form13::entered(host::EventArgs& args)
{
    const std::int16_t key = filteredKey(args);
    q_.passed = q_.passed && !sheets::changesField(key);
    return key == sheets::enterKey;
}

/// Enter in a field that holds something; an empty one is told so and keeps the focus.
bool Form13::filled(host::EventArgs& args)
{
    if (!entered(args))
        return false;
    if (isEmpty(args.control))
        tell(args.control, sheets::When::empty);
    return !isEmpty(args.control);
}

void Form13::keyField(host::EventArgs& args)
{
    if (!filled(args))
        return;
    const auto* given =
        std::find_if(givens.begin(), givens.end(), [&](const Given& row) { return row.field == args.control; });
    q_.*(given->number) = at(args.control);
    goTo(chainRow(args.control).next);
}

void Form13::explain(Handle field, const std::string& data)
{
    host::EventArgs args{.control = field};
    focusField(args);
    setText(Label26, words(texts::data) + "\n" + data);
}

/// A number out of range becomes another one, which its field shows.
void Form13::accept(Real& number, Handle field, Real from, Real to, Real otherwise)
{
    if (number >= from && number <= to)
        return;
    number = otherwise;
    write(field, otherwise);
}

void Form13::goBackTo(Handle field, Handle from)
{
    hide(from);
    goTo(field);
}

// --- T

void Form13::focusT(host::EventArgs& args)
{
    write(Text1, rules::RoundToInt16(host().values().TemperaturaCompartida));
    focusField(args);
}

void Form13::clickT()
{
    hide(Label29);
}

// --- Vg

void Form13::focusVg(host::EventArgs&)
{
    accept(q_.T, Text1, 25.0, 200.0, 25.0);
    hide(Text1);
    q_.ERes = eResOf(q_.T);
    q_.Res1 = q_.ERes / 1.0;
    show(Label29);
    write(Label24, texts::same("RLw => 10 x Res"));
    show(Label24);
    put(Label17, "Eres1= " + shown(q_.ERes) + " V");
    put(Label12, "Res1= " + shown(q_.Res1) + " K");
    explain(Text2, "Tamb. = " + shown(q_.T) + " °C\ndQic = 7 %\ndVbe = 2.5 mV\nERes = " + shown(q_.ERes) + " V");
}

// --- Eopp, or Ein where that is not known

void Form13::focusEopp(host::EventArgs&)
{
    accept(q_.Vg, Text2, leastVg, sheets::noLimit, leastVg);
    explain(Text3, "ERes = " + shown(q_.ERes) + " V\nVg = " + shown(q_.Vg));
}

void Form13::keyEopp(host::EventArgs& args)
{
    if (!entered(args))
        return;
    if (isEmpty(Text3)) {
        goTo(Text4);
        return;
    }
    q_.Eopp = at(Text3);
    q_.Ein = q_.Eopp / q_.Vg;
    goTo(Text5);
}

// The field stays as it is: it is empty, or not the number that is put right.
void Form13::focusEin(host::EventArgs&)
{
    disable(SSCommand1);
    if (q_.Eopp < 0.0 || q_.Eopp > largestEopp)
        q_.Eopp = noEopp;
    explain(Text4, "ERes = " + shown(q_.ERes) + " V\nVg = " + shown(q_.Vg));
}

void Form13::leaveEin()
{
    q_.Eopp = eoppOf(q_.Vg, q_.Ein);
}

// --- Es

void Form13::focusEs(host::EventArgs&)
{
    accept(q_.Eopp, Text3, 0.0, sheets::noLimit, noEopp);
    accept(q_.Ein, Text4, 0.0, sheets::noLimit, noEin);
    q_.Ein = einOf(q_.Eopp, q_.Vg);
    q_.QIc34 = startCurrent;
    q_.RL2Start = rl2Start(q_.ERes);
    q_.Res34 = wholeRes(q_.ERes, 1.0);
    write(Text7, q_.Res34);
    q_.ERL2 = q_.QIc34 * q_.RL2Start;
    if (q_.ERL2 < q_.Eopp / 2.0) {
        if (tell(texts::smallERL2) == answerYes) {
            goBackTo(Text3, Text5);
            return;
        }
        q_.ERL2 = q_.Eopp / 2.0;
        goTo(Text5);
    }
    q_.EQ34Min = leastEQ34(q_.Eopp);
    q_.EsMin2 = leastEs(q_.ERL2, q_.ERes, q_.EQ34Min);
    write(Text5, q_.EsMin2);
    tellLeastEs();
}

void Form13::tellLeastEs()
{
    explain(Text5, "QIc(3-4) = " + shown(q_.QIc34) + " mA\nERes = " + shown(q_.ERes) + " V\nERL2 = " + shown(q_.ERL2) +
                       " V\nEQ(3-4) = " + shown(q_.EQ34Min) + " V");
    put(Label5, "RL2= " + shown(q_.RL2Start) + " K");
    put(Label8, text(Label5));
    put(Label9, "ERL2= " + shown(q_.ERL2) + " V");
    put(Label14, " EQ4 = " + shown(q_.EQ34Min) + " V");
    host::Place place = placeOf(Label14);
    place.left = leftOfLabel14;
    setPlaceOf(Label14, place);
    put(Label15, " EQ3 = " + shown(q_.EQ34Min) + " V");
    put(Label19, "Ein = " + shown(q_.Ein) + " Vef");
    put(Label23, "Eopp = " + shown(q_.Eopp) + " Vpp\nEo(r.m.s.) = " + shown(outputRms(q_.Eopp)) + " V");
    put(Label31, shown(q_.QIc34));
    setText(Label25, words(texts::leastSource.text) + shown(q_.EsMin2));
}

} // namespace velmor::form13
