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
constexpr double bentDistortion = 10.0; // %; what counts as clean power has less
constexpr double lightLoad = 0.9;       ///< of Eg must arrive for a load to be called light

constexpr host::BiText judgements[]{{"coincide", "agrees"},          {"cumple", "met"},
                                    {"difiere", "differs"},          {"no se alcanza", "not reached"},
                                    {"sin explicar", "unexplained"}, {"medido", "measured"},
                                    {"sin simular", "not simulated"}};

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
    const bool isLimit = measure == Measure::atLeast || measure == Measure::atMost;
    if (agrees(measure, *row.simulated, *reference) && !isBent(row, ceilings))
        return !isLimit || agrees(Measure::share, *row.simulated, *reference) ? Judgement::agrees : Judgement::met;
    return isLimit ? Judgement::notReached : Judgement::differs;
}

// Reasons begin small, as they go on behind "because"; who puts one at the beginning of a line raises its first letter.

/// Whether the wave, with so much current at its peak, meets the supply before the outputs lack current: the preset is not
/// turned, and the middle rests too near to one end.
bool meetsSupply(const Preset& preset, double peak, double ohms, double mostPeak)
{
    const Measured room = roomOfMiddle(preset);
    if (preset.run != Run::yourValues || !room)
        return false;
    return *room < peak * ohms && (mostPeak <= 0 || *room < mostPeak * ohms);
}

/// The middle that a preset has left beside half the supply.
Words middleWords(const Preset& preset)
{
    const std::string middle = amountText(preset.middle.value_or(0), "V");
    const std::string half = amountText(preset.supply / 2, "V");
    return {"con el preset como está, el medio descansa en " + middle + " y no en Es / 2, " + half + ": ",
            "with the preset as it is, the middle rests at " + middle + " and not at Es / 2, " + half + ": "};
}

Words roomReason(const Preset& preset)
{
    const Words middle = middleWords(preset);
    const std::string room = amountText(roomOfMiddle(preset).value_or(0), "V");
    return {middle.es + "hasta un extremo de la fuente quedan " + room + ".",
            middle.en + "to one end of the supply " + room + " are left."};
}

/// Whether the middle accounts for at least half of what the current lacks.
bool isCurrentOfMiddle(const Row& row, const Preset& preset)
{
    if (preset.run != Run::yourValues || row.quantity != Quantity::QIc || !row.course || *row.course == 0)
        return false;
    const double lack = lackOfMiddle(preset);
    const double difference = row.simulated.value_or(0) / *row.course - 1;
    return lack * difference > 0 && std::abs(lack) >= std::abs(difference) / 2;
}

/// Why the power does not come out: the rest of the output, the current that the outputs can get, or the driver that bends first.
Words powerReason(const Row& row, const Design& design, const Preset& preset)
{
    const Part* load = partOf(design.circuit, "RLw");
    const double wanted = row.asked.value_or(row.course.value_or(0));
    const double ohms = load == nullptr ? 1 : load->value;
    const double peak = row.quantity == Quantity::Eopp ? wanted / 2 / ohms : std::sqrt(2 * wanted / ohms);
    if (meetsSupply(preset, peak, ohms, design.mostPeak))
        return roomReason(preset);
    if (row.quantity == Quantity::Pclean && row.simulated == 0.0)
        return {"hasta la onda más débil sale doblada: en el cruce por cero las salidas no conducen.",
                "even the faintest wave comes out bent: at the crossover the outputs do not conduct."};
    const std::string needed = amountText(peak, "A");
    if (design.mostPeak > 0 && design.mostPeak < peak) {
        const std::string most = amountText(design.mostPeak, "A");
        return {"Ibias x Beta da " + most + ", y la corriente pico tiene que ser de " + needed + ".",
                "Ibias x Beta gives " + most + ", and the peak current must be " + needed + "."};
    }
    return {"Q1 tiene que mover casi toda su corriente de reposo: su r'e cambia con la señal y dobla la onda antes de "
            "que la salida llegue a su límite.",
            "Q1 must swing nearly its whole quiescent current: its r'e changes with the signal and bends the wave "
            "before the output comes to its limit."};
}

