// SPDX-License-Identifier: MIT
// The controls of `Form3`: what each is before anything happens, where it lies, what it draws, and its keys.
#include "designs/differential/form3_controls.h"

#include "designs/differential/form3.h"
#include "designs/differential/form3_drawings.h"

namespace velmor::form3 {

using host::ControlRow;
using host::Event;
using host::KeyAction;
using host::Kind;
using host::Look;
using host::noControl;
using host::Place;
using host::slot;

namespace table {

constexpr int unit = 15; ///< twips of one unit of the drawing grid
constexpr int pictureLeft = 272;
constexpr int pictureTop = 66;

constexpr Place at(int left, int top, int width, int height)
{
    return {left * unit, top * unit, width * unit, height * unit};
}

constexpr Place sheet = at(0, 0, 1200, 620);

/// A place in the picture, whose own grid the drawings use.
constexpr Place in(int left, int top, int width, int height)
{
    return at(pictureLeft + left, pictureTop + top, width, height);
}

/// A point of the picture that takes clicks and drops.
constexpr Place spot(int x, int y)
{
    return in(x - 14, y - 14, 28, 28);
}

constexpr Place field(int row)
{
    return at(112, 96 + 31 * row, 84, 22);
}
constexpr Place transistorField(int row)
{
    return at(112, 446 + 33 * row, 84, 22);
}

constexpr Place picture = in(0, 0, 678, 514);
constexpr Place instrument = at(962, 114, 228, 186);
constexpr Place formula = at(646, 7, 308, 52);
constexpr Place tool(int index)
{
    return at(962 + 46 * index, 12, 42, 38);
}
constexpr Place page = at(951, 50, 249, 427);
constexpr Place pageAlone = at(962, 114, 228, 466);

// clang-format off
constexpr ControlRow controls[] = {
    {.id = Label11, .name = "Label11", .place = at(10, 66, 252, 344),  .look = Look::group},
    {.id = Label6,  .name = "Label6",  .place = at(10, 416, 252, 164), .look = Look::group},
    {.id = Image1,  .name = "Image1",  .kind = Kind::image, .place = picture,
     .meaning = {.es = "Circuito didáctico", .en = "Didactic circuit"}, .drawing = drawings::didactic},
    {.id = image2,  .name = "image2",  .kind = Kind::image, .place = picture, .visible = false, .drawing = drawings::finished},
    {.id = Line1,   .name = "Line1",   .kind = Kind::line, .place = picture, .drawing = drawings::paleNegativeSupply},
    {.id = Line2,   .name = "Line2",   .kind = Kind::line, .place = picture, .drawing = drawings::paleTail},
    {.id = Line3,   .name = "Line3",   .kind = Kind::line, .place = picture, .drawing = drawings::paleCollectorResistors},
    {.id = Line4,   .name = "Line4",   .kind = Kind::line, .place = picture, .drawing = drawings::palePositiveSupply},
    {.id = Shape1,  .name = "Shape1",  .kind = Kind::shape, .place = picture, .visible = false, .drawing = drawings::negativeSupply},
    {.id = Shape2,  .name = "Shape2",  .kind = Kind::shape, .place = picture, .visible = false, .drawing = drawings::tail},
    {.id = Shape3,  .name = "Shape3",  .kind = Kind::shape, .place = picture, .visible = false, .drawing = drawings::collectorResistors},
    {.id = Shape4,  .name = "Shape4",  .kind = Kind::shape, .place = picture, .visible = false, .drawing = drawings::positiveSupply},
    {.id = Shape5,  .name = "Shape5",  .kind = Kind::shape, .place = instrument, .visible = false, .drawing = drawings::meterFace},
    {.id = Shape6,  .name = "Shape6",  .kind = Kind::shape, .place = spot(340, 180), .visible = false, .drawing = drawings::point},
    {.id = Image3,  .name = "Image3",  .kind = Kind::image, .place = instrument, .visible = false, .drawing = drawings::generatorFace},

    {.id = Label22, .name = "Label22", .place = in(288, 276, 104, 24), .look = Look::result},
    {.id = Label28, .name = "Label28", .place = in(206, 332, 122, 52), .look = Look::result},
    {.id = Label29, .name = "Label29", .place = in(252, 78, 88, 62),   .look = Look::result},
    {.id = Label30, .name = "Label30", .place = in(344, 78, 88, 62),   .look = Look::result},
    {.id = Label31, .name = "Label31", .place = in(486, 24, 184, 24),  .look = Look::result},
    {.id = Label32, .name = "Label32", .place = in(254, 198, 84, 24),  .look = Look::result},
    {.id = Label33, .name = "Label33", .place = in(114, 298, 58, 44),  .look = Look::result},
    {.id = Label35, .name = "Label35", .place = in(346, 198, 84, 24),  .look = Look::result},
    {.id = Label38, .name = "Label38", .place = in(62, 216, 130, 20),  .look = Look::result},
    {.id = Label39, .name = "Label39", .place = in(112, 146, 120, 20), .look = Look::result},
    {.id = Label40, .name = "Label40", .place = in(506, 216, 130, 20), .look = Look::result},
    {.id = Label42, .name = "Label42", .place = in(550, 274, 44, 18),  .text = "Ent 2", .look = Look::result},
    {.id = Label43, .name = "Label43", .place = in(510, 148, 44, 18),  .text = "Out 2", .look = Look::result},
    {.id = Label44, .name = "Label44", .place = in(60, 124, 140, 20),  .visible = false, .look = Look::note},

    {.id = Text1,  .name = "Text1",  .kind = Kind::field, .place = field(0), .text = "1",    .symbol = "%ΔQ_ic", .unit = "%",
     .meaning = {.es = "variación admisible de la corriente de reposo", .en = "allowed change of the quiescent current"}},
    {.id = Text2,  .name = "Text2",  .kind = Kind::field, .place = transistorField(1), .text = "30", .enabled = false, .symbol = "E_c(max)", .unit = "V",
     .meaning = {.es = "tensión Colector - Emisor máxima", .en = "maximum collector-emitter voltage"}},
    {.id = Text3,  .name = "Text3",  .kind = Kind::field, .place = transistorField(2), .text = "100", .enabled = false, .symbol = "I_c(max)", .unit = "mA",
     .meaning = {.es = "corriente de Colector máxima", .en = "maximum collector current"}},
    {.id = Text4,  .name = "Text4",  .kind = Kind::field, .place = transistorField(3), .text = "0.6", .enabled = false, .symbol = "V_j", .unit = "V",
     .meaning = {.es = "tensión de juntura", .en = "junction voltage"}},
    {.id = Text5,  .name = "Text5",  .kind = Kind::field, .place = transistorField(0), .text = "100", .enabled = false, .symbol = "Beta",
     .meaning = {.es = "ganancia de corriente hFE", .en = "current gain hFE"}},
    {.id = Text6,  .name = "Text6",  .kind = Kind::field, .place = field(1), .text = "90",   .enabled = false, .symbol = "T", .unit = "ºC",
     .meaning = {.es = "temperatura ambiente", .en = "ambient temperature"}},
    {.id = Text7,  .name = "Text7",  .kind = Kind::field, .place = field(2), .text = "2.75", .enabled = false, .symbol = "ΔV_be", .unit = "mV",
     .meaning = {.es = "cambio de Vbe por grado", .en = "change of Vbe per degree"}},
    {.id = Text8,  .name = "Text8",  .kind = Kind::field, .place = in(402, 429, 66, 22), .text = "Ebias", .enabled = false, .unit = "V",
     .meaning = {.es = "-Ebias, fuente negativa", .en = "-Ebias, negative supply"}},
    {.id = Text9,  .name = "Text9",  .kind = Kind::field, .place = field(3), .text = "0.5",  .enabled = false, .symbol = "Q_ic", .unit = "mA",
     .meaning = {.es = "corriente de reposo de un transistor", .en = "quiescent current of one transistor"}},
    {.id = Text10, .name = "Text10", .kind = Kind::field, .place = field(4), .text = "16",   .enabled = false, .symbol = "R_Lw", .unit = "kΩ",
     .meaning = {.es = "carga de una salida", .en = "load of one output"}},
    {.id = Text11, .name = "Text11", .kind = Kind::field, .place = field(5), .text = "1",    .enabled = false, .symbol = "S",
     .meaning = {.es = "factor de estabilidad", .en = "stability factor"}},
    {.id = Text12, .name = "Text12", .kind = Kind::field, .place = field(6), .text = "64",   .enabled = false, .symbol = "V_g",
     .meaning = {.es = "ganancia de tensión", .en = "voltage gain"}},
    {.id = Text13, .name = "Text13", .kind = Kind::field, .place = field(7), .text = "20",   .enabled = false, .symbol = "f_o", .unit = "Hz",
     .meaning = {.es = "frecuencia de corte inferior", .en = "lower cut-off frequency"}},
    {.id = Text14, .name = "Text14", .kind = Kind::field, .place = field(8), .text = "10",   .enabled = false, .symbol = "E_opp", .unit = "Vpp",
     .meaning = {.es = "tensión de salida pico a pico", .en = "output peak to peak"}},
    {.id = Text15, .name = "Text15", .kind = Kind::field, .place = field(9), .enabled = false, .symbol = "E_in", .unit = "V rms",
     .meaning = {.es = "tensión de entrada", .en = "input voltage"}},
    {.id = Text16, .name = "Text16", .kind = Kind::field, .place = in(388, 349, 66, 22), .visible = false, .enabled = false, .unit = "kΩ",
     .meaning = {.es = "Res, resistor común de emisores", .en = "Res, common emitter resistor"}},
    {.id = Text17, .name = "Text17", .kind = Kind::field, .place = in(112, 99, 66, 22), .visible = false, .enabled = false, .unit = "kΩ",
     .meaning = {.es = "RL, resistor de Colector", .en = "RL, collector resistor"}},
    {.id = Text18, .name = "Text18", .kind = Kind::field, .place = in(386, 25, 66, 22), .visible = false, .enabled = false, .unit = "V",
     .meaning = {.es = "+Es, fuente positiva", .en = "+Es, positive supply"}},

    {.id = Image4,  .name = "Image4",  .kind = Kind::image, .place = spot(340, 180), .visible = false,
     .meaning = {.es = "Out 3, entre Colectores", .en = "Out 3, between Collectors"}, .drawing = drawings::point},
    {.id = Image5,  .name = "Image5",  .kind = Kind::image, .place = spot(340, 440),
     .meaning = {.es = "punto en -Ebias", .en = "point at -Ebias"}},
    {.id = Image6,  .name = "Image6",  .kind = Kind::image, .place = spot(340, 36),
     .meaning = {.es = "punto en Es", .en = "point at Es"}},
    {.id = Image7,  .name = "Image7",  .kind = Kind::image, .place = spot(240, 70),
     .meaning = {.es = "punto en la rama de Colector", .en = "point in the branch of a Collector"}},
    {.id = Image8,  .name = "Image8",  .kind = Kind::image, .place = spot(340, 310),
     .meaning = {.es = "punto en el emisor", .en = "point at the emitter"}, .drawing = drawings::point},
    {.id = Image9,  .name = "Image9",  .kind = Kind::image, .place = spot(180, 250),
     .meaning = {.es = "punto en la base", .en = "point at the base"}},
    {.id = Image10, .name = "Image10", .kind = Kind::image, .place = spot(500, 274),
     .meaning = {.es = "punto en el resistor de base", .en = "point at the resistor of the base"}},
    {.id = Image11, .name = "Image11", .kind = Kind::image, .place = spot(570, 250),
     .meaning = {.es = "entrada 2 ó carga", .en = "input 2 or load"}, .drawing = drawings::point},
    {.id = Image12, .name = "Image12", .kind = Kind::image, .place = spot(110, 250),
     .meaning = {.es = "entrada 1", .en = "input 1"}, .drawing = drawings::point},
    {.id = Image22, .name = "Image22", .kind = Kind::image, .place = spot(150, 180),
     .meaning = {.es = "Out 1, Colector y masa", .en = "Out 1, Collector and Ground"}, .drawing = drawings::point},
    {.id = Image24, .name = "Image24", .kind = Kind::image, .place = spot(340, 180),
     .meaning = {.es = "Out 3, entre Colectores", .en = "Out 3, between Collectors"}, .drawing = drawings::point},
    {.id = Image26, .name = "Image26", .kind = Kind::image, .place = spot(530, 180),
     .meaning = {.es = "Out 2, Colector y masa", .en = "Out 2, Collector and Ground"}, .drawing = drawings::point},

    {.id = Image16, .name = "Image16", .kind = Kind::image, .place = in(46, 230, 40, 56),  .visible = false, .drawing = drawings::markA},
    {.id = Image17, .name = "Image17", .kind = Kind::image, .place = in(573, 230, 40, 56), .visible = false, .drawing = drawings::markGround},
    {.id = Image18, .name = "Image18", .kind = Kind::image, .place = in(594, 230, 40, 56), .visible = false, .drawing = drawings::markA},
    {.id = Image19, .name = "Image19", .kind = Kind::image, .place = in(67, 230, 40, 56),  .visible = false, .drawing = drawings::groundLeft},
    {.id = Image20, .name = "Image20", .kind = Kind::image, .place = in(46, 230, 40, 56),  .visible = false, .drawing = drawings::markB},
    {.id = Image21, .name = "Image21", .kind = Kind::image, .place = in(594, 230, 40, 56), .visible = false, .drawing = drawings::markB},
    {.id = Image23, .name = "Image23", .kind = Kind::image, .place = in(84, 160, 50, 40),  .drawing = drawings::waveB},
    {.id = Image25, .name = "Image25", .kind = Kind::image, .place = in(546, 160, 50, 40), .drawing = drawings::waveA},
    {.id = Image14, .name = "Image14", .kind = Kind::image, .place = at(974, 148, 94, 80),  .visible = false,
     .meaning = {.es = "senoide A", .en = "sinusoid A"}, .drawing = drawings::screenA},
    {.id = Image15, .name = "Image15", .kind = Kind::image, .place = at(1084, 148, 94, 80), .visible = false,
     .meaning = {.es = "senoide B", .en = "sinusoid B"}, .drawing = drawings::screenB},

    {.id = SSPanel2, .name = "SSPanel2", .kind = Kind::panel,  .place = at(978, 140, 196, 46), .visible = false, .fontSize = 17},
    {.id = c1,       .name = "c1",       .kind = Kind::button, .place = at(984, 220, 43, 30),  .text = "V", .visible = false,
     .meaning = {.es = "tensión", .en = "voltage"}, .fontSize = 11},
    {.id = c4,       .name = "c4",       .kind = Kind::button, .place = at(1033, 220, 43, 30), .text = "A", .visible = false,
     .meaning = {.es = "corriente", .en = "current"}, .fontSize = 11},
    {.id = c5,       .name = "c5",       .kind = Kind::button, .place = at(1082, 220, 43, 30), .text = "W", .visible = false,
     .meaning = {.es = "potencia", .en = "power"}, .fontSize = 11},
    {.id = C3,       .name = "C3",       .kind = Kind::button, .place = at(1131, 220, 43, 30), .text = "Z", .visible = false,
     .meaning = {.es = "impedancia", .en = "impedance"}, .fontSize = 11},
    {.id = Option1,  .name = "Option1",  .kind = Kind::option, .place = at(1000, 193, 70, 20), .text = "AC", .visible = false,
     .meaning = {.es = "corriente alterna", .en = "alternating current"}, .checked = true},
    {.id = Option2,  .name = "Option2",  .kind = Kind::option, .place = at(1094, 193, 70, 20), .text = "DC", .visible = false,
     .meaning = {.es = "corriente continua", .en = "direct current"}},
    {.id = Label37,  .name = "Label37",  .place = at(986, 258, 140, 34), .visible = false, .look = Look::result},
    {.id = c6,       .name = "c6",       .kind = Kind::button, .place = at(984, 262, 92, 30),  .text = "SMC", .visible = false,
     .meaning = {.es = "señal de modo común", .en = "signal of common mode"}},
    {.id = c7,       .name = "c7",       .kind = Kind::button, .place = at(1082, 262, 92, 30), .text = "CMRR", .visible = false,
     .meaning = {.es = "rechazo de modo común", .en = "common mode rejection"}},
    {.id = Image30,  .name = "Image30",  .kind = Kind::image, .place = at(962, 66, 228, 40),
     .meaning = {.es = "generador: encender", .en = "generator: switch on"}, .look = Look::toolButton, .drawing = drawings::generatorButton},
    {.id = Image33,  .name = "Image33",  .kind = Kind::image, .place = at(962, 66, 228, 40), .visible = false,
     .meaning = {.es = "multímetro: encender", .en = "multimeter: switch on"}, .look = Look::toolButton, .drawing = drawings::meterButton},

    {.id = SSPanel1,   .name = "SSPanel1",   .kind = Kind::panel, .place = at(10, 8, 626, 50),    .look = Look::prompt},
    {.id = SSPanel3,   .name = "SSPanel3",   .kind = Kind::panel, .place = at(962, 306, 228, 28), .visible = false, .look = Look::balloon},
    {.id = SSPanel4,   .name = "SSPanel4",   .kind = Kind::panel, .place = pageAlone, .look = Look::lesson, .fontSize = 11},
    {.id = StatusBar1, .name = "StatusBar1", .kind = Kind::label, .place = at(10, 588, 940, 24),  .look = Look::hint},
    {.id = Label36,    .name = "Label36",    .kind = Kind::label, .place = at(960, 588, 230, 24), .visible = false, .look = Look::balloon},

    {.id = Label34, .name = "Label34", .place = formula, .visible = false, .look = Look::invisible},
    {.id = Shape7,  .name = "Shape7",  .kind = Kind::shape, .place = formula, .visible = false, .drawing = drawings::formulaERes},
    {.id = Shape8,  .name = "Shape8",  .kind = Kind::shape, .place = formula, .visible = false, .drawing = drawings::formulaRes},
    {.id = Shape9,  .name = "Shape9",  .kind = Kind::shape, .place = formula, .visible = false, .drawing = drawings::formulaRL},
    {.id = Shape10, .name = "Shape10", .kind = Kind::shape, .place = formula, .visible = false, .drawing = drawings::formulaEs},
    {.id = Shape11, .name = "Shape11", .kind = Kind::shape, .place = formula, .visible = false, .drawing = drawings::formulaRe},

    {.id = Image27, .name = "Image27", .kind = Kind::image, .place = tool(1), .meaning = {.es = "calculadora", .en = "calculator"},
     .look = Look::toolButton, .drawing = drawings::calculatorMark},
    {.id = Image28, .name = "Image28", .kind = Kind::image, .place = tool(2), .meaning = {.es = "elaborar informe", .en = "make the report"},
     .look = Look::toolButton, .drawing = drawings::reportMark},
    {.id = Image29, .name = "Image29", .kind = Kind::image, .place = tool(0), .meaning = {.es = "guía de trabajos prácticos", .en = "guide of practical work"},
     .look = Look::toolButton, .drawing = drawings::guideMark},
    {.id = Image32, .name = "Image32", .kind = Kind::image, .place = tool(3), .meaning = {.es = "abrir un nuevo circuito", .en = "clone: open a new circuit"},
     .look = Look::toolButton, .drawing = drawings::cloneMark},
    {.id = Image31, .name = "Image31", .kind = Kind::image, .place = tool(3), .visible = false, .meaning = {.es = "abrir un nuevo circuito", .en = "clone: open a new circuit"},
     .look = Look::toolButton, .drawing = drawings::cloneOtherMark},
    {.id = Image35, .name = "Image35", .kind = Kind::image, .place = tool(4), .meaning = {.es = "ayuda", .en = "help"},
     .look = Look::toolButton, .drawing = drawings::helpMark},
    {.id = Image34, .name = "Image34", .kind = Kind::image, .place = tool(4), .visible = false, .meaning = {.es = "ocultar la ayuda", .en = "hide the help"},
     .look = Look::toolButton, .drawing = drawings::hideHelpMark},

    {.id = Text19, .name = "Text19", .kind = Kind::page, .place = page, .visible = false,
     .meaning = {.es = "ayuda en inglés", .en = "help"}, .overlay = true},
    {.id = Text20, .name = "Text20", .kind = Kind::page, .place = page, .visible = false,
     .meaning = {.es = "ayuda", .en = "help in Spanish"}, .overlay = true},
    {.id = Text21, .name = "Text21", .kind = Kind::page, .place = {9600, 690, 1104, 4536}, .visible = false,
     .meaning = {.es = "valores comerciales de resistores", .en = "commercial values of resistors"}, .overlay = true},
};
static_assert(host::rowsInOrder(controls));

constexpr PointPlaces points[] = {
    // point    didactic        finished
    {Image8,  spot(340, 310), spot(240, 296)},
    {Image9,  spot(180, 250), spot(196, 250)},
    {Image11, spot(570, 250), spot(36, 180)},
    {Image12, spot(110, 250), spot(92, 250)},
    {Image22, spot(150, 180), spot(220, 180)},
    {Image26, spot(530, 180), spot(644, 180)},
};

constexpr Place screenA = at(974, 148, 94, 80);
constexpr Place screenB = at(1084, 148, 94, 80);
constexpr Place smc     = at(984, 262, 92, 30);
constexpr Place cmrr    = at(1082, 262, 92, 30);
constexpr int lower     = 224 * unit;
constexpr Place below(const Place& place) { return {place.left, place.top + lower, place.width, place.height}; }
constexpr GeneratorPart generator[] = {
    {Image14, screenA, below(screenA)}, {Image15, screenB, below(screenB)}, {c6, smc, below(smc)}, {c7, cmrr, below(cmrr)},
};

constexpr host::Handle tabOrder[] = {
    Text1, Text6, Text7, Text9, Text10, Text11, Text12, Text13, Text14, Text15, Text5, Text2, Text3, Text4, Text8, Text16,
    Text17, Text18, c1, c4, c5, C3, Option1, Option2, c6, c7, Text19, Text20, Text21,
};

constexpr host::ShortcutRow shortcuts[] = {
    // keys               control             deed                     target     meaning
    {"Ctrl+B",            noControl,          KeyAction::run,         noControl, {.es = "enciende y apaga el banco", .en = "switches the bench on and off"}},
    {"Ctrl+1",            Image14,            KeyAction::dragTo,      Image12,   {.es = "senoide A a la entrada 1", .en = "sinusoid A to input 1"}},
    {"Ctrl+2",            Image14,            KeyAction::dragTo,      Image11,   {.es = "senoide A a la entrada 2", .en = "sinusoid A to input 2"}},
    {"Ctrl+3",            Image15,            KeyAction::dragTo,      Image12,   {.es = "senoide B a la entrada 1", .en = "sinusoid B to input 1"}},
    {"Ctrl+4",            Image15,            KeyAction::dragTo,      Image11,   {.es = "senoide B a la entrada 2", .en = "sinusoid B to input 2"}},
    {"Ctrl+5",            Image22,            KeyAction::click,       noControl, {.es = "mide en Out 1", .en = "tests Out 1"}},
    {"Ctrl+6",            Image26,            KeyAction::click,       noControl, {.es = "mide en Out 2", .en = "tests Out 2"}},
    {"Ctrl+7",            Image24,            KeyAction::click,       noControl, {.es = "mide en Out 3", .en = "tests Out 3"}},
    {"Ctrl+8",            Image4,             KeyAction::click,       noControl, {.es = "mide entre colectores", .en = "tests between collectors"}},
    {"Ctrl+9",            Image8,             KeyAction::click,       noControl, {.es = "mide en el emisor", .en = "tests the emitter"}},
    {"Shift+F3",          Image5,             KeyAction::click,       noControl, {.es = "mide en -Ebias", .en = "tests -Ebias"}},
    {"Shift+F4",          Image6,             KeyAction::click,       noControl, {.es = "mide en Es", .en = "tests Es"}},
    {"Shift+F5",          Image7,             KeyAction::click,       noControl, {.es = "mide en la rama de colector", .en = "tests the branch of a collector"}},
    {"Shift+F6",          Image9,             KeyAction::click,       noControl, {.es = "mide en la base", .en = "tests the base"}},
    {"Shift+F7",          Image10,            KeyAction::click,       noControl, {.es = "mide en el resistor de base", .en = "tests the resistor of the base"}},
    {"Shift+F8",          Image11,            KeyAction::click,       noControl, {.es = "mide en la carga", .en = "tests the load"}},
    {"Shift+F9",          Image12,            KeyAction::click,       noControl, {.es = "mide en la entrada", .en = "tests the input"}},
    {"Ctrl+F2",           Label22,            KeyAction::hover,       noControl, {.es = "fórmula de r'e", .en = "formula of r'e"}},
    {"Ctrl+K",            Image27,            KeyAction::click,       noControl, {.es = "calculadora", .en = "calculator"}},
    {"Ctrl+R",            Image28,            KeyAction::click,       noControl, {.es = "informe", .en = "report"}},
    {"Ctrl+G",            Image29,            KeyAction::click,       noControl, {.es = "guía", .en = "guide"}},
    {"Ctrl+D",            Image32,            KeyAction::click,       noControl, {.es = "nuevo circuito", .en = "new circuit"}},
    {"Ctrl+Shift+D",      Image31,            KeyAction::click,       noControl, {.es = "nuevo circuito", .en = "new circuit"}},
    {"Ctrl+E",            noControl,          KeyAction::run,         noControl, {.es = "vuelve a los cuadros", .en = "goes back to the fields"}},
};
constexpr std::array<host::SlotRow, 164> slots{{
    {noControl, Event::load,        slot<&Form3::load>},
    {noControl, Event::click,       slot<&Form3::clickBackground>},
    {noControl, Event::hover,       slot<&Form3::hoverBackground>},
    {noControl, Event::shortcut,    slot<&Form3::runKey>},
    {Text1,     Event::focus,       slot<&Form3::focusField>},
    {Text1,     Event::key,         slot<&Form3::keyField>},
    {Text1,     Event::lostFocus,   slot<&Form3::leaveField>},
    {Text1,     Event::click,       slot<&Form3::clickField>},
    {Text1,     Event::hover,       slot<&Form3::hoverField>},
    {Text6,     Event::focus,       slot<&Form3::focusTemperature>},
    {Text6,     Event::key,         slot<&Form3::keyField>},
    {Text6,     Event::lostFocus,   slot<&Form3::leaveField>},
    {Text6,     Event::click,       slot<&Form3::clickField>},
    {Text6,     Event::hover,       slot<&Form3::hoverField>},
    {Text7,     Event::focus,       slot<&Form3::focusField>},
    {Text7,     Event::key,         slot<&Form3::keyField>},
    {Text7,     Event::lostFocus,   slot<&Form3::leaveField>},
    {Text7,     Event::click,       slot<&Form3::clickField>},
    {Text7,     Event::hover,       slot<&Form3::hoverField>},
    {Text9,     Event::focus,       slot<&Form3::focusQIc>},
    {Text9,     Event::key,         slot<&Form3::keyQIc>},
    {Text9,     Event::lostFocus,   slot<&Form3::leaveField>},
    {Text9,     Event::click,       slot<&Form3::clickQIc>},
    {Text9,     Event::hover,       slot<&Form3::hoverField>},
    {Text10,    Event::focus,       slot<&Form3::focusField>},
    {Text10,    Event::key,         slot<&Form3::keyField>},
    {Text10,    Event::lostFocus,   slot<&Form3::leaveField>},
    {Text10,    Event::click,       slot<&Form3::clickField>},
    {Text10,    Event::hover,       slot<&Form3::hoverField>},
    {Text11,    Event::focus,       slot<&Form3::focusField>},
    {Text11,    Event::key,         slot<&Form3::keyField>},
    {Text11,    Event::lostFocus,   slot<&Form3::leaveField>},
    {Text11,    Event::click,       slot<&Form3::clickField>},
    {Text11,    Event::hover,       slot<&Form3::hoverField>},
    {Text12,    Event::focus,       slot<&Form3::focusField>},
    {Text12,    Event::key,         slot<&Form3::keyField>},
    {Text12,    Event::lostFocus,   slot<&Form3::leaveField>},
    {Text12,    Event::click,       slot<&Form3::clickField>},
    {Text12,    Event::hover,       slot<&Form3::hoverField>},
    {Text13,    Event::focus,       slot<&Form3::focusField>},
    {Text13,    Event::key,         slot<&Form3::keyField>},
    {Text13,    Event::lostFocus,   slot<&Form3::leaveField>},
    {Text13,    Event::click,       slot<&Form3::clickField>},
    {Text13,    Event::hover,       slot<&Form3::hoverField>},
    {Text14,    Event::focus,       slot<&Form3::focusField>},
    {Text14,    Event::key,         slot<&Form3::keyField>},
    {Text14,    Event::lostFocus,   slot<&Form3::leaveEopp>},
    {Text14,    Event::click,       slot<&Form3::clickEopp>},
    {Text14,    Event::hover,       slot<&Form3::hoverField>},
    {Text15,    Event::focus,       slot<&Form3::focusEin>},
    {Text15,    Event::key,         slot<&Form3::keyField>},
    {Text15,    Event::lostFocus,   slot<&Form3::leaveEin>},
    {Text15,    Event::click,       slot<&Form3::clickEin>},
    {Text15,    Event::hover,       slot<&Form3::hoverField>},
    {Text5,     Event::focus,       slot<&Form3::focusBeta>},
    {Text5,     Event::key,         slot<&Form3::keyField>},
    {Text5,     Event::lostFocus,   slot<&Form3::leaveField>},
    {Text5,     Event::click,       slot<&Form3::clickField>},
    {Text5,     Event::hover,       slot<&Form3::hoverField>},
    {Text2,     Event::focus,       slot<&Form3::focusField>},
    {Text2,     Event::key,         slot<&Form3::keyField>},
    {Text2,     Event::lostFocus,   slot<&Form3::leaveField>},
    {Text2,     Event::click,       slot<&Form3::clickField>},
    {Text2,     Event::hover,       slot<&Form3::hoverField>},
    {Text3,     Event::focus,       slot<&Form3::focusField>},
    {Text3,     Event::key,         slot<&Form3::keyField>},
    {Text3,     Event::lostFocus,   slot<&Form3::leaveField>},
    {Text3,     Event::click,       slot<&Form3::clickField>},
    {Text3,     Event::hover,       slot<&Form3::hoverField>},
    {Text4,     Event::focus,       slot<&Form3::focusField>},
    {Text4,     Event::key,         slot<&Form3::keyField>},
    {Text4,     Event::lostFocus,   slot<&Form3::leaveVj>},
    {Text4,     Event::click,       slot<&Form3::clickVj>},
    {Text4,     Event::hover,       slot<&Form3::hoverField>},
    {Text8,     Event::focus,       slot<&Form3::focusEbias>},
    {Text8,     Event::key,         slot<&Form3::keyResult>},
    {Text8,     Event::lostFocus,   slot<&Form3::leaveEbias>},
    {Text8,     Event::click,       slot<&Form3::clickEbias>},
    {Text8,     Event::hover,       slot<&Form3::hoverField>},
    {Text16,    Event::focus,       slot<&Form3::focusRes>},
    {Text16,    Event::key,         slot<&Form3::keyResult>},
    {Text16,    Event::lostFocus,   slot<&Form3::leaveRes>},
    {Text16,    Event::click,       slot<&Form3::clickField>},
    {Text16,    Event::hover,       slot<&Form3::hoverField>},
    {Text17,    Event::focus,       slot<&Form3::focusRL>},
    {Text17,    Event::key,         slot<&Form3::keyResult>},
    {Text17,    Event::lostFocus,   slot<&Form3::leaveRL>},
    {Text17,    Event::click,       slot<&Form3::clickRL>},
    {Text17,    Event::hover,       slot<&Form3::hoverField>},
    {Text18,    Event::focus,       slot<&Form3::focusEs>},
    {Text18,    Event::key,         slot<&Form3::keyEs>},
    {Text18,    Event::lostFocus,   slot<&Form3::leaveEs>},
    {Text18,    Event::click,       slot<&Form3::clickField>},
    {Text18,    Event::hover,       slot<&Form3::hoverField>},
    {Text6,     Event::mouseDown,   slot<&Form3::pressTemperature>},
    {Label22,   Event::hover,       slot<&Form3::hoverField>},
    {Image1,    Event::mouseDown,   slot<&Form3::pressPicture>},
    {Image1,    Event::hover,       slot<&Form3::hoverField>},
    {image2,    Event::mouseDown,   slot<&Form3::pressPicture>},
    {image2,    Event::hover,       slot<&Form3::hoverBackground>},
    {Image1,    Event::click,       slot<&Form3::clickBackground>},
    {Image30,   Event::click,       slot<&Form3::powerOn>},
    {Image30,   Event::doubleClick, slot<&Form3::powerOff>},
    {Image33,   Event::click,       slot<&Form3::powerOn>},
    {Image33,   Event::doubleClick, slot<&Form3::powerOff>},
    {c1,        Event::click,       slot<&Form3::selectFunction>},
    {c4,        Event::click,       slot<&Form3::selectFunction>},
    {c5,        Event::click,       slot<&Form3::selectFunction>},
    {C3,        Event::click,       slot<&Form3::selectFunction>},
    {c6,        Event::click,       slot<&Form3::clickCommonMode>},
    {c7,        Event::click,       slot<&Form3::clickCommonMode>},
    {Image12,   Event::drop,        slot<&Form3::dropOnInput1>},
    {Image11,   Event::drop,        slot<&Form3::dropOnInput2>},
    {Image26,   Event::drop,        slot<&Form3::dropOnInput2>},
    {Image4,    Event::click,       slot<&Form3::clickPoint>},
    {Image5,    Event::click,       slot<&Form3::clickPoint>},
    {Image6,    Event::click,       slot<&Form3::clickPoint>},
    {Image7,    Event::click,       slot<&Form3::clickPoint>},
    {Image9,    Event::click,       slot<&Form3::clickPoint>},
    {Image10,   Event::click,       slot<&Form3::clickPoint>},
    {Image11,   Event::click,       slot<&Form3::clickPoint>},
    {Image12,   Event::click,       slot<&Form3::clickPoint>},
    {Image22,   Event::click,       slot<&Form3::clickPoint>},
    {Image24,   Event::click,       slot<&Form3::clickPoint>},
    {Image26,   Event::click,       slot<&Form3::clickPoint>},
    {Image8,    Event::click,       slot<&Form3::clickEmitter>},
    {Image4,    Event::hover,       slot<&Form3::hoverPart>},
    {Image5,    Event::hover,       slot<&Form3::hoverPart>},
    {Image6,    Event::hover,       slot<&Form3::hoverPart>},
    {Image7,    Event::hover,       slot<&Form3::hoverPart>},
    {Image8,    Event::hover,       slot<&Form3::hoverPart>},
    {Image9,    Event::hover,       slot<&Form3::hoverPart>},
    {Image10,   Event::hover,       slot<&Form3::hoverPart>},
    {Image11,   Event::hover,       slot<&Form3::hoverPart>},
    {Image12,   Event::hover,       slot<&Form3::hoverPart>},
    {Image22,   Event::hover,       slot<&Form3::hoverPart>},
    {Image24,   Event::hover,       slot<&Form3::hoverPart>},
    {Image26,   Event::hover,       slot<&Form3::hoverPart>},
    {Image14,   Event::hover,       slot<&Form3::hoverPart>},
    {Image15,   Event::hover,       slot<&Form3::hoverPart>},
    {Image30,   Event::hover,       slot<&Form3::hoverPart>},
    {Image33,   Event::hover,       slot<&Form3::hoverPart>},
    {c1,        Event::hover,       slot<&Form3::hoverPart>},
    {c4,        Event::hover,       slot<&Form3::hoverPart>},
    {c5,        Event::hover,       slot<&Form3::hoverPart>},
    {C3,        Event::hover,       slot<&Form3::hoverPart>},
    {c6,        Event::hover,       slot<&Form3::hoverPart>},
    {c7,        Event::hover,       slot<&Form3::hoverPart>},
    {Image27,   Event::hover,       slot<&Form3::hoverPart>},
    {Image28,   Event::hover,       slot<&Form3::hoverPart>},
    {Image29,   Event::hover,       slot<&Form3::hoverPart>},
    {Image32,   Event::hover,       slot<&Form3::hoverPart>},
    {Image31,   Event::hover,       slot<&Form3::hoverPart>},
    {Image35,   Event::hover,       slot<&Form3::hoverPart>},
    {Image34,   Event::hover,       slot<&Form3::hoverPart>},
    {Image27,   Event::click,       slot<&Form3::clickCalculator>},
    {Image28,   Event::click,       slot<&Form3::clickReport>},
    {Image29,   Event::click,       slot<&Form3::clickGuide>},
    {Image32,   Event::click,       slot<&Form3::clickClone>},
    {Image31,   Event::click,       slot<&Form3::clickClone>},
    {Image35,   Event::click,       slot<&Form3::showHelp>},
    {Image34,   Event::click,       slot<&Form3::hideHelp>},
    {Text19,    Event::click,       slot<&Form3::clickEnglishHelp>},
    {Text20,    Event::change,      slot<&Form3::changeSpanishHelp>},
}};
// clang-format on

constexpr auto framedSlots = sheets::withSheetFrame(slots);

/// Where the screen shows what has a place of its own in the model: inside the sheet, in a readable size.
Place shown(const host::Window& window, host::Handle control)
{
    if (control == Text19 || control == Text20)
        return at(900, 62, 296, 520);
    if (control == Text21)
        return at(960, 66, 230, 514);
    if (control == Label43 && window.placeOf(Label43).left == finishedLeftOfLabel43)
        return in(622, 148, 46, 18);
    return window.placeOf(control);
}

} // namespace table

static_assert(table::shortcuts[powerKey].action == KeyAction::run &&
              table::shortcuts[backKey].action == KeyAction::run);

const std::span<const PointPlaces> pointPlaces = table::points;
const std::span<const GeneratorPart> generatorParts = table::generator;
const std::array<GrowingPart, 4> growingParts{{{Line1, Shape1}, {Line2, Shape2}, {Line3, Shape3}, {Line4, Shape4}}};
const std::array<host::Handle, 5> meterPoints{Image5, Image6, Image7, Image9, Image10};
const std::array<WavePlaces, 3> wavePlaces{{
    {table::in(84, 160, 50, 40), table::in(60, 138, 50, 40)},
    {table::in(546, 160, 50, 40), table::in(560, 138, 50, 40)},
    {table::in(315, 226, 50, 40), table::in(315, 226, 50, 40)},
}};
const host::Place pageInsteadOfFields = table::at(10, 66, 252, 514);
const host::Place pageUnderInstrument = table::at(962, 340, 228, 240);
const host::Place pageBesidePicture = table::pageAlone;

namespace file {

// clang-format off
constexpr sheets::FileLine lines[] = {
    {Text1}, {Text2}, {Text3}, {Text4}, {Text5}, {Text6}, {Text7}, {Text8, true}, {Text9}, {Text10}, {Text11}, {Text12},
    {Text13}, {Text14}, {Text15}, {Text16, true}, {Text17, true}, {Text18, true},
    {Label22, true}, {Label28, true}, {Label29, true}, {Label30, true}, {Label31, true}, {Label32, true}, {Label33, true},
    {Label35, true}, {Label38, true}, {Label39, true}, {Label40, true},
};
// clang-format on
static_assert(std::size(lines) == 29);

} // namespace file

const sheets::SheetSpec sheetSpec{
    .filter = {.es = "Circuito Diferencial Simple (*.CDS)|*.CDS", .en = "Long Tail Pair (*.LTP)|*.LTP"},
    .written = file::lines,
    .read = file::lines,
    .temperatureField = Text6,
};

const host::WindowSpec spec{
    .name = "Form3",
    .role = host::Role::sheet,
    .caption = "  Diferencial Simple",
    .place = table::sheet,
    .controls = table::controls,
    .slots = table::framedSlots,
    .tabOrder = table::tabOrder,
    .shortcuts = table::shortcuts,
    .create = create,
    .sheetTitle = {.es = "  Diferencial Simple", .en = "  Long Tail Pairs  -  Differential Amplifier"},
    .shownPlace = table::shown,
    .helpPair = {Image35, Image34},
};

} // namespace velmor::form3
