// SPDX-License-Identifier: MIT
// `Form8`: the common-emitter stage fed back by voltage through one base resistor, the simple circuit. What is left of a higher
// supply goes to RL. Its slots, as far as they are not those of both sheets.
#pragma once

#include <string>

#include "designs/common_emitter/feedback_sheet.h"
#include "designs/common_emitter/form8_texts.h"

namespace velmor::form8 {

extern const host::WindowSpec spec;

class Form8 final : public FeedbackSheet {
public:
    explicit Form8(host::SheetHost& host);

    std::string reportText() const override;

    void load();
    // fields: whatever is in hand is marked for its help page; a parameter takes the results away
    void focusField(host::EventArgs& args);
    void clickField(host::EventArgs& args);
    void pressField(host::EventArgs& args);
    void pressResistor(host::EventArgs& args);
    void focusParameter(host::EventArgs& args);
    void focusText14(host::EventArgs& args);
    void lostText9(host::EventArgs& args);
    void keyText10(host::EventArgs& args);
    void lostText10(host::EventArgs& args);
    // the first design
    void focusText2(host::EventArgs& args);
    void focusText17(host::EventArgs& args);
    void keyText17(host::EventArgs& args);
    void lostText17();
    // supply, preset, generator
    void clickCommand2();
    void lostText16();
    void focusText19(host::EventArgs& args);
    void lostText19();
    void focusText15(host::EventArgs& args);
    void keyText15(host::EventArgs& args);
    // bootstrapping
    void clickImage8();
    void clickImage2();

private:
    void opened() override;
    void mark(host::Handle field);
    void clearResults();
    void writeLoadVoltage();
    void workOutPreset();
    void workOutZin();
    void writeStability();
    void refuseSupply();
    std::string englishReport() const;
    std::string spanishReport() const;
};

} // namespace velmor::form8
