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

// --- fo, and the gain that the standard RL really gives

void Form2::focusText12(host::EventArgs& args)
{
    const Real realLoad = showRealLoad(args);
    setText(res, text(Text15));
    setText(Text11, shown(realGain(realLoad, takeRes())));
}

// --- Eopp

void Form2::keyText13(host::EventArgs& args)
{
    enterOutput(args, q_.ERL);
}

// --- Ein

void Form2::lostText14()
{
    if (!sentBack(Text14, emptyLeft, Text13))
        correct(Text14);
}

// --- Es

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
        backToOutput();
        return;
    }
    writeEq(Eq);
    if (!overTransistorLimit(Eq, rules::RoundToInt16(at(Text5))))
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
    if (!overTransistorLimit(Eq, rules::RoundToInt16(at(Text5))) && !refused)
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

void Form2::lostText16()
{
    if (!polarisedByEmitter())
        correct(Text16);
    leaveSupply(takeRes());
}

} // namespace velmor::form2
