// SPDX-License-Identifier: MIT
// What the two sheets fed back by voltage do alike: the fields up to the gain, the test of the collector resistor, the question
// about the supply, the analysis. A step in which they differ is a function of each.
#pragma once

#include <string>
#include <string_view>

#include "designs/common_emitter/feedback_controls.h"
#include "designs/common_emitter/feedback_texts.h"
#include "host/own_values.h"
#include "sheets/design_sheet.h"

namespace velmor::feedback {

using rules::Real;
using sheets::Press;

/// The working numbers of one sheet.
struct Quantities {
    Real rE;             ///< ohm
    Real RLCalc;         ///< kilohm
    Real ERL;            ///< V
    Real Eq;             ///< V
    Real Ein;            ///< V r.m.s., as worked out from Eopp
    Real Rb1Calc;        ///< ohm on the simple sheet, kilohm on the stabilised one
    Real Zin;            ///< ohm
    bool passed = false; ///< the last step of the chain has ended without a warning
};

// clang-format off
inline constexpr auto quantityTable = host::everyMember<Quantities>(
    host::own<&Quantities::rE>("rE"),
    host::own<&Quantities::RLCalc>("RLCalc"),
    host::own<&Quantities::ERL>("ERL"),
    host::own<&Quantities::Eq>("Eq"),
    host::own<&Quantities::Ein>("Ein"),
    host::own<&Quantities::Rb1Calc>("Rb1Calc"),
    host::own<&Quantities::Zin>("Zin"),
    host::own<&Quantities::passed>("passed"));
// clang-format on

class FeedbackSheet : public sheets::DesignSheet {
public:
    FeedbackSheet(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet);

    const Quantities& quantities() const { return q_; }

    // the window
    void load();
    void clickBackground();
    void clickEditor();

    // fields
    void keyField(host::EventArgs& args);
    void clickField(host::EventArgs& args);
    void keyText5(host::EventArgs& args);
    void keyText7(host::EventArgs& args);
    void lostText7();
    void lostText8(host::EventArgs& args);
    void focusText14(host::EventArgs& args);
    void lostText14();

    // the question about the supply
    void clickCommand1();

protected:
    /// Any key that a field before the last takes: what was finished is so no longer.
    Press pressed(host::EventArgs& args);
    /// The field whose help page is meant.
    void mark(host::Handle field);
    /// Parts of the drawing that come with this field are pale again.
    void fade(host::Handle field);

    Real QIc() const { return at(Text8); }
    Real Eopp() const { return at(Text13); }

    /// r'e and RLac (in ohm), and the RL that makes it beside the load: `RLCalc`. False without a current, as an odd file may
    /// bring it. A load as large as RLac is a failure: the help page warns of it, and the sheet does not.
    bool workOutLoad(Real& RLac);
    /// False when RL has less voltage than half of the swing; the student has been told.
    bool loadVoltageSuffices(const Saying& box);
    /// Whether the RL of the student makes the load; if not, the student is asked what to change.
    void testResistor();
    void lockParameters();
    void askAboutSupply();
    void closeQuestion();

    /// RLac in kilohm that RL and RLw in use make, and its caption. False where both cancel each other.
    bool workOutLoadInUse(Real& RLac);
    /// Vg of the RL in use.
    void takeGain(Real RLac);
    void writeZin() { setText(Label21, "Zin= " + whole(q_.Zin) + " ohms"); }
    void writeCapacitors();
    /// Cdp for the half of Rb1, in ohm.
    void writeDecoupling(Real half);

    bool isHeavy() const { return !(q_.Zin / 1000.0 > at(Text15)); }
    /// Opens the analysis with one verdict and one picture.
    void openAnalysis(const std::string& page);
    std::string lightPage(Real Pout) const;
    /// The powers are the texts that the page shows.
    std::string heavyPage(const AnalysisWords& words, std::string_view Pout, std::string_view Pg,
                          std::string_view Pin) const;
    const AnalysisWords& analysisWords() const { return inEnglish() ? englishAnalysis : spanishAnalysis; }

    Quantities q_;
};

} // namespace velmor::feedback
