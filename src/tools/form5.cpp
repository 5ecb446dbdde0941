// SPDX-License-Identifier: MIT
// Texts, table and drawing of the recommendations for the first start.
#include "tools/form5.h"

namespace velmor::form5 {

using host::BiText;
using host::Event;
using host::Kind;
using host::Look;
using host::Mark;
using host::Side;
using host::slot;
using host::Symbol;

namespace texts {

constexpr BiText title{.es = "Para no dañar los transistores de potencia...",
                       .en = "For not damaging the power transistors..."};
constexpr BiText back{.es = "Volver", .en = "Back"};
constexpr BiText diodes{.es = "Diodos provisorios 1N4000", .en = "Substitute diode 1N4000"};
constexpr BiText point6{.es = "Punto 6", .en = "Point 6"};

// Steps 1 to 4, 5 to 8, 9 and 10.
constexpr BiText firstSteps{
    .es = "Recomendaciones para la puesta en marcha: \n\n"
          "1) No conecte todavía Q4, Q5 ni Q2, Q3.\n\n"
          "2) Coloque un puente provisorio del colector de Q1 a la salida, para cerrar la realimentación.\n\n"
          "3) Con un voltímetro de continua en el colector de Q1 ajuste Rb1b hasta leer la mitad de la fuente.\n\n"
          "4) Pase el voltímetro a los terminales A y B.",
    .en = "Recommendations for the setting in march:\n\n"
          "1) Do not connect Q4, Q5 nor Q2, Q3 yet.\n\n"
          "2) Place a temporary bridge from the collector of Q1 to the output, to close the feedback.\n\n"
          "3) With a d.c. voltmeter on the collector of Q1 adjust Rb1b until you read half of the supply.\n\n"
          "4) Move the voltmeter to the terminals A and B."};
constexpr BiText middleSteps{
    .es = "5) Gire el preset de Q8 hasta leer unos 2.2 Volts, y desconecte la fuente.\n\n"
          "6) Retire el puente, conecte Q2 y Q3, y en el lugar de las salidas coloque los diodos provisorios 1N4000, "
          "como muestra el dibujo.\n\n"
          "7) Verifique la mitad de la fuente, desconecte, quite los diodos y conecte Q4 y Q5.\n\n"
          "8) Ajuste otra vez el punto medio y la corriente de reposo.",
    .en = "5) Turn the preset of Q8 until you read about 2.2 Volts, and disconnect the supply.\n\n"
          "6) Lift the bridge, connect Q2 and Q3, and in the place of the outputs fit the substitutes, diodes 1N4000, "
          "as the drawing shows.\n\n"
          "7) Verify half of the supply, disconnect, remove the substitute diodes, connect Q4 and Q5.\n\n"
          "8) Adjust the half point and the quiescent current again."};
constexpr BiText lastSteps{
    .es = "9) Con un miliamperímetro entre el colector de una salida y la fuente fije, con el preset de Q8, de 2.5 a "
          "10 mA.\n\n"
          "10) Con 1 Volt (r.m.s.) de entrada ajuste Ps hasta la mayor salida sin recorte.",
    .en = "9) With a milliammeter between an output collector and the supply set, with the preset of Q8, from 2.5 to "
          "10 mA.\n\n"
          "10) With 1 Volt (r.m.s.) of input adjust Ps for the greatest output without clipping."};

} // namespace texts

namespace table {

// clang-format off
// The drivers of the outputs with a diode in the place of each output. Counted from the corner of the image.
constexpr Mark outputs[] = {
    {.symbol = Symbol::roundFrame, .from = {0, 0}, .to = {300, 330}, .ink = host::Ink::quiet},
    {.symbol = Symbol::terminal, .from = {230, 20}, .name = "E_s", .side = Side::left},
    {.symbol = Symbol::wire, .from = {230, 23}, .to = {230, 40}},
    {.symbol = Symbol::wire, .from = {140, 40}, .to = {230, 40}},
    {.symbol = Symbol::wire, .from = {140, 40}, .to = {140, 50}},
    {.symbol = Symbol::npn, .from = {110, 80}},
    {.symbol = Symbol::wire, .from = {60, 80}, .to = {110, 80}},
    {.symbol = Symbol::terminal, .from = {60, 80}},
    {.symbol = Symbol::wire, .from = {140, 110}, .to = {180, 110}},
    {.symbol = Symbol::diode, .from = {180, 110}, .to = {180, 150}},
    {.symbol = Symbol::wire, .from = {180, 150}, .to = {180, 180}},
    {.symbol = Symbol::diode, .from = {180, 180}, .to = {180, 220}},
    {.symbol = Symbol::wire, .from = {140, 220}, .to = {180, 220}},
    {.symbol = Symbol::node, .from = {180, 165}},
    {.symbol = Symbol::wire, .from = {180, 165}, .to = {270, 165}},
    {.symbol = Symbol::terminal, .from = {270, 165}},
    {.symbol = Symbol::pnp, .from = {110, 250}},
    {.symbol = Symbol::wire, .from = {60, 250}, .to = {110, 250}},
    {.symbol = Symbol::terminal, .from = {60, 250}},
    {.symbol = Symbol::wire, .from = {140, 280}, .to = {140, 300}},
    {.symbol = Symbol::ground, .from = {140, 300}},
};

constexpr host::ControlRow controls[] = {
    {.id = Image1, .name = "Image1", .kind = Kind::image, .place = {7500, 900, 4530, 4980},
     .meaning = {.es = "Salidas con los diodos provisorios", .en = "Outputs with the substitute diodes"}, .drawing = outputs},
    {.id = Label1, .name = "Label1", .kind = Kind::label, .place = {300, 240, 6900, 3000}, .look = Look::prompt, .fontSize = 10},
    {.id = Label2, .name = "Label2", .kind = Kind::label, .place = {300, 3330, 6900, 2880}, .look = Look::prompt, .fontSize = 10},
    {.id = Label3, .name = "Label3", .kind = Kind::label, .place = {300, 6300, 6900, 1440}, .look = Look::prompt, .fontSize = 10},
    {.id = Label4, .name = "Label4", .kind = Kind::label, .place = {9840, 1980, 480, 270}, .text = "Q2", .look = Look::result},
    {.id = Label5, .name = "Label5", .kind = Kind::label, .place = {9840, 4530, 480, 270}, .text = "Q3", .look = Look::result},
    {.id = Label6, .name = "Label6", .kind = Kind::label, .place = {7980, 1980, 300, 270}, .text = "A", .look = Look::result},
    {.id = Label7, .name = "Label7", .kind = Kind::label, .place = {7980, 4530, 300, 270}, .text = "B", .look = Look::result},
    {.id = Label8, .name = "Label8", .kind = Kind::label, .place = {7500, 6000, 4530, 330},
     .text = "Diodos provisorios 1N4000", .look = Look::note},
    {.id = Label9, .name = "Label9", .kind = Kind::label, .place = {7500, 480, 4530, 360}, .text = "Punto 6", .look = Look::heading},
    {.id = Command1, .name = "Command1", .kind = Kind::button, .place = {9930, 7140, 2100, 540}, .text = "Volver"},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {host::noControl, Event::load,     slot<&Form5::load>},
    {host::noControl, Event::activate, slot<&Form5::activate>},
    {Command1,        Event::click,    slot<&Form5::goBack>},
};
// clang-format on

} // namespace table

Form5::Form5(host::SheetHost& host) : host::Window(host, form5::spec) {}

void Form5::load()
{
    setCaption(host().pick(texts::title));
    write(Command1, texts::back);
    write(Label8, texts::diodes);
    write(Label9, texts::point6);
}

// The window may have been hidden while the language changed.
void Form5::activate()
{
    load();
    write(Label1, texts::firstSteps);
    write(Label2, texts::middleSteps);
    write(Label3, texts::lastSteps);
}

void Form5::goBack()
{
    host().Unload(*this);
}

const host::WindowSpec spec{
    .name = "Form5",
    .role = host::Role::tool,
    .caption = "Para no dañar los transistores de potencia...",
    .place = {0, 0, 12330, 7980},
    .controls = table::controls,
    .slots = table::slots,
    .create = create,
    .reading = true,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form5>(host);
}

} // namespace velmor::form5
