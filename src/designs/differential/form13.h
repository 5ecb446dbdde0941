// SPDX-License-Identifier: MIT
// `Form13`, the compound differential amplifier (cascode): few inputs, many results, each step explained in four boxes. The
// second pair comes first, then the input pair, then Q5.
#pragma once

#include <memory>
#include <string>

#include "designs/differential/form13_controls.h"
#include "designs/differential/form13_formulas.h"
#include "sheets/design_sheet.h"
#include "sheets/sheet_slots.h"

namespace velmor::form13 {

std::unique_ptr<host::Window> create(host::SheetHost& host);

class Form13 final : public sheets::DesignSheet {
public:
    explicit Form13(host::SheetHost& host);

    std::string reportText() const override;
    /// The working numbers, as the last events left them.
    const Quantities& quantities() const { return q_; }

    // the window, its pictures and its boxes
    void load();
    void activate();
    void clickBackground();
    void hoverBackground();
    void hoverCurrent(host::EventArgs& args);
    void clickBox(host::EventArgs& args);
    void clickView();
    void clickSource();

    // every field: Enter rewrites nothing, and what is accepted is tested when the next field gets the focus
    void keyField(host::EventArgs& args);
    void hoverField(host::EventArgs& args);
    void pressField(host::EventArgs& args);

    // what the student gives
    void focusT(host::EventArgs& args);
    void clickT();
    void focusVg(host::EventArgs& args);
    void focusEopp(host::EventArgs& args);
    void keyEopp(host::EventArgs& args);
    void focusEin(host::EventArgs& args);
    void leaveEin();
    void focusEs(host::EventArgs& args);

    // the second pair
    void focusRL2(host::EventArgs& args);
    void focusRes(host::EventArgs& args);
    void keyRes(host::EventArgs& args);
    void leaveRes();
    void focusStep(host::EventArgs& args);
    void keyStep(host::EventArgs& args);
    void clickStep();

    // the input pair, Q5 and its load
    void focusRL1(host::EventArgs& args);
    void focusRes1(host::EventArgs& args);
    void keyRes1(host::EventArgs& args);
    void leaveRes1();
    void focusRLw(host::EventArgs& args);
    void clickRLw();
    void keyRLw(host::EventArgs& args);
    void leaveRLw();

protected:
    void opened() override;

private:
    // saying
    void put(host::Handle label, const std::string& caption);
    void explain(host::Handle field, const std::string& data);
    std::string words(const host::BiText& text) const { return std::string(pick(text)); }
    void hoverLine(host::Handle field);
    void showMirror(bool mirror);

    // steps
    bool entered(host::EventArgs& args);
    bool filled(host::EventArgs& args);
    void accept(Real& number, host::Handle field, Real from, Real to, Real otherwise);
    void goBackTo(host::Handle field, host::Handle from);
    bool enoughForEopp();
    void tellLeastEs();
    bool takeSecondPair();
    void tellSecondPair();
    void takeGain();
    void tellGain();
    void takeRes1();
    void takeTail(Real Res1);

    Quantities q_;
};

// clang-format off
// field, next
inline constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text1, Text2}, {Text2, Text3}, {Text3, Text4}, {Text4, Text5}, {Text5, Text6}, {Text6, Text7}, {Text7, Text8},
    {Text8, Text9}, {Text9, Text10}, {Text10, Text11}, {Text11},
});

/// The least supply (V) and the least resistor (kohm) that are accepted.
inline constexpr double leastGiven = 0.0001;

/// What a box returns that is answered Yes.
inline constexpr int answerYes = 6;

/// What Enter reads: the working number of a field.
struct Given {
    host::Handle field = host::noControl;
    Real Quantities::*number = nullptr;
};
inline constexpr auto givens = std::to_array<Given>({
    {Text1, &Quantities::T},   {Text2, &Quantities::Vg},  {Text3, &Quantities::Eopp}, {Text4, &Quantities::Ein},
    {Text5, &Quantities::Es},  {Text6, &Quantities::RL2}, {Text9, &Quantities::RL1},
});

// Slots of the sheet's own; the frame has the rest.
inline constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {host::noControl, host::Event::load,      host::slot<&Form13::load>},
    {host::noControl, host::Event::activate,  host::slot<&Form13::activate>},
    {host::noControl, host::Event::click,     host::slot<&Form13::clickBackground>},
    {host::noControl, host::Event::hover,     host::slot<&Form13::hoverBackground>},
    {Image1,          host::Event::click,     host::slot<&Form13::clickBackground>},
    {Image1,          host::Event::hover,     host::slot<&Form13::hoverBackground>},
    {image2,          host::Event::click,     host::slot<&Form13::clickBackground>},
    {image2,          host::Event::hover,     host::slot<&Form13::hoverBackground>},
    {Label31,         host::Event::hover,     host::slot<&Form13::hoverCurrent>},
    {Label33,         host::Event::hover,     host::slot<&Form13::hoverCurrent>},
    {Label4,          host::Event::hover,     host::slot<&Form13::hoverCurrent>},
    {Label26,         host::Event::click,     host::slot<&Form13::clickBox>},
    {Label27,         host::Event::click,     host::slot<&Form13::clickBox>},
    {Label29,         host::Event::click,     host::slot<&Form13::clickBox>},
    {Label18,         host::Event::click,     host::slot<&Form13::clickSource>},
    {SSCommand1,      host::Event::click,     host::slot<&Form13::clickView>},
    {Text1,           host::Event::focus,     host::slot<&Form13::focusT>},
    {Text1,           host::Event::click,     host::slot<&Form13::clickT>},
    {Text2,           host::Event::focus,     host::slot<&Form13::focusVg>},
    {Text3,           host::Event::focus,     host::slot<&Form13::focusEopp>},
    {Text3,           host::Event::key,       host::slot<&Form13::keyEopp>},
    {Text4,           host::Event::focus,     host::slot<&Form13::focusEin>},
    {Text4,           host::Event::lostFocus, host::slot<&Form13::leaveEin>},
    {Text5,           host::Event::focus,     host::slot<&Form13::focusEs>},
    {Text6,           host::Event::focus,     host::slot<&Form13::focusRL2>},
    {Text7,           host::Event::focus,     host::slot<&Form13::focusRes>},
    {Text7,           host::Event::key,       host::slot<&Form13::keyRes>},
    {Text7,           host::Event::lostFocus, host::slot<&Form13::leaveRes>},
    {Text8,           host::Event::focus,     host::slot<&Form13::focusStep>},
    {Text8,           host::Event::key,       host::slot<&Form13::keyStep>},
    {Text8,           host::Event::click,     host::slot<&Form13::clickStep>},
    {Text9,           host::Event::focus,     host::slot<&Form13::focusRL1>},
    {Text10,          host::Event::focus,     host::slot<&Form13::focusRes1>},
    {Text10,          host::Event::key,       host::slot<&Form13::keyRes1>},
    {Text10,          host::Event::lostFocus, host::slot<&Form13::leaveRes1>},
    {Text11,          host::Event::focus,     host::slot<&Form13::focusRLw>},
    {Text11,          host::Event::click,     host::slot<&Form13::clickRLw>},
    {Text11,          host::Event::key,       host::slot<&Form13::keyRLw>},
    {Text11,          host::Event::lostFocus, host::slot<&Form13::leaveRLw>},
});
// clang-format on
inline constexpr auto slots = sheets::sheetSlots<Form13, tools>(chain, ownSlots);

} // namespace velmor::form13
