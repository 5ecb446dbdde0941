// SPDX-License-Identifier: MIT
// Choice, pages and start of the voltage-feedback circuits. A start button whose sheet the program lacks is disabled.
#include "tools/form7.h"

#include "sheets/design_sheet.h"
#include "tools/form7_texts.h"

namespace velmor::form7 {

using host::BiText;

namespace texts {

constexpr BiText title{.es = "Circuitos Realimentados por Tensión", .en = "Feedback Voltage Circuits"};
constexpr BiText simpleTitle{.es = "  Circuito Realimentado por Tensión Simple",
                             .en = "  Feedback  Voltage Circuits Simple"};
constexpr BiText stableTitle{.es = "  Circuito Realimentado por Tensión Estable",
                             .en = "  Feedback  Voltage Circuits Stable"};
constexpr BiText stable{.es = "Estable", .en = "Stable"};
constexpr BiText simpleLabel{.es = "    Circuito Simple", .en = "    Simple Circuit"};
constexpr BiText stableLabel{.es = "    Fijando el punto ' Q '", .en = "    Stick the point ' Q '"};
constexpr BiText begin{.es = "Empezar", .en = "Begin"};
constexpr BiText beginOnFormulas{.es = " Empezar", .en = " Begin"};
constexpr BiText formulasButton{.es = "Formulas", .en = "Formulate"};
constexpr BiText exit{.es = " 'Salir...", .en = " Exit..."};
constexpr BiText back{.es = "Volver", .en = "Back"};
constexpr int label5Width = 3760;
constexpr int label5Height = 8175;

} // namespace texts

constexpr auto choiceTable = host::everyMember<Choice>(host::own<&Choice::stable>("stable"));

Form7::Form7(host::SheetHost& host) : host::Window(host, form7::spec)
{
    holds(choice_, choiceTable, host::Undo::leaves);
    holds(wings_, butterfly::wingsTable, host::Undo::leaves);
}

void Form7::load()
{
    setCaption(pick(texts::title));
    setText(Command1, pick(texts::begin));
    setText(Command3, pick(texts::stable));
    setText(Command4, pick(texts::begin));
    setText(Command5, pick(texts::formulasButton));
    setText(SSCommand1, pick(texts::exit));
    setText(SSCommand2, pick(texts::back));
    setText(Label1, pick(texts::simpleLabel));
    setText(Label2, pick(texts::stableLabel));
    setEnabled(Command4, host().canShow("Form8"));
    setEnabled(Command1, host().canShow("Form18"));
    borrowDrawing(Main, OpenWings);
}

void Form7::activate()
{
    setText(Label4, pick(formulas));
}

void Form7::showFlow(const BiText& page)
{
    hide(Picture1, Picture2, Command2, Command3, Label1, Label2);
    show(Label3);
    setText(Label3, pick(page));
}

void Form7::chooseSimple()
{
    choice_.stable = false;
    showFlow(flowOfSimple);
    setText(Command4, pick(texts::begin));
    show(Command4, Command5);
    setText(Command5, pick(texts::formulasButton));
}

void Form7::chooseStable()
{
    if (!visible(Picture1) || !visible(Picture2)) {
        show(Command4);
        setText(Command4, pick(texts::formulasButton));
        return;
    }
    choice_.stable = true;
    showFlow(flowOfStable);
    show(Command1, Command5);
    setText(Command5, pick(texts::formulasButton));
}

void Form7::start(std::string_view sheet, const BiText& title)
{
    host::SheetHost& program = host();
    host::Window* opened = program.NewInstance(sheet);
    if (opened == nullptr)
        return;
    program.Show(*opened);
    opened->setCaption(program.pick(title));
    program.SetWindowState(program.mainWindow(), 2);
    program.Unload(*this);
}

void Form7::startSimple()
{
    start("Form8", texts::simpleTitle);
}

void Form7::startStable()
{
    start("Form18", texts::stableTitle);
}

void Form7::showFormulas()
{
    const host::Handle begin = choice_.stable ? Command1 : Command4;
    hide(Picture1, Picture2, Command1, Command2, Command3, Command4, Command5, SSCommand2, Label1, Label2, Label3,
         Main);
    show(begin, Label4, Label5, SSCommand1);
    setText(begin, pick(texts::beginOnFormulas));
    setText(SSCommand1, pick(texts::exit));
    setText(Label5, pick(baseResistors));
    host::Place tall = placeOf(Label5);
    tall.width = texts::label5Width;
    tall.height = texts::label5Height;
    setPlaceOf(Label5, tall);
    disable(Timer1, Main);
}

// From a calculation page the exit leads back, too.
void Form7::leave()
{
    if (visible(SSCommand2))
        goBack();
    else
        host().Unload(*this);
}

// The sheet that waits comes in front and goes on with its chain.
void Form7::goBack()
{
    host::SheetHost& program = host();
    program.Hide(*this);
    for (host::Window* window : program.windows())
        if (const auto* sheet = dynamic_cast<sheets::DesignSheet*>(window);
            sheet != nullptr && sheet->openPage() != 0) {
            program.Show(*window);
            return;
        }
}

void Form7::flap()
{
    butterfly::fly(*this, {.main = Main, .openWings = OpenWings, .closeWings = CloseWings}, wings_);
}

} // namespace velmor::form7