/// Why a class B stage amplifies otherwise than the course says, at half the swing.
Words powerGainReason(const Row& row, const Design& design)
{
    const auto Eopp = std::find_if(design.rows.begin(), design.rows.end(),
                                   [](const Expected& other) { return other.quantity == Quantity::Eopp; });
    const Part* load = partOf(design.circuit, "RLw");
    const bool isSmaller = row.simulated.value_or(0) < row.course.value_or(0);
    if (isSmaller && design.mostPeak > 0 && load != nullptr && Eopp != design.rows.end() && Eopp->course) {
        const double peak = *Eopp->course / 4 / load->value;
        const std::string needed = amountText(peak, "A");
        const std::string most = amountText(design.mostPeak, "A");
        if (peak > design.mostPeak)
            return {"ya a media excursión la corriente pico tendría que ser de " + needed + ", e Ibias x Beta da " +
                        most + ": la onda queda recortada.",
                    "even at half the swing the peak current would have to be " + needed + ", and Ibias x Beta gives " +
                        most + ": the wave is clipped."};
    }
    if (isSmaller)
        return {"a media excursión, el cruce por cero se queda con una parte de la ganancia.",
                "at half the swing, the crossover keeps a part of the gain."};
    return {"el curso cuenta RLa como carga de Q1; por el bootstrap está a la salida, y Q1 casi no la ve.",
            "the course counts RLa as a load of Q1; by the bootstrap it hangs at the output, and Q1 hardly sees it."};
}

/// Why a small-signal stage does not swing as far as it was asked to.
Words swingReason(const Row& row, const Ceilings& ceilings)
{
    if (!isBent(row, ceilings))
        return {"la ganancia es menor que la del curso; vea Vg.", "the gain is less than the course's; see Vg."};
    if (ceilings.cutOffIsNearer()) {
        const std::string cutOff = amountText(ceilings.cutOff, "V");
        return {"la onda se dobla porque QIc x RLac es " + cutOff + ".",
                "the wave bends because QIc x RLac is " + cutOff + "."};
    }
    const std::string saturation = amountText(ceilings.saturation, "V");
    return {"la onda se dobla porque el transistor se satura: Vce deja " + saturation + ".",
            "the wave bends because the transistor saturates: Vce leaves " + saturation + "."};
}

/// The reason that a row without a ladder may have.
Words reasonOf(const Row& row, const Design& design, const Check& check)
{
    const std::string amount = amountText(row.simulated.value_or(0), textOf(row.quantity).unit);
    const bool isPower = design.table->stage == StageKind::other;
    for (const Expected& expected : design.rows)
        if (expected.quantity == row.quantity && !expected.reason.en.empty())
            return {std::string(expected.reason.es), std::string(expected.reason.en)};
    switch (row.quantity) {
    case Quantity::dBfo:
        return {"una décima en reactancia no es una décima en ganancia: la suya da " + amount + " a fo.",
                "a tenth in reactance is not a tenth in gain: yours gives " + amount + " at fo."};
    case Quantity::fL:
        return {"cada capacitor quita su parte, y las partes se suman: a -3 dB se llega ya en " + amount + ".",
                "each capacitor takes its share, and the shares add up: -3 dB are met already at " + amount + "."};
    case Quantity::Vg:
        return powerGainReason(row, design);
    case Quantity::Eopp:
        return isPower ? powerReason(row, design, check.preset) : swingReason(row, check.ceilings);
    case Quantity::Pout:
    case Quantity::Pclean:
        return powerReason(row, design, check.preset);
    case Quantity::drift:
        return {"la tensión sobre Res es poca para tanto corrimiento de Vbe.",
                "the voltage across Res is too small for so much drift of Vbe."};
    default:
        break;
    }
    if (isCurrentOfMiddle(row, check.preset)) {
        const Words middle = middleWords(check.preset);
        return {middle.es + "a RL le queda otra tensión.", middle.en + "RL is left with another voltage."};
    }
    if (isPower)
        return {"el curso cuenta 0.6 V por juntura, y en el simulador cada juntura sigue a su corriente.",
                "the course counts 0.6 V a junction, and in the simulator each junction follows its current."};
    return {
        "el curso cuenta una tensión de juntura fija; en el simulador sigue a la corriente, y la base toma la suya.",
        "the course counts a fixed junction voltage; in the simulator it follows the current, and the base takes its "
        "own."};
}

