// SPDX-License-Identifier: MIT
// The closing of `Form4`: emitter resistor, supply, collector resistor, the divider of the base, and the loop in which the student
// turns the preset until the collector current is the one designed.
#include "designs/base_collector/follower_formulas.h"
#include "designs/base_collector/form4.h"
#include "sheets/formulas.h"

namespace velmor::form4 {

namespace closing_detail {

constexpr int answerYes = 6;
constexpr double leastRes = 0.0001; // kilohm
constexpr double leastRb1 = 1E-07;  // kilohm
constexpr int lowerLabelTop = 4560; // of `Label21`, once Rb2 is chosen
constexpr int upperLabelTop = 1320; // of `Label24`, once Rb1 is

} // namespace closing_detail

using namespace closing_detail;

// --- Res

void Form4::focusText18(host::EventArgs& args)
{
    focusField(args);
    disable(Text12, Text5, Text6, Text7, Text1, Text3, Text4, Text8, Text9, Text13, Text11, Text14, Text10, Text2);
}

// It asks whether Vj is empty, not Res: an empty Res takes the value worked out.
void Form4::keyText18(host::EventArgs& args)
{
    const std::int16_t key = filteredKey(args);
    if (key != 0)
        q_.passed = false;
    if (key != sheets::enterKey)
        return;
    if (isEmpty(Text7)) {
        tell(Text18, sheets::When::empty);
        return;
    }
    makeBare(Text18);
    takeRes();
    goTo(Text20);
}

// The standard resistor moves QIc, not ERes.
void Form4::takeRes()
{
    if (at(Text18) < leastRes)
        proposeRes();
    if (at(Text18) != Real(0.0))
        write(Text8, quiescentCurrent(q_.ERes, at(Text18)));
}

// The resistance of the junction is that of the current as it was before the standard resistor moved it.
void Form4::leaveText18()
{
    if (q_.QIc != Real(0.0)) {
        q_.ReDyn = junctionResistance(q_.QIc);
        setText(Label32, "r'e = " + shown(q_.ReDyn) + " Ohms");
    }
    if (!isEmpty(Text18))
        setText(Text18, digits(at(Text18)) + " K");
}

// --- Es

void Form4::focusText20(host::EventArgs& args)
{
    focusField(args);
    hide(Label10, Text15, Text16);
    workOutEsMin();
    setPlaceOf(Label19, supplyPlace);
    setText(Label19, words(texts::leastSource) + shown(q_.EsMin) + words(texts::availableSource));
    setText(Text20, shown(q_.EsMin));
}

void Form4::workOutEsMin()
{
    q_.ERL = leastLoadVoltage(at(Text13));
    q_.EsMin = leastSupply(at(Text13), q_.ERes);
}

void Form4::leaveText20()
{
    setPlaceOf(Label19, loadPlace);
}

// The least supply counts as it is proposed, to four decimals.
void Form4::keyText20(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    q_.QIc = at(Text8);
    if (at(Text20) < 1E-06)
        setText(Text20, shown(q_.EsMin));
    if (at(Text20) < rules::CurrencyValue(q_.EsMin).toDouble()) {
        tell(texts::supplyTooLow);
        return;
    }
    q_.EqWork = workingTransistorVoltage(at(Text13));
    q_.RLCalc = collectorResistor(at(Text9), signalLoad(at(Text11), q_.ReDyn));
    q_.ERL = q_.QIc * q_.RLCalc;
    if (q_.RLCalc < 0.1)
        askForCurrent();
    else
        acceptSupply();
}

void Form4::acceptSupply()
{
    show(Label10, Label19);
    setText(Label19, "RL = " + whole(q_.RLCalc) + "  Kohm");
    goTo(Text15);
}

// A load that asks for all the current. Who insists gets a resistor divided by 1000 once more than its kilohms call for.
void Form4::askForCurrent()
{
    if (tell(texts::raiseCurrent) == answerYes) {
        show(Label19);
        goTo(Text8);
        return;
    }
    if (q_.RLCalc < 0.05) {
        tell(texts::insistNot);
        return;
    }
    setPlaceOf(Label19, smallLoadPlace);
    setText(Label19, "= " + shown(q_.RLCalc / 1000.0) + words(texts::putStandardRL));
    goTo(Text15);
}

// --- RL

void Form4::focusText15(host::EventArgs& args)
{
    focusField(args);
    setText(Text15, shown(q_.RLCalc));
}

void Form4::leaveText15(host::EventArgs& args)
{
    if (isTakenAway(Text15))
        return;
    show(Text16, Label22, Label23);
    q_.QIc = at(Text8);
    leaveField(args);
    q_.ERL = loadVoltage(q_.QIc, at(Text15));
    std::string voltageName = "ERl = ";
    if (!swingFits(voltageName)) {
        goTo(Text11);
        return;
    }
    setText(Label22, voltageName + shown(q_.ERL) + " V");
    setText(Label23, "Eq =" + shown(q_.EqWork) + " V");
    workOutSupply();
    proposeRb2();
}

// False when the student prefers another gain to a clipped signal.
bool Form4::swingFits(std::string& voltageName)
{
    if (q_.ERL * 2.0 >= at(Text13))
        return true;
    voltageName = "ERl= ";
    return tell(texts::loadVoltageTooLow) == answerYes;
}

void Form4::workOutSupply()
{
    setText(Text20, shown(supplyVoltage(q_.ERes, q_.ERL, q_.EqWork)));
    if (q_.QIc == Real(0.0) || q_.ReDyn == Real(0.0))
        return;
    const Real RL = q_.ERL / q_.QIc;
    setText(Label19, "RL = " + shown(RL) + " Kohm");
    const Real RLac = sheets::parallel(at(Text9), RL);
    setText(Text11, shown(finalGain(RLac, q_.ReDyn)));
    setText(Label10, "RLac = " + shown(RLac) + " Kohms");
}

void Form4::proposeRb2()
{
    q_.Rb2Calc = lowerBaseResistor(at(Text10), at(Text18));
    setText(Label21, "Rb2 =" + shown(q_.Rb2Calc) + " Kohm\n" + words(texts::putStandardRb2));
}

// --- Rb2

void Form4::focusText16(host::EventArgs& args)
{
    focusField(args);
    disable(Text15, Text20, Text18);
    setText(Text16, shown(q_.Rb2Calc));
}

void Form4::keyText16(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    goTo(Text17);
    host::Place place = placeOf(Label21);
    place.top = lowerLabelTop;
    setPlaceOf(Label21, place);
    setText(Label21, "      Rb2 = " + shown(at(Text16)) + " K");
    show(Label24);
}

void Form4::leaveText16()
{
    if (isTakenAway(Text16))
        return;
    if (at(Text16) < 1E-05) {
        setText(Text16, shown(lowerBaseResistor(at(Text10), at(Text18))));
        setText(Label21, "Rb2 =" + shown(at(Text16)) + " Kohm");
    }
    workOutRb1();
    writeRb1("\n" + words(texts::putPreset));
    setText(Text17, shown(q_.Rb1Calc / 1000.0));
}

// Values that an odd file has brought to nothing leave Rb1 as it was.
void Form4::workOutRb1()
{
    const BaseCircuit circuit{.Rb2 = at(Text16),
                              .baseZ = baseImpedance(at(Text2), at(Text15)),
                              .EqWork = q_.EqWork,
                              .ERL = q_.ERL,
                              .ERes = q_.ERes,
                              .Vj = at(Text7)};
    if (circuit.Rb2 * 1000.0 + circuit.baseZ != Real(0.0) && circuit.ERes + circuit.Vj != Real(0.0))
        q_.Rb1Calc = upperBaseResistor(circuit);
}

void Form4::writeRb1(std::string_view ending)
{
    setText(Label24, ("Rb1 = " + shown(q_.Rb1Calc / 1000.0) + " Kohm").append(ending));
}

// --- Rb1

bool Form4::isShown(std::string_view window) const
{
    const host::Window* found = host().find(window);
    return found != nullptr && found->shown();
}

void Form4::focusText17(host::EventArgs& args)
{
    focusField(args);
    if (at(Text18) != Real(0.0))
        setText(Text10, shown(at(Text16) / at(Text18)));
    if (!isShown("Form6"))
        return;
    setFontSize(Label33, 12);
    tell(texts::dragSource);
}

void Form4::leaveText17()
{
    if (isTakenAway(Text17))
        return;
    const bool told = workOutObtainedCurrent();
    if (told)
        setText(Label2, shown(q_.ICheck) + " mA");
    q_.passed = told && obtainsItsCurrent();
    if (q_.passed)
        return;
    tell(texts::adjustPreset);
    goTo(Text17);
}

bool Form4::workOutObtainedCurrent()
{
    if (at(Text17) == Real(0.0) || at(Text16) == Real(0.0))
        return false;
    q_.ICheck = obtainedCurrent({.Es = at(Text20),
                                 .QIc = at(Text8),
                                 .Res = at(Text18),
                                 .Rb1 = at(Text17),
                                 .Rb2 = at(Text16),
                                 .Beta = at(Text2)});
    return true;
}

bool Form4::obtainsItsCurrent() const
{
    return base_collector::withinATenth(q_.ICheck, at(Text8));
}

void Form4::keyText17(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    if (at(Text17) < leastRb1) {
        workOutRb1();
        setText(Text17, shown(q_.Rb1Calc / 1000.0));
    }
    closeAnalysis();
    host::Place place = placeOf(Label24);
    place.top = upperLabelTop;
    setPlaceOf(Label24, place);
    setText(Label24, "Rb1 = " + shown(at(Text17)) + " Kohm");
    show(Picture2);
    tell(texts::clickLeaf);
    writeCapacitors();
    writeInputImpedance();
    hide(Label33, Image4);
    q_.passed = workOutObtainedCurrent() && obtainsItsCurrent();
}

void Form4::writeCapacitors()
{
    const Real fo = at(Text12);
    if (fo == Real(0.0) || q_.ReDyn == Real(0.0) || at(Text9) == Real(0.0))
        return;
    const std::string in = microfarads(inputCapacitor(fo, q_.ReDyn));
    setText(Label26, in);
    setText(Label28, in);
    setText(Label27, microfarads(sheets::couplingCapacitor(fo, at(Text9) * 1000.0)));
}

void Form4::writeInputImpedance()
{
    const std::string impedance = "Zin=" + whole(q_.ReDyn) + " Ohm";
    setText(Label25, impedance);
    setText(Label30, impedance);
}

} // namespace velmor::form4
