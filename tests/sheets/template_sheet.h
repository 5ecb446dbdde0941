// SPDX-License-Identifier: MIT
// The template sheet, the smallest that works: a load resistor from supply, voltage and current. It is no sheet of the
// program; the next sheet is made from it (docs/adding-a-sheet.md), and on it the tests prove what all sheets share.
#pragma once

#include <string>

#include "sheets/design_sheet.h"
#include "sheets/steps.h"
#include "sheets/template_sheet_controls.h"
#include "sheets/template_sheet_texts.h"

namespace velmor::template_sheet {

extern const host::WindowSpec spec;

/// Load resistor in kilohms: RL = (Es - Eq) / QIc. Es and Eq in volts, QIc in milliamperes; QIc of 0 is a failure.
rules::Real loadResistor(rules::Real Es, rules::Real Eq, rules::Real QIc);
/// Voltage across the load in volts: ERL = QIc x RL. QIc in milliamperes, RL in kilohms.
rules::Real loadVoltage(rules::Real QIc, rules::Real RL);

class TemplateSheet : public sheets::DesignSheet {
public:
    explicit TemplateSheet(host::SheetHost& host);

    std::string reportText() const override;

    // life of the sheet
    void load();
    void activate();
    void unload();
    void hoverBackground();
    void hoverField(host::EventArgs& args);

    // the chain
    void focusText1();
    void keyText1(host::EventArgs& args);
    void lostText1();
    void focusText2();
    void keyText2(host::EventArgs& args);
    void lostText2();
    void pressText2(host::EventArgs& args);
    void focusText3();
    void keyText3(host::EventArgs& args);
    void lostText3();
    void focusText4();
    void keyText4(host::EventArgs& args);
    void lostText4();
    void focusText5();
    void keyText5(host::EventArgs& args);
    void pressText5(host::EventArgs& args);

    // buttons
    void clickClone(host::EventArgs& args);
    void clickImage3();
    void clickSSCommand3();
    void clickSSCommand1();
    void clickImage35();
    void clickImage34();

private:
    void opened() override;
    void prompt(host::Handle field);
    rules::Real at(host::Handle field) const { return sheets::number(*this, field); }
};

} // namespace velmor::template_sheet