/// What the ladder says: its highest rung, and where that leads.
Words reasonOfLadder(const Row& row)
{
    const Rung& rung = *row.ladder.highest();
    const std::string_view unit = textOf(row.quantity).unit;
    const std::string there = amountText(rung.value, unit);
    const std::string amount = amountText(*row.simulated, unit);
    return {std::string(rung.reason.es) + " Así da " + there + "; el simulador mide " + amount + ".",
            std::string(rung.reason.en) + " That makes " + there + "; the simulator measures " + amount + "."};
}

Words because(const Row& row, const Design& design, const Check& check)
{
    return row.ladder.rungs.empty() ? reasonOf(row, design, check) : reasonOfLadder(row);
}

/// How the generator feels about its load.
Words loadWords(double share)
{
    const std::string percent = amountText(100 * share, "%");
    if (share >= lightLoad)
        return {"carga liviana: llega el " + percent + " de Eg.", "a light load: " + percent + " of Eg arrives."};
    return {"carga pesada: llega el " + percent + " de Eg. Rg y Zin se reparten la señal.",
            "a heavy load: " + percent + " of Eg arrives. Rg and Zin share the signal."};
}

/// What a measured value means that nothing is compared with.
Words measuredWords(const Row& row)
{
    if (row.quantity == Quantity::output)
        return loadWords(*row.simulated);
    if (row.quantity == Quantity::heat)
        return {"medido: es lo que la fuente entrega y no llega a RLw.",
                "measured: it is what the supply gives and does not reach RLw."};
    return {"medido", "measured"};
}

/// A power or a swing may be reached by a wave that nobody wants to hear.
Words agreement(const Row& row, const Measured& distortion)
{
    const host::BiText& word = judgementText(row.judgement);
    const Words agrees{std::string(word.es), std::string(word.en)};
    const bool isPower = row.quantity == Quantity::Pout || row.quantity == Quantity::Eopp;
    if (!isPower || !distortion || *distortion <= bentDistortion)
        return agrees;
    const std::string amount = amountText(*distortion, "%");
    return {agrees.es + ", pero con la onda doblada: " + amount + " de distorsión.",
            agrees.en + ", but with a bent wave: " + amount + " distortion."};
}

Words verdictOf(const Row& row, const Design& design, const Check& check)
{
    const QuantityText& text = textOf(row.quantity);
    switch (row.judgement) {
    case Judgement::agrees:
    case Judgement::met:
        return agreement(row, check.swing.distortion);
    case Judgement::differs: {
        const Words reason = because(row, design, check);
        return {"difiere, porque " + reason.es, "differs, because " + reason.en};
    }
    case Judgement::notReached: {
        const Words reason = because(row, design, check);
        const std::string wanted = amountText(*referenceOf(row), text.unit);
        return {"no se alcanzan " + wanted + ": " + reason.es, wanted + " not reached: " + reason.en};
    }
    case Judgement::unexplained:
        return {"no se pudo explicar: sin veredicto", "could not be explained: no verdict"};
    case Judgement::shown:
        return measuredWords(row);
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
    // Of levels and shares the third digit behind the point says nothing to anybody.
    const int most = unit == "dB" || unit == "%" ? 2 : 9;
    const int digits = std::clamp(3 - whole + leadingZeros, 0, most);
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
    return step > 0 && !amount.starts_with("0 ") ? '+' + amount : amount;
}

const host::BiText& judgementText(Judgement judgement)
{
    return verdict_detail::judgements[static_cast<std::size_t>(judgement)];
}

std::string sentence(std::string_view reason)
{
    std::string text(reason);
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

void judge(Row& row, const Design& design, const Check& check)
{
    row.judgement = verdict_detail::judgementOf(row, check.ceilings);
    row.verdict = verdict_detail::verdictOf(row, design, check);
}

} // namespace velmor::check
