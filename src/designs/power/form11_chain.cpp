// SPDX-License-Identifier: MIT
// The fields of `Form11` that do otherwise than those of `Form10`: they propose their values, and what they work out knows the
// emitter resistor and the super beta.
#include "designs/power/form11.h"

#include <utility>

#include "sheets/formulas.h"

namespace velmor::form11 {

namespace chain_detail {

constexpr host::Place supplyHint{0, 7320, 840, 2175};

} // namespace chain_detail

using namespace chain_detail;

// --- output and supply

// After a design the voice tells of the picture that stands there then.
void Form11::focusText1(host::EventArgs& args)
{
    focusField(args);
    if (!visible(Image3))
        return;
    write(Label1, substitute);
    setText(Label9, "C= " + whole(q_.Cin * 1000000.0));
    write(Label27, clickForSteps);
}

// The least supply is held as it is proposed: with four decimals.
void Form11::lostText2()
{
    takeLoad();
    q_.Eopp = form11::outputSwing(at(Text1), at(Text2));
    q_.EqMin = leastEq(q_.Eopp);
    q_.EsMin = rules::CurrencyValue(leastSupply(q_.EqMin)).toDouble();
    tellSupply(supplyHint);
    goTo(Text10);
}

void Form11::focusText10(host::EventArgs& args)
{
    focusField(args);
    setText(Text10, shown(q_.EsMin));
}

// --- driver and its base

// Res stays what it is told to be here, whatever current the resistors make in the end.
void Form11::lostText5()
{
    takeBias();
    driver_.Res = form11::emitterResistor(at(Text5));
    driver_.ERes = form11::emitterVoltage(driver_.Res, at(Text5));
    q_.Rd = driver_.Res;
    tellLoad();
    setText(Label13, "Res = " + shown(driver_.Res) + " Ohms");
    setText(Label14, "Rd = " + shown(q_.Rd) + " Ohms");
    show(Label14);
}

void Form11::focusText6(host::EventArgs& args)
{
    focusField(args);
    if (!visible(Text7))
        setText(Text6, "Click");
}

void Form11::clickText6()
{
    show(Image4);
    takeBase(junctionVoltage + driver_.ERes);
    showPage(pageOfBase);
}

void Form11::lostText6()
{
    leaveText6();
}

void Form11::focusText7(host::EventArgs& args)
{
    Form10::focusText7(args);
    setText(Text7, whole(presetValue()));
}

void Form11::clickText7()
{
    tell(Text7, When::click);
    setText(Text7, shown(presetValue()));
}

void Form11::keyText7(host::EventArgs& args)
{
    if (!entered(args))
        return;
    const std::string value = shown(presetValue());
    setText(Label1, words(presetOfRb1) + value);
    correctTo(Text7, 1, q_.Rb1 / 2.0);
    goTo(Text6);
    setText(Text6, value);
}

void Form11::focusText8(host::EventArgs& args)
{
    Form10::focusText8(args);
    setText(Text8, shown(q_.Rb2Calc / 1000.0));
    if (at(Text6) != 0.0)
        driver_.CbaOfRb1a = capacitorOfRb1a(at(Text6));
    setText(Label26, "Cba= " + shown(driver_.CbaOfRb1a) + " mF");
}

// --- the driver's load

void Form11::focusText3(host::EventArgs& args)
{
    Form10::focusText3(args);
    setText(Text3, shown(q_.RLtotal * 0.25));
}

void Form11::focusText4(host::EventArgs& args)
{
    Form10::focusText4(args);
    write(Text4, q_.RLtotal - at(Text3));
}

void Form11::correctRLa()
{
    if (at(Text4) < 1.0)
        write(Text4, q_.RLtotal - at(Text3));
    splitLoad();
}

void Form11::keyText4(host::EventArgs& args)
{
    const bool enter = entered(args);
    if (!enter) {
        driver_.split = false;
        return;
    }
    q_.passed = false;
    correctRLa();
    driver_.split = true;
    takeCurrent();
    takeSignal();
    enable(Text6, Text7);
    disable(Text8);
    showPage(pageOfSignal);
}

void Form11::lostText4()
{
    if (!std::exchange(driver_.split, false))
        correctRLa();
}

// --- signal

void Form11::takeSignal()
{
    q_.Bre = form11::baseImpedance(q_.re, driver_.Res);
    workOut(q_.Z1, [this] { return sheets::parallel(at(Text8) * 1000.0, q_.Bre); });
    workOut(q_.RLac, [this] { return form11::driverLoadAc(at(Text4), at(Text2)); });
    workOut(q_.Vg, [this] { return driverGain(q_.RLac, q_.re, driver_.Res); });
    workOut(q_.Zin, [this] { return form11::inputImpedance(q_.Z1, at(Text7), q_.Vg); });
    q_.RsCalc = q_.Zin;
    q_.Z = q_.Zin + q_.RsCalc;
    takeCapacitors();
    workOut(q_.Ein, [this] { return q_.Eopp / q_.Vg; });
    q_.EgPP = 20.0 * q_.Ein;
}

void Form11::focusText9(host::EventArgs& args)
{
    focusField(args);
    setText(Text9, shown(q_.RsCalc / 1000.0));
    tellSignal();
}

// Rs is the last field of the circuit: leaving it leads on to the manual.
void Form11::lostText9()
{
    correctText9();
    if (q_.Zin != 0.0)
        q_.EgPP = form11::generatorSwing(at(Text9), q_.Zin, q_.Ein);
    driver_.EinEff = effectiveInput(q_.EgPP);
    setText(Label2, "Z = " + impedance() + " K\nEin = " + shown(driver_.EinEff) + words(effective));
    write(Label28, placeIcMax);
    show(Text12);
    goTo(Text11);
}

void Form11::focusText12(host::EventArgs& args)
{
    focusField(args);
    show(Label30);
}

// The driver's emitter resistor counts, those of the outputs do not.
void Form11::keyText12(host::EventArgs& args)
{
    if (!entered(args))
        return;
    takePeakCurrent(at(Text12) + driver_.ERes);
    tellPeakCurrent(verse);
    show(Image3);
    enable(Text1);
}

} // namespace velmor::form11
