// SPDX-License-Identifier: MIT
// The input pair, Q1-2, and Q5 with its resistor and its load: the end of the design.
#include "designs/differential/form13.h"
#include "designs/differential/form13_texts.h"
#include "sheets/formulas.h"

namespace velmor::form13 {

using host::Handle;

namespace first_pair {

constexpr double leastRes1 = 0.001;
constexpr double perKilo = 1000.0;
constexpr double microfarads = 1000000.0;
constexpr int leftOfLabel13 = 4920;

} // namespace first_pair

using namespace first_pair;

// --- RL1

void Form13::focusRL1(host::EventArgs&)
{
    setText(Text9, shown(q_.RL1Calc));
    explain(Text9, "Es = " + shown(q_.Es) + " V\nEQ(1-2) = " + shown(q_.EQ12) + " V\nERL1 = " + shown(q_.ERL1) +
                       " V\nRL1 = " + shown(q_.RL1Calc) + " K");
    put(Label16, "EQ1 = " + shown(q_.EQ12) + " V");
    put(Label13, "EQ2 = " + shown(q_.EQ12) + " V");
    host::Place place = placeOf(Label13);
    place.left = leftOfLabel13;
    setPlaceOf(Label13, place);
    for (const Handle label : {Label3, Label11})
        put(label, "ERL1= " + shown(q_.ERL1) + " V");
    for (const Handle label : {Label2, Label10})
        put(label, "RL1= " + shown(q_.RL1Calc) + " K");
}

// --- Res1

// From here on Res is the start value again, and no whole number.
void Form13::focusRes1(host::EventArgs&)
{
    disable(Text7, Text11);
    write(Label24, texts::same("RLw=>"));
    q_.Res = q_.ERes / 1.0;
    accept(q_.RL1, Text9, leastGiven, sheets::noLimit, rl1Of(q_.Res));
    takeGain();
    tellGain();
    setText(Text10, shown(q_.Res1));
    show(Label18);
}

void Form13::takeGain()
{
    q_.QIc12 = q_.ERL1 / q_.RL1;
    q_.ReQ12 = sheets::junctionResistance(q_.QIc12);
    q_.ZinQ34 = inputOfPair(q_.ReQ34);
    q_.ZinAlt = inputOfEmitter(q_.Res) * perKilo;
    q_.RLac12 = rlac12Of(q_.RL1, q_.ZinQ34);
    q_.VgQ12 = vgQ12Of(q_.RLac12, q_.ReQ12);
    q_.VgTotal = q_.VgQ12 * q_.VgQ34;
}

void Form13::tellGain()
{
    setText(Label29,
            "QIc(1-2) = ERL1 / RL1\nRLac = RL1 // (200 x r'e(3-4))\nVg(1-2) = RLac / (1.25 x r'e)\n     Zin1 = " +
                shown(q_.ZinAlt) + " ohms");
    explain(Text10, "QIc(1-2) = " + shown(q_.QIc12) + " mA\nr'e = " + shown(q_.ReQ12) + " ohms\nVg(1-2) = " +
                        shown(q_.VgQ12) + "\nVg(3-4) = " + shown(q_.VgQ34) + "\nVg = " + whole(q_.VgTotal));
    put(Label4, shown(q_.QIc12) + "\nmA");
    put(Label32, "Zin1= " + whole(q_.ZinQ34 / perKilo) + " K");
    for (const Handle label : {Label2, Label10})
        setText(label, "RL1= " + shown(q_.RL1) + " K");
    if (q_.VgTotal != Real(0.0))
        put(Label19, "Ein = " + shown(einOf(q_.Eopp, q_.VgTotal)) + " Vef");
}

void Form13::keyRes1(host::EventArgs& args)
{
    if (!filled(args))
        return;
    enable(SSCommand1);
    takeRes1();
    goTo(Text11);
}

void Form13::takeRes1()
{
    q_.Res1 = at(Text10);
    accept(q_.Res1, Text10, leastRes1, sheets::noLimit, leastRes1);
}

void Form13::leaveRes1()
{
    takeRes1();
    if (visible(Text11)) {
        write(Label24, texts::same("RLw =>"));
        enable(Text11);
        setText(Text11, "");
    }
    q_.ERes1 = eRes1Of(q_.EQ34, q_.ERes);
    q_.Rb1 = inputOfPair(q_.ReQ12);
    q_.C1 = c1Of(q_.Rb1);
    takeTail(q_.Res1);
    grow(Text11);
    put(Label22, "Rb1= " + shown(q_.Rb1 / perKilo) + " K");
    put(Label20, "Zin= " + shown(q_.Rb1 / perKilo) + " K");
    put(Label35, " C1 = " + shown(q_.C1 * microfarads) + " microF");
    tell(texts::formulasOfQ5);
    tell(texts::loadOfQ5);
    tell(texts::canModify);
    q_.passed = true;
}

/// Q5 with what its emitter sees, kohm.
void Form13::takeTail(Real Res1)
{
    q_.QIc5 = q_.ERes1 / Res1;
    q_.EQ5 = q_.Es - q_.ERes1;
    q_.ZinQ5 = inputOfEmitter(Res1);
    put(Label33, shown(q_.QIc5));
    put(Label21, " EQ5 = " + shown(q_.EQ5) + " V");
    put(Label30, "Zin = " + shown(q_.ZinQ5) + " K");
    put(Label12, "Res1=" + shown(Res1) + " K\nEres= " + shown(q_.ERes1) + " V");
    setText(Label26, words(texts::data) + "\nVg = " + whole(q_.VgTotal) + "\nQIc(Q5) = " + shown(q_.QIc5) +
                         " mA\nZin(Q5) = " + shown(q_.ZinQ5) + " K\nRg = " + shown(q_.Rb1 / perKilo) + " K");
}

// --- RLw

void Form13::focusRLw(host::EventArgs& args)
{
    focusField(args);
    put(Label7, "QIc(3y4) =" + shown(q_.QIc34 * 2.0) + " mA");
}

void Form13::clickRLw()
{
    setText(Text11, "");
    tell(Text11, sheets::When::click);
}

void Form13::keyRLw(host::EventArgs& args)
{
    if (!filled(args))
        return;
    q_.RLw = at(Text11);
    goTo(SSCommand1);
}

void Form13::leaveRLw()
{
    q_.RLw = at(Text11);
    accept(q_.RLw, Text11, leastGiven, sheets::noLimit, 10.0 * q_.Res1);
    q_.Res1Par = sheets::parallel(q_.Res1, q_.RLw);
    takeTail(q_.Res1Par);
    if (q_.ZinQ5 < 10.0 * q_.RL2) {
        q_.passed = false;
        tell(texts::heavyLoad);
    }
    disable(Text11);
    tell(texts::placeRes1Again);
}

} // namespace velmor::form13
