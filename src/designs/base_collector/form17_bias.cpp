// SPDX-License-Identifier: MIT
// Emitter resistor, supply and base divider of `Form17`, and the loop in which the student turns the preset until the
// collector current is the one designed.
#include <algorithm>

#include "designs/base_collector/follower_analysis.h"
#include "designs/base_collector/follower_formulas.h"
#include "designs/base_collector/form17.h"
#include "designs/base_collector/form17_texts.h"
#include "rules/numbers.h"
#include "sheets/formulas.h"

namespace velmor::form17 {

namespace bias_detail {

constexpr int answerYes = 6;
constexpr int widthWithRb2 = 4560;
constexpr int widthWithRb1 = 1320;

} // namespace bias_detail

using namespace bias_detail;

// --- quantities of resistors that the fields hold; 0 where they cannot be worked out

Real Form17::RLac() const
{
    const Real Res = at(Text15);
    const Real RLw = at(Text9);
    return Res + RLw == 0 ? Real(0.0) : sheets::parallel(Res, RLw);
}

Real Form17::Zin() const
{
    const Real Rb2 = at(Text16);
    const Real Beta = at(Text2);
    return Rb2 + Beta * RLac() == 0 ? Real(0.0) : inputImpedance(Rb2, Beta, RLac());
}

// --- Res

void Form17::workOutVoltages(Real Res)
{
    q_.EQ = base_collector::transistorRoom(Eopp());
    q_.ERes = at(Text8) * Res;
    q_.Es = q_.ERes + q_.EQ;
}

void Form17::tellERes()
{
    setText(Label20, "ERes= " + shown(q_.ERes) + "  Volts");
}

void Form17::focusText15(host::EventArgs& args)
{
    focusField(args);
    rewrite(Text15, shown(proposedEmitterResistor(at(Text9))) + " K");
    workOutVoltages(at(Text15));
    tellERes();
}

// The resistor that the student has chosen stays.
void Form17::clickText15()
{
    workOutVoltages(proposedEmitterResistor(at(Text9)));
}

// The current that Res asks for besides the load: it is read back as it is shown.
void Form17::takeDesignCurrent()
{
    if (RLac() != 0)
        rewrite(Text8, shown(currentForOutput(Eopp(), RLac())) + " mA");
}

void Form17::takeEmitterVoltage()
{
    q_.ERes = at(Text8) * at(Text15);
    q_.Es = q_.ERes + q_.EQ;
}

// A file that is read while one of these fields is in hand disables it: it is left then, and what was read stays.

void Form17::lostText15()
{
    if (!enabled(Text15))
        return;
    if (correct(Text15))
        q_.passed = false;
    setText(Label23, "Eq =" + shown(q_.EQ) + " Volts");
    if (q_.EQ > at(Text5)) {
        tell(voltageOverTransistor);
        goTo(Text5);
        return;
    }
    rewrite(Text20, shown(q_.Es) + " V");
    if (base_collector::transistorRoom(Eopp()) < 3)
        askForSupply();
    takeDesignCurrent();
    takeEmitterVoltage();
    rewrite(Text20, shown(q_.Es));
    const std::string Rb2 = shown(lowerBaseResistor(at(Text10), at(Text15)));
    setText(Label21, ("Rb2 =" + Rb2 + " Kohm\n").append(pick(base_collector::putRb2)));
    rewrite(Text16, Rb2);
}

// Less than 3 volts for the transistor: go on with them, or choose the supply.
void Form17::askForSupply()
{
    if (tell(lessThanThreeVolts) == answerYes) {
        goTo(Text16);
        takeDesignCurrent();
    } else {
        goTo(Text20);
    }
    takeEmitterVoltage();
    tellERes();
    write(SSPanel2, base_collector::formulaOfRb2);
}

// --- Es, where the student has chosen to give it

void Form17::focusText20(host::EventArgs& args)
{
    focusField(args);
    rewrite(Text20, shown(std::max(q_.EQ + q_.ERes, Real(4.0))));
}

void Form17::keyText20(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    correct(Text20);
    q_.Es = at(Text20);
    q_.EQ = q_.Es - q_.ERes;
    // EQ is what Es leaves, so this never comes up; both sides are worked out alike, lest the last digit bring it up.
    if (q_.Es - q_.ERes < q_.EQ) {
        tell(base_collector::supplyTooLow);
        return;
    }
    if (q_.EQ > at(Text5)) {
        tell(voltageOverTransistorAtSupply);
        goTo(Text5);
        return;
    }
    const Real Es = q_.Es;
    disable(Text15);
    goTo(Text16);
    takeDesignCurrent();
    q_.ERes = at(Text8) * at(Text15);
    q_.Es = Es;
    q_.EQ = Es - q_.ERes;
    if (q_.EQ < 1) {
        tell(lessThanOneVolt);
        goTo(Text20);
    }
}

void Form17::lostText20()
{
    if (!enabled(Text20))
        return;
    setText(Label23, "EQ = " + shown(q_.EQ) + " Volts");
}

// --- Rb2

void Form17::proposeRb2()
{
    rewrite(Text16, shown(lowerBaseResistor(at(Text10), at(Text15))));
}

void Form17::focusText16(host::EventArgs& args)
{
    focusField(args);
    proposeRb2();
}

void Form17::lostText16()
{
    if (!enabled(Text16))
        return;
    if (at(Text16) < 0.00001)
        rewrite(Text16, digits(at(Text10) * at(Text15)));
    setWidth(Label21, widthWithRb2);
    setText(Label21, "      Rb2 = " + shown(at(Text16)) + " K");
    proposeRb1();
    const Real Res = at(Text15);
    const Real RLw = at(Text9);
    enable(Text10);
    if (Res * RLw != 0 && Res + RLw != 0)
        rewrite(Text10, shown(stabilityFactor(at(Text16), Res, RLw)));
}

void Form17::proposeRb1()
{
    const Real Rb2 = at(Text16);
    const Real BetaRes = at(Text2) * at(Text15);
    const Real Vbe = at(Text7);
    q_.ERes = at(Text8) * at(Text15);
    if (Rb2 + BetaRes != 0 && q_.ERes + Vbe != 0) {
        q_.Rb1 = upperBaseResistor(q_.EQ - Vbe, Rb2, BetaRes, q_.ERes, Vbe);
        setText(Label24, ("Rb1 = " + shown(q_.Rb1) + " Kohm\n").append(pick(base_collector::putRb1)));
    }
    disable(Text15);
    rewrite(Text17, shown(q_.Rb1));
}

// --- Rb1

void Form17::focusText17(host::EventArgs& args)
{
    focusField(args);
    if (at(Text15) != 0)
        rewrite(Text10, shown(at(Text16) / at(Text15)));
    base_collector::prepareLeaf(host());
    enable(Text4);
}

void Form17::keyText17(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    q_.passed = false;
    if (at(Text17) < 0.001)
        write(Text17, q_.Rb1);
    if (overTransistorCurrent(at(Text18))) {
        disable(Text18);
        return;
    }
    write(SSPanel2, lightPrompt);
    setWidth(Label24, widthWithRb1);
    show(Label32);
    tellInput();
    hide(Picture3, Picture1);
    show(Picture2);
    q_.passed = obtainsItsCurrent();
    if (!q_.passed)
        tell(base_collector::adjustRb1);
}

void Form17::tellInput()
{
    const Real fo = at(Text12);
    const Real RLw = at(Text9);
    setText(Label25, "Zin = " + whole(Zin()) + " K");
    if (fo * Zin() != 0)
        setText(Label26, shown(couplingMicrofarads(fo, Zin())) + " mF");
    if (fo * RLw != 0)
        setText(Label28, shown(couplingMicrofarads(fo, RLw)) + " mF");
}

// The current that the preset in use gives, within a tenth of the one designed. What would divide by nothing gives
// none.
bool Form17::obtainsItsCurrent()
{
    const Real Vbe = at(Text7);
    const Real QIc = at(Text8);
    const Real ERb1 = q_.EQ - Vbe;
    setText(Label22, "ERb1= " + shown(ERb1) + " Volts");
    if (at(Text17) == 0 || at(Text16) == 0)
        return false;
    const Real ERes = (at(Text15) * 1000.0) * (QIc / 1000.0);
    const Real obtained = base_collector::obtainedCurrent(ERb1, at(Text17), ERes + Vbe, at(Text16), at(Text2));
    setText(Text18, shown(obtained) + " mA");
    return base_collector::withinATenth(obtained, QIc);
}

} // namespace velmor::form17
