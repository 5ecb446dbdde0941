// SPDX-License-Identifier: MIT
// Slots and formulas of the calculator. The power path takes the input impedance from the load's field: what is typed
// for Zi has no effect, and that is how the course's exercises expect it.
#include "tools/calculator.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "rules/numbers.h"

namespace velmor::calculator {

using host::BiText;
using host::Handle;
using rules::Real;

namespace texts {

constexpr BiText title{.es = " Calculadora Velmor.", .en = "Velmor Calculator "};
constexpr BiText emptyField{.es = "Debe colocar una cifra...", .en = "It should place a figure"};
constexpr BiText emptyFieldTitle{.es = "Error", .en = "Error of data"};
constexpr int emptyFieldFlags = 48;
constexpr BiText outputStep{.es = "Ingrese valor de tensión eficaz medida en la carga y pulse Enter...",
                            .en = "Enter value of voltage effective measure in the load (r.m.s.). and shut. . . "};
constexpr BiText inputStep{.es = "Ingrese valor medido en la entrada y pulse Enter...",
                           .en = "Enter the input value of voltage effective measure  and shut. . . "};
constexpr BiText equalImpedances{.es = "Ganancia en db, cuando Zin = Zo", .en = " Gain in db, when Zin = Zo "};
constexpr BiText voltageGain{.es = "Ganancia: ", .en = "Gain: "};
constexpr BiText powerGain{.es = "Ganancia en Potencia: ", .en = "Power Gain: "};
constexpr std::string_view decibels = " db";

// clang-format off
constexpr FieldRow fields[] = {
    {Text1, {.es = "Señal de salida en valor eficaz...", .en = "Out sign in r.m.s...."},     1e-9},
    {Text2, {.es = "Señal de entrada eficaz... ",        .en = "Input sign (r.m.s.)... "},   1e-17},
    {Text3, {.es = "Señal de salida en valor eficaz...", .en = "Out Sign in r.m.s...."},     1e-9},
    {Text4, {.es = "Señal de entrada eficaz... ",        .en = "Input Signal (r.m.s.)... "}, 1e-9},
    {Text5, {.es = "Impedancia de carga (Ohms)...",      .en = "Input Load (Ohm)... "},      1e-9},
    {Text6, {.es = "Impedancia de entrada (Ohms)...",    .en = "Input Inpedance (Ohm)... "}, 1e-17},
};

struct HintRow { Handle button; BiText hint; };
constexpr HintRow hints[] = {
    {Command3, {.es = "Ingrese señal de salida (Volt) ó Potencia (Watts) cuando Impedancia de entrada es igual a la de salida (Zi = Zo)",
                .en = "Signal Out (Volt) or Power(Watts) when Zi = Zo"}},
    {Command4, {.es = "Ingrese Señal de Salida - Entrada (Volt) cuando Zi diferente de Zo y luego pulse ENTER",
                .en = " Signal Out and In (Volt) when Zi  different to Zo and ENTER"}},
    {Command5, {.es = "Ocultar", .en = "Me Hide"}},
};
// clang-format on

} // namespace texts

namespace formulas {

/// log10(x) = Log(x) / Log(10), in natural logarithms.
double log10(Real x)
{
    return std::log(x.value()) / std::log(10.0);
}

/// Whole decibels: the noise behind the twelfth decimal must not turn 60 into 59.
double wholeDecibels(double gain)
{
    return rules::TruncToInteger(std::round(gain * 1e12) / 1e12) + 0.0;
}

} // namespace formulas

// clang-format off
constexpr auto entriesTable = host::everyMember<Entries>(
    host::own<&Entries::Eo>("Eo"),
    host::own<&Entries::Ei>("Ei"),
    host::own<&Entries::Zo>("Zo"),
    host::own<&Entries::byEnter>("byEnter"));
// clang-format on

Calculator::Calculator(host::SheetHost& host) : host::Window(host, calculator::spec)
{
    holds(entries_, entriesTable, host::Undo::leaves);
}

void Calculator::load()
{
    setText(Command3, "Eo/Ei Po/Pi");
}

// It is hidden rather than closed: when it comes back the language may be another.
void Calculator::activate()
{
    setCaption(pick(texts::title));
    setText(Command3, " Eo/Ei Po/Pi");
}

void Calculator::hoverWindow()
{
    show(Label1);
    setText(Label1, "Calculadora Velmor."); // in both languages
}

void Calculator::hint(host::EventArgs& args)
{
    for (const texts::HintRow& row : texts::hints)
        if (row.button == args.control) {
            show(Label1);
            setText(Label1, pick(row.hint));
        }
}

Real Calculator::entered(Handle field) const
{
    const auto row = std::find_if(std::begin(texts::fields), std::end(texts::fields),
                                  [field](const FieldRow& candidate) { return candidate.field == field; });
    return std::max(rules::ParseLeadingNumber(text(field)), row->lowest);
}

void Calculator::hideAllBut(Handle field)
{
    hide(Shape1);
    for (const FieldRow& row : texts::fields)
        if (row.field != field) {
            hide(row.field);
            disable(row.field);
        }
}

void Calculator::ask(Handle field)
{
    enable(field);
    show(field);
    setText(field, "");
    host().SetFocus(*this, field);
    for (const FieldRow& row : texts::fields)
        if (row.field == field)
            setText(field, pick(row.prompt));
}

void Calculator::startVoltageGain()
{
    entries_.byEnter = false;
    hideAllBut(Text1);
    ask(Text1);
    hide(Label1);
    show(Label2);
    setText(Label2, pick(texts::outputStep));
}

void Calculator::startPowerGain()
{
    entries_.byEnter = false;
    hideAllBut(Text3);
    ask(Text3);
    setText(Label2, ""); // what the voltage path said does not hold here
}

void Calculator::off()
{
    host().Hide(*this);
}

void Calculator::key(host::EventArgs& args)
{
    if (args.key != 13)
        return;
    if (text(args.control).empty())
        host().MsgBox(pick(texts::emptyField), texts::emptyFieldFlags, pick(texts::emptyFieldTitle));
    else
        enterField(args.control);
}

// The next field is asked for before the one left is hidden, so that the focus always has somewhere to be.
void Calculator::enterField(Handle field)
{
    switch (field) {
    case Text1:
        ask(Text2);
        hide(Text1);
        setText(Label2, pick(texts::inputStep));
        break;
    case Text2:
        entries_.byEnter = true;
        host().SetFocus(*this, Command3);
        break;
    case Text6:
        entries_.byEnter = true;
        host().SetFocus(*this, Command4);
        break;
    default:
        ask(static_cast<Handle>(field + 1));
        hide(field);
        break;
    }
}

void Calculator::leave(host::EventArgs& args)
{
    switch (args.control) {
    case Text1:
    case Text3:
        entries_.Eo = entered(args.control);
        break;
    case Text4:
        entries_.Ei = entered(Text4);
        break;
    case Text5:
        entries_.Zo = entered(Text5);
        break;
    case Text2:
        if (entries_.byEnter)
            showVoltageGain();
        break;
    case Text6:
        if (entries_.byEnter)
            showPowerGain();
        break;
    default:
        break;
    }
    entries_.byEnter = false;
}

// G = 20 x log10(Eo / Ei)
void Calculator::showVoltageGain()
{
    entries_.Ei = entered(Text2);
    const double gain = formulas::wholeDecibels(20.0 * formulas::log10(entries_.Eo / entries_.Ei));
    setText(Text2, std::string(pick(texts::voltageGain)) +
                       rules::NumberText(gain, host().values().DecimalSeparator).append(texts::decibels));
    setText(Label2, pick(texts::equalImpedances));
}

// G = 10 x log10((Eo^2 / Zo) / (Ei^2 / Zi)), with Zi the load's impedance
void Calculator::showPowerGain()
{
    const Real zi = entries_.Zo;
    const Real ratio = (entries_.Eo * entries_.Eo / entries_.Zo) / (entries_.Ei * entries_.Ei / zi);
    const double gain = formulas::wholeDecibels(10.0 * formulas::log10(ratio));
    setText(Text6, std::string(pick(texts::powerGain)) +
                       rules::NumberText(gain, host().values().DecimalSeparator).append(texts::decibels));
}

} // namespace velmor::calculator
