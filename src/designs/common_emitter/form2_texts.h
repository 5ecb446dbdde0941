// SPDX-License-Identifier: MIT
// What `Form2` says besides what its family says (emitter_texts.h): its prompts, captions and help pages. Texts only;
// misprints are the course's.
#pragma once

#include <array>
#include <span>

#include "designs/common_emitter/emitter_texts.h"
#include "designs/common_emitter/form2_controls.h"
#include "sheets/chain.h"
#include "sheets/saying.h"

namespace velmor::form2 {

using host::BiText;
using sheets::Saying;
using sheets::When;

/// Prompts by field and moment, the names of the buttons under the pointer among them.
extern const std::span<const Saying> sayings;
/// Pages of the fields, in the order in which tags are tested.
extern const std::span<const sheets::HelpPage> helpPages;

// clang-format off
/// Captions that are written when the sheet is loaded.
inline constexpr auto captions = std::to_array<Saying>({
    {.place = Label6,    .text = common_emitter::headingTransistor},
    {.place = Label11,   .text = common_emitter::headingCircuit},
    {.place = Label19,   .text = {"Coloque -Es sin el signo", "Put -Es without its sign"}},
    {.place = Label20,   .text = {"Sin resistor Rb1", "Without resistor Rb1"}},
    {.place = sta4,      .text = common_emitter::capacitorsInMicrofarads},
    {.place = Picture6,  .text = common_emitter::bypassName},
    {.place = Picture4,  .text = {"Parcialmente desacoplado", "Parcial Bypass"}},
    {.place = Picture11, .text = {"Polarizado p/Emisor", "Polarized by Emitter"}},
    {.place = Picture10, .text = {"Polarizado p/Emisor", "Polarized by Emitter"}},
    {.place = Picture2,  .text = {"Bootstrapping", "Bootstrapping"}},
    {.place = Picture7,  .text = {"Bootstrapping", "Bootstrapping"}},
    {.place = Picture1,  .text = common_emitter::bypassName},
});
// clang-format on

inline constexpr BiText fileFilter{.es = "Emisor Común Realimentado por Corriente (*.RPC)|*.RPC",
                                   .en = "Common Emitter Feedback Current (*.CEC)|*.CEC"};
inline constexpr BiText noteWindowTitle{.es = "Ayuda,(no necesito a nadie..)", .en = "Help. (ain't got nobody)"};
inline constexpr BiText beginHere{.es = " Para comenzar: \n CLICK en cuadro Delta QIc...\nDerecho del Mouse da Ayuda",
                                  .en = " Beginning with CLICK in Delta QIc..."};
inline constexpr BiText startPrompt{
    .es =
        "Ingrese la variación mâxima de corriente de reposo admisible con los cambios de temperatura de trabajo. Para "
        "circutos criticos (electromedicina) utilice valores de 1 a 3. \nDerecho del Mouse es Ayuda...",
    .en = "it enters the maximum variation of quiescent current acceptable  with the changes of work temperature. For "
          "critical circutos (electro medicine) used values of 1 at 3. "};
inline constexpr BiText helpTitle{.es = "Ayuda", .en = "Help"};
inline constexpr BiText noUpperResistor{.es = "Without resistor Rb1... ENTER pulse",
                                        .en = "Without resistor Rb1... ENTER pulse"};
inline constexpr BiText bootstrapHint{
    .es = "Si desea mayor impedancia de entrada, pulse BOOTSTRAPPING. \nSalvo indicacion, "
          "capacitores en microFaradios        ",
    .en = "If you wants bigger entrance impedance, BOOTSTRAPPING pulse. \nExcept for indication, "
          "capacitors in microFarade"};
inline constexpr BiText archivedEmitter{.es = "Circuito de Archivo : Polarizado por Emisor ",
                                        .en = "Archive Circuit : Emmiter polarized"};
inline constexpr BiText guideByBase{.es = "guia1.Lab", .en = "Feedback Current.Lab"};
inline constexpr BiText guideByEmitter{.es = "polemisor.Lab", .en = "Feedback Current.Lab"};

} // namespace velmor::form2
