// SPDX-License-Identifier: MIT
// The differences of `form20`, and nothing else: rows in the place of those of `Form15`, and the slots whose steps differ.
#include "designs/power/form20.h"

#include "designs/power/form20_texts.h"
#include "sheets/rows.h"
#include "sheets/sheet_titles.h"

namespace velmor::form20 {

using host::Handle;
using host::noControl;
using sheets::joined;
using sheets::Press;
using sheets::withRowsOf;

namespace tables {

constexpr double twoJunctions = 1.2; // V, of the pair
constexpr int leftOffered = 5680;
constexpr int leftChosen = 6140;
constexpr host::Place openPage{sheets::zones::paper.width - 3735 - 50, 55, 3735, 6450};

// clang-format off
constexpr auto chain = withRowsOf(form15::chain, std::to_array<sheets::ChainRow>({
    {Text1, Text2, "", 0.01, 100, 0.78},
}));

constexpr auto ownSlots = std::to_array<host::SlotRow>({
    {noControl,  host::Event::load,      host::slot<&Form20::load>},
    {noControl,  host::Event::activate,  host::slot<&Form20::activate>},
    {Image5,     host::Event::hover,     host::slot<&Form20::hoverClone>},
    {Image4,     host::Event::hover,     host::slot<&Form20::hoverClone>},
    {SSCommand3, host::Event::hover,     host::slot<&Form20::hoverCalculator>},
    {Text1,      host::Event::focus,     host::slot<&Form20::focusText1>},
    {Text1,      host::Event::lostFocus, host::slot<&Form20::lostText1>},
    {Text2,      host::Event::lostFocus, host::slot<&Form20::lostText2>},
    {Text12,     host::Event::focus,     host::slot<&Form20::focusText12>},
    {Text12,     host::Event::key,       host::slot<&Form20::keyText12>},
    {Text10,     host::Event::key,       host::slot<&Form20::keyText10>},
    {Text11,     host::Event::key,       host::slot<&Form20::keyText11>},
    {Text11,     host::Event::lostFocus, host::slot<&Form20::lostText11>},
    {Text3,      host::Event::focus,     host::slot<&Form20::focusText3>},
    {Text4,      host::Event::key,       host::slot<&Form20::keyText4>},
    {Text4,      host::Event::lostFocus, nullptr},
    {Text5,      host::Event::focus,     host::slot<&Form20::focusText5>},
    {Text5,      host::Event::key,       host::slot<&Form20::keyText5>},
    {Text5,      host::Event::lostFocus, nullptr},
    {Text7,      host::Event::lostFocus, host::slot<&Form20::lostText7>},
    {Text8,      host::Event::focus,     host::slot<&Form20::focusText8>},
    {Text8,      host::Event::lostFocus, host::slot<&Form20::lostText8>},
    {Text9,      host::Event::lostFocus, host::slot<&Form20::lostText9>},
    {Image1,     host::Event::click,     host::slot<&Form20::clickImage1>},
    {Image2,     host::Event::click,     host::slot<&Form20::clickImage2>},
});
constexpr auto slots = joined(form15::slots, ownSlots);

// The pair comes with the first Beta; Q1 stands there with the second. The second bootstrap closes the design.
constexpr auto growth = joined(form15::growth, std::to_array<host::GrowthRow>({{Line13, Text9}}));
constexpr auto values = joined(form15::values, std::to_array<host::ValueRow>({{Label9, Line7}, {Label22, Line13}}));

constexpr auto lines = joined(form15::linesBeforeQ1, std::to_array<sheets::FileLine>({{Label22}, {Q1}}));
// clang-format on

host::Place shown(const host::Window& window, Handle control)
{
    if (control == Text22 || control == Text23)
        return sheets::at(763, 98, 249, 510);
    // First the name of the whole resistor, above its field; in the end the value of the lower part, beside that.
    if (control == Label9 && window.text(Label9).starts_with("RLb"))
        return sheets::at(662, 221, 106, 18);
    return form15::spec.shownPlace(window, control);
}

sheets::SheetSpec sheetTables()
{
    sheets::SheetSpec sheet = form15::sheetSpec;
    sheet.filter = {.es = "Clase A Darlington (*.CAD)|*.CAD", .en = "Class A Darlington (*.DAC)|*.DAC"};
    sheet.written = lines;
    sheet.read = lines;
    sheet.chain = chain;
    sheet.sayings = texts::sayings;
    sheet.helpBoxes.place = openPage;
    // The guide of another circuit, and kept so.
    sheet.guide = {.es = "Emisor común realimentado por corriente.Lab",
                   .en = "Emisor común realimentado por corriente.Lab"};
    return sheet;
}

host::WindowSpec window()
{
    host::WindowSpec window = form15::spec;
    window.name = "form20";
    window.controls = controls;
    window.slots = slots;
    window.create = create;
    window.sheetTitle = sheets::titleOf("form20");
    window.growth = growth;
    window.values = values;
    window.shownPlace = shown;
    return window;
}

} // namespace tables

// The tables of `Form15` are constants, so they are there before these copies of them are made.
const sheets::SheetSpec sheetSpec = tables::sheetTables();
const host::WindowSpec spec = tables::window();

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form20>(host);
}

