// SPDX-License-Identifier: MIT
// `Form9`: the phase splitter (paraphase), one transistor with equal resistors in collector and emitter. Its slots in
// the order of the chain, as far as they do more than the field's row says; what they say stands in form9_texts, what
// they work out in form9_formulas and follower_formulas.
#pragma once

#include <string>

#include "designs/base_collector/follower_sheet.h"
#include "designs/base_collector/form9_controls.h"
#include "designs/base_collector/form9_formulas.h"

namespace velmor::form9 {

using sheets::Press;

extern const host::WindowSpec spec;

class Form9 final : public base_collector::FollowerSheet {
public:
    explicit Form9(host::SheetHost& host);

    std::string reportText() const override;
    const Quantities& quantities() const { return q_; }

    // life of the sheet and the analysis (form9.cpp)
    void load();
    void activate();
    void hoverBackground();
    void pressResistor(host::EventArgs& args);
    void clickLeaf();
    void clickOpenLeaf();

    // the data of the design (form9_chain.cpp)
    void focusText4(host::EventArgs& args);
    void keyText4(host::EventArgs& args);
    void keyText9(host::EventArgs& args);
    void lostText13(host::EventArgs& args);
    void focusText14(host::EventArgs& args);
    void lostText14();
    void clickText14();
    void keyText5(host::EventArgs& args);
    void keyText6(host::EventArgs& args);
    void lostText7();
    void keyText11(host::EventArgs& args);

    // supply, resistors and divider (form9_bias.cpp)
    void focusText20(host::EventArgs& args);
    void keyText20(host::EventArgs& args);
    void lostText20();
    void focusText15(host::EventArgs& args);
    void keyText15(host::EventArgs& args);
    void lostText15(host::EventArgs& args);
    void clickCommand1();
    void clickCommand2();
    void focusText16(host::EventArgs& args);
    void keyText16(host::EventArgs& args);
    void lostText16();
    void focusText17(host::EventArgs& args);
    void keyText17(host::EventArgs& args);

private:
    void opened() override;

    Real Eopp() const { return at(Text13); }
    Real Zin() const;

    void proposeEin();
    void proposeSupply();
    Real workOutRL(Real QIc) const;
    void askForSupply(Real RL);
    void goToRL(Real RL);
    void takeLoadVoltage();
    void tellVoltages();
    void putQuestionAway();
    void proposeRb2();
    void tellRb2();
    void tellInput();
    bool obtainsItsCurrent();

    Quantities q_;
};

} // namespace velmor::form9
