// SPDX-License-Identifier: MIT
// `form20`, the improved class A stage: the output is a Darlington pair, and RL is divided for a second bootstrap capacitor. Told as
// `Form15` with differences: its tables begin with that sheet's rows, its slots are inherited or written anew from the same steps.
#pragma once

#include <memory>
#include <string>

#include "designs/power/form15.h"
#include "designs/power/form20_controls.h"

namespace velmor::form20 {

std::unique_ptr<host::Window> create(host::SheetHost& host);

extern const sheets::SheetSpec sheetSpec;
extern const host::WindowSpec spec;

/// 10 x RLw x Beta (Q3), ohm: the pair multiplies the load once before Q1 sees it.
Real proposedRL(Real RLw, Real Beta3);
/// (RLw x Beta (Q3)) x Beta (Q2), ohm: the super beta.
Real inputOfPair(Real RLw, Real Beta3, Real Beta2);
/// RL less so many per cent of it, ohm: 20 leaves RLb, 80 leaves RLa.
Real lessPercent(Real RL, double percent);

class Form20 final : public form15::Form15 {
public:
    explicit Form20(host::SheetHost& host);

    std::string reportText() const override;

    void load();
    void activate();
    void hoverClone();
    void hoverCalculator();

    void focusText1(host::EventArgs& args);
    void lostText1();
    void lostText2();
    void focusText12(host::EventArgs& args);
    void keyText12(host::EventArgs& args);
    void clickImage1();
    void clickImage2();
    void keyText10(host::EventArgs& args);
    void keyText11(host::EventArgs& args);
    void lostText11();
    void focusText3(host::EventArgs& args);
    void keyText4(host::EventArgs& args);
    void focusText5(host::EventArgs& args);
    void keyText5(host::EventArgs& args);
    void lostText7();
    void focusText8(host::EventArgs& args);
    void lostText8();
    void lostText9();

private:
    Real Beta3() const { return at(Text10); }
    Real Beta2() const { return at(Text11); }
    void tellButton(const host::BiText& hint);
    void takeSupply();
    void tellEQ3();
    void tellSuperBeta();
    void divideRL();
};

} // namespace velmor::form20
