// SPDX-License-Identifier: MIT
// The texts of the window of a check, in both languages. What a quantity is and what a verdict says stands in src/check.
#pragma once

#include <QRegularExpression>
#include <QString>

#include "check/check.h"
#include "check/verdict.h"
#include "desktop/drawing/texts.h"
#include "host/bitext.h"

namespace velmor::desktop::check_words {

using host::BiText;

inline QString in(const BiText& text, bool english)
{
    return shown(english ? text.en : text.es);
}
inline QString in(const check::Words& words, bool english)
{
    return shown(words.in(english));
}

// clang-format off
inline constexpr BiText title      {"Comprobar: %1", "Check: %1"};
// the table
inline constexpr BiText tableName  {"Magnitudes del diseño", "Quantities of the design"};
inline constexpr BiText columns[]  {{"Magnitud", "Quantity"}, {"Pedido", "Asked"}, {"Curso", "Course"},
                                    {"Simulador", "Simulator"}, {"Veredicto", "Verdict"}};
inline constexpr BiText nothing    {"nada", "nothing"};
inline constexpr BiText closedCell {"su apuesta", "your bet"};
inline constexpr BiText running    {"simulando", "simulating"};
// the line above it
inline constexpr BiText atWork     {"El simulador trabaja...", "The simulator is at work..."};
inline constexpr BiText changed    {"El diseño cambió: esto es de antes.", "The design has changed: this is from before."};
inline constexpr BiText again      {"&Comprobar otra vez  (F5)", "&Check again  (F5)"};
inline constexpr BiText invitation {"¿Qué medirá el simulador? Elija una fila y apueste; después se abre.",
                                    "What will the simulator measure? Choose a row and bet; then it opens."};
inline constexpr BiText score      {"Apuestas acertadas: %1 de %2.", "Bets won: %1 of %2."};
inline constexpr BiText tally      {"De %1 comparadas, coinciden %2.", "Of %1 compared, %2 agree."};
// the two runs of a stage with a preset
inline constexpr BiText runsName   {"Valores que se simulan", "Values that are simulated"};
inline constexpr BiText runs[]     {{"Sus &valores", "Your &values"}, {"Presets a&justados", "Presets tri&mmed"}};
inline constexpr BiText runTips[]  {{"Simula el preset como usted lo dejó; F7 cambia",
                                     "Simulates the preset as you set it; F7 changes"},
                                    {"Gira el preset hasta que el medio quede en Es / 2 y después simula; F7 cambia",
                                     "Turns the preset until the middle stands at Es / 2, then simulates; F7 changes"}};
// the row in hand
inline constexpr BiText question   {"El curso calcula %1. El simulador medirá...",
                                    "The course works out %1. The simulator will measure..."};
inline constexpr BiText lower      {"&1  menos", "&1  less"};
inline constexpr BiText same       {"&2  lo mismo", "&2  the same"};
inline constexpr BiText higher     {"&3  más", "&3  more"};
inline constexpr BiText openAll    {"Sin apostar: abrir &todo", "No bets: &open all"};
inline constexpr BiText sameMeans  {"Lo mismo: hasta un décimo más o menos; en una ganancia, 1 dB.",
                                    "The same: up to a tenth more or less; of a gain, 1 dB."};
inline constexpr BiText guesses[]  {{"menos", "less"}, {"lo mismo", "the same"}, {"más", "more"}};
inline constexpr BiText won        {"Apostó «%1», y acertó.", "You bet “%1”, and won."};
inline constexpr BiText lost       {"Apostó «%1», y resultó «%2».", "You bet “%1”, and it came out “%2”."};
inline constexpr BiText ladderName {"Del curso al simulador, paso a paso", "From the course to the simulator, step by step"};
inline constexpr BiText course     {"El curso", "The course"};
inline constexpr BiText remainder  {"El simulador: sin explicar quedan %1", "The simulator: %1 are left unexplained"};
inline constexpr BiText explained  {"El simulador: no queda nada sin explicar", "The simulator: nothing is left unexplained"};
// plots
inline constexpr BiText curves     {"C&urvas", "C&urves"};
inline constexpr BiText gainName   {"Ganancia según la frecuencia", "Gain against frequency"};
inline constexpr BiText waveName   {"Onda de salida a 1 kHz", "Output wave at 1 kHz"};
inline constexpr BiText harmonicsName{"Armónicas", "Harmonics"};
inline constexpr BiText gainVeil   {"Se abre con las apuestas de fL y del nivel a fo.",
                                    "It opens with the bets on fL and on the level at fo."};
inline constexpr BiText waveVeil   {"Se abre con la apuesta de la salida pico a pico.",
                                    "It opens with the bet on the output peak to peak."};
inline constexpr BiText noPlot     {"Sin simulación no hay curva.", "Without a simulation there is no curve."};
inline constexpr BiText noUpper    {"sin límite superior en el modelo", "no upper limit in the model"};
inline constexpr BiText cutOff     {"corte: %1", "cut-off: %1"};
inline constexpr BiText saturation {"saturación: %1", "saturation: %1"};
inline constexpr BiText bendsFirst {"primero", "first"};
inline constexpr BiText inputTimes {"entrada × %1", "input × %1"};
inline constexpr BiText output     {"salida", "output"};
inline constexpr BiText gainShape  {"Sube desde las frecuencias bajas, cruza −3 dB en %1, "
                                    "y desde %2 es plana hasta 100 kHz. A fo = %3 está en %4.",
                                    "It rises from the low frequencies, crosses −3 dB at %1, "
                                    "and is flat from %2 to 100 kHz. At fo = %3 it is at %4."};
inline constexpr BiText waveShape  {"Sube hasta %1 y baja hasta %2; distorsión %3. %4",
                                    "It goes up to %1 and down to %2; distortion %3. %4"};
inline constexpr BiText flatTop    {"La cresta está aplastada.", "The crest is flattened."};
inline constexpr BiText flatBottom {"El valle está aplastado.", "The trough is flattened."};
inline constexpr BiText bothFlat   {"La cresta y el valle están aplastados.", "The crest and the trough are flattened."};
inline constexpr BiText roundWave  {"Ambas mitades son casi iguales.", "Both halves are nearly alike."};
inline constexpr BiText drive      {"&Entrada", "&Input"};
inline constexpr BiText driveName  {"Entrada, en veces la del curso", "Input, in times that of the course"};
inline constexpr BiText driveAmount{"%1 × Ein = %2 pico", "%1 × Ein = %2 peak"};
inline constexpr BiText thdAmount  {"salida: %1 Vpp, distorsión %2", "output: %1 Vpp, distortion %2"};
// the other pages
inline constexpr BiText assumedPage{"&Supuestos", "&Assumed"};
inline constexpr BiText assumedHead{"Lo que la hoja no dice y se supuso:", "What the sheet does not say, and was assumed:"};
inline constexpr BiText netlistPage{"&Netlist", "&Netlist"};
inline constexpr BiText detailsPage{"&Detalles", "&Details"};
inline constexpr BiText noDetails  {"El simulador no dijo nada.", "The simulator said nothing."};
// deeds
inline constexpr BiText toReport   {"Al &informe", "To the &report"};
inline constexpr BiText toReportTip{"Agrega la tabla al final del informe; lo abre si hace falta",
                                    "Adds the table at the end of the report; opens it if need be"};
inline constexpr BiText toClipboard{"Co&piar la tabla", "Co&py the table"};
inline constexpr BiText save       {"&Guardar", "&Save"};
inline constexpr BiText saveTable  {"Tabla (CSV)...", "Table (CSV)..."};
inline constexpr BiText saveSvg    {"Curvas (SVG)...", "Curves (SVG)..."};
inline constexpr BiText savePdf    {"Curvas (PDF)...", "Curves (PDF)..."};
inline constexpr BiText saveNetlist{"Netlist (CIR)...", "Netlist (CIR)..."};
inline constexpr BiText written    {"Guardado: %1", "Saved: %1"};
inline constexpr BiText notWritten {"No se pudo guardar: %1", "It could not be saved: %1"};
inline constexpr BiText copied     {"La tabla está en el portapapeles.", "The table is on the clipboard."};
inline constexpr BiText reported   {"La tabla está al final del informe.", "The table is at the end of the report."};
inline constexpr BiText notReported{"No se pudo abrir el informe.", "The report could not be opened."};
// clang-format on

/// A quantity as on the sheets, the index behind "_".
inline std::string_view symbolOf(check::Quantity quantity)
{
    static constexpr std::string_view symbols[]{"Q_Ic", "Q_Ic2", "Q_Ic3", "Q_Ic4", "Q_Ic5", "Q_Ic6",   "Q_Ic7",
                                                "V_ce", "V_g",   "Z_in",  "f_L",   "dB_fo", "E_o/E_g", "E_opp",
                                                "THD",  "ΔQ_Ic", "P_o",   "P_10",  "η",     "P_Q"};
    static_assert(std::size(symbols) == static_cast<std::size_t>(check::Quantity::count));
    return symbols[static_cast<std::size_t>(quantity)];
}

/// The same in a line of words.
inline QString plainSymbolOf(check::Quantity quantity)
{
    return shown(symbolOf(quantity)).remove(QLatin1Char('_'));
}

/// A hyphen before a figure is a minus sign.
inline QString minus(QString text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i)
        if (text[i] == QLatin1Char('-') && text[i + 1].isDigit() &&
            (i == 0 || text[i - 1] == QLatin1Char(' ') || text[i - 1] == QLatin1Char('(')))
            text[i] = QChar(0x2212);
    return text;
}

/// Words with figures in them as they stand on the screen: ohms and minus signs as on the sheets.
inline QString prose(QString text)
{
    static const QRegularExpression kilohms(QStringLiteral("(?<=\\d) K\\b"));
    static const QRegularExpression ohms(QStringLiteral("(?<=\\d) ohm\\b"));
    return minus(text.replace(kilohms, QStringLiteral(" kΩ")).replace(ohms, QStringLiteral(" Ω")));
}

/// An amount as it stands on the screen.
inline QString amount(double value, std::string_view unit)
{
    return prose(shown(check::amountText(value, unit)));
}
inline QString amount(const check::Measured& value, std::string_view unit)
{
    return value ? amount(*value, unit) : QStringLiteral("–");
}

} // namespace velmor::desktop::check_words
