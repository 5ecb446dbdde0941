// SPDX-License-Identifier: MIT
// `Form2`: the class A common-emitter stage stabilised by its emitter resistor. Its slots, in the order of the chain; what
// they say stands in form2_texts, what they work out in form2_formulas.
#pragma once

#include <string>
#include <string_view>

#include "designs/common_emitter/form2_controls.h"
#include "designs/common_emitter/form2_formulas.h"
#include "designs/common_emitter/form2_texts.h"
#include "sheets/design_sheet.h"
#include "sheets/report_text.h"
#include "sheets/steps.h"

namespace velmor::form2 {

extern const host::WindowSpec spec;

class Form2 : public sheets::DesignSheet {
public:
    explicit Form2(host::SheetHost& host);

    // Files. This sheet has no dialogs of its own: it is saved under the name that it has, or not at all.
    void Abrir() override;
    void CDL_GuardarDatos() override {}
    void CDL_AbrirDatos() override;
    std::string reportText() const override;

    // life of the sheet (form2.cpp)
    void load();
    void activate();
    void unload();
    void hoverBackground();
    void hoverField(host::EventArgs& args);
    void pressField(host::EventArgs& args);

    // the chain (form2_chain.cpp)
    void focusText1();
    void clickText1();
    void keyText1(host::EventArgs& args);
    void lostText1();
    void focusText3();
    void keyText3(host::EventArgs& args);
    void lostText3();
    void focusText4();
    void keyText4(host::EventArgs& args);
    void lostText4();
    void focusText8();
    void keyText8(host::EventArgs& args);
    void lostText8();
    void focusText21();
    void keyText21(host::EventArgs& args);
    void lostText21();
    void focusText15();
    void keyText15(host::EventArgs& args);
    void lostText15();
    void focusText9();
    void keyText9(host::EventArgs& args);
    void lostText9();
    void focusText10();
    void keyText10(host::EventArgs& args);
    void lostText10();
    void focusText11();
    void keyText11(host::EventArgs& args);
    void lostText11();

    // load, signal and supply (form2_signal.cpp)
    void focusText17();
    void keyText17(host::EventArgs& args);
    void lostText17();
    void focusText12();
    void keyText12(host::EventArgs& args);
    void lostText12();
    void focusText13();
    void keyText13(host::EventArgs& args);
    void lostText13();
    void focusText14();
    void keyText14(host::EventArgs& args);
    void lostText14();
    void focusText16();
    void keyText16(host::EventArgs& args);
    void lostText16();

    // transistor and base divider (form2_closing.cpp)
    void focusText2();
    void keyText2(host::EventArgs& args);
    void lostText2();
    void focusText5();
    void clickText5();
    void keyText5(host::EventArgs& args);
    void lostText5();
    void focusText6();
    void keyText6(host::EventArgs& args);
    void lostText6();
    void focusText7();
    void keyText7(host::EventArgs& args);
    void lostText7();
    void focusText18();
    void keyText18(host::EventArgs& args);
    void lostText18();
    void focusText19();
    void clickText19();
    void keyText19(host::EventArgs& args);
    void lostText19();

    // option pictures and buttons (form2_options.cpp)
    void hoverButton(host::EventArgs& args);
    void clickPicture6();
    void clickPicture4();
    void lostPicture6();
    void clickPicture1();
    void lostPicture1();
    void clickPicture11();
    void clickPicture10();
    void clickPicture2();
    void clickPicture7();
    void clickClone(host::EventArgs& args);
    void clickImage3();
    void clickImage34();
    void clickImage35();
    void clickSSCommand1();
    void clickSSCommand3();
    void clickSSPanel1();
    void clickSTA70();
    void pressImage1(host::EventArgs& args);

private:
    void opened() override;

    // which circuit is being designed: the option pictures say it
    bool unbypassed() const { return !visible(Picture10) && !visible(Picture1); }
    bool bypassedByBase() const { return visible(Picture1) && !visible(Picture10); }
    bool polarisedByEmitter() const { return visible(Picture10) && !visible(Picture11); }

    // what many slots begin with
    void LimpiarTags();
    void takeInHand(host::Handle field, std::string_view tag = "1");
    void prompt(host::Handle field, Trigger trigger);
    bool goesOn(host::EventArgs& args, std::string_view byDefault);
    void write(host::Handle control, const host::BiText& text) { setText(control, pick(text)); }
    void MostrarAyuda();
    void hideNotes();
    void grow(host::Handle field);
    void showWholeDrawing();
    void clearDrawing();
    void drawBootstrapping(bool drawn);

    // quantities that stand in fields; those which must be plain numbers are made so
    Real QIc() { return sheets::strictNumber(*this, Text8); }
    Real Res() { return sheets::strictNumber(*this, Text15); }
    Real RLwKilohm() { return sheets::strictNumber(*this, Text9); }
    Real Vg() { return sheets::strictNumber(*this, Text11); }
    Real Beta() { return sheets::strictNumber(*this, Text2); }
    Real Rb2() { return sheets::strictNumber(*this, Text18); }
    Real at(host::Handle field) const { return sheets::number(*this, field); }

    // steps of the chain that stand on their own
    std::string fourDecimals(Real value) const { return sheets::shown(*this, value); }
    std::string digits(Real value) const { return sheets::digits(*this, value); }
    void workOutERes();
    void writeJunctionResistance();
    void askForEmitterSupply(sheets::Press press);
    void askForEmitterResistor(sheets::Press press);
    void takeStandardResistor();
    void takeResistorOfSupply();
    bool workOutRLac();
    void refuseLoad(Real RL);
    void refuseSupply();
    bool supplyIsTooLow(Real Eq);
    bool overTransistorLimit(Real Eq);
    void acceptSupply(Trigger trigger);
    void enterSupplyByBase();
    void enterSupplyByEmitter();
    void escapeSupply();
    void writeBaseCurrentPath(Real BRes);
    void workOutDivider(Real BRes);
    void writeInput();
    void writeCapacitors();
    void finishUnbypassed();
    void finishByEmitter();
    void finishBypassed();
    void closeByEmitter();
    void checkCollectorCurrent();
    void openVariant(std::string_view sheetName, const host::BiText& title);
    std::string englishReport() const;
    std::string spanishReport() const;

    // working numbers, in the units of the formulas
    Real ERes_;        ///< V
    Real RLac_;        ///< ohm
    Real RLw_;         ///< ohm
    Real RLcomputed_;  ///< ohm
    Real ERL_;         ///< V
    Real Rin_;         ///< mixed, as the formula has it
    Real Rb1Computed_; ///< kilohm
    Real Zin_;         ///< kilohm
    Real ZinBoot_;     ///< ohm
    Real QIcCheck_;    ///< mA
};

} // namespace velmor::form2
