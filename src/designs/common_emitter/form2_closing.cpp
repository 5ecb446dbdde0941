// SPDX-License-Identifier: MIT
// The closing of `Form2`: the transistor's data, the divider of the base, and the loop in which the student turns the preset
// until the collector current is the one designed.
#include "designs/common_emitter/form2.h"

namespace velmor::form2 {

using sheets::correctFrom;
using sheets::correctToRange;
using sheets::goTo;
using sheets::isEmpty;
using sheets::Press;
using sheets::say;
using sheets::writeNumber;

// --- Beta

void Form2::focusText2()
{
    takeInHand(Text2);
    enable(Text16);
}

void Form2::keyText2(host::EventArgs& args)
{
    if (!goesOn(args, "80"))
        return;
    prompt(Text2, Trigger::enter);
    goTo(*this, Text6);
}

void Form2::lostText2()
{
    correctFrom(*this, Text2, 0.001, 80);
}

// --- Ec(max), reached by a click

void Form2::focusText5()
{
    takeInHand(Text5);
}

void Form2::clickText5()
{
    prompt(Text5, Trigger::click);
}

void Form2::keyText5(host::EventArgs& args)
{
    if (sheets::pressed(*this, args, emptyField) != Press::enter)
        return;
    prompt(Text5, Trigger::enter);
    if (enabled(Text16)) {
        correctFrom(*this, Text5, 1, 25);
        goTo(*this, Text16);
    } else {
        goTo(*this, Text6);
    }
}

void Form2::lostText5()
{
    correctFrom(*this, Text5, 1, 25);
}

// --- Ic(max)

void Form2::focusText6()
{
    takeInHand(Text6);
}

void Form2::keyText6(host::EventArgs& args)
{
    const Press press = sheets::pressed(*this, args, emptyField);
    if (press == Press::nothing)
        return;
    if (press == Press::escape) {
        setText(Text6, "100");
        prompt(Text6, Trigger::enter);
        goTo(*this, Text7);
        return;
    }
    correctFrom(*this, Text6, 10, 100);
    if (QIc() > (at(Text6) * 40.0) / 100.0) {
        say(*this, overTransistorCurrent);
        return;
    }
    prompt(Text6, Trigger::enter);
    goTo(*this, isEmpty(*this, Text16) ? Text15 : Text7);
}

void Form2::lostText6()
{
    if (isEmpty(*this, Text6)) {
        goTo(*this, Text5);
        return;
    }
    correctFrom(*this, Text6, 10, 100);
}

// --- Vj

void Form2::focusText7()
{
    takeInHand(Text7);
}

void Form2::keyText7(host::EventArgs& args)
{
    if (!goesOn(args, "0.6"))
        return;
    hide(sta3);
    prompt(Text7, Trigger::enter);
    show(statu22);
    goTo(*this, Text18);
}

void Form2::lostText7()
{
    correctToRange(*this, Text7, 0.2, 0.7, 0.6);
}

// --- Rb2

void Form2::focusText18()
{
    takeInHand(Text18);
}

void Form2::keyText18(host::EventArgs& args)
{
    if (sheets::pressed(*this, args, emptyField) != Press::enter)
        return;
    if (unbypassed()) {
        hide(sta4, statu22);
        show(statu23, statu24, statu30, sta3);
        prompt(Text18, Trigger::enter);
    } else {
        write(statu24, noUpperResistorAtEnter);
        show(statu24);
    }
    goTo(*this, Text19);
}

void Form2::lostText18()
{
    correctFrom(*this, Text18, 0.001, 12);
    if (isEmpty(*this, Text10)) {
        say(*this, emptyLeft);
        goTo(*this, Text10);
    }
    const Real BRes = transistorInput(Beta(), visible(Picture1) ? junctionResistance(QIc()) : Res());
    writeBaseCurrentPath(BRes);
    if (polarisedByEmitter()) {
        show(Label20);
        write(statu24, noUpperResistor);
    } else {
        workOutDivider(BRes);
    }
    writeCapacitors();
    if (Rb2() < Res() / 1000.0)
        say(*this, baseResistorTooLow);
    writeNumber(*this, Text19, Rb1Computed_);
}

void Form2::writeBaseCurrentPath(Real BRes)
{
    Rin_ = inputWithoutRb1(Rb2(), BRes);
    setText(statu23, "B x Res=" + fourDecimals(BRes / 1000.0) + " K" + "\n" +
                         "Rin=" + digits(rules::TruncToInteger(Rin_)) + " K");
}

void Form2::workOutDivider(Real BRes)
{
    const Real ERb1 = upperBaseVoltage(at(Text16), QIc(), at(Text17), Res(), at(Text7));
    Rb1Computed_ = upperBaseResistor(ERb1, Rin_, Res(), QIc(), at(Text7));
    setText(statu24, " Preset  Rb1= " + fourDecimals(Rb1Computed_) + " K" + std::string(pick(presetAdvice)));
    setText(statu30, digits(ERb1) + " Volts");
    // A student who comes here before there is a supply has no divider yet: its resistances would cancel each other.
    if (ERb1 <= 0)
        return;
    Zin_ = visible(Picture1) ? inputImpedanceBypassed(Rb2(), Rb1Computed_, BRes) : inputImpedance(Rin_, Rb1Computed_);
    ZinBoot_ = inputImpedanceBootstrapped(Beta(), Res(), Rb2(), Rb1Computed_);
    writeInput();
}

void Form2::writeInput()
{
    setText(statu31, " Zin= " + digits(rules::TruncToInteger(Zin_ * 1000.0)) + "  ohms");
    const Real first = inputImpedanceFirstBootstrap(Beta(), Res(), Rb2(), Rb1Computed_);
    setText(statu61, "Zin (Cbp1)= " + digits(rules::TruncToInteger(first)) + "  K " + "\n" +
                         "Zin (Cbp1 y Cbp2)= " + digits(rules::TruncToInteger(ZinBoot_)) + " K");
}

// In every mode; what would divide by an impedance that was never worked out stays as it is.
void Form2::writeCapacitors()
{
    const Real fo = at(Text12);
    setText(statu71, "Cbp1=" + fourDecimals(firstBootstrapCapacitor(Rb2(), fo)));
    if (Zin_ != 0)
        setText(statu32, fourDecimals(couplingCapacitor(fo, Zin_) / 1000.0) + " mf");
    setText(statu33, fourDecimals(couplingCapacitor(fo, RLwKilohm()) / 1000.0) + " mf");
    if (ZinBoot_ != 0)
        setText(statu62, digits(rules::TruncToInteger((couplingCapacitor(fo, ZinBoot_) / 1000.0) * 1000.0)) + " nf");
}

// --- Rb1

void Form2::focusText19()
{
    takeInHand(Text19);
    show(SSPanel1);
    writeNumber(*this, Text10, stabilityFactor(CurrencyValue(Rb2()), Res()));
}

void Form2::clickText19()
{
    prompt(Text19, Trigger::click);
}

void Form2::keyText19(host::EventArgs& args)
{
    if (sheets::pressed(*this, args, emptyField) != Press::enter)
        return;
    correctFrom(*this, Text19, 0.001, 120);
    if (unbypassed())
        finishUnbypassed();
    else if (polarisedByEmitter())
        finishByEmitter();
    else if (bypassedByBase())
        finishBypassed();
    hide(statu22, statu23, statu24);
    show(statu31, statu32, statu33, Boost, sta4);
}

void Form2::finishUnbypassed()
{
    show(Picture2);
    goTo(*this, Picture4);
    write(STA70, bootstrapHint);
}

void Form2::finishByEmitter()
{
    setText(Text19, "");
    show(Text20);
    const Real fo = at(Text12);
    const Real Zin = inputImpedanceByEmitter(Rb2(), Beta(), QIc());
    setText(statu31, " Zin= " + digits(rules::TruncToInteger(Zin)) + "  ohms");
    setText(statu32, fourDecimals(couplingCapacitor(fo, Zin)) + " mf");
    setText(statu33, fourDecimals(couplingCapacitor(fo, RLwKilohm() * 1000.0)) + " mf");
    setText(Text20, digits(bypassCapacitor(QIc(), fo)) + " microF");
    write(STA70, noBootstrapHint);
    goTo(*this, Picture4);
    disable(Picture2);
}

void Form2::finishBypassed()
{
    hide(Picture1, Picture6, Picture2, Picture7);
    show(Text20);
    setText(Text20, digits(bypassCapacitor(QIc(), at(Text12))) + " microF");
    write(STA70, noBootstrapHint);
    disable(Picture2);
}

void Form2::lostText19()
{
    if (unbypassed()) {
        correctFrom(*this, Text19, 0.001, 120);
        checkCollectorCurrent();
    } else {
        closeByEmitter();
    }
}

void Form2::checkCollectorCurrent()
{
    const Real wanted = QIc();
    QIcCheck_ = obtainedCurrent({.Es = at(Text16),
                                 .QIc = wanted,
                                 .Res = Res(),
                                 .RL = at(Text17),
                                 .Rb1 = at(Text19),
                                 .Rb2 = Rb2(),
                                 .Beta = Beta()});
    write(statu24, adjustPresetAdvice);
    setText(Label24, fourDecimals(QIcCheck_) + " mA");
    show(Label24);
    const Real band = wanted * 10.0 / 100.0;
    if (QIcCheck_ >= wanted - band && QIcCheck_ <= wanted + band)
        return;
    say(*this, adjustPreset);
    goTo(*this, Text19);
}

// Without Rb1 nothing is to be adjusted: what is left to tell is the voltage of the emitter.
void Form2::closeByEmitter()
{
    const bool bypassed = bypassedByBase();
    setText(Text19, "");
    host::Place place = placeOf(Text21);
    place.width = 1500;
    setPlaceOf(Text21, place);
    setText(Text21, "- Ebias =" + digits(rules::RoundToInt16(Res() * QIc() / 1000.0)) + " Volts");
    disable(Text2, Text6, Text7, Text19, Picture2);
    goTo(*this, Picture4);
    if (!bypassed)
        return;
    goTo(*this, Text2);
    hide(Picture1, Picture6, Picture2, Picture7);
}

} // namespace velmor::form2
