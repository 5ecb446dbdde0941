// SPDX-License-Identifier: MIT
// `Form3`, the simple differential amplifier (long-tailed pair): the chain of its design, and the bench that the finished
// or the didactic picture turns into.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "designs/differential/form3_controls.h"
#include "designs/differential/form3_formulas.h"
#include "designs/differential/form3_instruments.h"
#include "sheets/design_sheet.h"
#include "sheets/steps.h"

namespace velmor::form3 {

std::unique_ptr<host::Window> create(host::SheetHost& host);

class Form3 final : public sheets::DesignSheet {
public:
    explicit Form3(host::SheetHost& host);

    std::string reportText() const override;
    /// The working numbers, as the last events left them.
    const Quantities& quantities() const { return q_; }

    // the window
    void load();
    void clickBackground();
    void hoverBackground();
    void runKey(host::EventArgs& args);

    // fields of the chain without a particularity
    void focusField(host::EventArgs& args);
    void keyField(host::EventArgs& args);
    void leaveField(host::EventArgs& args);
    void clickField(host::EventArgs& args);

    // fields of the chain with one
    void focusTemperature();
    void pressTemperature(host::EventArgs& args);
    void focusQIc();
    void keyQIc(host::EventArgs& args);
    void clickQIc();
    void leaveEopp();
    void clickEopp();
    void focusEin();
    void leaveEin();
    void clickEin();
    void focusBeta();
    void leaveVj();
    void clickVj();

    // the values that the student rounds to commercial ones
    void keyResult(host::EventArgs& args);
    void focusEbias();
    void leaveEbias();
    void clickEbias();
    void focusRes();
    void leaveRes();
    void focusRL();
    void leaveRL();
    void clickRL();
    void focusEs();
    void keyEs(host::EventArgs& args);
    void leaveEs();

    // help
    void hoverField(host::EventArgs& args);
    void hoverPart(host::EventArgs& args);
    void showHelp();
    void hideHelp();
    void clickEnglishHelp();
    void changeSpanishHelp();

    // buttons and picture
    void pressPicture(host::EventArgs& args);
    void clickClone(host::EventArgs& args);
    void clickCalculator();
    void clickReport();
    void clickGuide();

    // the bench
    void HideBench();
    void powerOn(host::EventArgs& args);
    void powerOff();
    void selectFunction(host::EventArgs& args);
    void dropOnInput1(host::EventArgs& args);
    void dropOnInput2(host::EventArgs& args);
    void clickPoint(host::EventArgs& args);
    void clickCommonMode(host::EventArgs& args);
    void clickEmitter(host::EventArgs& args);

protected:
    void opened() override;

private:
    // the chain
    void beginField(host::Handle field);
    void settleField(host::Handle field);
    bool isEnter(host::EventArgs& args);
    void leaveTo(host::Handle field);
    void ink(const GrowingPart& part);
    void fillEin();
    bool sayEmpty(host::Handle field);
    bool tooMuchQIc() const;
    void proposeEbias();
    void proposeRes();
    void computeTail();
    bool computeRL();
    void correctRL();
    void computeSource();
    void offerEs();
    bool checkSupply();
    void finishDesign();
    void writeRlLabel();
    void showFinishedPicture();

    // help
    void endPointing();
    std::string_view statusOf(host::Handle field) const;
    void tellAbout(host::Handle field);

    // the bench
    bool finished() const { return visible(image2); }
    void hideFunctions();
    void showMeter();
    void showGenerator();
    void showFields(bool shown);
    void placePage();
    InputSignals inputs() const;
    void setInputs(const InputSignals& signals);
    bool drop(host::Handle source, host::Handle onA, host::Handle onB);
    void teach(const host::BiText& page);
    void probe(host::Handle point);
    void showWaves(Waves waves, host::Handle point);
    void measure(host::Handle point);
    void tellCommonMode();

    Quantities q_;
    bool leavingRL_ = false; ///< the lost-focus slot of `Text17` runs: what it has rewritten is not tested again.
                             ///< False between events, and so no part of the sheet's state
};

} // namespace velmor::form3
