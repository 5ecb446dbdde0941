// SPDX-License-Identifier: MIT
// The chain of `Form10` from the wanted power to the supply: what the output needs, and the analysis of what is too little.
#include "designs/power/form10.h"

namespace velmor::form10 {

namespace supply_detail {

constexpr std::int32_t passedColor = 0xE0E0E0;
constexpr int answerOk = 1;
constexpr double highestQuietEq = 20; // V

// Where the least supply is told: below everything, without a width of its own.
constexpr host::Place supplyHint{0, 5900, 0, 3575};

} // namespace supply_detail

using namespace supply_detail;

// --- Po

void Form10::lostText1()
{
    setBackColor(Text1, passedColor);
    hide(Text7, Text8, Text9, Label8, Label14, Label15);
    disable(Text4);
}

// --- RLw

void Form10::lostText2()
{
    takeLoad();
    q_.Eopp = outputSwing(at(Text1), at(Text2));
    q_.EqMin = leastEq(q_.Eopp);
    q_.EsMin = leastSupply(q_.EqMin);
    tellSupply(supplyHint);
    goTo(Text10);
}

void Form10::takeLoad()
{
    correct(Text1);
    correct(Text2);
    makeBare(Text1);
    makeBare(Text2);
}

void Form10::tellSupply(const host::Place& hint)
{
    host::Place place = hint;
    place.left = placeOf(Label2).left;
    setPlaceOf(Label2, place);
    setText(Label2, words(leastSource) + shown(q_.EsMin) + words(leastSourceEnd));
}

// --- Es

// With every key, and from the text before the key.
void Form10::takeSupply()
{
    q_.Eq = at(Text10) / 2.0;
    q_.ERl = driverLoadVoltage(at(Text10), stage_.junctions);
}

void Form10::keyText10(host::EventArgs& args)
{
    takeSupply();
    if (!entered(args))
        return;
    if (supplyIsTooLow()) {
        if (tell(insufficientEq) == answerOk) {
            goTo(Text10);
            return;
        }
        // The student may insist; this box has no answer that would hold the chain up.
        if (q_.ERl < q_.Eopp / 2.0)
            tell(insufficientERl);
    }
    goTo(Text5);
    setText(Label3, "Eq=" + shown(q_.Eq) + " V");
}

void Form10::lostText10()
{
    correct(Text10);
    q_.Eq = at(Text10) / 2.0;
    openAnalysis();
    if (q_.Eq > highestQuietEq)
        tell(highEq);
    tellDriver();
}

// A page that someone else has left open begins anew.
void Form10::openAnalysis()
{
    const Real half = q_.Eopp / 2.0;
    if (!supplyIsTooLow() || q_.ERl == half)
        return;
    const bool lowEq = q_.ERl > half;
    const BiText(&page)[3] = lowEq ? lowEqPage : lowERlPage;
    host().Unload("Form6");
    host::Window* analysis = host().Show("Form6");
    if (analysis == nullptr)
        return;
    host().SetWindowCaption(*analysis, pick(analysisTitle));
    for (const std::string_view picture : {"Image2", "Image3", "Image4", "Image5"})
        host().setVisible("Form6", picture, picture == (lowEq ? "Image4" : "Image3"));
    host().setText("Form6", "Label1",
                   words(page[0]) + shown(q_.Eopp) + words(page[1]) + shown(lowEq ? q_.Eopp * 0.66 : half) +
                       words(page[2]));
}

void Form10::tellDriver()
{
    setText(Label4, "ERl =  " + shown(q_.ERl) + " Volts");
    setText(Label5, stage_.driverVoltages);
    setText(Label6, stage_.diodeVoltage);
    tell(Text5, When::focus);
}

} // namespace velmor::form10
