// SPDX-License-Identifier: MIT
// `Form2`: the class A common-emitter stage stabilised by its emitter resistor. Its slots, in the order of the chain, as far as
// they do more than the field's row says; what they say stands in form2_texts, what they work out in emitter_formulas.
#pragma once

#include <string>

#include "designs/common_emitter/emitter_modes.h"
#include "designs/common_emitter/form2_controls.h"
#include "designs/common_emitter/form2_texts.h"

namespace velmor::form2 {

using rules::Real;
using sheets::Press;

extern const host::WindowSpec spec;

class Form2 : public common_emitter::EmitterModes<common_emitter::EmitterSheet<Control>, Control> {
public:
    explicit Form2(host::SheetHost& host);

    // Files. This sheet has no dialogs of its own: it is saved under the name that it has, or not at all.
    void Abrir() override;
    void CDL_GuardarDatos() override {}
    void CDL_AbrirDatos() override;
    std::string reportText() const override;

    // life of the sheet, and what all fields share (form2.cpp)
    void load();
    void activate();
    void unload();
    void hoverBackground();
    void hoverField(host::EventArgs& args);

    // the chain (form2_chain.cpp)
    void focusText1(host::EventArgs& args);
    void clickText1();
    void lostText1();
    void focusText3(host::EventArgs& args);
    void keyText3(host::EventArgs& args);
    void keyText4(host::EventArgs& args);
    void lostText4();
    void keyText8(host::EventArgs& args);
    void lostText8();
    void keyText21(host::EventArgs& args);
    void keyText15(host::EventArgs& args);
    void lostText9();
    void lostText10();
    void focusText11(host::EventArgs& args);
    void keyText11(host::EventArgs& args);
    void lostText11();

    // load, signal and supply (form2_signal.cpp)
    void focusText17(host::EventArgs& args);
    void focusText12(host::EventArgs& args);
    void keyText13(host::EventArgs& args);
    void lostText14();
    void keyText16(host::EventArgs& args);
    void lostText16();

    // transistor and base divider (form2_closing.cpp)
    void focusText2(host::EventArgs& args);
    void lostText6();
    void keyText18(host::EventArgs& args);
    void lostText18();
    void focusText19(host::EventArgs& args);
    void keyText19(host::EventArgs& args);
    void lostText19();

    // option pictures and tools (form2_options.cpp)
    void clickPicture6();
    void clickPicture4();
    void lostPicture6();
    void lostPicture1();
    void clickPicture2();
    void clickPicture7();
    void clickGuide();
    void clickImage34();
    void clickImage35();
    void clickSSPanel1();
    void pressImage1(host::EventArgs& args);

private:
    void opened() override;

    // steps of the chain that stand on their own
    void askForEmitterSupply(Press press);
    void askForEmitterResistor(Press press);
    void enterStandardResistor();
    bool workOutRLac();
    void refuseRL(Real RL);
    void enterSupplyByBase();
    void enterSupplyByEmitter();
    void escapeSupply();
    void workOutDivider(Real BRes, Real Rin);
    void writeCapacitors();
    void finishUnbypassed();
    void finishByEmitter();
    void finishBypassed();
    void closeByEmitter();
    bool presetGivesItsCurrent();
    void openVariant(std::string_view sheetName, const host::BiText& title);
    std::string englishReport() const;
    std::string spanishReport() const;
};

} // namespace velmor::form2
