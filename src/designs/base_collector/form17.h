// SPDX-License-Identifier: MIT
// `Form17`: the emitter follower (common collector). Its slots in the order of the chain, as far as they do more than
// the field's row says; what they say stands in form17_texts, what they work out in form17_formulas and
// follower_formulas.
#pragma once

#include <string>

#include "designs/base_collector/follower_sheet.h"
#include "designs/base_collector/form17_controls.h"
#include "designs/base_collector/form17_formulas.h"

namespace velmor::form17 {

using sheets::Press;

extern const host::WindowSpec spec;

class Form17 final : public base_collector::FollowerSheet {
public:
    explicit Form17(host::SheetHost& host);

    std::string reportText() const override;
    const Quantities& quantities() const { return q_; }

    // life of the sheet, what all fields share, the light (form17.cpp)
    void load();
    void activate();
    void hoverBackground();
    void pressField(host::EventArgs& args);
    void pressResistor(host::EventArgs& args);
    void keySpare(host::EventArgs& args);
    void clickGreenLight();
    void clickOpenLight();

    // the data of the design (form17_chain.cpp)
    void focusText12(host::EventArgs& args);
    void keyText5(host::EventArgs& args);
    void lostText7(host::EventArgs& args);
    void keyText4(host::EventArgs& args);
    void keyText9(host::EventArgs& args);
    void lostText9(host::EventArgs& args);
    void clickText9();
    void focusText13(host::EventArgs& args);
    void lostText13(host::EventArgs& args);
    void focusText14(host::EventArgs& args);
    void lostText14();
    void clickText14();
    void focusText8(host::EventArgs& args);
    void clickText8();
    void lostText11();
    void keyText11(host::EventArgs& args);

    // emitter, supply and divider (form17_bias.cpp)
    void focusText15(host::EventArgs& args);
    void clickText15();
    void lostText15();
    void focusText20(host::EventArgs& args);
    void keyText20(host::EventArgs& args);
    void lostText20();
    void focusText16(host::EventArgs& args);
    void lostText16();
    void focusText17(host::EventArgs& args);
    void keyText17(host::EventArgs& args);

private:
    void opened() override;

    Real Eopp() const { return at(Text13); }
    Real RLac() const;
    Real Zin() const;

    void proposeEin();
    void workOutVoltages(Real Res);
    void tellERes();
    void takeDesignCurrent();
    void takeEmitterVoltage();
    void askForSupply();
    void proposeRb2();
    void proposeRb1();
    bool overTransistorCurrent(Real QIc);
    void tellInput();
    bool obtainsItsCurrent();

    Quantities q_;
};

} // namespace velmor::form17
