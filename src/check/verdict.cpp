// SPDX-License-Identifier: MIT
// Compares, and finds the words.
#include "check/verdict.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace velmor::check {

namespace verdict_detail {

constexpr double tenth = 0.1;
constexpr double oneDecibel = 1.0;
constexpr double lightLoad = 0.9; ///< of Eg must arrive for a load to be called light

std::string fixedText(double value, int digits)
{
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, digits);
    if (end.ec != std::errc())
        return "-";
    std::string written(text.data(), end.ptr);
    if (written.find('.') != std::string::npos) {
        written.erase(written.find_last_not_of('0') + 1);
        if (written.ends_with('.'))
            written.pop_back();
    }
    return written == "-0" ? "0" : written;
}

/// What the simulated value is compared with: the course's, or what was asked where the course says nothing.
Measured referenceOf(const Row& row)
{
    const Measure measure = textOf(row.quantity).measure;
    const bool isLimit = measure == Measure::atMost || measure == Measure::atLeast;
    return isLimit && row.asked ? row.asked : row.course ? row.course : row.asked;
}

bool agrees(Measure measure, double value, double reference)
{
    switch (measure) {
    case Measure::share:
        return std::abs(value - reference) <= tenth * std::abs(reference);
    case Measure::decibel:
        return std::abs(decibel(value, reference)) <= oneDecibel;
    case Measure::difference:
        return std::abs(value - reference) <= oneDecibel;
    case Measure::atMost:
        return value <= reference * (1 + tenth);
    case Measure::atLeast:
        return value >= reference * (1 - tenth);
    case Measure::shown:
        break;
    }
    return true;
}

/// How far the output can swing before it bends, V peak to peak; no bound where the ceilings are not known.
double cleanSwing(const Ceilings& ceilings)
{
    return 2 * std::min(ceilings.cutOff, ceilings.saturation);
}

/// The wave is asked for more than the stage can swing.
bool isBent(const Row& row, const Ceilings& ceilings)
{
    const Measured reference = referenceOf(row);
    return row.quantity == Quantity::Eopp && ceilings.known && reference &&
           cleanSwing(ceilings) < *reference * (1 - tenth);
}

Judgement judgementOf(const Row& row, const Ceilings& ceilings)
{
    const Measure measure = textOf(row.quantity).measure;
    const Measured reference = referenceOf(row);
    if (!row.simulated)
        return Judgement::missing;
    if (!row.ladder.rungs.empty() && row.ladder.remainder() > mostRemainder)
        return Judgement::unexplained;
    if (!reference || measure == Measure::shown)
        return Judgement::shown;
    if (agrees(measure, *row.simulated, *reference) && !isBent(row, ceilings))
        return Judgement::agrees;
    return measure == Measure::atLeast || measure == Measure::atMost ? Judgement::notReached : Judgement::differs;
}

/// Why the power does not come out: the current that the outputs can get, or the driver that bends first.
Words powerReason(const Row& row, const Design& design)
{
    const Part* load = partOf(design.circuit, "RLw");
    const double wanted = row.asked.value_or(row.course.value_or(0));
    const double ohms = load == nullptr ? 1 : load->value;
    const double peak = row.quantity == Quantity::Eopp ? wanted / 2 / ohms : std::sqrt(2 * wanted / ohms);
    const std::string needed = amountText(peak, "A");
    if (design.mostPeak > 0 && design.mostPeak < peak) {
        const std::string most = amountText(design.mostPeak, "A");
        return {"Ibias x Beta da " + most + " y la corriente pico pide " + needed + ".",
                "Ibias x Beta gives " + most + ", and the peak current asks for " + needed + "."};
    }
    return {"Q1 debe mover casi toda su corriente de reposo: su r'e cambia con la señal, y la onda se dobla antes que "
            "la salida.",
            "Q1 must swing nearly its whole quiescent current: its r'e changes with the signal, and the wave bends "
            "before the "
            "output does."};
}