Real proposedRL(Real RLw, Real Beta3)
{
    return form15::loadStability * RLw * Beta3;
}

Real inputOfPair(Real RLw, Real Beta3, Real Beta2)
{
    return RLw * Beta3 * Beta2;
}

Real lessPercent(Real RL, double percent)
{
    return RL - RL * percent / 100.0;
}

Form20::Form20(host::SheetHost& host) : Form15(host, form20::spec, form20::sheetSpec) {}

// --- the window

void Form20::load()
{
    Form15::load();
    write(Label9, texts::totalOfRL);
}

void Form20::activate()
{
    frameActivate();
    write(SSPanel1, texts::powerAndLoadWide);
}

void Form20::tellButton(const host::BiText& hint)
{
    setText(StatusBar1, words(hint) + host().Now());
}

void Form20::hoverClone()
{
    tellButton(texts::cloneHint);
}

void Form20::hoverCalculator()
{
    tellButton(texts::calculatorHint);
}

// --- power and load

void Form20::focusText1(host::EventArgs& args)
{
    startOver(args);
    if (visible(Label20))
        tellMeasured("\n      ");
}

void Form20::lostText1()
{
    leavePower("EQ3");
}

void Form20::lostText2()
{
    takeLoad(tables::twoJunctions);
}

void Form20::focusText12(host::EventArgs& args)
{
    offerLoads(args, tables::leftOffered);
}

void Form20::keyText12(host::EventArgs& args)
{
    if (isEnterAlone(args))
        clickImage1();
}

void Form20::clickImage1()
{
    chooseLoad(false);
    hide(Image2, Text1);
}

void Form20::clickImage2()
{
    chooseLoad(true);
    hide(Text1);
    takeCoil(tables::leftChosen);
}

// --- the pair

void Form20::keyText10(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    hide(Text2);
    goTo(Text11);
}

void Form20::keyText11(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    show(Text1, Text2);
    goTo(Text3);
}

void Form20::lostText11()
{
    correct(Text11);
    tellCriterionOfCurrent(texts::currentForSwing);
    proposeCurrent();
}

void Form20::focusText3(host::EventArgs& args)
{
    DesignSheet::focusField(args);
}

// --- Es: all its work is done at Enter

void Form20::keyText4(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    takeSupply();
    goTo(Text5);
}

void Form20::takeSupply()
{
    takeEQ2();
    tellEQ3();
    show(Label1);
    q_.EQ1 = q_.Eq;
    q_.ERL = q_.Es - q_.Eq;
    warn(Q1, q_.Eq > Real(form15::ecMax), texts::EQ1TooHigh);
    fill(Text5, proposedRL(RLw(), Beta3()));
    tellSupply();
    if (q_.ERL < q_.Eq / 2.0)
        warn(Q1, true, texts::clipped);
}

void Form20::tellEQ3()
{
    setText(Label1, "EQ3= " + shown(q_.EQ2) + " V");
}

// --- RL: tested at Enter

void Form20::focusText5(host::EventArgs& args)
{
    focusField(args);
    showZinQ2(inputOfPair(RLw(), Beta3(), Beta2()));
}

void Form20::keyText5(host::EventArgs& args)
{
    if (pressed(args) != Press::enter)
        return;
    correctBelow(Text5, form15::loadStability * RLw());
    if (!outputIsLight())
        return;
    takeLeastDriver(inputOfPair(RLw(), Beta3(), Beta2()));
    tellSuperBeta();
    if (!driverIsStrong(texts::fortyPercent))
        return;
    divideRb1();
    goTo(Text6);
}

void Form20::tellSuperBeta()
{
    setText(Label15, words(texts::leastDriver) + digits(Beta3() * Beta2()) + words(texts::ofBothBetas) +
                         shown(q_.QIc1Min) + words(texts::difference));
}

// --- bias

void Form20::lostText7()
{
    takeBias(form15::lessCurrency(q_.Eq, form15::junction));
    setText(Label5, "Cbp= " + whole(microfarads(q_.Cbp)) + " mF");
}

void Form20::focusText8(host::EventArgs& args)
{
    focusField(args);
    disable(Text6);
    tellEQ3();
}

void Form20::lostText8()
{
    if (!takeRb2() || !takeRb1())
        return;
    takeInput();
    setText(Label2, "Ccin= " + whole(microfarads(q_.Ccin)) + " mF (200 c/s)");
    takeGenerator();
}

void Form20::lostText9()
{
    leaveGenerator();
    divideRL();
    q_.passed = q_.biased;
}

// An RL that was emptied behind its test has no capacitor: what `Label22` says stays.
void Form20::divideRL()
{
    const Real RLa = lessPercent(at(Text5), 80);
    setText(Label9, "RLb = " + whole(lessPercent(at(Text5), 20)) + " Ohm");
    if (RLa == Real(0.0))
        return;
    const Real Cbp1 = 1.0 / (form15::capacitorFactor * RLa);
    setText(Label22, "RLa = " + whole(RLa) + " Ohm\nCbp1 = " + whole(microfarads(Cbp1)) + " mF");
}

} // namespace velmor::form20
