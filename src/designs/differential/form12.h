// SPDX-License-Identifier: MIT
// `Form12`, the transistor constant current source: the chain of its design, and the analysis of what the commercial values
// really give, from which the design starts over.
#pragma once

#include <memory>
#include <string>

#include "designs/differential/form12_controls.h"
#include "designs/differential/form12_formulas.h"
#include "sheets/design_sheet.h"
#include "sheets/sheet_slots.h"

namespace velmor::form12 {

std::unique_ptr<host::Window> create(host::SheetHost& host);

class Form12 final : public sheets::DesignSheet {
public:
    explicit Form12(host::SheetHost& host);

    std::string reportText() const override;
    /// The working numbers, as the last events left them.
    const Quantities& quantities() const { return q_; }

    // the window
    void load();
    void activate();
    void hoverBackground();
    void openHelpBoxes();

    // every field: the drawing grows when it is left, and a click has a value of its own
    void focusField(host::EventArgs& args);
    void keyField(host::EventArgs& args);
    void pressField(host::EventArgs& args);
    void clickField(host::EventArgs& args);

    // what is asked of the source
    void focusQIc(host::EventArgs& args);
    void leaveQIc(host::EventArgs& args);
    void clickQIc();
    void focusEb(host::EventArgs& args);
    void leaveEb(host::EventArgs& args);
    void focusEq(host::EventArgs& args);
    void leaveEq(host::EventArgs& args);
    void focusEbias(host::EventArgs& args);
    void leaveEbias();

    // its resistors
    void focusRes();
    void keyRes(host::EventArgs& args);
    void leaveRes(host::EventArgs& args);
    void focusK();
    void leaveK(host::EventArgs& args);
    void focusRb1();
    void leaveRb1();
    void focusRb2();
    void leaveRb2();

    // the analysis
    void focusAnalysis();
    void keyAnalysis(host::EventArgs& args);
    void clickAnalysis();

protected:
    void opened() override;

private:
    std::string words(const host::BiText& text) const { return std::string(pick(text)); }
    sheets::Press entered(host::EventArgs& args);
    void startOver();
    void placeholdersBehind(host::Handle field);
    void takeEqFromEbias();
    void tellBias();
    std::string clickValue(host::Handle field);
    std::string pageOfRes() const;
    std::string pageOfK() const;
    std::string pageOfRb1() const;
    std::string pageOfRb2() const;
    void tellPageOf(host::Handle field);
    void analyse();
    void tellAnalysis();
    void tellVoltages();

    Quantities q_;
};

// clang-format off
// field, next, Esc, from, to, otherwise
inline constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text1, Text2,  "", 0.1,   sheets::noLimit, 0.1},
    {Text2, Text3,  "", 2,     sheets::noLimit, 2},
    {Text3, Text9},
    {Text9, Text4},
    {Text4, Text5,  "", 0.001, sheets::noLimit, 0.001},
    {Text5, Text6,  "", 0.3,   1,               0.5},
    {Text6, Text7},
    {Text7, Text10, "", 1e-05, sheets::noLimit, 7},
    {Text10},
});

// Slots of the sheet's own; the frame has the rest.
inline constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {host::noControl, host::Event::load,      host::slot<&Form12::load>},
    {host::noControl, host::Event::activate,  host::slot<&Form12::activate>},
    {host::noControl, host::Event::hover,     host::slot<&Form12::hoverBackground>},
    {Image1,          host::Event::hover,     host::slot<&Form12::hoverBackground>},
    {Text1,           host::Event::focus,     host::slot<&Form12::focusQIc>},
    {Text1,           host::Event::lostFocus, host::slot<&Form12::leaveQIc>},
    {Text1,           host::Event::click,     host::slot<&Form12::clickQIc>},
    {Text2,           host::Event::focus,     host::slot<&Form12::focusEb>},
    {Text2,           host::Event::lostFocus, host::slot<&Form12::leaveEb>},
    {Text3,           host::Event::focus,     host::slot<&Form12::focusEq>},
    {Text3,           host::Event::lostFocus, host::slot<&Form12::leaveEq>},
    {Text9,           host::Event::focus,     host::slot<&Form12::focusEbias>},
    {Text9,           host::Event::lostFocus, host::slot<&Form12::leaveEbias>},
    {Text4,           host::Event::focus,     host::slot<&Form12::focusRes>},
    {Text4,           host::Event::key,       host::slot<&Form12::keyRes>},
    {Text4,           host::Event::lostFocus, host::slot<&Form12::leaveRes>},
    {Text5,           host::Event::focus,     host::slot<&Form12::focusK>},
    {Text5,           host::Event::lostFocus, host::slot<&Form12::leaveK>},
    {Text6,           host::Event::focus,     host::slot<&Form12::focusRb1>},
    {Text6,           host::Event::lostFocus, host::slot<&Form12::leaveRb1>},
    {Text7,           host::Event::focus,     host::slot<&Form12::focusRb2>},
    {Text7,           host::Event::lostFocus, host::slot<&Form12::leaveRb2>},
    {Text10,          host::Event::focus,     host::slot<&Form12::focusAnalysis>},
    {Text10,          host::Event::key,       host::slot<&Form12::keyAnalysis>},
    {Text10,          host::Event::click,     host::slot<&Form12::clickAnalysis>},
});
// clang-format on
/// What a box returns that is answered OK.
inline constexpr int answerOk = 1;

/// Fields whose click writes a value.
inline constexpr auto clicked = std::to_array<host::Handle>({Text2, Text3, Text9, Text4, Text5, Text6, Text7});
inline constexpr auto slots = sheets::sheetSlots<Form12, tools>(
    chain, sheets::joined(sheets::alike(clicked, host::Event::click, host::slot<&Form12::clickField>), ownSlots));

} // namespace velmor::form12
