// SPDX-License-Identifier: MIT
// `Form4`: the common-base stage, its chain, the adjustment of its preset, and the analysis that compares it with the
// emitter-bypassed stage. What it says stands in form4_texts, what it works out in form4_formulas.
#pragma once

#include <string>

#include "designs/base_collector/form4_controls.h"
#include "designs/base_collector/form4_formulas.h"
#include "designs/base_collector/form4_texts.h"
#include "sheets/design_sheet.h"

namespace velmor::form4 {

using sheets::Press;

extern const host::WindowSpec spec;

class Form4 final : public sheets::DesignSheet {
public:
    explicit Form4(host::SheetHost& host);

    std::string reportText() const override;
    const Quantities& quantities() const { return q_; }

    // life of the sheet (form4.cpp)
    void load();
    void activate();
    void unload();
    void clickBackground();

    // every field of the chain
    void focusField(host::EventArgs& args);
    void keyField(host::EventArgs& args);
    void hoverField(host::EventArgs& args);
    void clickField(host::EventArgs& args);
    void pressField(host::EventArgs& args);
    void pressResistor(host::EventArgs& args);

    // parameters of circuit and transistor (form4_chain.cpp)
    void focusText1(host::EventArgs& args);
    void leaveText1(host::EventArgs& args);
    void focusText3(host::EventArgs& args);
    void pressText3(host::EventArgs& args);
    void leaveText4();
    void keyText9(host::EventArgs& args);
    void focusText14(host::EventArgs& args);
    void leaveText14();
    void keyText2(host::EventArgs& args);
    void keyText5(host::EventArgs& args);
    void keyText6(host::EventArgs& args);
    void leaveText7(host::EventArgs& args);

    // resistors and supply (form4_closing.cpp)
    void focusText18(host::EventArgs& args);
    void keyText18(host::EventArgs& args);
    void leaveText18();
    void focusText20(host::EventArgs& args);
    void keyText20(host::EventArgs& args);
    void leaveText20();
    void focusText15(host::EventArgs& args);
    void leaveText15(host::EventArgs& args);
    void focusText16(host::EventArgs& args);
    void keyText16(host::EventArgs& args);
    void leaveText16();
    void focusText17(host::EventArgs& args);
    void keyText17(host::EventArgs& args);
    void leaveText17();

    // the leaf of analysis (form4_analysis.cpp)
    void openAnalysis();
    void clickPicture1();
    void dropOnCapacitor(host::EventArgs& args);

private:
    void opened() override;

    Press pressed(host::EventArgs& args);
    std::string words(const host::BiText& text) const { return std::string(pick(text)); }
    /// A capacitor in microfarads and a power in microwatts, with the course's units.
    std::string microfarads(Real farads) const { return shown(farads * 1000000.0) + " mF"; }
    std::string microwatts(Real watts) const { return shown(watts * 1000000.0) + " microW"; }

    /// A design read from a file takes its last fields out of reach: what stands there is not left by the student.
    bool isTakenAway(host::Handle field) const { return !enabled(field); }

    // steps of the chain that stand on their own
    bool canTellEin() const { return at(Text11) != Real(0.0); }
    Real inputVoltage() const;
    void workOutERes();
    void proposeRes();
    void takeRes();
    void workOutEsMin();
    void acceptSupply();
    void askForCurrent();
    bool swingFits(std::string& voltageName);
    void workOutSupply();
    void proposeRb2();
    void workOutRb1();
    void writeRb1(std::string_view ending);
    void writeInputImpedance();
    void writeCapacitors();
    /// False where the preset in use gives no current that could be told.
    bool workOutObtainedCurrent();
    bool obtainsItsCurrent() const;
    bool isShown(std::string_view window) const;

    // the leaf of analysis
    void clearBench();
    void connectCommonBase();
    void closeAnalysis();
    void fillAnalysis();
    void compareConnections();

    Quantities q_;
};

} // namespace velmor::form4
