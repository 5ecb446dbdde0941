// SPDX-License-Identifier: MIT
// `Form10`, the simple class B amplifier: a complementary output pair and its driver. Prompts stand in one line on top, formulas
// come under the pointer, and the calculations on a panel that covers the fields.
#pragma once

#include <memory>
#include <string>

#include "designs/power/form10_controls.h"
#include "designs/power/form10_formulas.h"
#include "designs/power/form10_texts.h"
#include "sheets/design_sheet.h"
#include "sheets/sheet_slots.h"
#include "sheets/sheet_titles.h"

namespace velmor::form10 {

extern const host::WindowSpec spec;

/// What differs by a number or a word only between this sheet and the one that is told as this one with differences.
struct Stage {
    double junctions = 0;              ///< V that the driver's load lacks of half the supply
    std::string_view ibias{};          ///< what the field of Ibias shows when it gets the focus
    std::string_view driverVoltages{}; ///< `Label5`
    std::string_view diodeVoltage{};   ///< `Label6`
    double leastRLb = 0;               ///< kohm
    host::BiText steps{};              ///< what the voice says when Ibias is left
    host::BiText designName{};         ///< of the report
};
inline constexpr Stage simpleStage{.junctions = 1.2,
                                   .ibias = "6 mA",
                                   .driverVoltages = "Erd : 0.6 V\nIbias : ",
                                   .diodeVoltage = "Ed : 0.6 V",
                                   .leastRLb = 0.00011,
                                   .steps = clickOnRb1,
                                   .designName = {"Amplificador de Potencia Clase B", "  Power Amplifier Class B"}};

class Form10 : public sheets::DesignSheet {
public:
    explicit Form10(host::SheetHost& host);

    std::string reportText() const override;
    /// The working numbers, as the last events left them.
    const Quantities& quantities() const { return q_; }

    // life of the sheet
    void load();
    void unload();
    void clickBackground();
    void hoverBackground();

    // every field of the chain: Esc says nothing, an empty field may fill itself, formulas under the pointer
    void focusField(host::EventArgs& args);
    void keyField(host::EventArgs& args);
    void hoverField(host::EventArgs& args);
    void pressResistor(host::EventArgs& args);

    // output and supply
    void lostText1();
    void lostText2();
    void keyText10(host::EventArgs& args);
    void lostText10();

    // driver and its base
    void focusText5(host::EventArgs& args);
    void keyText5(host::EventArgs& args);
    void lostText5();
    void clickText6();
    void keyText6(host::EventArgs& args);
    void lostText6();
    void focusText7(host::EventArgs& args);
    void clickText7();
    void keyText7(host::EventArgs& args);
    void lostText7();
    void focusText8(host::EventArgs& args);
    void keyText8(host::EventArgs& args);
    void lostText8();
    void closePage();

    // the driver's load and the signal
    void focusText3(host::EventArgs& args);
    void clickText3();
    void keyText3(host::EventArgs& args);
    void lostText3();
    void focusText4(host::EventArgs& args);
    void keyText4(host::EventArgs& args);
    void lostText4();
    void focusText9(host::EventArgs& args);
    void clickText9();
    void keyText9(host::EventArgs& args);
    void lostText9();
    void keyText11(host::EventArgs& args);
    void keyText12(host::EventArgs& args);

protected:
    /// A sheet that is told as this one with differences.
    Form10(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet, const Stage& stage);
    void opened() override;

    void writeHeadings(const host::BiText& help);
    std::string words(const host::BiText& text) const { return std::string(pick(text)); }
    /// A capacitor's text: microfarads to four decimals.
    std::string microfarads(Real farads) const { return shown(farads * 1000000.0); }
    void layLabels();
    std::string pageText(std::span<const PageRow> page) const;
    bool entered(host::EventArgs& args);
    /// Writes `otherwise`, to four decimals, when the field's number is below `from`.
    void correctTo(host::Handle field, double from, Real otherwise);

