// SPDX-License-Identifier: MIT
// The chain of `Form10` from the driver's load to the peak current: the load split for the bootstrap, impedances, capacitors, the
// signal of the generator.
#include "designs/power/form10.h"
#include "sheets/formulas.h"

namespace velmor::form10 {

namespace signal_detail {

constexpr double lowerShare = 0.25; // of RL(total)

} // namespace signal_detail

using namespace signal_detail;

// --- RLb

void Form10::focusText3(host::EventArgs& args)
{
    focusField(args);
    setText(Label1, words(valueOfRLb) + shown(q_.RLtotal * lowerShare) + words(kilohms));
}

void Form10::clickText3()
{
    hide(Text9);
    disable(Text9);
}

void Form10::keyText3(host::EventArgs& args)
{
    if (!entered(args))
        return;
    goTo(Text4);
    setText(Text4, "");
}

void Form10::lostText3()
{
    correctTo(Text3, stage_.leastRLb, q_.RLtotal * lowerShare);
}

// --- RLa

void Form10::focusText4(host::EventArgs& args)
{
    focusField(args);
    setText(Label1, words(valueOfRLa) + shown(q_.RLtotal - at(Text3)) + words(kilohms));
}

void Form10::lostText4()
{
    if (!visible(SSPanel2))
        splitLoad();
}

// Both resistors together are the calculated load: RLb gives way, until nothing is left for the bootstrap.
void Form10::splitLoad()
{
    const Real RLa = at(Text4);
    const Real rest = q_.RLtotal - at(Text3);
    if (RLa < rest)
        setText(Text3, shown(q_.RLtotal - RLa));
    if (RLa > rest) {
        setText(Text3, shown(q_.RLtotal - RLa));
        if (at(Text3) < 0.0001) {
            write(Text4, q_.RLtotal);
            write(Text3, 0.001);
            tell(noBootstrapping);
        }
    }
    const Real least = q_.RLtotal * 30.0 / 100.0;
    if (RLa < least) {
        write(Text4, least);
        write(Text3, q_.RLtotal - least);
    }
}

void Form10::keyText4(host::EventArgs& args)
{
    if (!entered(args))
        return;
    q_.passed = false;
    splitLoad();
    takeCurrent();
    takeSignal();
    showPanel(signalPage);
}

// --- what the driver makes of the signal

void Form10::tellFailure(host::FailureKind kind)
{
    const bool zero = kind == host::FailureKind::divisionByZero;
    const std::string number = zero ? "11" : "6";
    host().MsgBox("Error # " + number + " Velmor\n" + host::failureName(kind), 0, pick(errorTitle));
}

// The resistors put in make another current than the one assigned.
void Form10::takeCurrent()
{
    Real Ibias = at(Text5);
    workOut(Ibias, [this] { return biasWithLoad(at(Text10), at(Text3), at(Text4)); });
    write(Text5, Ibias);
    workOut(q_.re, [this] { return sheets::junctionResistance(at(Text5)); });
}

void Form10::takeSignal()
{
    q_.Bre = baseImpedance(q_.re);
    workOut(q_.Z1, [this] { return sheets::parallel(at(Text8) * 1000.0, q_.Bre); });
    workOut(q_.Zin, [this] { return inputImpedance(q_.Z1, at(Text7)); });
    q_.RsCalc = seriesResistor(q_.Zin);
    q_.Z = q_.Zin + q_.RsCalc;
    takeCapacitors();
    workOut(q_.RLac, [this] { return driverLoadAc(q_.RLtotal, at(Text2)); });
    workOut(q_.Vg, [this] { return q_.RLac / q_.re; });
    workOut(q_.Ein, [this] { return q_.Eopp / q_.Vg; });
    q_.EgPP = 20.0 * q_.Ein;
}

void Form10::takeCapacitors()
{
    workOut(q_.Cin, [this] { return capacitorFor(q_.Zin); });
    workOut(q_.Coo, [this] { return capacitorFor(at(Text2)); });
    workOut(q_.Cbb, [this] { return capacitorFor(at(Text6) * 1000.0); });
    workOut(q_.Cba, [this] { return capacitorFor(at(Text4) * 1000.0); });
}

// --- Rs

void Form10::focusText9(host::EventArgs& args)
{
    focusField(args);
    tellSignal();
}

void Form10::clickText9()
{
    tellSignal();
}

void Form10::tellSignal()
{
    layLabels();
    setText(Label9, "Cin = " + microfarads(q_.Cin) + " microF");
    setText(Label10, "Coo = " + microfarads(q_.Coo) + " microFaradios, \n( fo = 200 c/s ).");
    setText(Label8, "Cbp = " + microfarads(q_.Cbb) + " microF");
    setText(Label12, "Cbp = " + microfarads(q_.Cba) + " microF");
    setText(Label2, "Z = " + impedance() + " K");
    show(Label8, Label14, Label15);
    setText(Label1, words(valueOfRs) + shown(q_.RsCalc / 1000.0) + words(kilohms));
}

// Rs and Zin in series, in kilohms. Until a resistor is put in it is the one that the page advises.
std::string Form10::impedance() const
{
    const Real Rs = isEmpty(Text9) ? q_.RsCalc / 1000.0 : at(Text9);
    return shown(Rs + q_.Zin / 1000.0);
}

void Form10::keyText9(host::EventArgs& args)
{
    if (!entered(args))
        return;
    disable(Text1);
    show(Text12);
    goTo(Text11);
}

void Form10::lostText9()
{
    correctText9();
    if (q_.Zin != 0.0)
        q_.EgPP = generatorSwing(at(Text9), q_.Zin, q_.Ein);
    setText(Label2, "Z = " + impedance() + " K\nEin = " + shown(q_.EgPP) + "  Volts p-p");
    write(Label28, placeIcMax);
}

void Form10::correctText9()
{
    correctTo(Text9, 1, q_.RsCalc / 1000.0);
}

// --- the transistors of the output

void Form10::keyText11(host::EventArgs& args)
{
    if (!entered(args))
        return;
    disable(Text11);
    goTo(Text12);
}

void Form10::keyText12(host::EventArgs& args)
{
    if (!entered(args))
        return;
    takePeakCurrent(at(Text12));
    tellPeakCurrent(verse);
}

void Form10::takePeakCurrent(Real lost)
{
    q_.EEmitter = emitterVoltage(at(Text11));
    if (at(Text2) != 0.0)
        q_.IPeak = peakCurrent(q_.Eq, lost, at(Text2));
}

void Form10::tellPeakCurrent(const host::BiText& closing)
{
    show(Shape1, Text13);
    setText(Text13, shown(q_.IPeak) + " Amps");
    setText(Label1, words(peakCurrentIs) + shown(q_.IPeak) + words(peakCurrentAdvice) + words(closing));
    q_.passed = true;
}

} // namespace velmor::form10
