// SPDX-License-Identifier: MIT
// Supply, equal resistors and base divider of `Form9`, and the loop in which the student turns the preset until the
// collector current is the one designed.
#include "designs/base_collector/follower_formulas.h"
#include "designs/base_collector/form9.h"
#include "designs/base_collector/form9_texts.h"
#include "rules/numbers.h"
#include "sheets/formulas.h"

namespace velmor::form9 {

namespace bias_detail {

constexpr int answerYes = 6;
constexpr double presetJunction = 0.6; // V, whatever the junction of the design is

// Where the advice stands in the model.
constexpr int adviceTop = 600;
constexpr int adviceSize = 1900;
constexpr host::Place adviceOfSupplyLeft{7680, 900, 1935, 495};
constexpr host::Place adviceOfRL{7580, 900, 3000, 495};
constexpr int topWithRb2 = 4560;
constexpr int topWithRb1 = 1320;

} // namespace bias_detail

using namespace bias_detail;

// --- Es

void Form9::proposeSupply()
{
    q_.ERL = leastLoadVoltage(Eopp());
    q_.EQ = base_collector::transistorRoom(Eopp());
    const std::string least = shown(base_collector::leastSupply(Eopp()));
    std::string advice(pick(base_collector::leastSupplyAbove));
    setText(Label19, (advice += least).append(pick(base_collector::leastSupplyBelow)));
    rewrite(Text20, least);
}

void Form9::focusText20(host::EventArgs& args)
{
    disable(Text12, Text5, Text6, Text7, Text1, Text3, Text4, Text8, Text9, Text13, Text11, Text14, Text10, Text2);
    host::Place place = placeOf(Label19);
    place.top = adviceTop;
    place.width = adviceSize;
    place.height = adviceSize;
    setPlaceOf(Label19, place);
    focusField(args);
    hide(Text15, Text16);
    proposeSupply();
}

// RL in ohm; none without a current.
Real Form9::workOutRL(Real QIc) const
{
    return QIc == 0 ? Real(0.0) : loadResistor(q_.ERL, QIc);
}

void Form9::keyText20(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    const Real QIc = at(Text8);
    const Real Es = at(Text20); // what is read counts, also when it is corrected
    correct(Text20);
    q_.EQ = base_collector::transistorRoom(Eopp());
    q_.ERL = halfOfTheRest(Es, q_.EQ);
    const Real RL = workOutRL(QIc);
    if (RL < at(Text9) * 1000.0) {
        askForSupply(RL);
        return;
    }
    const std::string kilohms = whole(RL / 1000.0) + "  Kohm";
    setText(Label19, "RL= " + kilohms);
    setText(Label20, "Res= " + kilohms);
    show(Label19, Label20);
    goToRL(RL);
}

void Form9::goToRL(Real RL)
{
    goTo(Text15);
    rewrite(Text15, shown(RL / 1000.0));
}

// RL below RLw: a higher supply, or that RL all the same.
void Form9::askForSupply(Real RL)
{
    if (tell(lowSupply) == answerYes) {
        show(Label19);
        goTo(Text20);
        return;
    }
    if (RL / 1000.0 < 0) {
        tell(base_collector::supplyTooLow);
        goTo(Text20);
        return;
    }
    setPlaceOf(Label19, adviceOfRL);
    setText(Label19, ("RL = " + shown(RL / 1000.0)).append(pick(putRL)));
    goToRL(RL);
}

void Form9::lostText20()
{
    setPlaceOf(Label19, adviceOfSupplyLeft);
}

// --- RL, and Res which is equal to it

void Form9::focusText15(host::EventArgs& args)
{
    focusField(args);
    if (at(Text8) != 0)
        rewrite(Text15, shown(workOutRL(at(Text8)) / 1000.0));
}

void Form9::keyText15(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    setText(Label20, "Res = " + text(Text15) + " Kohm");
    show(Label19, Label20, Label21);
    goTo(Text16);
}

void Form9::takeLoadVoltage()
{
    q_.EQ = base_collector::transistorRoom(Eopp());
    q_.ERL = loadVoltage(at(Text8), at(Text15));
}

void Form9::lostText15(host::EventArgs& args)
{
    show(Text16, Label22, Label23);
    leaveField(args);
    takeLoadVoltage();
    setText(Label22, "ERl = " + shown(q_.ERL) + " Volts");
    if (q_.ERL < Eopp() / 2.0) {
        tell(loadVoltageTooLow);
        goTo(Text15);
        return;
    }
    tellVoltages();
    if (Eopp() + 1.0 >= 3)
        return;
    write(Frame1, smallVoltage);
    write(Command1, follow);
    write(Command2, changeOutput);
    show(Frame1, Command1, Command2);
}

void Form9::tellVoltages()
{
    setText(Voltaje, shown(q_.ERL) + " Volts");
    setText(Label23, "Eq =" + shown(q_.EQ) + " Volts");
    rewrite(Text20, shown(supplyFor(q_.ERL, Eopp())));
    if (at(Text8) != 0)
        setText(Label19, "RL=" + shown(q_.ERL / at(Text8)) + " Kohm");
}

// --- less than 3 volts for the transistor

void Form9::putQuestionAway()
{
    hide(Frame1, Command1, Command2);
}

void Form9::clickCommand1()
{
    goTo(Text16);
    putQuestionAway();
    setText(Label21, ("Rb2 =" + whole(q_.Rb2) + " Kohm\n").append(pick(base_collector::putRb2)));
}

void Form9::clickCommand2()
{
    goTo(Text13);
    putQuestionAway();
}

// --- Rb2

void Form9::proposeRb2()
{
    const Real RL = at(Text15);
    const Real RLw = at(Text9);
    if (RL + RLw != 0)
        q_.Rb2 = lowerBaseResistor(at(Text10), RL, RLw);
}

void Form9::tellRb2()
{
    setText(Label21, "Rb2 =" + whole(q_.Rb2) + " Kohm");
}

void Form9::focusText16(host::EventArgs& args)
{
    disable(Text15, Text20);
    focusField(args);
    proposeRb2();
    tellRb2();
    rewrite(Text16, shown(q_.Rb2));
}

void Form9::keyText16(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    setTop(Label21, topWithRb2);
    setText(Label21, "Rb2 = " + shown(at(Text16)) + " K");
    show(Label24);
    goTo(Text17);
}

void Form9::lostText16()
{
    if (at(Text16) < 0.00001) {
        rewrite(Text16, digits(q_.Rb2));
        tellRb2();
    }
    takeLoadVoltage();
    if (q_.ERL + at(Text7) != 0)
        q_.Rb1 = upperBaseResistor(q_.EQ, q_.ERL, at(Text7), Zin());
    const Real rounded = rules::CurrencyValue(q_.Rb1).toDouble();
    setText(Label24, ("Rb1 = " + whole(rounded) + " Kohm\n").append(pick(base_collector::putRb1)));
    rewrite(Text17, shown(rounded));
}

// --- Rb1

// What the base offers to the generator; 0 where it cannot be worked out.
Real Form9::Zin() const
{
    const Real Rb2 = at(Text16);
    const Real BaseZ = at(Text2) * at(Text15);
    return Rb2 + BaseZ == 0 ? Real(0.0) : baseImpedance(Rb2, at(Text2), at(Text15));
}

void Form9::focusText17(host::EventArgs& args)
{
    focusField(args);
    if (at(Text15) != 0)
        rewrite(Text10, shown(at(Text16) / at(Text15)));
    putQuestionAway();
    enable(Text4);
}

void Form9::keyText17(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    if (at(Text17) < 1e-07)
        write(Text17, q_.Rb1);
    write(SSPanel2, analysisPrompt);
    setTop(Label24, topWithRb1);
    setText(Label24, "Rb1 = " + shown(at(Text17)) + " Kohm");
    show(Label32);
    tellInput();
    show(Picture2);
    hide(Picture1);
    q_.passed = obtainsItsCurrent();
    if (q_.passed)
        return;
    tell(base_collector::adjustRb1);
    goTo(Text17);
}

void Form9::tellInput()
{
    const Real fo = at(Text12);
    const Real RLw = at(Text9);
    setText(Label25, "Zin=" + whole(Zin()) + " K");
    if (fo * Zin() != 0)
        setText(Label26, shown(sheets::couplingCapacitor(fo, Zin()) * 1000.0) + " mF");
    if (fo * RLw == 0)
        return;
    const std::string Cout = shown(sheets::couplingCapacitor(fo, RLw) * 1000.0) + " mF";
    setText(Label27, Cout);
    setText(Label28, Cout);
}

// The current that the preset in use gives, within a tenth of the one designed. What would divide by nothing gives
// none.
bool Form9::obtainsItsCurrent()
{
    const Real QIc = at(Text8);
    if (at(Text17) == 0 || at(Text16) == 0)
        return false;
    const Real base = emitterVoltage(at(Text15), QIc) + presetJunction;
    const Real obtained = base_collector::obtainedCurrent(at(Text20) - base, at(Text17), base, at(Text16), at(Text2));
    show(Text18);
    setText(Text18, shown(obtained) + " mA");
    return base_collector::withinATenth(obtained, QIc);
}

} // namespace velmor::form9
