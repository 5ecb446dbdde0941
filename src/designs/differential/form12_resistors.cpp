// SPDX-License-Identifier: MIT
// The resistors of the source: Res, the share of the current that the divider takes, Rb1 and Rb2.
#include "designs/differential/form12.h"
#include "designs/differential/form12_texts.h"

#include <algorithm>

namespace velmor::form12 {

using sheets::Press;
using sheets::When;

namespace resistors {

constexpr double leastGiven = 0.001;
constexpr double leastRb1 = 1e-05; // kohm
constexpr double leastQIc = 0.2;   // mA
constexpr double usualK = 0.5;
constexpr std::int16_t smallLetters = 9;

} // namespace resistors

using namespace resistors;

// --- Res

std::string Form12::pageOfRes() const
{
    return words(texts::resPage);
}

void Form12::focusRes()
{
    disable(Text1, Text2, Text3);
    setText(Text4, shown(q_.ResCalc));
    tellPageOf(Text4);
}

// What the focus has written into the next field is read at once, and is no number yet.
void Form12::keyRes(host::EventArgs& args)
{
    if (entered(args) != Press::enter)
        return;
    goTo(Text5);
    write(Text5, std::max(Real(leastGiven), at(Text5)));
}

void Form12::leaveRes(host::EventArgs& args)
{
    leaveField(args);
    q_.Res = at(Text4);
    setText(Text4, digits(q_.Res) + " K");
    q_.QIc = lowerDrop(q_.Ebias, q_.Eb) / q_.Res;
    setText(Text1, shown(q_.QIc) + "mA");
    if (q_.QIc >= leastQIc)
        return;
    if (tell(texts::lowQIc) == answerOk) {
        host().SetFocus(*this, Text4);
        return;
    }
    setText(Text4, shown(q_.Res) + "Kohms");
    q_.Res = at(Text4);
    if (q_.Res != Real(0.0))
        q_.QIc = q_.Eq / q_.Res; // not as before, on purpose
    goTo(Text1);
}

// --- K

std::string Form12::pageOfK() const
{
    return words(texts::kPage) + shown(q_.QIc / 2.0) + std::string(texts::stability);
}

// "K=0.5" is no number: left as it is, it becomes the usual value.
void Form12::focusK()
{
    setText(Text4, digits(q_.Res) + " K");
    write(Text9, eBiasFromRes(q_.Eq, q_.QIc, q_.Res));
    q_.Ebias = at(Text9);
    setText(Text5, "K=" + shown(usualK));
    q_.K = at(Text5);
    tellPageOf(Text5);
}

void Form12::leaveK(host::EventArgs& args)
{
    leaveField(args);
    q_.K = at(Text5);
    q_.S = 1.0 / q_.K;
    tellBias();
}

void Form12::tellBias()
{
    setText(Label4, "S = " + shown(q_.S));
    show(Label4);
}

// --- Rb1

std::string Form12::pageOfRb1() const
{
    return words(texts::rb1Page) + shown(q_.S) + words(texts::rb1Asks) + shown(q_.Rb1Calc) + words(texts::rb1Diode);
}

void Form12::focusRb1()
{
    setText(Label5, "0.6 V");
    show(Label5);
    q_.Ibias = rules::CurrencyValue(q_.K * q_.QIc).toDouble();
    if (q_.Ibias != Real(0.0))
        q_.Rb1Calc = q_.Eb / q_.Ibias;
    setFontSize(Text5, smallLetters);
    setText(Text5, shown(q_.Ibias) + "mA");
    setText(Text6, shown(q_.Rb1Calc));
    tellPageOf(Text6);
}

// Without a resistor there is nothing to compare.
void Form12::leaveRb1()
{
    if (at(Text6) < leastRb1)
        write(Text6, q_.Rb1Calc);
    q_.Rb1 = at(Text6);
    if (q_.Rb1 == Real(0.0))
        return;
    q_.IbiasRb1 = q_.Eb / q_.Rb1;
    const bool high = q_.IbiasRb1 > q_.QIc;
    if (high || q_.IbiasRb1 < leastShare * q_.QIc) {
        tell(high ? texts::highBias : texts::lowBias);
        host().SetFocus(*this, Text6);
        return;
    }
    q_.Ibias = rules::CurrencyValue(q_.IbiasRb1).toDouble();
    setText(Text5, shown(q_.Ibias) + "mA");
    tellBias();
}

// --- Rb2

std::string Form12::pageOfRb2() const
{
    return words(texts::rb2Page) + "= " + shown(q_.Rb2Calc) + "  Kohms" + words(texts::rb2Asks);
}

void Form12::focusRb2()
{
    setText(Text6, digits(q_.Rb1) + "  K");
    show(Label5);
    q_.Ibias = at(Text5);
    if (q_.Ibias != Real(0.0)) {
        q_.Rb2Calc = lowerDrop(q_.Ebias, q_.Eb) / q_.Ibias;
        q_.K = q_.QIc / q_.Ibias;
    }
    if (q_.K != Real(0.0))
        q_.S = 1.0 / q_.K;
    setText(Label4, "S = " + shown(q_.S));
    setText(Text7, shown(q_.Rb2Calc));
    tellPageOf(Text7);
}

// A current that is too high goes on to the analysis all the same, which counts with the resistor that was given.
void Form12::leaveRb2()
{
    q_.biasAccepted = false;
    correct(Text7);
    q_.Rb2 = at(Text7);
    q_.IbiasRb2 = lowerDrop(q_.Ebias, q_.Eb) / q_.Rb2;
    if (q_.Res != Real(0.0))
        q_.QIcRef = lowerDrop(q_.Ebias, q_.Eb) / q_.Res;
    if (q_.IbiasRb2 > q_.QIcRef) {
        tell(texts::highBias);
        setText(Text7, "6");
    } else if (q_.IbiasRb2 < leastShare * q_.QIcRef) {
        tell(texts::lowBias);
        host().SetFocus(*this, Text5);
    } else if (q_.QIcRef < leastGiven) {
        tell(texts::lowBias);
        setText(Text7, "6");
        host().SetFocus(*this, Text7);
    } else {
        setText(Text5, shown(q_.IbiasRb2));
        tellBias();
        q_.biasAccepted = true;
    }
}

} // namespace velmor::form12
