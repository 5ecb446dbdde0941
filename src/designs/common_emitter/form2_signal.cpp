// SPDX-License-Identifier: MIT
// The chain of `Form2` from RL to the supply: what the signal needs.
#include "designs/common_emitter/emitter_formulas.h"
#include "designs/common_emitter/form2.h"
#include "sheets/formulas.h"

namespace velmor::form2 {

using namespace common_emitter; // NOLINT(google-build-using-namespace): formulas and texts of the family
using sheets::When;

// --- RL

void Form2::focusText17(host::EventArgs& args)
{
    focusField(args);
    hide(sta2);
}

void Form2::keyText17(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text17, press))
        return;
    if (at(Text17) < 0.001)
        setText(Text17, whole(q_.RLComputed / 1000.0));
    hide(statu19);
    q_.ERL = takeQIc() * at(Text17);
    setText(ER, shown(q_.ERL) + "     Volts");
    show(ER, sta2);
    goOn(Text17, press);
}

// --- fo, and the gain that the standard RL really gives

void Form2::focusText12(host::EventArgs& args)
{
    focusField(args);
    disable(Text16, Text2, Text5, Text6, Text7, Text19, Text18, Text13, Text14);
    const Real realLoad = sheets::parallel(takeRLw(), at(Text17));
    setText(statu18, "Rlac = " + shown(realLoad) + " K");
    show(statu18);
    setText(res, text(Text15));
    setText(Text11, shown(realGain(realLoad, takeRes())));
}

void Form2::keyText12(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text12, press))
        return;
    hide(statu18);
    goOn(Text12, press);
}

// --- Eopp

void Form2::keyText13(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text13, press))
        return;
    setVisible(statu21, press == Press::enter);
    // Without an output voltage the student gives the input instead.
    if (press == Press::escape) {
        tell(Text13, When::escape);
        goTo(Text14);
        return;
    }
    correct(Text13);
    if (q_.ERL < at(Text13) / 2.0) {
        goTo(Text12);
        tell(loadVoltageTooLow);
    } else {
        goTo(Text16);
        // A gain that reads 0 after four decimals leaves the input as it is.
        if (takeVg() != 0)
            setText(Text14, shown(sheets::inputForOutput(at(Text13), takeVg())));
    }
    tell(Text13, When::enter);
}

// --- Ein

void Form2::keyText14(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (!goesOn(Text14, press))
        return;
    if (at(Text14) < 0.000001)
        write(Text14, at(Text13) / 2.0 * 0.707);
    show(statu21);
    setText(Text13, shown(sheets::outputForInput(at(Text14), takeVg())));
    goOn(Text14, press);
}

void Form2::lostText14()
{
    if (!sentBack(Text14, emptyLeft, Text13))
        correct(Text14);
}

// --- Es

void Form2::focusText16(host::EventArgs& args)
{
    focusField(args);
    write(Text16, leastSupply(q_.ERes, q_.ERL, at(Text13)));
    enable(Text5);
}

void Form2::keyText16(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (press == Press::escape)
        escapeSupply();
    else if (press == Press::enter && polarisedByEmitter())
        enterSupplyByEmitter();
    else if (press == Press::enter)
        enterSupplyByBase();
}

void Form2::enterSupplyByBase()
{
    correct(Text16);
    const Real Eq = collectorEmitterVoltage(at(Text16), takeQIc(), takeRes(), at(Text17));
    if (supplyIsTooLow(Eq)) {
        goTo(Text13);
        // Leaving `Text16` has disabled it.
        enable(Text13);
        return;
    }
    writeEq(Eq);
    if (!overTransistorLimit(Eq))
        acceptSupply();
}

void Form2::enterSupplyByEmitter()
{
    const Real Eq = collectorEmitterVoltageByEmitter(at(Text16), takeQIc(), at(Text17));
    const bool refused = supplyIsTooLow(Eq);
    if (refused)
        goTo(Text16);
    else
        writeEq(Eq);
    if (!overTransistorLimit(Eq) && !refused)
        acceptSupply();
}

void Form2::escapeSupply()
{
    if (polarisedByEmitter()) {
        setText(Text16, "10");
        return;
    }
    setText(Text16, "25");
    const Real Eq = collectorEmitterVoltage(25, takeQIc(), takeRes(), at(Text17));
    if (Eq < 1) {
        write(statu25, tooLowAtEscape);
        return;
    }
    writeEq(Eq);
    acceptSupply();
}

bool Form2::supplyIsTooLow(Real Eq)
{
    if (Eq >= 3)
        return false;
    tell(raiseSupply);
    write(statu25, tooLow);
    tell(lowerOutput);
    return true;
}

bool Form2::overTransistorLimit(Real Eq)
{
    if (Eq <= rules::RoundToInt16(at(Text5)))
        return false;
    tell(overTransistorVoltage);
    return true;
}

void Form2::writeEq(Real Eq)
{
    setText(statu25, " Eq=  " + shown(Eq) + " Volts");
}

void Form2::acceptSupply()
{
    show(statu25);
    goOn(Text16, Press::enter);
}

void Form2::lostText16()
{
    if (!polarisedByEmitter())
        correct(Text16);
    disable(Text8, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text17);
    const Real proposal = lowerBaseResistor(takeRes(), at(Text10)).toDouble();
    setText(statu22, " Rb2= " + shown(proposal / 1000.0) + " K " + "        comercial...");
}

} // namespace velmor::form2
