// SPDX-License-Identifier: MIT
// The table of `Form2`'s controls: names, kinds, stored texts, places and strokes. Places and strokes are counted in units
// of the drawing grid (15 twips) from the sheet's left top corner; the sheet is 1200 x 620 units.
#include "designs/common_emitter/form2_controls.h"

#include <algorithm>
#include <array>

namespace velmor::form2 {

using host::BiText;
using host::Ink;
using host::Kind;
using host::Look;
using host::Mark;
using host::Side;
using host::Symbol;
using host::SymbolSide;

namespace controls_detail {

constexpr int twipsPerUnit = 15;

constexpr host::Place at(int left, int top, int width, int height)
{
    return {left * twipsPerUnit, top * twipsPerUnit, width * twipsPerUnit, height * twipsPerUnit};
}

/// A part of the schematic: its place, and its marks counted from there.
template <std::size_t Count>
struct Part {
    host::Place place;
    std::array<Mark, Count> marks;
};

constexpr bool hasTwoEnds(const Mark& mark)
{
    return mark.to.x != 0 || mark.to.y != 0;
}

/// Makes a part of marks that are counted from the corner of the sheet.
template <std::size_t Count>
consteval Part<Count> part(const Mark (&marks)[Count])
{
    int left = marks[0].from.x;
    int top = marks[0].from.y;
    int right = left;
    int bottom = top;
    const auto reach = [&](host::GridPoint point) {
        left = std::min<int>(left, point.x);
        top = std::min<int>(top, point.y);
        right = std::max<int>(right, point.x);
        bottom = std::max<int>(bottom, point.y);
    };
    for (const Mark& mark : marks) {
        reach(mark.from);
        if (hasTwoEnds(mark))
            reach(mark.to);
    }
    Part<Count> made{at(left, top, std::max(1, right - left), std::max(1, bottom - top)), {}};
    const auto moved = [&](host::GridPoint point) {
        return host::GridPoint{static_cast<std::int16_t>(point.x - left), static_cast<std::int16_t>(point.y - top)};
    };
    for (std::size_t i = 0; i < Count; ++i) {
        made.marks[i] = marks[i];
        made.marks[i].from = moved(marks[i].from);
        if (hasTwoEnds(marks[i]))
            made.marks[i].to = moved(marks[i].to);
    }
    return made;
}

// clang-format off
// The schematic. Columns: generator 276, base divider 430, transistor 620, bypass 806, load 905.
// Rows: supply 130, collector 280, base 340, emitter 410, ground 520.
constexpr auto emitterLead = part({
    {.symbol = Symbol::wire, .from = {620, 370}, .to = {620, 430}},
    {.symbol = Symbol::node, .from = {620, 410}},
});
constexpr auto emitterResistor = part({
    {.symbol = Symbol::resistor, .from = {620, 430}, .to = {620, 510}, .field = Text15},
    {.symbol = Symbol::wire, .from = {620, 510}, .to = {620, 520}},
});
constexpr auto emitterGround = part({
    {.symbol = Symbol::ground, .from = {620, 520}},
});
constexpr auto emitterSupply = part({
    {.symbol = Symbol::wire, .from = {620, 520}, .to = {620, 553}},
    {.symbol = Symbol::terminal, .from = {620, 556}, .field = Text21},
});
constexpr auto collectorLead = part({
    {.symbol = Symbol::wire, .from = {620, 220}, .to = {620, 310}},
    {.symbol = Symbol::node, .from = {620, 280}},
});
constexpr auto collectorCurrent = part({
    {.symbol = Symbol::arrow, .from = {634, 234}, .to = {634, 264}, .name = "Q_Ic", .side = Side::right, .value = Text8, .unit = "mA", .field = Text8},
});
constexpr auto outputCapacitor = part({
    {.symbol = Symbol::wire, .from = {620, 280}, .to = {740, 280}},
    {.symbol = Symbol::capacitor, .from = {740, 280}, .to = {780, 280}, .name = "C_out", .side = Side::above},
    {.symbol = Symbol::wire, .from = {780, 280}, .to = {905, 280}},
});
constexpr auto load = part({
    {.symbol = Symbol::node, .from = {905, 280}},
    {.symbol = Symbol::wire, .from = {905, 280}, .to = {905, 430}},
    {.symbol = Symbol::resistor, .from = {905, 430}, .to = {905, 510}, .field = Text9},
    {.symbol = Symbol::wire, .from = {905, 510}, .to = {905, 520}},
    {.symbol = Symbol::ground, .from = {905, 520}},
});
constexpr auto collectorResistor = part({
    {.symbol = Symbol::wire, .from = {620, 130}, .to = {620, 140}},
    {.symbol = Symbol::resistor, .from = {620, 140}, .to = {620, 220}, .field = Text17},
});
constexpr auto supplyRail = part({
    {.symbol = Symbol::wire, .from = {620, 130}, .to = {690, 130}},
    {.symbol = Symbol::node, .from = {620, 130}},
});
constexpr auto outputSignal = part({
    {.symbol = Symbol::wire, .from = {905, 280}, .to = {957, 280}},
    {.symbol = Symbol::terminal, .from = {960, 280}, .field = Text13},
    {.symbol = Symbol::sine, .from = {930, 290}, .to = {970, 314}, .field = Text13},
});
constexpr auto inputSignal = part({
    {.symbol = Symbol::wire, .from = {276, 340}, .to = {276, 400}},
    {.symbol = Symbol::generator, .from = {276, 400}, .to = {276, 450}, .field = Text14},
    {.symbol = Symbol::wire, .from = {276, 450}, .to = {276, 520}},
    {.symbol = Symbol::ground, .from = {276, 520}},
});
constexpr auto inputCapacitor = part({
    {.symbol = Symbol::wire, .from = {276, 340}, .to = {340, 340}},
    {.symbol = Symbol::capacitor, .from = {340, 340}, .to = {380, 340}, .name = "C_in", .side = Side::above},
    {.symbol = Symbol::wire, .from = {380, 340}, .to = {430, 340}},
    {.symbol = Symbol::arrow, .from = {290, 327}, .to = {326, 327}},
});
constexpr auto baseLead = part({
    {.symbol = Symbol::wire, .from = {430, 340}, .to = {590, 340}},
    {.symbol = Symbol::node, .from = {430, 340}},
});
constexpr auto lowerDivider = part({
    {.symbol = Symbol::wire, .from = {430, 340}, .to = {430, 430}},
    {.symbol = Symbol::resistor, .from = {430, 430}, .to = {430, 510}, .field = Text18},
    {.symbol = Symbol::wire, .from = {430, 510}, .to = {430, 520}},
    {.symbol = Symbol::ground, .from = {430, 520}},
});
constexpr auto upperDivider = part({
    {.symbol = Symbol::wire, .from = {430, 130}, .to = {620, 130}},
    {.symbol = Symbol::wire, .from = {430, 130}, .to = {430, 140}},
    {.symbol = Symbol::preset, .from = {430, 140}, .to = {430, 220}, .field = Text19},
    {.symbol = Symbol::wire, .from = {430, 220}, .to = {430, 340}},
});
constexpr auto collectorEmitterVoltage = part({
    {.symbol = Symbol::arrow, .from = {660, 372}, .to = {660, 308}, .field = Text5},
});
constexpr auto emitterVoltage = part({
    {.symbol = Symbol::arrow, .from = {602, 506}, .to = {602, 434}, .field = Text4},
});
constexpr auto loadVoltage = part({
    {.symbol = Symbol::arrow, .from = {602, 216}, .to = {602, 144}, .field = Text17},
});
// Both resistors of the divider in halves, their middles tied to the emitter.
constexpr auto bootstrapWires = part({
    {.symbol = Symbol::wire, .from = {430, 130}, .to = {620, 130}},
    {.symbol = Symbol::wire, .from = {430, 130}, .to = {430, 140}},
    {.symbol = Symbol::resistor, .from = {430, 140}, .to = {430, 200}, .name = "R_b1/2", .side = Side::left},
    {.symbol = Symbol::wire, .from = {430, 200}, .to = {430, 250}},
    {.symbol = Symbol::node, .from = {430, 225}},
    {.symbol = Symbol::resistor, .from = {430, 250}, .to = {430, 310}, .name = "R_b1/2", .side = Side::left},
    {.symbol = Symbol::wire, .from = {430, 310}, .to = {430, 350}},
    {.symbol = Symbol::resistor, .from = {430, 350}, .to = {430, 405}, .name = "R_b2/2", .side = Side::right},
    {.symbol = Symbol::wire, .from = {430, 405}, .to = {430, 450}},
    {.symbol = Symbol::node, .from = {430, 420}},
    {.symbol = Symbol::resistor, .from = {430, 450}, .to = {430, 510}, .name = "R_b2/2", .side = Side::left},
    {.symbol = Symbol::wire, .from = {430, 510}, .to = {430, 520}},
    {.symbol = Symbol::ground, .from = {430, 520}},
    {.symbol = Symbol::wire, .from = {430, 225}, .to = {470, 225}},
    {.symbol = Symbol::wire, .from = {510, 225}, .to = {560, 225}},
    {.symbol = Symbol::wire, .from = {560, 225}, .to = {560, 420}},
    {.symbol = Symbol::node, .from = {560, 420}},
    {.symbol = Symbol::wire, .from = {430, 420}, .to = {470, 420}},
    {.symbol = Symbol::wire, .from = {510, 420}, .to = {590, 420}},
    {.symbol = Symbol::wire, .from = {590, 420}, .to = {590, 410}},
    {.symbol = Symbol::wire, .from = {590, 410}, .to = {620, 410}},
});
constexpr auto firstBootstrap = part({
    {.symbol = Symbol::capacitor, .from = {470, 420}, .to = {510, 420}},
});
constexpr auto secondBootstrap = part({
    {.symbol = Symbol::capacitor, .from = {470, 225}, .to = {510, 225}},
});
constexpr auto transistor = part({
    {.symbol = Symbol::npn, .from = {590, 340}, .name = "Q_1", .field = Text2},
});
constexpr auto supplyTerminal = part({
    {.symbol = Symbol::terminal, .from = {693, 130}, .field = Text16},
});
constexpr auto bypassCapacitor = part({
    {.symbol = Symbol::wire, .from = {620, 410}, .to = {806, 410}},
    {.symbol = Symbol::wire, .from = {806, 410}, .to = {806, 440}},
    {.symbol = Symbol::capacitor, .from = {806, 440}, .to = {806, 490}},
    {.symbol = Symbol::wire, .from = {806, 490}, .to = {806, 520}},
    {.symbol = Symbol::ground, .from = {806, 520}},
});

// Counted from the corner of their own control.
constexpr Mark titleBlock[] = {
    {.symbol = Symbol::text, .from = {640, 501}, .note = {"Emisor común, clase A", "Common emitter, class A"}, .ink = Ink::quiet, .size = 80},
    {.symbol = Symbol::frame, .from = {630, 492}, .to = {772, 510}, .ink = Ink::quiet},
};
constexpr Mark emitterVoltageFrame[] = {
    {.symbol = Symbol::label, .from = {-38, 11}, .name = "E_Res"},
    {.symbol = Symbol::text, .from = {78, 11}, .name = "V", .ink = Ink::quiet, .size = 90},
    {.symbol = Symbol::frame, .from = {-4, 0}, .to = {72, 22}, .ink = Ink::quiet},
};
constexpr Mark obtainedCurrent[] = {
    {.symbol = Symbol::text, .from = {-76, 8}, .note = {"QIc obtenida", "QIc obtained"}, .ink = Ink::accent, .size = 80},
};
constexpr host::GridPoint bootstrapLoop[] = {{16, 34}, {16, 10}, {66, 10}, {66, 34}};
// Resistors and capacitors smaller than the drawing's own, so that a button holds a circuit.
constexpr Mark bypassMarks[] = {
    {.symbol = Symbol::wire, .from = {8, 24}, .to = {18, 24}},
    {.symbol = Symbol::node, .from = {18, 24}},
    {.symbol = Symbol::wire, .from = {18, 14}, .to = {18, 36}},
    {.symbol = Symbol::wire, .from = {18, 14}, .to = {30, 14}},
    {.symbol = Symbol::frame, .from = {30, 9}, .to = {52, 19}},
    {.symbol = Symbol::wire, .from = {52, 14}, .to = {64, 14}},
    {.symbol = Symbol::wire, .from = {18, 36}, .to = {38, 36}},
    {.symbol = Symbol::wire, .from = {38, 29}, .to = {38, 43}},
    {.symbol = Symbol::wire, .from = {44, 29}, .to = {44, 43}},
    {.symbol = Symbol::wire, .from = {44, 36}, .to = {64, 36}},
    {.symbol = Symbol::wire, .from = {64, 14}, .to = {64, 36}},
    {.symbol = Symbol::node, .from = {64, 24}},
    {.symbol = Symbol::wire, .from = {64, 24}, .to = {74, 24}},
};
constexpr Mark partialMarks[] = {
    {.symbol = Symbol::wire, .from = {4, 14}, .to = {10, 14}},
    {.symbol = Symbol::frame, .from = {10, 9}, .to = {28, 19}},
    {.symbol = Symbol::wire, .from = {28, 14}, .to = {46, 14}},
    {.symbol = Symbol::node, .from = {37, 14}},
    {.symbol = Symbol::frame, .from = {46, 9}, .to = {64, 19}},
    {.symbol = Symbol::wire, .from = {64, 14}, .to = {78, 14}},
    {.symbol = Symbol::node, .from = {72, 14}},
    {.symbol = Symbol::wire, .from = {37, 14}, .to = {37, 34}},
    {.symbol = Symbol::wire, .from = {37, 34}, .to = {52, 34}},
    {.symbol = Symbol::wire, .from = {52, 27}, .to = {52, 41}},
    {.symbol = Symbol::wire, .from = {58, 27}, .to = {58, 41}},
    {.symbol = Symbol::wire, .from = {58, 34}, .to = {72, 34}},
    {.symbol = Symbol::wire, .from = {72, 14}, .to = {72, 34}},
};
constexpr Mark emitterOptionMarks[] = {
    {.symbol = Symbol::wire, .from = {28, 4}, .to = {28, 10}},
    {.symbol = Symbol::frame, .from = {23, 10}, .to = {33, 30}},
    {.symbol = Symbol::wire, .from = {28, 30}, .to = {28, 37}},
    {.symbol = Symbol::terminal, .from = {28, 40}, .name = "-E_s"},
};
constexpr Mark baseOptionMarks[] = {
    {.symbol = Symbol::wire, .from = {41, 2}, .to = {41, 6}},
    {.symbol = Symbol::frame, .from = {36, 6}, .to = {46, 24}},
    {.symbol = Symbol::wire, .from = {41, 24}, .to = {41, 26}},
    {.symbol = Symbol::ground, .from = {41, 26}},
};
constexpr Mark bootstrapMarks[] = {
    {.symbol = Symbol::polyline, .points = bootstrapLoop},
    {.symbol = Symbol::capacitor, .from = {16, 34}, .to = {66, 34}, .ink = Ink::accent},
    {.symbol = Symbol::arrow, .from = {30, 10}, .to = {54, 10}},
};
constexpr Mark noBootstrapMarks[] = {
    {.symbol = Symbol::capacitor, .from = {16, 26}, .to = {66, 26}},
    {.symbol = Symbol::wire, .from = {26, 42}, .to = {56, 10}, .ink = Ink::warning},
};
constexpr Mark cloneMarks[] = {
    {.symbol = Symbol::page, .from = {18, 8}, .to = {46, 36}},
    {.symbol = Symbol::page, .from = {36, 14}, .to = {64, 42}},
};
constexpr Mark cloneAgainMarks[] = {
    {.symbol = Symbol::page, .from = {36, 8}, .to = {64, 36}},
    {.symbol = Symbol::page, .from = {18, 14}, .to = {46, 42}},
};
constexpr Mark calculatorMarks[] = {{.symbol = Symbol::calculator, .from = {24, 8}, .to = {58, 42}}};
constexpr Mark reportMarks[]     = {{.symbol = Symbol::page, .from = {24, 8}, .to = {58, 42}}};
constexpr Mark guideMarks[]      = {{.symbol = Symbol::book, .from = {24, 8}, .to = {58, 42}}};
constexpr Mark helpMarks[]       = {{.symbol = Symbol::question, .from = {24, 8}, .to = {58, 42}}};
constexpr Mark lampMarks[]       = {{.symbol = Symbol::lamp, .from = {24, 8}, .to = {58, 42}}};

constexpr host::ControlRow rows[] = {
    {.id = Image1, .name = "Image1", .kind = Kind::image, .place = at(236, 94, 782, 518), .look = Look::paper, .drawing = titleBlock},
    {.id = Label11, .name = "Label11", .kind = Kind::label, .place = at(8, 94, 220, 248), .look = Look::group},
    {.id = Label6, .name = "Label6", .kind = Kind::label, .place = at(8, 350, 220, 136), .look = Look::group},
    {.id = Line1, .name = "Line1", .kind = Kind::line, .place = emitterLead.place, .visible = false, .drawing = emitterLead.marks},
    {.id = Line2, .name = "Line2", .kind = Kind::line, .place = emitterResistor.place, .visible = false, .drawing = emitterResistor.marks},
    {.id = Line3, .name = "Line3", .kind = Kind::line, .place = emitterGround.place, .visible = false, .drawing = emitterGround.marks},
    {.id = Line4, .name = "Line4", .kind = Kind::line, .place = emitterSupply.place, .visible = false, .drawing = emitterSupply.marks},
    {.id = Line5, .name = "Line5", .kind = Kind::line, .place = collectorLead.place, .visible = false, .drawing = collectorLead.marks},
    {.id = Line6, .name = "Line6", .kind = Kind::line, .place = collectorCurrent.place, .visible = false, .drawing = collectorCurrent.marks},
    {.id = Line7, .name = "Line7", .kind = Kind::line, .place = outputCapacitor.place, .visible = false, .drawing = outputCapacitor.marks},
    {.id = Line8, .name = "Line8", .kind = Kind::line, .place = load.place, .visible = false, .drawing = load.marks},
    {.id = Line9, .name = "Line9", .kind = Kind::line, .place = collectorResistor.place, .visible = false, .drawing = collectorResistor.marks},
    {.id = Line10, .name = "Line10", .kind = Kind::line, .place = supplyRail.place, .visible = false, .drawing = supplyRail.marks},
    {.id = Line11, .name = "Line11", .kind = Kind::line, .place = outputSignal.place, .visible = false, .drawing = outputSignal.marks},
    {.id = Line12, .name = "Line12", .kind = Kind::line, .place = inputSignal.place, .visible = false, .drawing = inputSignal.marks},
    {.id = Line13, .name = "Line13", .kind = Kind::line, .place = inputCapacitor.place, .visible = false, .drawing = inputCapacitor.marks},
    {.id = Line14, .name = "Line14", .kind = Kind::line, .place = baseLead.place, .visible = false, .drawing = baseLead.marks},
    {.id = Line15, .name = "Line15", .kind = Kind::line, .place = lowerDivider.place, .visible = false, .drawing = lowerDivider.marks},
    {.id = Line16, .name = "Line16", .kind = Kind::line, .place = upperDivider.place, .visible = false, .drawing = upperDivider.marks},
    {.id = Line17, .name = "Line17", .kind = Kind::line, .place = collectorEmitterVoltage.place, .visible = false, .drawing = collectorEmitterVoltage.marks},
    {.id = Line18, .name = "Line18", .kind = Kind::line, .place = emitterVoltage.place, .visible = false, .drawing = emitterVoltage.marks},
    {.id = Line19, .name = "Line19", .kind = Kind::line, .place = loadVoltage.place, .visible = false, .drawing = loadVoltage.marks},
    {.id = Line20, .name = "Line20", .kind = Kind::line, .place = bootstrapWires.place, .visible = false, .drawing = bootstrapWires.marks},
    {.id = Shape3, .name = "Shape3", .kind = Kind::shape, .place = transistor.place, .drawing = transistor.marks},
    {.id = Shape4, .name = "Shape4", .kind = Kind::shape, .place = supplyTerminal.place, .visible = false, .drawing = supplyTerminal.marks},
    {.id = Image2, .name = "image2", .kind = Kind::image, .place = bypassCapacitor.place, .visible = false, .drawing = bypassCapacitor.marks},
    {.id = Picture3, .name = "Picture3", .kind = Kind::picture, .place = firstBootstrap.place, .visible = false, .enabled = false, .meaning = {"Primer capacitor de bootstrapping", "First bootstrapping capacitor"}, .drawing = firstBootstrap.marks},
    {.id = Picture5, .name = "Picture5", .kind = Kind::picture, .place = secondBootstrap.place, .visible = false, .enabled = false, .meaning = {"Segundo capacitor de bootstrapping", "Second bootstrapping capacitor"}, .drawing = secondBootstrap.marks},
    {.id = Text1, .name = "Text1", .kind = Kind::field, .place = at(90, 118, 73, 22), .text = "10", .symbol = "/\\Q_Ic", .unit = "%", .meaning = {"Variación admisible de la corriente de reposo", "Allowed variation of the quiescent current"}},
    {.id = Text2, .name = "Text2", .kind = Kind::field, .place = at(90, 374, 73, 22), .text = "80", .enabled = false, .symbol = "β", .meaning = {"Ganancia de corriente del transistor, hFE", "Current gain of the transistor, hFE"}},
    {.id = Text3, .name = "Text3", .kind = Kind::field, .place = at(90, 146, 73, 22), .text = "75", .enabled = false, .symbol = "T", .unit = "°C", .meaning = {"Temperatura ambiente de trabajo", "Ambient temperature of work"}},
    {.id = Text4, .name = "Text4", .kind = Kind::field, .place = at(90, 174, 73, 22), .text = "2.5", .enabled = false, .symbol = "/\\V_be", .unit = "mV", .meaning = {"Corrimiento de Vbe por grado", "Drift of Vbe per degree"}},
    {.id = Text5, .name = "Text5", .kind = Kind::field, .place = at(90, 402, 73, 22), .text = "25", .enabled = false, .symbol = "E_c(max)", .unit = "V", .meaning = {"Tensión máxima Colector - Emisor", "Maximum Collector - Emitter voltage"}},
    {.id = Text6, .name = "Text6", .kind = Kind::field, .place = at(90, 430, 73, 22), .text = "100", .enabled = false, .symbol = "I_c(max)", .unit = "mA", .meaning = {"Corriente máxima de colector", "Maximum collector current"}},
    {.id = Text7, .name = "Text7", .kind = Kind::field, .place = at(90, 458, 73, 22), .text = "0.6", .enabled = false, .symbol = "V_j", .unit = "V", .meaning = {"Tensión de juntura, Silicio o Germanio", "Junction voltage, Silicon or Germanium"}},
    {.id = Text8, .name = "Text8", .kind = Kind::field, .place = at(90, 230, 105, 22), .text = "1", .enabled = false, .symbol = "Q_Ic", .unit = "mA", .meaning = {"Corriente de reposo de colector", "Quiescent collector current"}},
    {.id = Text9, .name = "Text9", .kind = Kind::field, .place = at(923, 459, 64, 22), .text = "10", .enabled = false, .symbol = "R_Lw", .unit = "kΩ", .meaning = {"Resistencia de carga", "Load resistance"}, .symbolSide = SymbolSide::above},
    {.id = Text10, .name = "Text10", .kind = Kind::field, .place = at(90, 258, 73, 22), .text = "10", .enabled = false, .symbol = "S", .meaning = {"Factor de estabilidad", "Stability factor"}},
    {.id = Text11, .name = "Text11", .kind = Kind::field, .place = at(90, 286, 73, 22), .text = "5", .enabled = false, .symbol = "V_g", .meaning = {"Ganancia de tensión", "Voltage gain"}},
    {.id = Text12, .name = "Text12", .kind = Kind::field, .place = at(90, 314, 73, 22), .text = "20", .enabled = false, .symbol = "f_o", .unit = "Hz", .meaning = {"Menor frecuencia de interés", "Lowest frequency of interest"}},
    {.id = Text13, .name = "Text13", .kind = Kind::field, .place = at(915, 238, 73, 22), .text = "1", .enabled = false, .symbol = "E_opp", .unit = "Vpp", .meaning = {"Tensión de salida, pico a pico", "Output voltage, peak to peak"}, .symbolSide = SymbolSide::above},
    {.id = Text14, .name = "Text14", .kind = Kind::field, .place = at(296, 414, 73, 22), .text = "0.35", .enabled = false, .symbol = "E_in", .unit = "V r.m.s.", .meaning = {"Tensión eficaz de entrada", "Input voltage, r.m.s."}, .symbolSide = SymbolSide::above},
    {.id = Text15, .name = "Text15", .kind = Kind::field, .place = at(640, 459, 130, 22), .visible = false, .enabled = false, .symbol = "R_es", .unit = "Ω", .meaning = {"Resistor de emisor", "Emitter resistor"}, .symbolSide = SymbolSide::above},
    {.id = Text16, .name = "Text16", .kind = Kind::field, .place = at(735, 119, 122, 22), .enabled = false, .symbol = "E_s", .unit = "V", .meaning = {"Tensión de la fuente de alimentación", "Supply voltage"}},
    {.id = Text17, .name = "Text17", .kind = Kind::field, .place = at(640, 162, 130, 22), .enabled = false, .symbol = "R_L", .unit = "kΩ", .meaning = {"Resistor de colector", "Collector resistor"}, .symbolSide = SymbolSide::above},
    {.id = Text18, .name = "Text18", .kind = Kind::field, .place = at(448, 459, 122, 22), .visible = false, .enabled = false, .symbol = "R_b2", .unit = "kΩ", .meaning = {"Resistor inferior de base", "Lower base resistor"}, .symbolSide = SymbolSide::above},
    {.id = Text19, .name = "Text19", .kind = Kind::field, .place = at(448, 162, 122, 22), .enabled = false, .symbol = "R_b1", .unit = "kΩ", .meaning = {"Preset, resistor superior de base", "Preset, upper base resistor"}, .symbolSide = SymbolSide::above},
    {.id = Text20, .name = "Text20", .kind = Kind::field, .place = at(815, 400, 82, 22), .visible = false, .enabled = false, .symbol = "C_bp", .meaning = {"Capacitor de desacople de emisor", "Emitter bypass capacitor"}, .symbolSide = SymbolSide::above},
    {.id = Text21, .name = "Text21", .kind = Kind::field, .place = at(640, 545, 100, 22), .text = "  - Es = 20 V", .visible = false, .enabled = false, .symbol = "-E_s", .meaning = {"Fuente negativa de emisor", "Negative emitter supply"}, .symbolSide = SymbolSide::above},
    {.id = Voltaje, .name = "Voltaje", .kind = Kind::label, .place = at(94, 202, 66, 22), .enabled = false, .meaning = {"Tensión de estabilidad ERes", "Voltage of stability ERes"}, .look = Look::result, .drawing = emitterVoltageFrame, .clickableWhenDisabled = true},
    {.id = VRes, .name = "VRes", .kind = Kind::label, .place = at(680, 420, 104, 18), .look = Look::result},
    {.id = ER, .name = "ER", .kind = Kind::label, .place = at(838, 162, 110, 20), .visible = false, .look = Look::result},
    {.id = res, .name = "res", .kind = Kind::label, .place = at(640, 484, 140, 18), .visible = false, .look = Look::result},
    {.id = Label24, .name = "Label24", .kind = Kind::label, .place = at(756, 314, 110, 18), .visible = false, .look = Look::result, .drawing = obtainedCurrent},
    {.id = Label19, .name = "Label19", .kind = Kind::label, .place = at(776, 545, 238, 20), .visible = false, .look = Look::note},
    {.id = Label20, .name = "Label20", .kind = Kind::label, .place = at(448, 196, 150, 18), .visible = false, .look = Look::note},
    {.id = statu17, .name = "statu17", .kind = Kind::label, .place = at(672, 370, 112, 18), .visible = false, .look = Look::result},
    {.id = statu18, .name = "statu18", .kind = Kind::label, .place = at(917, 484, 99, 34), .visible = false, .look = Look::result},
    {.id = statu19, .name = "statu19", .kind = Kind::label, .place = at(640, 188, 112, 18), .visible = false, .look = Look::result},
    {.id = statu21, .name = "statu21", .kind = Kind::label, .place = at(636, 110, 40, 16), .text = "Es", .visible = false, .look = Look::result},
    {.id = statu22, .name = "statu22", .kind = Kind::label, .place = at(296, 444, 114, 36), .visible = false, .look = Look::result},
    {.id = statu23, .name = "statu23", .kind = Kind::label, .place = at(296, 482, 106, 34), .visible = false, .look = Look::result},
    {.id = statu24, .name = "statu24", .kind = Kind::label, .place = at(244, 150, 166, 52), .visible = false, .look = Look::hint},
    {.id = statu25, .name = "statu25", .kind = Kind::label, .place = at(672, 334, 196, 34), .visible = false, .look = Look::result},
    {.id = statu30, .name = "statu30", .kind = Kind::label, .place = at(292, 206, 130, 18), .visible = false, .look = Look::result},
    {.id = statu31, .name = "statu31", .kind = Kind::label, .place = at(244, 298, 106, 18), .visible = false, .look = Look::result},
    {.id = statu32, .name = "statu32", .kind = Kind::label, .place = at(308, 358, 114, 18), .visible = false, .look = Look::result},
    {.id = statu33, .name = "statu33", .kind = Kind::label, .place = at(712, 296, 130, 16), .visible = false, .look = Look::result},
    {.id = statu35, .name = "statu35", .kind = Kind::label, .place = at(917, 484, 99, 16), .visible = false, .look = Look::note},
    {.id = status40, .name = "status40", .kind = Kind::label, .place = at(244, 545, 350, 62), .visible = false, .look = Look::warning},
    {.id = statu61, .name = "statu61", .kind = Kind::label, .place = at(244, 232, 150, 36), .visible = false, .look = Look::result},
    {.id = statu62, .name = "statu62", .kind = Kind::label, .place = at(308, 376, 114, 18), .visible = false, .look = Look::result},
    {.id = statu71, .name = "statu71", .kind = Kind::label, .place = at(446, 388, 108, 18), .visible = false, .look = Look::result},
    {.id = statu72, .name = "statu72", .kind = Kind::label, .place = at(446, 242, 106, 36), .visible = false, .look = Look::result},
    {.id = sta1, .name = "sta1", .kind = Kind::label, .place = at(640, 420, 40, 18), .text = "ERes =", .visible = false, .look = Look::result},
    {.id = sta2, .name = "sta2", .kind = Kind::label, .place = at(798, 162, 36, 20), .text = "ERL =", .visible = false, .look = Look::result},
    {.id = sta3, .name = "sta3", .kind = Kind::label, .place = at(244, 206, 46, 18), .text = "ERb1 =", .visible = false, .look = Look::result},
    {.id = sta4, .name = "sta4", .kind = Kind::label, .place = at(640, 588, 220, 18), .visible = false, .look = Look::note},
    {.id = status1, .name = "status1", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status2, .name = "status2", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status3, .name = "status3", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status4, .name = "status4", .kind = Kind::label, .place = at(8, 494, 220, 36), .visible = false, .look = Look::hint},
    {.id = status5, .name = "status5", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status6, .name = "status6", .kind = Kind::label, .place = at(8, 532, 220, 80), .visible = false, .look = Look::hint},
    {.id = status7, .name = "status7", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status8, .name = "status8", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status9, .name = "status9", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status10, .name = "status10", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status11, .name = "status11", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status12, .name = "status12", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status13, .name = "status13", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status14, .name = "status14", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status15, .name = "status15", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = status16, .name = "status16", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = statu36, .name = "statu36", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = sta5, .name = "sta5", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = Label21, .name = "Label21", .kind = Kind::label, .place = at(8, 494, 220, 118), .visible = false, .look = Look::hint},
    {.id = Boost, .name = "Boost", .kind = Kind::label, .place = at(1026, 94, 168, 22), .text = "Boots...", .visible = false, .look = Look::balloon},
    {.id = Picture6, .name = "Picture6", .kind = Kind::picture, .place = at(1026, 122, 82, 76), .meaning = {"Diseñar con emisor desacoplado", "Design with the emitter bypassed"}, .look = Look::toolButton, .drawing = bypassMarks},
    {.id = Picture4, .name = "Picture4", .kind = Kind::picture, .place = at(1112, 122, 82, 76), .meaning = {"Diseñar con emisor parcialmente desacoplado", "Design with the emitter partly bypassed"}, .look = Look::toolButton, .drawing = partialMarks},
    {.id = Picture11, .name = "Picture11", .kind = Kind::picture, .place = at(1026, 204, 82, 76), .meaning = {"Polarizar por emisor", "Polarize by emitter"}, .look = Look::toolButton, .drawing = emitterOptionMarks},
    {.id = Picture10, .name = "Picture10", .kind = Kind::picture, .place = at(1112, 204, 82, 76), .visible = false, .meaning = {"Volver a polarizar por base", "Polarize by base again"}, .look = Look::toolButton, .drawing = baseOptionMarks},
    {.id = Picture2, .name = "Picture2", .kind = Kind::picture, .place = at(1026, 286, 82, 76), .visible = false, .meaning = {"Aplicar bootstrapping", "Apply bootstrapping"}, .look = Look::toolButton, .drawing = bootstrapMarks},
    {.id = Picture7, .name = "Picture7", .kind = Kind::picture, .place = at(1112, 286, 82, 76), .visible = false, .meaning = {"Quitar bootstrapping", "Take bootstrapping away"}, .look = Look::toolButton, .drawing = noBootstrapMarks},
    {.id = Picture1, .name = "Picture1", .kind = Kind::picture, .place = at(1026, 368, 82, 76), .visible = false, .meaning = {"Desacoplado: vuelve al comienzo", "Bypassed: back to the beginning"}, .look = Look::toolButton, .drawing = bypassMarks},
    {.id = Image5, .name = "Image5", .kind = Kind::image, .place = at(1112, 368, 82, 76), .meaning = {"Abrir otro circuito igual, vacío", "Open another blank circuit of this kind"}, .look = Look::toolButton, .drawing = cloneMarks},
    {.id = Image4, .name = "Image4", .kind = Kind::image, .place = at(1112, 368, 82, 76), .visible = false, .meaning = {"Abrir otro circuito igual, vacío", "Open another blank circuit of this kind"}, .look = Look::toolButton, .drawing = cloneAgainMarks},
    {.id = Image3, .name = "Image3", .kind = Kind::image, .place = at(1026, 450, 82, 76), .meaning = {"Abrir la calculadora", "Open the calculator"}, .look = Look::toolButton, .drawing = calculatorMarks},
    {.id = SSCommand3, .name = "SSCommand3", .kind = Kind::button, .place = at(1112, 450, 82, 76), .meaning = {"Elaborar el informe", "Write the report"}, .look = Look::toolButton, .drawing = reportMarks},
    {.id = SSCommand1, .name = "SSCommand1", .kind = Kind::button, .place = at(1026, 532, 82, 76), .meaning = {"Abrir la guía de trabajos prácticos", "Open the guide of practical work"}, .look = Look::toolButton, .drawing = guideMarks},
    {.id = Image35, .name = "Image35", .kind = Kind::image, .place = at(1112, 532, 82, 76), .meaning = {"Ayuda general", "General help"}, .look = Look::toolButton, .drawing = helpMarks},
    {.id = Image34, .name = "Image34", .kind = Kind::image, .place = at(1112, 532, 82, 76), .visible = false, .meaning = {"Cambia el dibujo de la ayuda", "Exchanges the drawing of the help"}, .look = Look::toolButton, .drawing = lampMarks},
    {.id = STA70, .name = "STA70", .kind = Kind::label, .place = at(8, 44, 1186, 46), .look = Look::hint},
    {.id = SSPanel1, .name = "SSPanel1", .kind = Kind::panel, .place = at(0, 0, 1200, 40), .look = Look::prompt, .overlay = true},
};
// clang-format on
static_assert(host::rowsInOrder(rows));
static_assert(std::size(rows) == controlCount);

constexpr host::Handle noteHandles[] = {status1,  status2,  status3,  status4,  status5,  status6,  status7,
                                        status8,  status9,  status10, status11, status12, status13, status14,
                                        status15, status16, statu36,  sta5,     Label21};

// What each field brings onto the paper when the chain reaches it. The emitter resistor ends at ground or, with a negative
// supply, at its terminal: that one is chosen by the slot.
constexpr host::Handle withCurrent[] = {Line5, Line6};
constexpr host::Handle withEmitter[] = {Line1, Line2};
constexpr host::Handle withLoad[] = {Line7, Line8, Line18};
constexpr host::Handle withRL[] = {Line9};
constexpr host::Handle withRLVoltage[] = {Line19};
constexpr host::Handle withOutput[] = {Line11};
constexpr host::Handle withInput[] = {Line12, Line13};
constexpr host::Handle withSupply[] = {Line10, Shape4};
constexpr host::Handle withEq[] = {Line17};
constexpr host::Handle withRb2[] = {Line14, Line15, Line12, Line13};
constexpr host::Handle withRb1[] = {Line16};

// clang-format off
constexpr Growth growthRows[] = {
    {Text8,  withCurrent},
    {Text21, withEmitter},
    {Text15, withEmitter},
    {Text9,  withLoad},
    {Text17, withRL},
    {Text12, withRLVoltage},
    {Text13, withOutput},
    {Text14, withInput},
    {Text16, withSupply},
    {Text2,  withEq},
    {Text18, withRb2},
    {Text19, withRb1},
};
// clang-format on

constexpr host::Handle growing[] = {Line1,  Line2,  Line3,  Line4,  Line5,  Line6,  Line7,
                                    Line8,  Line9,  Line10, Line11, Line12, Line13, Line14,
                                    Line15, Line16, Line17, Line18, Line19, Line20, Shape4};

} // namespace controls_detail

const std::span<const host::ControlRow> controls = controls_detail::rows;
const std::span<const host::Handle> notes = controls_detail::noteHandles;
const std::span<const Growth> growths = controls_detail::growthRows;
const std::span<const host::Handle> growingParts = controls_detail::growing;

} // namespace velmor::form2