/// The reason that a row without a ladder may have.
Words reasonOf(const Row& row, const Design& design, const Ceilings& ceilings)
{
    const std::string amount = amountText(row.simulated.value_or(0), textOf(row.quantity).unit);
    const bool isPower = design.table->stage == StageKind::other;
    switch (row.quantity) {
    case Quantity::dBfo:
        return {"Una décima en reactancia no es una décima en ganancia: la suya da " + amount + " a fo.",
                "A tenth in reactance is not a tenth in gain: yours gives " + amount + " at fo."};
    case Quantity::fL:
        return {"Cada capacitor quita su parte, y las partes se suman: a -3 dB se llega recién en " + amount + ".",
                "Each capacitor takes its share, and the shares add up: -3 dB are met only at " + amount + "."};
    case Quantity::Vg:
        return {
            "A media excursión el cruce por cero y la corriente que cambia con la señal quitan o agregan ganancia.",
            "At half the swing the crossing of zero, and a current that changes with the signal, take or add gain."};
    case Quantity::Eopp: {
        if (isPower)
            return powerReason(row, design);
        const double cutOff = ceilings.cutOff;
        if (!isBent(row, ceilings))
            return {"La ganancia es menor que la del curso: vea Vg.", "The gain is less than the course's: see Vg."};
        if (ceilings.cutOffIsNearer())
            return {"La onda se dobla porque QIc x RLac es " + amountText(cutOff, "V") + ".",
                    "The wave bends because QIc x RLac is " + amountText(cutOff, "V") + "."};
        return {"La onda se dobla porque el transistor satura: Vce deja " + amountText(ceilings.saturation, "V") + ".",
                "The wave bends because the transistor saturates: Vce leaves " + amountText(ceilings.saturation, "V") +
                    "."};
    }
    case Quantity::Pout:
    case Quantity::Pclean:
        return powerReason(row, design);
    case Quantity::drift:
        return {"La tensión sobre Res no alcanza para tanto corrimiento de Vbe.",
                "The voltage across Res is too small for so much drift of Vbe."};
    default:
        break;
    }
    if (isPower)
        return {"El curso cuenta 0.6 V por juntura; las del simulador siguen a su corriente.",
                "The course counts 0.6 V a junction; those of the simulator follow their current."};
    return {
        "El curso cuenta una tensión de juntura fija; la del simulador sigue a la corriente, y la base toma la suya.",
        "The course counts a fixed junction voltage; that of the simulator follows the current, and the base takes its "
        "own."};
}

/// What the ladder says: its highest rung, and where that leads.
Words reasonOfLadder(const Row& row)
{
    const Rung& rung = *row.ladder.highest();
    const std::string amount = amountText(*row.simulated, textOf(row.quantity).unit);
    return {std::string(rung.reason.es) + " El simulador mide " + amount + ".",
            std::string(rung.reason.en) + " The simulator measures " + amount + "."};
}

Words because(const Row& row, const Design& design, const Ceilings& ceilings)
{
    return row.ladder.rungs.empty() ? reasonOf(row, design, ceilings) : reasonOfLadder(row);
}

/// How the generator feels about its load.
Words loadWords(double share)
{
    const std::string percent = amountText(100 * share, "%");
    if (share >= lightLoad)
        return {"carga liviana: llega " + percent + " de Eg.", "a light load: " + percent + " of Eg arrives."};
    return {"carga pesada: de Eg llega " + percent + ". Rg y Zin se reparten la señal.",
            "a heavy load: " + percent + " of Eg arrives. Rg and Zin share the signal."};
}

Words verdictOf(const Row& row, const Design& design, const Ceilings& ceilings)
{
    const QuantityText& text = textOf(row.quantity);
    switch (row.judgement) {
    case Judgement::agrees:
        return {"coincide", "agrees"};
    case Judgement::differs: {
        const Words reason = because(row, design, ceilings);
        return {"difiere, porque: " + reason.es, "differs, because: " + reason.en};
    }
    case Judgement::notReached: {
        const Words reason = because(row, design, ceilings);
        const std::string wanted = amountText(*referenceOf(row), text.unit);
        return {wanted + " no se alcanza. " + reason.es, wanted + " not reached. " + reason.en};
    }
    case Judgement::unexplained:
        return {"no se pudo explicar: sin veredicto", "could not be explained: no verdict"};
    case Judgement::shown:
        return row.quantity == Quantity::output ? loadWords(*row.simulated) : Words{"medido", "measured"};
    case Judgement::missing:
        break;
    }
    return {"sin simular", "not simulated"};
}

} // namespace verdict_detail

std::string amountText(double value, std::string_view unit)
{
    using namespace verdict_detail;
    if (!std::isfinite(value))
        return "-";
    const bool isThousands = unit == "ohm" && std::abs(value) >= 1000;
    const double shown = isThousands ? value / 1000 : value;
    const double size = std::abs(shown);
    const int whole = size >= 1 ? static_cast<int>(std::floor(std::log10(size))) + 1 : 0;
    const int leadingZeros = size > 0 && size < 1 ? static_cast<int>(-std::floor(std::log10(size))) - 1 : 0;
    const int digits = std::clamp(3 - whole + leadingZeros, 0, 9);
    const std::string_view shownUnit = isThousands ? "K" : unit;
    return fixedText(shown, digits) + (shownUnit.empty() ? "" : " " + std::string(shownUnit));
}

std::string stepText(const Row& row, std::size_t rung)
{
    const double step = row.ladder.stepOf(rung);
    const bool isGain = textOf(row.quantity).measure == Measure::decibel;
    const double percent = 100 * (std::pow(10, step / 20) - 1);
    // Steps are compared with each other: as many digits behind the point for all.
    const std::string amount =
        isGain ? verdict_detail::fixedText(step, 2) + " dB" : verdict_detail::fixedText(percent, 1) + " %";
    return step > 0 && amount.front() != '0' ? '+' + amount : amount;
}

void judge(Row& row, const Design& design, const Ceilings& ceilings)
{
    row.judgement = verdict_detail::judgementOf(row, ceilings);
    row.verdict = verdict_detail::verdictOf(row, design, ceilings);
}

} // namespace velmor::check
