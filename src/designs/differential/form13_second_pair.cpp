// SPDX-License-Identifier: MIT
// The second pair, Q3-4: its collector resistor, its emitter resistor, and the step that works it out and tests it.
#include "designs/differential/form13.h"
#include "designs/differential/form13_texts.h"
#include "sheets/formulas.h"

namespace velmor::form13 {

namespace second_pair {

constexpr double highestEQ = 50.0; // V, whatever the transistor

} // namespace second_pair

using namespace second_pair;

// --- RL2

void Form13::focusRL2(host::EventArgs&)
{
    hide(Label14);
    accept(q_.Es, Text5, leastGiven, sheets::noLimit, q_.EsMin2);
    hide(Text1, Text2, Text3, Text4, Text5);
    q_.ERL2New = q_.Es - (q_.EQ34Min + q_.ERes);
    q_.RL2Calc = q_.ERL2New / q_.QIc34;
    write(Text6, q_.RL2Calc);
    explain(Text6, "Es = " + shown(q_.Es) + " V\nERL2 = " + shown(q_.ERL2New) + " V\nQIc(3-4) = " + shown(q_.QIc34) +
                       " mA\nRL2 = " + shown(q_.RL2Calc) + " K");
    put(Label5, "RL2= " + shown(q_.RL2Calc) + " K");
    put(Label8, text(Label5));
    put(Label9, "ERL2= " + shown(q_.ERL2New) + " V");
    put(Label1, "Es = " + shown(q_.Es) + " V");
}

// --- Res

void Form13::focusRes(host::EventArgs&)
{
    accept(q_.RL2, Text6, leastGiven, sheets::noLimit, q_.RL2Calc);
    hide(Text6);
    write(Text7, q_.Res34);
    explain(Text7, "RL2 = " + shown(q_.RL2) + " K\nERes = " + shown(q_.ERes) + " V\nRes = " + shown(q_.Res34) +
                       " K\nS (Q5) = " + shown(s5Of(q_.RL2, q_.Res34)));
    put(Label5, "RL2= " + shown(q_.RL2) + " K");
    put(Label8, text(Label5));
}

void Form13::keyRes(host::EventArgs& args)
{
    if (!filled(args))
        return;
    leaveRes();
    goTo(Text8);
}

void Form13::leaveRes()
{
    q_.Res = rules::RoundToInt16(at(Text7));
}

// --- the step that works the pair out

void Form13::focusStep(host::EventArgs&)
{
    if (q_.Res < leastGiven)
        q_.Res = wholeRes(q_.ERes, q_.QIc34 * 2.0);
    if (takeSecondPair())
        tellSecondPair();
}

// False when the student goes back to Res.
bool Form13::takeSecondPair()
{
    q_.passed = false;
    q_.QIc34 = qIc34Of(q_.ERes, q_.Res);
    q_.ERL2 = q_.QIc34 * q_.RL2;
    q_.EQ34 = q_.Es - (q_.ERL2 + q_.ERes);
    if (q_.EQ34 > highestEQ && tell(texts::highEQ) == answerYes) {
        goBackTo(Text7, Text8);
        return false;
    }
    q_.EsMin2 = leastEs(q_.ERL2, q_.ERes, q_.EQ34Min);
    const bool lowCurrent = q_.ERL2 < q_.Eopp / 2.0;
    if (!lowCurrent && q_.EsMin2 <= q_.Es)
        return true;
    tell(lowCurrent ? texts::lowCurrent : texts::highCurrent);
    goTo(Text7);
    return false;
}

// Res is the rounded number, not what stands in its field; after Res1 it has been the start value, and is rounded again.
void Form13::tellSecondPair()
{
    q_.Res = wholeRes(q_.Res, 1.0);
    q_.ReQ34 = sheets::junctionResistance(q_.QIc34);
    q_.VgQ34 = vgQ34Of(q_.RL2, q_.ReQ34);
    q_.ZinRes = inputOfEmitter(q_.Res);
    q_.EQ12 = eq12Of(q_.ERes);
    q_.RL1Calc = rl1Of(q_.Res);
    q_.ERL1 = q_.Es - q_.EQ12;
    explain(Text8, "S (Q5) = " + shown(s5Of(q_.RL2, q_.Res34)) + "\nQIc(3-4) = " + shown(q_.QIc34) +
                       " mA\nr'e = " + shown(q_.ReQ34) + " ohms\nVg(3-4) = " + shown(q_.VgQ34) +
                       "\nEQ(3-4) = " + shown(q_.EQ34) + " V");
    put(Label9, "ERL2= " + shown(q_.ERL2) + " V");
    put(Label14, "EQ4 = " + shown(q_.EQ34) + " V");
    put(Label15, "EQ3 = " + shown(q_.EQ34) + " V");
    put(Label30, "Zin = " + shown(q_.ZinRes) + " K");
    tell(texts::goOnWithQ12);
    setText(Text7, "Res :" + shown(q_.Res) + " K");
    put(Label31, shown(q_.QIc34));
}

void Form13::keyStep(host::EventArgs& args)
{
    if (filled(args))
        clickStep();
}

// A click that a warning has sent back to Res goes no further.
void Form13::clickStep()
{
    if (focus() == Text8)
        goTo(Text9);
}

} // namespace velmor::form13
