// SPDX-License-Identifier: MIT
// Slots, formulas and table of the temperature conversion.
#include "tools/form22.h"

#include "rules/numbers.h"
#include "sheets/design_sheet.h"

namespace velmor::form22 {

using host::BiText;
using host::Event;
using host::Kind;
using host::slot;
using rules::Real;

namespace texts {

constexpr BiText title{.es = "Conversion de Grados", .en = "Grade Convert"};
constexpr BiText fahrenheit{.es = "Coloque la temperatura en Fahrenheit", .en = "Put the Temperature in Fahrenheit"};
constexpr BiText kelvin{.es = "Coloque la temperatura en Kelvin", .en = "Put the Temperature in Kelvin"};
constexpr BiText centigrade{.es = "Coloque la temperatura en Centigrados", .en = "Put the Temperature in Centigrade"};
constexpr int boxLeft = 2400;
constexpr int boxTop = 2100;

} // namespace texts

Real KelvinACentigrados(Real kelvin)
{
    return kelvin - 273.0;
}

Real CentigradosAFahrenheit(Real celsius)
{
    return celsius / (Real(5.0) / 9.0) + 32.0;
}

Real CentigradosAKelvin(Real celsius)
{
    return celsius + 273.0;
}

Real FahrenheitACentigrados(Real fahrenheit)
{
    return (fahrenheit - 32.0) * 5.0 / 9.0;
}

Form22::Form22(host::SheetHost& host) : host::Window(host, form22::spec) {}

// A cancelled box counts as an empty answer, an empty answer as 0.
Real Form22::asked(const BiText& prompt, std::string_view proposal)
{
    const auto answer = host().InputBox({.prompt = std::string(host().pick(prompt)),
                                         .title = std::string(host().pick(texts::title)),
                                         .initial = std::string(proposal),
                                         .left = texts::boxLeft,
                                         .top = texts::boxTop});
    return rules::ParseLeadingNumber(answer.value_or(""));
}

// The sheet behind shows the converted temperature at once when its temperature field has the focus.
void Form22::store(Real celsius)
{
    host().values().TemperaturaCompartida = celsius.value();
    host::SheetHost& program = host();
    program.Unload(*this);
    if (auto* sheet = dynamic_cast<sheets::DesignSheet*>(program.activeChild()))
        sheet->temperatureConverted();
}

void Form22::fahrenheit()
{
    store(FahrenheitACentigrados(asked(texts::fahrenheit, "175")));
}

void Form22::kelvin()
{
    store(KelvinACentigrados(asked(texts::kelvin, "300")));
}

// There and back, as the course does it: the value comes back in Centigrade.
void Form22::centigrade()
{
    store(FahrenheitACentigrados(CentigradosAFahrenheit(asked(texts::centigrade, "75"))));
}

namespace table {

// clang-format off
constexpr host::ControlRow controls[] = {
    {.id = Command1, .name = "Command1", .kind = Kind::button, .place = {300,  300, 2400, 480}, .text = "Fahrenheit",
     .meaning = {.es = "Convertir desde Fahrenheit", .en = "Convert from Fahrenheit"}},
    {.id = Command2, .name = "Command2", .kind = Kind::button, .place = {300,  930, 2400, 480}, .text = "Kelvin",
     .meaning = {.es = "Convertir desde Kelvin", .en = "Convert from Kelvin"}},
    {.id = Command3, .name = "Command3", .kind = Kind::button, .place = {300, 1560, 2400, 480}, .text = "Centigrados",
     .meaning = {.es = "Colocar en Centígrados", .en = "Put in Centigrade"}},
};
static_assert(host::rowsInOrder(controls));

constexpr host::SlotRow slots[] = {
    {Command1, Event::click, slot<&Form22::fahrenheit>},
    {Command2, Event::click, slot<&Form22::kelvin>},
    {Command3, Event::click, slot<&Form22::centigrade>},
};
// clang-format on

} // namespace table

const host::WindowSpec spec{
    .name = "Form22",
    .role = host::Role::tool,
    .caption = "Temp",
    .place = {0, 0, 3000, 2340},
    .controls = table::controls,
    .slots = table::slots,
    .create = create,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form22>(host);
}

} // namespace velmor::form22
