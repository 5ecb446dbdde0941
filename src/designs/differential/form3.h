// SPDX-License-Identifier: MIT
// `Form3`, the simple differential amplifier (long-tailed pair): the chain of its design, and the bench that the finished
// or the didactic picture turns into.
#pragma once

#include <memory>
#include <string>

#include "designs/differential/form3_controls.h"
#include "designs/differential/form3_formulas.h"
#include "designs/differential/form3_instruments.h"
#include "sheets/design_sheet.h"
#include "sheets/sheet_slots.h"

namespace velmor::form3 {

std::unique_ptr<host::Window> create(host::SheetHost& host);

class Form3 final : public sheets::DesignSheet {
public:
    explicit Form3(host::SheetHost& host);

    std::string reportText() const override;
    /// The working numbers, as the last events left them.
    const Quantities& quantities() const { return q_; }

    // the window and its picture
    void load();
    void clickBackground();
    void hoverBackground();
    void hoverPart(host::EventArgs& args);
    void pressPicture(host::EventArgs& args);
    void runKey(host::EventArgs& args);

    // every field of the chain: no Esc key, no test at Enter, a default for a field that is left empty
    void focusField(host::EventArgs& args);
    void keyField(host::EventArgs& args);
    void leaveField(host::EventArgs& args);
    void clickField(host::EventArgs& args);

    // fields of the chain that do more
    void leaveStability(host::EventArgs& args);
    void focusTemperature(host::EventArgs& args);
    void pressTemperature(host::EventArgs& args);
    void focusQIc(host::EventArgs& args);
    void keyQIc(host::EventArgs& args);
    void leaveEopp(host::EventArgs& args);
    void focusEin();
    void leaveEin(host::EventArgs& args);
    void clickEin();
    void focusBeta(host::EventArgs& args);
    void leaveVj();
    void clickVj(host::EventArgs& args);

    // the values that the student rounds to what can be bought
    void keyResult(host::EventArgs& args);
    void focusEbias(host::EventArgs& args);
    void leaveEbias();
    void clickEbias(host::EventArgs& args);
    void leaveRes();
    void focusRL(host::EventArgs& args);
    void leaveRL();
    void focusEs();
    void keyEs(host::EventArgs& args);
    void leaveEs();

    // the help pages
    void openHelpBoxes();
    void clickEnglishHelp();
    void changeSpanishHelp();

    // the bench
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
    // saying
    std::string words(const host::BiText& text) const { return std::string(pick(text)); }
    void tellAbout(host::Handle field);

    // the chain
    bool entered(host::EventArgs& args);
    bool sayEmpty(host::Handle field);
    bool refilled(host::Handle field, double value);
    void leaveTo(host::Handle field);
    void offer(host::Handle field, const std::string& proposal);
    bool tooMuchQIc() const;
    void fillEin();
    void proposeEbias();
    void proposeRes();
    void takeRes();
    bool takeRL();
    void takeERL();
    void takeLeast();
    void tellERL();
    void raiseRL();
    bool takeEs();
    void finishDesign();
    void showFinishedPicture();

    // the bench
    bool finished() const { return visible(image2); }
    void HideBench();
    void hideReading();
    void showMeter();
    void showGenerator();
    void showFields(bool shown);
    InputSignals inputs() const;
    void setInputs(const InputSignals& signals);
    void probe(host::Handle point);
    void showWaves(Waves waves, host::Handle point);
    Function function() const;
    void measure(host::Handle point);
    void tellCommonMode();

    Quantities q_;
};

// clang-format off
// field, next, Esc, from, to, otherwise
inline constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text1,  Text6,  "", 1,     10,              1},
    {Text6,  Text7,  "", 20,    200,             90},
    {Text7,  Text9,  "", 2,     3,               2.75},
    {Text9,  Text10, "", 1e-08, sheets::noLimit, 0.5},
    {Text10, Text11, "", 1e-08, sheets::noLimit, 16},
    {Text11, Text12, "", 1,     200,             1},
    {Text12, Text13, "", 10,    sheets::noLimit, 64},
    {Text13, Text14, "", 0.1,   sheets::noLimit, 1}, // 1 Hz, not the default
    {Text14, Text15, "", 1e-08, sheets::noLimit, 10},
    {Text15, Text5,  "", 1e-08, sheets::noLimit, 0.05},
    {Text5,  Text2,  "", 10,    sheets::noLimit, 100},
    {Text2,  Text3},
    {Text3,  Text4,  "", 1,     sheets::noLimit, 100},
    {Text4,  Text8},
    {Text8,  Text16, "", 1e-08, sheets::noLimit, 24},
    {Text16, Text17, "", 1e-08, sheets::noLimit, 22},
    {Text17, Text18},
    {Text18},
});

/// What the focus writes into an empty field, and leaving into one that was emptied.
struct Default {
    host::Handle field = host::noControl;
    double value = 0;
};
inline constexpr auto defaults = std::to_array<Default>({
    {Text1, 1}, {Text6, 90}, {Text7, 0}, {Text9, 0}, {Text10, 16}, {Text11, 1}, {Text12, 64}, {Text13, 20}, {Text14, 10},
    {Text5, 100}, {Text2, 30}, {Text3, 100}, {Text4, 0.6}, {Text8, 24}, {Text16, 22}, {Text17, 16},
});

