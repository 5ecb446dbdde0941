// SPDX-License-Identifier: MIT
// `Form15` from power and load to the supply: what each field does when it gets the focus, at a key and when it is left.
#include "designs/power/form15.h"

#include <cmath>

namespace velmor::form15 {

using host::Handle;
using sheets::Press;

namespace chain_detail {

constexpr std::int32_t white = 0xFFFFFF;
constexpr int widthOfLabel18 = 2150;
// Where the loudspeaker stands: offered beside the resistor, and chosen.
constexpr int leftOffered = 7280;
constexpr int leftChosen = 6240;

} // namespace chain_detail

using namespace chain_detail;

// --- Po

void Form15::startOver(host::EventArgs& args)
{
    focusField(args);
    setBackColor(Text1, white);
    hide(Text10, Text11);
    show(Label14, Label17);
    if (!visible(Label20))
        clearDrawing();
}

void Form15::focusText1(host::EventArgs& args)
{
    startOver(args);
    hide(Label1);
    if (visible(Label20))
        tellMeasured("");
}

// A design that was completed once is measured: QIc2 is what the student chose, and Po what it gives.
void Form15::tellMeasured(std::string_view lineBreak)
{
    q_.QIc2 = at(Text3);
    q_.Eopp = swingOfCurrent(q_.QIc2, RLw());
    Real Po = at(Text1);
    if (RLw() != Real(0.0))
        Po = powerOfSwing(q_.Eopp, RLw());
    write(Text1, Po);
    host::Place place = placeOf(Label18);
    place.width = widthOfLabel18;
    setPlaceOf(Label18, place);
    show(Label18);
    setText(Label18, words(texts::measuredPower).append(lineBreak) + shown(Po) + words(texts::watts));
}

void Form15::lostText1()
{
    leavePower("EQ");
}

void Form15::leavePower(std::string_view label1)
{
    setText(Label1, label1);
    hide(Label18);
    correct(Text1);
}

// --- RLw

// The field before is asked whether it is empty, this one never: a slip that is kept.
void Form15::keyText2(host::EventArgs& args)
{
    const std::int16_t key = filteredKey(args);
    if (key != 0)
        q_.biased = q_.passed = false;
    if (key != sheets::enterKey)
        return;
    if (isEmpty(Text1)) {
        tell(Text2, sheets::When::empty);
        goTo(Text1);
        return;
    }
    makeBare(Text2);
    goTo(Text12);
}

void Form15::lostText2()
{
    takeLoad(junction);
}

void Form15::takeLoad(double junctions)
{
    correct(Text2);
    const Real Po = at(Text1);
    if (Po * RLw() >= Real(0.0))
        q_.Eopp = swingOfPower(Po, RLw());
    q_.Eq = quiescentVoltage(q_.Eopp);
    setText(Q1, "Eq= " + shown(q_.Eq) + " V");
    divide(q_.QIc2, q_.Eopp, 2.0 * RLw());
    q_.ERLw = lessCurrency(q_.Eq, junctions);
    tellERLw();
    divide(q_.QIcRLw, q_.ERLw, RLw());
    tellLoad();
}

void Form15::tellERLw()
{
    setText(Label17, "ERLw= " + shown(q_.ERLw) + " V");
}

void Form15::tellLoad()
{
    setText(Label14, "RLw= " + shown(RLw()) + " Ohms");
}

// --- resistor or loudspeaker

void Form15::focusText12(host::EventArgs& args)
{
    offerLoads(args, leftOffered);
}

// It only asks: nothing can be written in it. Enter moves on as everywhere and keeps the load as it was given.
void Form15::keyText12(host::EventArgs& args)
{
    if (isEnterAlone(args))
        clickImage1();
}

bool Form15::isEnterAlone(host::EventArgs& args)
{
    const std::int16_t key = filteredKey(args);
    args.key = 0;
    return key == sheets::enterKey;
}

void Form15::offerLoads(host::EventArgs& args, int left)
{
    focusField(args);
    placeLoudspeaker(left);
    show(Image2, Image1);
    hide(Label14, Label17);
}

void Form15::placeLoudspeaker(int left)
{
    host::Place place = placeOf(Image2);
    place.left = left;
    setPlaceOf(Image2, place);
}

void Form15::chooseLoad(bool loudspeaker)
{
    goTo(Text10);
    hide(Text12);
    write(Label29, texts::coil);
    setVisible(Label29, loudspeaker);
    grow(Text2);
    q_.biased = q_.passed = false;
}

void Form15::clickImage1()
{
    chooseLoad(false);
    hide(Image2);
}

void Form15::clickImage2()
{
    chooseLoad(true);
    hide(Image1);
    takeCoil(leftChosen);
}

// Eopp, Eq, ERLw and QIcRLw keep the load as it was typed, until `Text2` is visited again.
void Form15::takeCoil(int left)
{
    placeLoudspeaker(left);
    fill(Text2, resistanceOfCoil(RLw()));
    tellLoad();
}

// --- Beta of both transistors

void Form15::lostText10()
{
    correct(Text10);
    disable(Text9);
}

void Form15::lostText11()
{
    correct(Text11);
    proposeCurrent();
}

void Form15::proposeCurrent()
{
    fill(Text3, proposedCurrent(q_.QIcRLw));
}

// --- QIc2

void Form15::tellCriterionOfCurrent(const host::BiText& opening)
{
    tellPage(Text3, words(texts::currentFormulas) + words(texts::currentOfLoad) + shown(q_.QIcRLw) + " A");
    setText(Label15, words(opening) + shown(q_.Eopp) + words(texts::currentIs) + shown(q_.QIc2) +
                         words(texts::loadVoltageIs) + shown(q_.ERLw) + " V");
    write(Label16, texts::currentFormulas);
}

void Form15::focusText3(host::EventArgs& args)
{
    DesignSheet::focusField(args);
    hide(Text10, Text11);
    disable(Text1, Text2);
    tellCriterionOfCurrent(texts::currentForSwing);
}

void Form15::lostText3()
{
    correctBelow(Text3, q_.QIcRLw * 1.1);
    q_.QIc2 = at(Text3);
    warn(Text3, q_.QIc2 > Real(icMax), texts::currentTooHigh);
    q_.ERLw = q_.QIc2 * RLw();
    tellERLw();
    q_.EQ2 = q_.ERLw;
    q_.Es = q_.ERLw + q_.EQ2;
    fill(Text4, q_.Es);
}

// --- Es

void Form15::lostText4()
{
    takeEQ2();
    setText(Label1, "EQ2= " + shown(q_.EQ2) + " V");
    show(Label1);
    q_.EQ1 = q_.ERLw + junction;
    warn(Q1, q_.EQ1 > Real(ecMax), texts::EQ1TooHigh);
    q_.ERL = q_.Es - q_.EQ1;
    q_.noSwing = false;
    fill(Text5, loadStability * RLw());
    tellSupply();
}

void Form15::takeEQ2()
{
    correctBelow(Text4, q_.ERLw + q_.EQ2);
    q_.Es = at(Text4);
    q_.EQ2 = q_.Es - q_.ERLw;
    warn(Label1, q_.EQ2 > Real(ecMax), texts::EQ2TooHigh);
}

void Form15::tellSupply()
{
    setText(Label10, "ERL= " + shown(q_.ERL) + " V");
    tellERLw();
    setText(Q1, "EQ1= " + shown(q_.EQ1) + " V");
}

} // namespace velmor::form15