    // steps of output and supply
    void takeLoad();
    void tellSupply(const host::Place& place);
    void takeSupply();
    bool supplyIsTooLow() const { return at(Text10) < q_.EsMin; }
    void openAnalysis();
    void tellDriver();
    // of the driver and its base
    void takeBias();
    void takeBase(Real junction);
    void tellLoad();
    void showPanel(std::span<const PageRow> page);
    void enterText6();
    void leaveText6();
    void tellBase();
    // of the driver's load and the signal
    void splitLoad();
    /// Works out a quantity; a failure of arithmetic is told in a box, and the quantity keeps its value.
    template <class Formula>
    void workOut(Real& quantity, Formula formula)
    {
        try {
            quantity = formula();
        } catch (const host::ProgramFailure& failure) {
            tellFailure(failure.kind());
        }
    }
    void tellFailure(host::FailureKind kind);
    void takeCurrent();
    void takeSignal();
    void takeCapacitors();
    void tellSignal();
    std::string impedance() const;
    void correctText9();
    void takePeakCurrent(Real lost);
    void tellPeakCurrent(const host::BiText& verse);

    Quantities q_;
    const Stage& stage_;
};

// clang-format off
// field, next, Esc, from, to, otherwise. The button of the calculation page leads on to Text7, or to Text9.
inline constexpr auto chain = std::to_array<sheets::ChainRow>({
    {Text1,  Text2,  "", 1, sheets::noLimit, 4},
    {Text2,  Text10, "", 1, sheets::noLimit, 8},
    {Text10, Text5,  "", 1, sheets::noLimit, 24},
    {Text5,  Text6,  "", 1, sheets::noLimit, 6},
    {Text6,  Text8},
    {Text7,  Text6},
    {Text8,  Text3},
    {Text3,  Text4},
    {Text4},
    {Text9,  Text11},
    {Text11, Text12},
    {Text12},
});

/// What the focus writes into an empty field.
struct Default {
    host::Handle field = host::noControl;
    double value = 0;
};
inline constexpr auto defaults = std::to_array<Default>({{Text1, 4}, {Text2, 8}, {Text11, 1}, {Text12, 1}});

// Slots of the sheet's own; the frame has the rest.
inline constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {host::noControl, host::Event::load,      host::slot<&Form10::load>},
    {host::noControl, host::Event::unload,    host::slot<&Form10::unload>},
    {host::noControl, host::Event::hover,     host::slot<&Form10::hoverBackground>},
    {Image1,          host::Event::hover,     host::slot<&Form10::hoverBackground>},
    {Label1,          host::Event::hover,     host::slot<&Form10::hoverBackground>},
    {Text1,           host::Event::lostFocus, host::slot<&Form10::lostText1>},
    {Text2,           host::Event::lostFocus, host::slot<&Form10::lostText2>},
    {Text10,          host::Event::key,       host::slot<&Form10::keyText10>},
    {Text10,          host::Event::lostFocus, host::slot<&Form10::lostText10>},
    {Text5,           host::Event::focus,     host::slot<&Form10::focusText5>},
    {Text5,           host::Event::key,       host::slot<&Form10::keyText5>},
    {Text5,           host::Event::lostFocus, host::slot<&Form10::lostText5>},
    {Text6,           host::Event::click,     host::slot<&Form10::clickText6>},
    {Text6,           host::Event::key,       host::slot<&Form10::keyText6>},
    {Text6,           host::Event::lostFocus, host::slot<&Form10::lostText6>},
    {Text7,           host::Event::focus,     host::slot<&Form10::focusText7>},
    {Text7,           host::Event::click,     host::slot<&Form10::clickText7>},
    {Text7,           host::Event::key,       host::slot<&Form10::keyText7>},
    {Text7,           host::Event::lostFocus, host::slot<&Form10::lostText7>},
    {Text8,           host::Event::focus,     host::slot<&Form10::focusText8>},
    {Text8,           host::Event::key,       host::slot<&Form10::keyText8>},
    {Text8,           host::Event::lostFocus, host::slot<&Form10::lostText8>},
    {Text8,           host::Event::mouseDown, host::slot<&Form10::pressResistor>},
    {Text3,           host::Event::focus,     host::slot<&Form10::focusText3>},
    {Text3,           host::Event::click,     host::slot<&Form10::clickText3>},
    {Text3,           host::Event::key,       host::slot<&Form10::keyText3>},
    {Text3,           host::Event::lostFocus, host::slot<&Form10::lostText3>},
    {Text3,           host::Event::mouseDown, host::slot<&Form10::pressResistor>},
    {Text4,           host::Event::focus,     host::slot<&Form10::focusText4>},
    {Text4,           host::Event::key,       host::slot<&Form10::keyText4>},
    {Text4,           host::Event::lostFocus, host::slot<&Form10::lostText4>},
    {Text4,           host::Event::mouseDown, host::slot<&Form10::pressResistor>},
    {Text9,           host::Event::focus,     host::slot<&Form10::focusText9>},
    {Text9,           host::Event::click,     host::slot<&Form10::clickText9>},
    {Text9,           host::Event::key,       host::slot<&Form10::keyText9>},
    {Text9,           host::Event::lostFocus, host::slot<&Form10::lostText9>},
    {Text9,           host::Event::mouseDown, host::slot<&Form10::pressResistor>},
    {Text11,          host::Event::key,       host::slot<&Form10::keyText11>},
    {Text12,          host::Event::key,       host::slot<&Form10::keyText12>},
});
// What only this sheet has: the panel of the calculations, and the report editor that a click on the ground puts away.
inline constexpr auto panelSlots = std::to_array<host::SlotRow>({
    {host::noControl, host::Event::click, host::slot<&Form10::clickBackground>},
    {Image1,          host::Event::click, host::slot<&Form10::clickBackground>},
    {Command1,        host::Event::click, host::slot<&Form10::closePage>},
});

