// SPDX-License-Identifier: MIT
// The tables of both windows.
#include "desktop/drawing/painted_sheet.h"

#include <array>

namespace velmor::test {

using host::collectorEnd;
using host::emitterEnd;
using host::Ink;
using host::Kind;
using host::Look;
using host::Mark;
using host::Side;
using host::Symbol;

namespace painted_sheet {

// clang-format off
constexpr Mark circuit[] = {
    {.symbol = Symbol::wire, .from = {150, 40}, .to = {330, 40}},
    {.symbol = Symbol::wire, .from = {150, 40}, .to = {150, 70}},
    {.symbol = Symbol::resistor, .from = {150, 70}, .to = {150, 120}, .name = "R_B1", .side = Side::left,
     .value = FieldBase1, .unit = "kΩ", .field = FieldBase1},
    {.symbol = Symbol::wire, .from = {150, 120}, .to = {150, 200}},
    {.symbol = Symbol::resistor, .from = {150, 210}, .to = {150, 260}, .name = "R_B2", .side = Side::left,
     .value = FieldBase2, .unit = "kΩ", .field = FieldBase2},
    {.symbol = Symbol::wire, .from = {150, 200}, .to = {150, 210}},
    {.symbol = Symbol::wire, .from = {150, 260}, .to = {150, 300}},
    {.symbol = Symbol::ground, .from = {150, 300}},
    {.symbol = Symbol::npn, .from = {200, 160}, .name = "Q_1"},
    {.symbol = Symbol::wire, .from = {150, 160}, .to = {200, 160}},
    {.symbol = Symbol::node, .from = {150, 160}},
    {.symbol = Symbol::resistor, .from = {230, 60}, .to = {230, 110}, .name = "R_C", .value = FieldCollector,
     .unit = "kΩ", .field = FieldCollector},
    {.symbol = Symbol::wire, .from = {230, 40}, .to = {230, 60}},
    {.symbol = Symbol::wire, .from = {230, 110}, .to = {230, 130}},
    {.symbol = Symbol::node, .from = {230, 40}},
    {.symbol = Symbol::node, .from = {230, 120}},
    {.symbol = Symbol::capacitor, .from = {290, 120}, .to = {350, 120}, .name = "C_2"},
    {.symbol = Symbol::wire, .from = {230, 120}, .to = {290, 120}},
    {.symbol = Symbol::wire, .from = {350, 120}, .to = {415, 120}},
    {.symbol = Symbol::terminal, .from = {415, 120}, .name = "v_o", .ink = Ink::accent},
    {.symbol = Symbol::node, .from = {390, 120}},
    {.symbol = Symbol::wire, .from = {390, 120}, .to = {390, 210}},
    {.symbol = Symbol::resistor, .from = {390, 210}, .to = {390, 260}, .name = "R_L", .value = FieldLoad, .unit = "kΩ", .field = FieldLoad},
    {.symbol = Symbol::wire, .from = {390, 260}, .to = {390, 300}},
    {.symbol = Symbol::ground, .from = {390, 300}},
    {.symbol = Symbol::terminal, .from = {330, 40}, .name = "V_CC", .value = FieldSupply, .unit = "V", .field = FieldSupply},
    {.symbol = Symbol::wire, .from = {230, 190}, .to = {230, 210}},
    {.symbol = Symbol::resistor, .from = {230, 210}, .to = {230, 260}, .name = "R_E", .side = Side::left,
     .value = FieldEmitter, .unit = "kΩ", .field = FieldEmitter},
    {.symbol = Symbol::wire, .from = {230, 260}, .to = {230, 300}},
    {.symbol = Symbol::ground, .from = {230, 300}},
    {.symbol = Symbol::node, .from = {230, 200}},
    {.symbol = Symbol::wire, .from = {230, 200}, .to = {290, 200}},
    {.symbol = Symbol::polarised, .from = {290, 200}, .to = {290, 270}, .name = "C_E"},
    {.symbol = Symbol::wire, .from = {290, 270}, .to = {290, 300}},
    {.symbol = Symbol::ground, .from = {290, 300}},
    {.symbol = Symbol::capacitor, .from = {70, 160}, .to = {130, 160}, .name = "C_1"},
    {.symbol = Symbol::wire, .from = {40, 160}, .to = {70, 160}},
    {.symbol = Symbol::wire, .from = {130, 160}, .to = {150, 160}},
    {.symbol = Symbol::wire, .from = {40, 160}, .to = {40, 175}},
    {.symbol = Symbol::resistor, .from = {40, 175}, .to = {40, 225}, .name = "R_g", .side = Side::right},
    {.symbol = Symbol::generator, .from = {40, 225}, .to = {40, 290}, .name = "v_g", .ink = Ink::normal},
    {.symbol = Symbol::wire, .from = {40, 290}, .to = {40, 300}},
    {.symbol = Symbol::ground, .from = {40, 300}},
    {.symbol = Symbol::sine, .from = {405, 140}, .to = {435, 170}},
    {.symbol = Symbol::arrow, .from = {245, 64}, .to = {245, 44}, .name = "I_C", .side = Side::right},
};

constexpr Mark pageMark[]       = {{.symbol = Symbol::page, .from = {8, 4}, .to = {32, 28}}};
constexpr Mark calculatorMark[] = {{.symbol = Symbol::calculator, .from = {8, 4}, .to = {32, 28}}};

constexpr host::ControlRow stageRows[] = {
    {.id = Paper, .name = "Paper", .kind = Kind::panel, .place = {150, 1050, 7050, 5400}, .look = Look::paper},
    {.id = Circuit, .name = "Circuit", .kind = Kind::image, .place = {225, 1200, 6900, 5100}, .drawing = circuit},
    {.id = GroupSupply, .name = "GroupSupply", .kind = Kind::panel, .place = {7350, 1050, 3000, 1350},
     .text = "Alimentación", .look = Look::group},
    {.id = GroupStage, .name = "GroupStage", .kind = Kind::panel, .place = {7350, 2550, 3000, 3000}, .text = "Etapa", .look = Look::group},
    {.id = FieldSupply, .name = "FieldSupply", .kind = Kind::field, .place = {8400, 1500, 1000, 330}, .text = "12",
     .symbol = "V_CC", .unit = "V"},
    {.id = FieldCollector, .name = "FieldCollector", .kind = Kind::field, .place = {8400, 2900, 1000, 330},
     .text = "3.3", .symbol = "R_C", .unit = "kΩ"},
    {.id = FieldEmitter, .name = "FieldEmitter", .kind = Kind::field, .place = {8400, 3300, 1000, 330}, .text = "1",
     .symbol = "R_E", .unit = "kΩ"},
    {.id = FieldBase1, .name = "FieldBase1", .kind = Kind::field, .place = {8400, 3700, 1000, 330}, .text = "47",
     .symbol = "R_B1", .unit = "kΩ"},
    {.id = FieldBase2, .name = "FieldBase2", .kind = Kind::field, .place = {8400, 4100, 1000, 330}, .text = "10",
     .symbol = "R_B2", .unit = "kΩ"},
    {.id = FieldLoad, .name = "FieldLoad", .kind = Kind::field, .place = {8400, 4500, 1000, 330}, .text = "10.1234567",
     .symbol = "R_L", .unit = "kΩ"},
    {.id = FieldGain, .name = "FieldGain", .kind = Kind::field, .place = {8400, 4900, 1000, 330}, .text = "",
     .enabled = false, .symbol = "%/\\Q_Ic", .unit = "%"},
    {.id = Voice, .name = "Voice", .kind = Kind::panel, .place = {150, 150, 7050, 780},
     .text = "Ingrese el valor de la fuente. Recuerde que Eq debe ser mayor que 3 V: "
             "con menos, el transistor entra en saturación & recorta.", .look = Look::prompt},
    {.id = Hint, .name = "Hint", .kind = Kind::label, .place = {7350, 90, 3000, 420},
     .text = "Enter...acepta      Esc...valor predeterminado ", .look = Look::hint},
    {.id = Balloon, .name = "Balloon", .kind = Kind::label, .place = {5700, 1200, 1350, 285}, .text = "Bootstrap", .look = Look::balloon},
    {.id = Note, .name = "Note", .kind = Kind::label, .place = {7500, 1950, 2700, 240},
     .text = "valor comercial más próximo", .look = Look::note},
    {.id = Result, .name = "Result", .kind = Kind::label, .place = {7350, 5640, 3000, 270},
     .text = " Rb2=  12 K          comercial...", .look = Look::result},
    {.id = Warning, .name = "Warning", .kind = Kind::label, .place = {7350, 6000, 3000, 450},
     .text = "Eq es menor que 3 volt: aumente Es.", .look = Look::warning},
    {.id = Title, .name = "Title", .kind = Kind::label, .place = {150, 6600, 5000, 420}, .text = "Emisor común", .look = Look::title},
    {.id = ButtonReport, .name = "ButtonReport", .kind = Kind::button, .place = {5250, 6600, 1500, 420}, .text = "Elaborar informe"},
    {.id = ButtonOff, .name = "ButtonOff", .kind = Kind::button, .place = {6900, 6600, 1500, 420}, .text = "Prueba", .enabled = false},
    {.id = ToolPage, .name = "ToolPage", .kind = Kind::picture, .place = {8550, 6570, 600, 480},
     .look = Look::toolButton, .drawing = pageMark},
    {.id = ToolCalculator, .name = "ToolCalculator", .kind = Kind::image, .place = {9225, 6570, 600, 480},
     .enabled = false, .look = Look::toolButton, .drawing = calculatorMark},
    {.id = OptionOne, .name = "OptionOne", .kind = Kind::option, .place = {150, 7100, 1800, 270}, .text = "Emisor común", .checked = true},
    {.id = OptionTwo, .name = "OptionTwo", .kind = Kind::option, .place = {2000, 7100, 1800, 270}, .text = "Base común"},
    {.id = CheckOne, .name = "CheckOne", .kind = Kind::check, .place = {3900, 7100, 1800, 270}, .text = "Guía & ayuda", .checked = true},
    {.id = PlainLabel, .name = "PlainLabel", .kind = Kind::label, .place = {7350, 560, 3000, 420},
     .text = "Especificación circuital...\n       Esc...valor predeterminado"},
    {.id = OverlayPanel, .name = "OverlayPanel", .kind = Kind::panel, .place = {5250, 3400, 1800, 700},
     .text = "La ganancia depende de\nRes sin desacoplar.", .visible = false, .overlay = true},
};
static_assert(host::rowsInOrder(stageRows));

constexpr Mark symbolMarks[] = {
    {.symbol = Symbol::resistor, .from = {40, 30}, .to = {40, 90}, .name = "R_1"},
    {.symbol = Symbol::preset, .from = {110, 30}, .to = {110, 90}, .name = "R_b1"},
    {.symbol = Symbol::capacitor, .from = {180, 30}, .to = {180, 90}, .name = "C_in"},
    {.symbol = Symbol::polarised, .from = {250, 30}, .to = {250, 90}, .name = "C_out"},
    {.symbol = Symbol::diode, .from = {320, 30}, .to = {320, 90}, .name = "D_1"},
    {.symbol = Symbol::zener, .from = {390, 30}, .to = {390, 90}, .name = "D_Z"},
    {.symbol = Symbol::led, .from = {460, 30}, .to = {460, 90}, .name = "D_2"},
    {.symbol = Symbol::inductor, .from = {540, 30}, .to = {540, 90}, .name = "L_1"},
    {.symbol = Symbol::resistor, .from = {20, 140}, .to = {80, 140}, .name = "R_2"},
    {.symbol = Symbol::preset, .from = {100, 140}, .to = {160, 140}, .name = "R_3"},
    {.symbol = Symbol::capacitor, .from = {180, 140}, .to = {240, 140}, .name = "C_1"},
    {.symbol = Symbol::polarised, .from = {260, 140}, .to = {320, 140}, .name = "C_2"},
    {.symbol = Symbol::diode, .from = {340, 140}, .to = {400, 140}, .name = "D_3"},
    {.symbol = Symbol::switchOpen, .from = {420, 140}, .to = {480, 140}, .name = "S_1"},
    {.symbol = Symbol::switchClosed, .from = {500, 140}, .to = {560, 140}, .name = "S_2"},
    {.symbol = Symbol::npn, .from = {20, 220}, .name = "Q_1"},
    {.symbol = Symbol::pnp, .from = {110, 220}, .name = "Q_2"},
    {.symbol = Symbol::npnLeft, .from = {260, 220}, .name = "Q_3"},
    {.symbol = Symbol::pnpLeft, .from = {350, 220}, .name = "Q_4"},
    {.symbol = Symbol::generator, .from = {400, 190}, .to = {400, 250}, .name = "v_g"},
    {.symbol = Symbol::meter, .from = {460, 190}, .to = {460, 250}, .name = "A"},
    {.symbol = Symbol::loudspeaker, .from = {520, 190}, .to = {520, 250}, .name = "RL_w"},
    {.symbol = Symbol::transformer, .from = {30, 280}, .to = {30, 340}, .name = "T_1"},
    {.symbol = Symbol::battery, .from = {130, 280}, .to = {130, 340}, .name = "E_s"},
    {.symbol = Symbol::ground, .from = {200, 290}},
    {.symbol = Symbol::supplyUp, .from = {240, 300}, .name = "E_s"},
    {.symbol = Symbol::supplyDown, .from = {280, 320}, .name = "-E_s"},
    {.symbol = Symbol::sine, .from = {310, 290}, .to = {350, 330}},
    {.symbol = Symbol::sineInverted, .from = {370, 290}, .to = {410, 330}},
    {.symbol = Symbol::arrow, .from = {430, 330}, .to = {430, 290}, .name = "I_C"},
    {.symbol = Symbol::pointer, .from = {470, 290}, .to = {500, 320}},
    {.symbol = Symbol::terminal, .from = {520, 300}, .name = "A"},
    {.symbol = Symbol::wire, .from = {500, 340}, .to = {560, 340}},
    {.symbol = Symbol::node, .from = {530, 340}},
    {.symbol = Symbol::frame, .from = {20, 370}, .to = {60, 400}},
    {.symbol = Symbol::roundFrame, .from = {70, 370}, .to = {110, 400}},
    {.symbol = Symbol::dashedFrame, .from = {120, 370}, .to = {160, 400}},
    {.symbol = Symbol::circle, .from = {170, 370}, .to = {200, 400}},
    {.symbol = Symbol::text, .from = {215, 385}, .note = {"carga (RLw)\nparlante", "load (RLw)\nspeaker"}},
    {.symbol = Symbol::label, .from = {310, 385}, .name = "R_b1 // R_b2"},
    {.symbol = Symbol::label, .from = {400, 385}, .name = "r'_e = 25 mV / Q_Ic"},
    {.symbol = Symbol::page, .from = {20, 420}, .to = {44, 444}},
    {.symbol = Symbol::book, .from = {60, 420}, .to = {84, 444}},
    {.symbol = Symbol::calculator, .from = {100, 420}, .to = {124, 444}},
    {.symbol = Symbol::thermometer, .from = {140, 420}, .to = {164, 444}},
    {.symbol = Symbol::lamp, .from = {180, 420}, .to = {204, 444}},
    {.symbol = Symbol::question, .from = {220, 420}, .to = {244, 444}},
    {.symbol = Symbol::oscilloscope, .from = {260, 420}, .to = {284, 444}},
    {.symbol = Symbol::multimeter, .from = {300, 420}, .to = {324, 444}},
    {.symbol = Symbol::butterfly, .from = {340, 420}, .to = {364, 444}},
    {.symbol = Symbol::door, .from = {380, 420}, .to = {404, 444}},
    {.symbol = Symbol::colourBands, .from = {420, 420}, .to = {444, 444}},
};

constexpr host::ControlRow symbolRows[] = {
    {.id = 0, .name = "Page", .kind = Kind::image, .place = {0, 0, 9000, 6900}, .drawing = symbolMarks},
};
// clang-format on

std::unique_ptr<host::Window> makeStage(host::SheetHost& host);
std::unique_ptr<host::Window> makeSymbols(host::SheetHost& host);
std::unique_ptr<host::Window> makeMain(host::SheetHost& host);

constexpr host::WindowSpec mainSpec{
    .name = "MDIForm1", .role = host::Role::mainWindow, .place = {0, 0, 20250, 10125}, .create = makeMain};
constexpr host::WindowSpec stageSpec{.name = "Stage",
                                     .role = host::Role::sheet,
                                     .caption = "Emisor común",
                                     .place = {0, 0, 10500, 7500},
                                     .controls = stageRows,
                                     .create = makeStage};
constexpr host::WindowSpec symbolSpec{.name = "Symbols",
                                      .role = host::Role::sheet,
                                      .caption = "Symbols",
                                      .place = {0, 0, 9000, 6900},
                                      .controls = symbolRows,
                                      .create = makeSymbols};

class PlainWindow final : public host::Window {
public:
    using host::Window::Window;
};

std::unique_ptr<host::Window> makeStage(host::SheetHost& host)
{
    return std::make_unique<PlainWindow>(host, stageSpec);
}
std::unique_ptr<host::Window> makeSymbols(host::SheetHost& host)
{
    return std::make_unique<PlainWindow>(host, symbolSpec);
}
std::unique_ptr<host::Window> makeMain(host::SheetHost& host)
{
    return std::make_unique<PlainWindow>(host, mainSpec);
}

constexpr std::array<const host::WindowSpec*, 3> catalogue{&mainSpec, &stageSpec, &symbolSpec};

} // namespace painted_sheet

PaintedProgram::PaintedProgram() : engine(painted_sheet::catalogue, screen, settings)
{
    engine.loadMainWindow();
    engine.userRun([this] {
        for (const char* name : {"Symbols", "Stage"})
            if (host::Window* window = engine.host().NewInstance(name))
                engine.host().Show(*window);
    });
}

} // namespace velmor::test
