// SPDX-License-Identifier: MIT
// The chain of `Form2` from RL to the supply: what the signal needs.
#include "designs/common_emitter/form2.h"

namespace velmor::form2 {

using sheets::correctFrom;
using sheets::goTo;
using sheets::isEmpty;
using sheets::Press;
using sheets::say;
using sheets::writeNumber;

// --- RL

void Form2::focusText17()
{
    takeInHand(Text17);
    hide(sta2);
}

void Form2::keyText17(host::EventArgs& args)
{
    if (sheets::pressed(*this, args, emptyField) != Press::enter)
        return;
    if (at(Text17) < 0.001)
        writeNumber(*this, Text17, rules::TruncToInteger(RLcomputed_ / 1000.0));
    hide(statu19);
    ERL_ = QIc() * at(Text17);
    setText(ER, fourDecimals(ERL_) + "     Volts");
    show(ER, sta2);
    prompt(Text17, Trigger::enter);
    goTo(*this, Text12);
}

void Form2::lostText17()
{
    correctFrom(*this, Text17, 0.1, 0.1);
}

// --- fo, and the gain that the standard RL really gives

void Form2::focusText12()
{
    takeInHand(Text12);
    disable(Text16, Text2, Text5, Text6, Text7, Text19, Text18, Text13, Text14);
    const Real realLoad = parallel(RLwKilohm(), at(Text17));
    setText(statu18, "Rlac = " + fourDecimals(realLoad) + " K");
    show(statu18);
    setText(res, text(Text15));
    setText(Text11, fourDecimals(realGain(realLoad, Res())));
}

void Form2::keyText12(host::EventArgs& args)
{
    if (!goesOn(args, "20"))
        return;
    hide(statu18);
    prompt(Text12, Trigger::enter);
    goTo(*this, Text13);
}

void Form2::lostText12()
{
    correctFrom(*this, Text12, 1, 20);
}

// --- Eopp

void Form2::focusText13()
{
    takeInHand(Text13);
}

void Form2::keyText13(host::EventArgs& args)
{
    const Press press = sheets::pressed(*this, args, emptyField);
    if (press == Press::nothing)
        return;
    // Without an output voltage the student gives the input instead.
    if (press == Press::escape) {
        hide(statu21);
        setText(Text13, "1");
        prompt(Text13, Trigger::escape);
        goTo(*this, Text14);
        return;
    }
    show(statu21);
    correctFrom(*this, Text13, 0.00001, 1);
    if (ERL_ < at(Text13) / 2.0) {
        goTo(*this, Text12);
        say(*this, loadVoltageTooLow);
    } else {
        goTo(*this, Text16);
        // A gain that reads 0 after four decimals leaves the input as it is.
        if (Vg() != 0)
            setText(Text14, fourDecimals(inputForOutput(at(Text13), Vg())));
    }
    prompt(Text13, Trigger::enter);
}

void Form2::lostText13()
{
    correctFrom(*this, Text13, 0.00001, 1);
}

// --- Ein

void Form2::focusText14()
{
    takeInHand(Text14);
}

void Form2::keyText14(host::EventArgs& args)
{
    if (sheets::pressed(*this, args, emptyField) != Press::enter)
        return;
    if (at(Text14) < 0.000001)
        writeNumber(*this, Text14, at(Text13) / 2.0 * 0.707);
    show(statu21);
    prompt(Text14, Trigger::enter);
    setText(Text13, fourDecimals(outputForInput(at(Text14), Vg())));
    goTo(*this, Text13);
}

void Form2::lostText14()
{
    if (isEmpty(*this, Text14)) {
        say(*this, emptyLeft);
        goTo(*this, Text13);
        return;
    }
    correctFrom(*this, Text14, 1E-10, 0.001);
}

// --- Es

void Form2::focusText16()
{
    takeInHand(Text16, "0");
    writeNumber(*this, Text16, leastSupply(ERes_, ERL_, at(Text13)));
    enable(Text5);
}

void Form2::keyText16(host::EventArgs& args)
{
    const Press press = sheets::pressed(*this, args, emptyField);
    if (press == Press::escape)
        escapeSupply();
    else if (press == Press::enter && polarisedByEmitter())
        enterSupplyByEmitter();
    else if (press == Press::enter)
        enterSupplyByBase();
}

void Form2::enterSupplyByBase()
{
    correctFrom(*this, Text16, 0.001, 21);
    const Real Eq = collectorEmitterVoltage(at(Text16), QIc(), Res(), at(Text17));
    if (supplyIsTooLow(Eq)) {
        goTo(*this, Text13);
        // Leaving `Text16` has disabled it.
        enable(Text13);
        return;
    }
    setText(statu25, " Eq=  " + fourDecimals(Eq) + " Volts");
    if (!overTransistorLimit(Eq))
        acceptSupply(Trigger::enter);
}

void Form2::enterSupplyByEmitter()
{
    const Real Eq = collectorEmitterVoltageByEmitter(at(Text16), QIc(), at(Text17));
    const bool refused = supplyIsTooLow(Eq);
    if (refused)
        goTo(*this, Text16);
    else
        setText(statu25, " Eq=  " + fourDecimals(Eq) + " Volts");
    if (!overTransistorLimit(Eq) && !refused)
        acceptSupply(Trigger::enter);
}

bool Form2::supplyIsTooLow(Real Eq)
{
    if (Eq >= 3)
        return false;
    say(*this, raiseSupply);
    write(statu25, tooLow);
    say(*this, lowerOutput);
    return true;
}

bool Form2::overTransistorLimit(Real Eq)
{
    if (Eq <= rules::RoundToInt16(at(Text5)))
        return false;
    say(*this, overTransistorVoltage);
    return true;
}

void Form2::acceptSupply(Trigger trigger)
{
    show(statu25);
    prompt(Text16, trigger);
    goTo(*this, Text2);
}

void Form2::escapeSupply()
{
    if (polarisedByEmitter()) {
        setText(Text16, "10");
        return;
    }
    setText(Text16, "25");
    const Real Eq = collectorEmitterVoltage(25, QIc(), Res(), at(Text17));
    if (Eq < 1) {
        write(statu25, tooLowAtEscape);
        return;
    }
    setText(statu25, " Eq=  " + fourDecimals(Eq) + " Volts");
    acceptSupply(Trigger::enter);
}

void Form2::lostText16()
{
    if (!polarisedByEmitter())
        correctFrom(*this, Text16, 0.001, 21);
    disable(Text8, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text17);
    const Real proposal = lowerBaseResistor(Res(), at(Text10)).toDouble();
    setText(statu22, " Rb2= " + fourDecimals(proposal / 1000.0) + " K " + "        comercial...");
}

} // namespace velmor::form2
