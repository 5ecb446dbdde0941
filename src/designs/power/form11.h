// SPDX-License-Identifier: MIT
// `Form11`, the improved class B amplifier, told as `Form10` with differences: Darlington outputs, an emitter resistor in the driver,
// values that the fields propose, and calculation pages in a window of their own, from which the sheet goes on when they are left.
#pragma once

#include "designs/power/form10.h"
#include "designs/power/form11_controls.h"
#include "designs/power/form11_formulas.h"
#include "designs/power/form11_texts.h"

namespace velmor::form11 {

extern const host::WindowSpec spec;

/// Pages that the sheet waits for.
enum Page : std::int16_t { noPage, pageOfBase, pageOfSignal };

inline constexpr Stage darlingtonStage{
    .junctions = 2.4,
    .ibias = "3 mA",
    .driverVoltages = "Erd : 0.3 V\nIbias : ",
    .diodeVoltage = "Ed : 0.6 V c/u",
    .leastRLb = 1,
    .steps = clickOnRb1,
    .designName = {"Amplificador de Potencia Clase B Mejorado", "  Power Amplifier Class B Darlington"}};

class Form11 final : public Form10 {
public:
    explicit Form11(host::SheetHost& host);

    /// The working numbers that only this sheet has.
    const Driver& driver() const { return driver_; }

    // life of the sheet
    void load();
    void activate();
    void comeBack();
    void hoverPart(host::EventArgs& args);
    void clickClone(host::EventArgs& args);
    void openSteps();

    // fields that do otherwise
    void focusText1(host::EventArgs& args);
    void lostText2();
    void focusText10(host::EventArgs& args);
    void lostText5();
    void focusText6(host::EventArgs& args);
    void clickText6();
    void lostText6();
    void focusText7(host::EventArgs& args);
    void clickText7();
    void keyText7(host::EventArgs& args);
    void focusText8(host::EventArgs& args);
    void focusText3(host::EventArgs& args);
    void focusText4(host::EventArgs& args);
    void keyText4(host::EventArgs& args);
    void lostText4();
    void focusText9(host::EventArgs& args);
    void lostText9();
    void focusText12(host::EventArgs& args);
    void keyText12(host::EventArgs& args);

private:
    bool showsPage() const;
    void showPage(Page page);
    void leavePage();
    void goOnFromPage(bool presetPassed);
    void correctRLa();
    void takeSignal();
    Real presetValue() const { return q_.Rb1 - q_.Rb1 / 10.0; }

    Driver driver_;
};

// clang-format off
// field, next, Esc, from, to, otherwise
inline constexpr auto chain = sheets::withRowsOf(form10::chain, std::to_array<sheets::ChainRow>({
    {Text1,  Text2,  "", 1, sheets::noLimit, 10},
    {Text10, Text5,  "", 1, sheets::noLimit, 36},
    {Text5,  Text6,  "", 1, sheets::noLimit, 3},
}));

// What is named while the pointer is over it.
inline constexpr auto named = std::to_array<host::Handle>({
    SSCommand1, SSCommand3, Image6, Image7, Image5, Image35, Image34, image2, Image3,
});

inline constexpr auto slots = sheets::sheetSlots<Form11, tools>(chain, sheets::joined(form10::ownSlots,
    sheets::alike(named, host::Event::hover, host::slot<&Form11::hoverPart>), std::to_array<host::SlotRow>({
    {host::noControl, host::Event::load,      host::slot<&Form11::load>},
    {host::noControl, host::Event::activate,  host::slot<&Form11::activate>},
    {host::noControl, host::Event::comeBack,  host::slot<&Form11::comeBack>},
    {image2,          host::Event::click,     host::slot<&Form11::openSteps>},
    {Text1,           host::Event::focus,     host::slot<&Form11::focusText1>},
    {Text2,           host::Event::lostFocus, host::slot<&Form11::lostText2>},
    {Text10,          host::Event::focus,     host::slot<&Form11::focusText10>},
    {Text5,           host::Event::lostFocus, host::slot<&Form11::lostText5>},
    {Text6,           host::Event::focus,     host::slot<&Form11::focusText6>},
    {Text6,           host::Event::click,     host::slot<&Form11::clickText6>},
    {Text6,           host::Event::lostFocus, host::slot<&Form11::lostText6>},
    {Text7,           host::Event::focus,     host::slot<&Form11::focusText7>},
    {Text7,           host::Event::click,     host::slot<&Form11::clickText7>},
    {Text7,           host::Event::key,       host::slot<&Form11::keyText7>},
    {Text8,           host::Event::focus,     host::slot<&Form11::focusText8>},
    {Text3,           host::Event::focus,     host::slot<&Form11::focusText3>},
    {Text3,           host::Event::key,       host::slot<&Form11::keyField>},
    {Text4,           host::Event::focus,     host::slot<&Form11::focusText4>},
    {Text4,           host::Event::key,       host::slot<&Form11::keyText4>},
    {Text4,           host::Event::lostFocus, host::slot<&Form11::lostText4>},
    {Text9,           host::Event::focus,     host::slot<&Form11::focusText9>},
    {Text9,           host::Event::key,       host::slot<&Form11::keyField>},
    {Text9,           host::Event::lostFocus, host::slot<&Form11::lostText9>},
    {Text12,          host::Event::focus,     host::slot<&Form11::focusText12>},
    {Text12,          host::Event::key,       host::slot<&Form11::keyText12>},
})));
// clang-format on

} // namespace velmor::form11