// part, field that brings it
inline constexpr auto growth = std::to_array<host::GrowthRow>({
    {Line2, Text2}, {Line1, Text10}, {Line3, Text5}, {Line4, Text6}, {Line5, Text7}, {Line6, Text8}, {Line7, Text3}, {Line8, Text4},
    {Line9, Text9}, {Line10, Text9},
});
// value, part
inline constexpr auto values = std::to_array<host::ValueRow>({
    {Label3, Line1}, {Label4, Line1}, {Label5, Line3}, {Label6, Line3}, {Label12, Line8}, {Label13, Line3}, {Label14, Line10},
    {Label15, Line10},
});

inline constexpr auto lines = std::to_array<sheets::FileLine>({
    {Text1}, {Text2}, {Text3, true}, {Text4, true}, {Text5, true}, {Text6, true}, {Text7, true}, {Text8, true}, {Text9, true},
    {Text10, true}, {Text11}, {Text12}, {Text13, true},
    {Label4, true}, {Label1, true}, {Label2, true}, {Label3, true}, {Label5, true}, {Label6, true}, {Label7, true}, {Label8, true},
    {Label9, true}, {Label10, true},
});
inline constexpr host::Handle notes[] = {Label7};
inline constexpr auto tabOrder = std::to_array<host::Handle>({
    Text1, Text2, Text10, Text5, Text6, Text7, Text8, Text3, Text4, Text9, Text11, Text12, Text13, SSCommand1, SSCommand3, Text22, Text23,
});
inline constexpr auto ownKeys = std::to_array<host::ShortcutRow>({
    {"Shift+F2", Image1, host::KeyAction::hover, host::noControl, {"Borrar la fórmula", "Take the formula away"}},
});
// clang-format on
inline constexpr auto slots = sheets::sheetSlots<Form10, tools>(chain, sheets::joined(ownSlots, panelSlots));

extern const sheets::SheetSpec sheetSpec;
/// Where the screen shows what has another place in the model: inside the sheet, in a readable size.
host::Place placeOnScreen(const host::Window& window, host::Handle control);
std::unique_ptr<host::Window> create(host::SheetHost& host);

} // namespace velmor::form10
