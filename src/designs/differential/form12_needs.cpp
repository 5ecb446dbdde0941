// SPDX-License-Identifier: MIT
// What is asked of the source: its current, the voltages of base and collector, the negative supply.
#include "designs/differential/form12.h"
#include "designs/differential/form12_texts.h"

namespace velmor::form12 {

using sheets::When;

namespace needs {

constexpr double startCurrent = 1.0; // mA
constexpr double highestQIc = 40.0;  // mA, 40 % of what a usual transistor supports
constexpr double leastEq = 2.0;
constexpr std::int16_t largeLetters = 12;

} // namespace needs

using namespace needs;

// --- QIc

void Form12::startOver()
{
    disable(Text4, Text5, Text6, Text9, Text7, Text10);
    hide(Text10, Label7);
    q_.QIc = startCurrent;
    q_.passed = false;
    setText(Text1, "1 mA");
}

void Form12::focusQIc(host::EventArgs& args)
{
    startOver();
    setText(Text6, "Rb1");
    setText(Text7, "Rb2 ");
    focusField(args);
}

// The names of the divider's resistors stand the other way round after a click.
void Form12::clickQIc()
{
    startOver();
    setText(Text4, "Res");
    setText(Text7, "Rb1");
    setText(Text6, "Rb2");
    hide(Label1, Label2, Label3, Label4);
    tell(Text1, When::focus);
}

void Form12::leaveQIc(host::EventArgs& args)
{
    leaveField(args);
    q_.QIc = at(Text1);
    setText(Text1, digits(q_.QIc) + " mA");
    if (q_.QIc > highestQIc)
        tell(texts::highQIc);
    grow(Text1);
}

// --- Eb

void Form12::focusEb(host::EventArgs& args)
{
    show(Text5);
    setFontSize(Text5, largeLetters);
    focusField(args);
}

void Form12::leaveEb(host::EventArgs& args)
{
    leaveField(args);
    q_.Eb = at(Text2);
    setText(Text2, digits(q_.Eb) + " V");
    show(Text3);
    grow(Text2);
    setText(Label1, "Eb = " + text(Text2));
    show(Label1);
}

// --- Eq

// It begins as Eb, and at this step it cannot become anything else.
void Form12::focusEq(host::EventArgs& args)
{
    q_.Eq = at(Text2);
    focusField(args);
}

void Form12::leaveEq(host::EventArgs&)
{
    enable(Text4, Text5, Text6, Text9, Text7);
    q_.Eq = at(Text3);
    if (q_.Eq > q_.Eb || q_.Eq < q_.Eb)
        q_.Eq = q_.Eb;
    setText(Text3, digits(q_.Eq) + " V");
    q_.EbiasCalc = eBiasOf(q_.Eq, q_.Eb);
    grow(Text3);
    setText(Label2, "Eq = " + text(Text3));
    show(Label2);
}

// --- Ebias

void Form12::focusEbias(host::EventArgs& args)
{
    setText(Text3, digits(q_.Eq) + " V");
    write(Text9, q_.EbiasCalc);
    setText(Label3, "Ebias = " + text(Text9) + " V");
    show(Label3);
    focusField(args);
}

void Form12::leaveEbias()
{
    q_.Ebias = at(Text9);
    setText(Text9, digits(q_.Ebias) + " V");
    setText(Label3, "Ebias = " + text(Text9));
    takeEqFromEbias();
    if (q_.QIc != Real(0.0))
        q_.ResCalc = lowerDrop(q_.Ebias, q_.Eb) / q_.QIc;
}

// Eq is 3 V or more by now: the box below stands where the course has it, and never comes.
void Form12::takeEqFromEbias()
{
    q_.Eq = eqFromEbias(q_.Ebias, q_.Eb);
    setText(Text3, digits(q_.Eq) + " V");
    setText(Label2, "Eq = " + text(Text3));
    if (q_.Eq >= leastEq)
        return;
    if (tell(texts::lowEq) == answerOk) {
        goTo(Text3);
        return;
    }
    setText(Text3, "3V");
    q_.Eq = at(Text3);
    q_.Ebias = eBiasOf(q_.Eq, q_.Eb);
    goTo(Text9);
}

} // namespace velmor::form12
