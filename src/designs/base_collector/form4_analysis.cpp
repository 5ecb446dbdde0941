// SPDX-License-Identifier: MIT
// The leaf of analysis of `Form4`: the powers of the stage, and its comparison with the emitter-bypassed stage that it becomes when
// its signal source is taken to the capacitor of the base.
#include "designs/base_collector/form4.h"
#include "sheets/formulas.h"

namespace velmor::form4 {

namespace analysis_detail {

constexpr std::string_view leafWindow = "Form6";

} // namespace analysis_detail

using namespace analysis_detail;

// --- open and closed

// The press opens it; the click that follows finds it open.
void Form4::openAnalysis()
{
    if (!visible(Picture2))
        return;
    show(Picture1, image2, Image4);
    hide(Picture2);
    setFontSize(Label33, 12);
    host().Unload(leafWindow);
    host().Show(leafWindow);
    fillAnalysis();
    tell(texts::dragHint);
}

void Form4::fillAnalysis()
{
    const Real Eopp = at(Text13);
    const Real Vg = at(Text11);
    if (at(Text9) == Real(0.0) || Vg == Real(0.0) || q_.ReDyn == Real(0.0))
        return;
    host().setText(leafWindow, "Label1",
                   words(texts::outputPowerIs) + microwatts(outputPower(Eopp, at(Text9))) + "\n" +
                       words(texts::generatorPowerIs) + microwatts(generatorPower(Eopp, Vg, q_.ReDyn)) + "\n\n" +
                       words(texts::impedanceAdapter));
    if (q_.ERL * 2.0 >= Eopp)
        return;
    host().setVisible(leafWindow, "Image3", true);
    host().setVisible(leafWindow, "image2", true);
}

// The keyboard stays on the leaf: a field of the chain that it fell to would propose its value anew, over the student's.
void Form4::clickPicture1()
{
    show(Picture2);
    if (focus() == Picture1)
        host().SetFocus(*this, Picture2);
    closeAnalysis();
    connectCommonBase();
    hide(Image4);
    tell(texts::clickLeaf);
}

// Whatever field is taken up again, the leaf of the design that was is put away. The capacitor still waits for the source, as the
// prompt of Rb1 has just said.
void Form4::clearBench()
{
    closeAnalysis();
    hide(Picture2);
}

void Form4::closeAnalysis()
{
    if (!visible(Picture1))
        return;
    hide(Picture1);
    setFontSize(Label33, 8);
    host().Unload(leafWindow);
    if (visible(Image5))
        connectCommonBase();
}

// --- the two connections

void Form4::connectCommonBase()
{
    show(Image3);
    hide(Image5);
    setPlaceOf(image2, sourceAtEmitter);
    writeCapacitors();
    writeInputImpedance();
}

void Form4::dropOnCapacitor(host::EventArgs& args)
{
    if (args.source != image2)
        return;
    show(Image5, Picture1);
    hide(Image3, Picture2);
    setPlaceOf(image2, sourceAtBase);
    compareConnections();
    tell(texts::returnToCircuit);
}

void Form4::compareConnections()
{
    const Real Zin = at(Text2) * q_.ReDyn;
    const Real fo = at(Text12);
    const Real RLw = at(Text9);
    const Real Eopp = at(Text13);
    const Real Vg = at(Text11);
    setText(Label25, " Zin = " + whole(Zin) + " Ohms");
    host().Show(leafWindow);
    if (Zin == Real(0.0) || fo == Real(0.0) || RLw == Real(0.0) || Vg == Real(0.0) || at(Text18) == Real(0.0))
        return;
    setText(Label26, microfarads(emitterBypass(fo, at(Text18))));
    setText(Label27, microfarads(sheets::couplingCapacitor(fo, RLw * 1000.0)));
    setText(Label28, microfarads(sheets::couplingCapacitor(fo, Zin)));
    const auto column = [&](const host::BiText& title, std::string_view impedance, Real ohms) {
        return words(title) + "\n" + std::string(impedance) + " " + whole(ohms) + " Ohms\n" +
               words(texts::generatorPowerIs) + microwatts(generatorPower(Eopp, Vg, ohms));
    };
    host().setText(leafWindow, "Label1", column(texts::commonBase, "Zin = r'e =", q_.ReDyn));
    host().setText(leafWindow, "Label2", column(texts::emitterBypass, "Zin = Beta x r'e =", Zin));
}

} // namespace velmor::form4