// Slots of the sheet's own; the frame has the rest.
inline constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {host::noControl, host::Event::load,        host::slot<&Form3::load>},
    {host::noControl, host::Event::click,       host::slot<&Form3::clickBackground>},
    {host::noControl, host::Event::hover,       host::slot<&Form3::hoverBackground>},
    {host::noControl, host::Event::shortcut,    host::slot<&Form3::runKey>},
    {Image1,          host::Event::mouseDown,   host::slot<&Form3::pressPicture>},
    {Image1,          host::Event::hover,       host::slot<&Form3::hoverField>},
    {Image1,          host::Event::click,       host::slot<&Form3::clickBackground>},
    {image2,          host::Event::mouseDown,   host::slot<&Form3::pressPicture>},
    {image2,          host::Event::hover,       host::slot<&Form3::hoverBackground>},
    {Label22,         host::Event::hover,       host::slot<&Form3::hoverField>},
    {Text1,           host::Event::lostFocus,   host::slot<&Form3::leaveStability>},
    {Text6,           host::Event::focus,       host::slot<&Form3::focusTemperature>},
    {Text6,           host::Event::mouseDown,   host::slot<&Form3::pressTemperature>},
    {Text9,           host::Event::focus,       host::slot<&Form3::focusQIc>},
    {Text9,           host::Event::key,         host::slot<&Form3::keyQIc>},
    {Text14,          host::Event::lostFocus,   host::slot<&Form3::leaveEopp>},
    {Text15,          host::Event::focus,       host::slot<&Form3::focusEin>},
    {Text15,          host::Event::lostFocus,   host::slot<&Form3::leaveEin>},
    {Text15,          host::Event::click,       host::slot<&Form3::clickEin>},
    {Text5,           host::Event::focus,       host::slot<&Form3::focusBeta>},
    {Text4,           host::Event::lostFocus,   host::slot<&Form3::leaveVj>},
    {Text4,           host::Event::click,       host::slot<&Form3::clickVj>},
    {Text8,           host::Event::focus,       host::slot<&Form3::focusEbias>},
    {Text8,           host::Event::key,         host::slot<&Form3::keyResult>},
    {Text8,           host::Event::lostFocus,   host::slot<&Form3::leaveEbias>},
    {Text8,           host::Event::click,       host::slot<&Form3::clickEbias>},
    {Text16,          host::Event::key,         host::slot<&Form3::keyResult>},
    {Text16,          host::Event::lostFocus,   host::slot<&Form3::leaveRes>},
    {Text17,          host::Event::focus,       host::slot<&Form3::focusRL>},
    {Text17,          host::Event::key,         host::slot<&Form3::keyResult>},
    {Text17,          host::Event::lostFocus,   host::slot<&Form3::leaveRL>},
    {Text18,          host::Event::focus,       host::slot<&Form3::focusEs>},
    {Text18,          host::Event::key,         host::slot<&Form3::keyEs>},
    {Text18,          host::Event::lostFocus,   host::slot<&Form3::leaveEs>},
    {Image30,         host::Event::click,       host::slot<&Form3::powerOn>},
    {Image30,         host::Event::doubleClick, host::slot<&Form3::powerOff>},
    {Image33,         host::Event::click,       host::slot<&Form3::powerOn>},
    {Image33,         host::Event::doubleClick, host::slot<&Form3::powerOff>},
    {c6,              host::Event::click,       host::slot<&Form3::clickCommonMode>},
    {c7,              host::Event::click,       host::slot<&Form3::clickCommonMode>},
    {Image12,         host::Event::drop,        host::slot<&Form3::dropOnInput1>},
    {Image11,         host::Event::drop,        host::slot<&Form3::dropOnInput2>},
    {Image26,         host::Event::drop,        host::slot<&Form3::dropOnInput2>},
    {Image8,          host::Event::click,       host::slot<&Form3::clickEmitter>},
    {Text19,          host::Event::click,       host::slot<&Form3::clickEnglishHelp>},
    {Text20,          host::Event::change,      host::slot<&Form3::changeSpanishHelp>},
});

// What several controls do alike.
inline constexpr auto functions = std::to_array<host::Handle>({c1, c4, c5, C3});
inline constexpr auto points = std::to_array<host::Handle>({
    Image4, Image5, Image6, Image7, Image9, Image10, Image11, Image12, Image22, Image24, Image26,
});
inline constexpr auto named = std::to_array<host::Handle>({
    Image4, Image5, Image6, Image7, Image8, Image9, Image10, Image11, Image12, Image22, Image24, Image26, Image14, Image15,
    Image30, Image33, c1, c4, c5, C3, c6, c7, Image27, Image28, Image29, Image32, Image31, Image35, Image34,
});
// clang-format on
inline constexpr auto slots = sheets::sheetSlots<Form3, tools>(
    chain, sheets::joined(sheets::alike(chain, host::Event::click, host::slot<&Form3::clickField>),
                          sheets::alike(functions, host::Event::click, host::slot<&Form3::selectFunction>),
                          sheets::alike(points, host::Event::click, host::slot<&Form3::clickPoint>),
                          sheets::alike(named, host::Event::hover, host::slot<&Form3::hoverPart>), ownSlots));

} // namespace velmor::form3
