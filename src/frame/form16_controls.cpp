// SPDX-License-Identifier: MIT
// Table of the palette: a row of picture buttons, each on the shape that marks it.
#include "frame/form16_controls.h"

#include "frame/button_drawings.h"
#include "frame/form16.h"

namespace velmor::palette {

using host::Event;
using host::KeyAction;
using host::Kind;
using host::Look;
using host::noControl;
using host::slot;

namespace form16_table {

constexpr int pitch = 1100;
constexpr host::Place buttonPlace(int index)
{
    return {120 + index * pitch, 120, 1040, 1080};
}
constexpr host::Place shapePlace(int index)
{
    return {95 + index * pitch, 95, 1090, 1130};
}

// clang-format off
constexpr host::ControlRow controls[] = {
    {.id = Shape1_0, .name = "Shape1(0)", .kind = Kind::shape, .place = shapePlace(0)},
    {.id = Shape1_1, .name = "Shape1(1)", .kind = Kind::shape, .place = shapePlace(1)},
    {.id = Shape1_2, .name = "Shape1(2)", .kind = Kind::shape, .place = shapePlace(2)},
    {.id = Shape1_3, .name = "Shape1(3)", .kind = Kind::shape, .place = shapePlace(3)},
    {.id = Shape1_4, .name = "Shape1(4)", .kind = Kind::shape, .place = shapePlace(4)},
    {.id = Shape1_5, .name = "Shape1(5)", .kind = Kind::shape, .place = shapePlace(5)},
    {.id = Shape1_6, .name = "Shape1(6)", .kind = Kind::shape, .place = shapePlace(6)},
    {.id = Shape1_7, .name = "Shape1(7)", .kind = Kind::shape, .place = shapePlace(7)},
    {.id = Shape1_8, .name = "Shape1(8)", .kind = Kind::shape, .place = shapePlace(8)},
    {.id = Shape1_9, .name = "Shape1(9)", .kind = Kind::shape, .place = shapePlace(9)},
    {.id = Shape1_10, .name = "Shape1(10)", .kind = Kind::shape, .place = shapePlace(10)},
    {.id = Shape1_11, .name = "Shape1(11)", .kind = Kind::shape, .place = shapePlace(11)},
    {.id = Shape1_12, .name = "Shape1(12)", .kind = Kind::shape, .place = shapePlace(12)},
    {.id = imgButton0, .name = "imgButton(0)", .kind = Kind::image, .place = buttonPlace(0),
     .meaning = {.es = "Amplificador Diferencial Simple", .en = "Long Tail Pairs Simple"},
     .look = Look::toolButton, .drawing = button_drawings::longTailedPair},
    {.id = imgButton1, .name = "imgButton(1)", .kind = Kind::image, .place = buttonPlace(1),
     .meaning = {.es = "Amplificador Diferencial Compuesto", .en = "Long Tail Pairs Compound"},
     .look = Look::toolButton, .drawing = button_drawings::cascodePair},
    {.id = imgButton2, .name = "imgButton(2)", .kind = Kind::image, .place = buttonPlace(2),
     .meaning = {.es = "Circuito con Base Común", .en = "Common Base"},
     .look = Look::toolButton, .drawing = button_drawings::commonBase},
    {.id = imgButton3, .name = "imgButton(3)", .kind = Kind::image, .place = buttonPlace(3),
     .meaning = {.es = "Fuente de Corriente Constante", .en = "DC Current Source"},
     .look = Look::toolButton, .drawing = button_drawings::currentSource},
    {.id = imgButton4, .name = "imgButton(4)", .kind = Kind::image, .place = buttonPlace(4),
     .meaning = {.es = "Inversor de Fase", .en = "Paraphase"},
     .look = Look::toolButton, .drawing = button_drawings::paraphase},
    {.id = imgButton5, .name = "imgButton(5)", .kind = Kind::image, .place = buttonPlace(5),
     .meaning = {.es = "Colector Común", .en = "Common Collector"},
     .look = Look::toolButton, .drawing = button_drawings::emitterFollower},
    {.id = imgButton6, .name = "imgButton(6)", .kind = Kind::image, .place = buttonPlace(6),
     .meaning = {.es = "Potencia en Clase A mejorada...", .en = "Power Amplifier. (Class A - Darlington)"},
     .look = Look::toolButton, .drawing = button_drawings::classADarlington},
    {.id = imgButton7, .name = "imgButton(7)", .kind = Kind::image, .place = buttonPlace(7),
     .meaning = {.es = "Amplificador Clase A Simple", .en = "Power Amplifier Class A Simple"},
     .look = Look::toolButton, .drawing = button_drawings::classASimple},
    {.id = imgButton8, .name = "imgButton(8)", .kind = Kind::image, .place = buttonPlace(8),
     .meaning = {.es = "Amplificador Clase B", .en = "Power Amplifier Class B"},
     .look = Look::toolButton, .drawing = button_drawings::classBSimple},
    {.id = imgButton9, .name = "imgButton(9)", .kind = Kind::image, .place = buttonPlace(9),
     .meaning = {.es = "Clase B mejorado...", .en = "Power Amplifier Class B Darlington."},
     .look = Look::toolButton, .drawing = button_drawings::classBDarlington},
    {.id = imgButton10, .name = "imgButton(10)", .kind = Kind::image, .place = buttonPlace(10),
     .meaning = {.es = "Emisor Común Realimentado por Corriente", .en = "Common Emmiter (feedback for current)"},
     .look = Look::toolButton, .drawing = button_drawings::commonEmitter},
    {.id = imgButton11, .name = "imgButton(11)", .kind = Kind::image, .place = buttonPlace(11),
     .meaning = {.es = "Emisor Común Realimentado por tensión", .en = "Common Emmiter (feedback for Voltage)"},
     .look = Look::toolButton, .drawing = button_drawings::voltageFeedback},
    {.id = lblButton, .name = "lblButton", .kind = Kind::label, .place = buttonPlace(12),
     .meaning = {.es = "Todos los circuitos", .en = "All circuits"},
     .look = Look::toolButton},
};
static_assert(host::rowsInOrder(controls));
static_assert(std::size(controls) == controlCount);

constexpr auto makeSlots()
{
    std::array<host::SlotRow, 12 * 4 + 6> rows{};
    std::size_t at = 0;
    for (host::Handle button = imgButton0; button <= imgButton11; ++button) {
        rows[at++] = {button, Event::hover, slot<&Form16::hoverButton>};
        rows[at++] = {button, Event::mouseDown, slot<&Form16::pressButton>};
        rows[at++] = {button, Event::mouseUp, slot<&Form16::releaseButton>};
        rows[at++] = {button, Event::click, slot<&Form16::clickButton>};
    }
    rows[at++] = {lblButton, Event::hover, slot<&Form16::hoverAll>};
    rows[at++] = {lblButton, Event::click, slot<&Form16::clickAll>};
    rows[at++] = {noControl, Event::load, slot<&Form16::load>};
    rows[at++] = {noControl, Event::activate, slot<&Form16::activate>};
    rows[at++] = {noControl, Event::queryClose, slot<&Form16::askExit>};
    rows[at++] = {noControl, Event::unload, slot<&Form16::EndProgram>};
    return rows;
}
constexpr auto slots = makeSlots();

constexpr host::BiText explain = {.es = "Explicar el circuito", .en = "Explain the circuit"};
constexpr host::BiText open = {.es = "Abrir el diseño", .en = "Open the design"};

// The same keys as on the main window: with Ctrl a button talks, with Alt it opens its design.
constexpr host::ShortcutRow shortcuts[] = {
    {.keys = "Ctrl+Shift+F1",  .control = imgButton0,  .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F2",  .control = imgButton1,  .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F3",  .control = imgButton2,  .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F4",  .control = imgButton3,  .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F5",  .control = imgButton4,  .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F6",  .control = imgButton5,  .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F7",  .control = imgButton6,  .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F8",  .control = imgButton7,  .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F9",  .control = imgButton8,  .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F10", .control = imgButton9,  .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F11", .control = imgButton10, .action = KeyAction::hover, .meaning = explain},
    {.keys = "Ctrl+Shift+F12", .control = imgButton11, .action = KeyAction::hover, .meaning = explain},
    {.keys = "Alt+Shift+F1",   .control = imgButton0,  .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F2",   .control = imgButton1,  .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F3",   .control = imgButton2,  .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F4",   .control = imgButton3,  .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F5",   .control = imgButton4,  .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F6",   .control = imgButton5,  .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F7",   .control = imgButton6,  .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F8",   .control = imgButton7,  .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F9",   .control = imgButton8,  .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F10",  .control = imgButton9,  .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F11",  .control = imgButton10, .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+F12",  .control = imgButton11, .action = KeyAction::click, .meaning = open},
    {.keys = "Alt+Shift+Home", .control = lblButton,   .action = KeyAction::hover,
     .meaning = {.es = "Página general", .en = "General page"}},
    {.keys = "Alt+Shift+End",  .control = lblButton,   .action = KeyAction::click,
     .meaning = {.es = "Despejar la ventana", .en = "Clear the window"}},
};
// clang-format on

} // namespace form16_table

const host::WindowSpec spec{
    .name = "Form16",
    .role = host::Role::palette,
    .caption = "Velmor",
    .place = {2925, 8700, 14400, 1320},
    .controls = form16_table::controls,
    .slots = form16_table::slots,
    .shortcuts = form16_table::shortcuts,
    .create = create,
};

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form16>(host);
}

} // namespace velmor::palette
