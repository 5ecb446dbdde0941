// SPDX-License-Identifier: MIT
// `Form18`: the common-emitter stage fed back by voltage and stabilised by Rb2 from base to ground. The student fixes S, and what is
// left of a higher supply goes to Eq. Its slots, as far as they are not those of both sheets.
#pragma once

#include <string>

#include "designs/common_emitter/feedback_sheet.h"
#include "designs/common_emitter/form18_texts.h"

namespace velmor::form18 {

extern const host::WindowSpec spec;

/// The working numbers of the divider at the base.
struct Divider {
    Real IRb1; ///< A
    Real Beta; ///< until the generator is reached the lowest frequency stands here, as the course has it
    Real Rb2;  ///< to four decimals: ohm as worked out, kilohm once the generator is reached
};

// clang-format off
inline constexpr auto dividerTable = host::everyMember<Divider>(
    host::own<&Divider::IRb1>("IRb1"),
    host::own<&Divider::Beta>("Beta"),
    host::own<&Divider::Rb2>("Rb2"));
// clang-format on

class Form18 final : public FeedbackSheet {
public:
    explicit Form18(host::SheetHost& host);

    std::string reportText() const override;
    const Divider& divider() const { return divider_; }

    // the window
    void load();
    void activate();
    void unload();
    void hoverBackground();
    void hoverButton(host::EventArgs& args);
    // fields: some leave the marks of the help pages alone
    void focusUnmarked(host::EventArgs& args);
    void pressField(host::EventArgs& args);
    void pressResistor(host::EventArgs& args);
    void lostText9(host::EventArgs& args);
    // the first design
    void focusText2(host::EventArgs& args);
    void focusText17(host::EventArgs& args);
    void keyText17(host::EventArgs& args);
    void lostText17();
    // supply, divider, generator
    void clickCommand2();
    void lostText16();
    void focusText19(host::EventArgs& args);
    void lostText19();
    void focusText18(host::EventArgs& args);
    void focusText15();
    void keyText15(host::EventArgs& args);
    // bootstrapping
    void clickImage2();
    void clickImage8();

private:
    void opened() override;
    void writeLoad(Real RLac);
    void proposePreset();
    void workOutDivider();
    bool workOutZin();
    void takeZin(Real Z1);
    void compareCurrent(Real obtained);
    const AnalysisWords& words() const { return inEnglish() ? englishAnalysis : accentedAnalysis; }
    std::string englishReport() const;
    std::string spanishReport() const;

    Divider divider_;
};

} // namespace velmor::form18
