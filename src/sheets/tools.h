// SPDX-License-Identifier: MIT
// The row of tools that every sheet has: guide, calculator, report, clone, help and a place kept for a sixth. Order, places,
// drawings, captions and keys are the same everywhere; a sheet says which of its controls they are. Knows no sheet.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "host/window.h"
#include "sheets/schematic.h"

namespace velmor::sheets {

/// Two images of which one is visible: one button in two drawings.
struct ImagePair {
    host::Handle first = host::noControl;
    host::Handle second = host::noControl;
};

/// The tools of one sheet. What a sheet lacks leaves its place empty.
struct Tools {
    host::Handle guide = host::noControl;
    host::Handle calculator = host::noControl;
    host::Handle report = host::noControl;
    ImagePair clone{};
    ImagePair help{}; ///< the second puts the help away again
};

/// The editor that shows a sheet's report, and the control with its text.
inline constexpr host::BiText reportEditor{.es = "frmEdito2", .en = "frmEdito3"};
inline constexpr std::string_view textOfReport = "txtEdit";

namespace tools_detail {

// Two columns of three, in the right top corner under the teacher's voice.
inline constexpr int left = 1022;
inline constexpr int top = 94;
inline constexpr int width = 84;
inline constexpr int height = 58;
inline constexpr int gap = 4;

constexpr host::Place place(int index)
{
    return at(left + index % 2 * (width + gap), top + index / 2 * (height + gap), width, height);
}

constexpr host::Mark caption(host::BiText text)
{
    return {.symbol = host::Symbol::text, .from = {42, 41}, .note = text, .side = host::Side::below, .size = 90};
}

/// An icon above its caption. Coordinates are those of the button.
constexpr std::array<host::Mark, 2> face(host::Symbol icon, host::BiText text)
{
    return {host::Mark{.symbol = icon, .from = {27, 6}, .to = {57, 36}}, caption(text)};
}

// clang-format off
inline constexpr auto guideFace      = face(host::Symbol::book,       {.es = "Guía",        .en = "Guide"});
inline constexpr auto calculatorFace = face(host::Symbol::calculator, {.es = "Calculadora", .en = "Calculator"});
inline constexpr auto reportFace     = face(host::Symbol::page,       {.es = "Informe",     .en = "Report"});
inline constexpr auto helpFace       = face(host::Symbol::question,   {.es = "Ayuda",       .en = "Help"});
inline constexpr auto helpOpenFace   = face(host::Symbol::lamp,       {.es = "Ayuda",       .en = "Help"});
inline constexpr std::array cloneFace{
    host::Mark{.symbol = host::Symbol::page, .from = {23, 6},  .to = {49, 32}},
    host::Mark{.symbol = host::Symbol::page, .from = {36, 11}, .to = {62, 37}},
    caption({.es = "Clonar", .en = "Clone"}),
};
inline constexpr std::array cloneAgainFace{
    host::Mark{.symbol = host::Symbol::page, .from = {36, 6},  .to = {62, 32}},
    host::Mark{.symbol = host::Symbol::page, .from = {23, 11}, .to = {49, 37}},
    caption({.es = "Clonar", .en = "Clone"}),
};
// clang-format on

constexpr host::ControlRow button(host::Handle id, std::string_view name, host::Kind kind, int index,
                                  host::BiText meaning, std::span<const host::Mark> drawing)
{
    return {.id = id,
            .name = name,
            .kind = kind,
            .place = place(index),
            .meaning = meaning,
            .look = host::Look::toolButton,
            .drawing = drawing};
}

} // namespace tools_detail

// The rows of the tools in a table of controls.
constexpr host::ControlRow guideTool(host::Handle id, std::string_view name, host::Kind kind = host::Kind::image)
{
    return tools_detail::button(id, name, kind, 0,
                                {"Abrir la guía de trabajos prácticos", "Open the guide of practical work"},
                                tools_detail::guideFace);
}
constexpr host::ControlRow calculatorTool(host::Handle id, std::string_view name, host::Kind kind = host::Kind::image)
{
    return tools_detail::button(id, name, kind, 1, {"Abrir la calculadora", "Open the calculator"},
                                tools_detail::calculatorFace);
}
constexpr host::ControlRow reportTool(host::Handle id, std::string_view name, host::Kind kind = host::Kind::image)
{
    return tools_detail::button(id, name, kind, 2, {"Elaborar el informe", "Write the report"},
                                tools_detail::reportFace);
}
constexpr host::ControlRow cloneTool(host::Handle id, std::string_view name)
{
    return tools_detail::button(id, name, host::Kind::image, 3,
                                {"Abrir otro circuito igual, vacío", "Open another blank circuit of this kind"},
                                tools_detail::cloneFace);
}
/// The second drawing of the clone pair, hidden at first.
constexpr host::ControlRow cloneToolAgain(host::Handle id, std::string_view name)
{
    host::ControlRow row = cloneTool(id, name);
    row.visible = false;
    row.drawing = tools_detail::cloneAgainFace;
    return row;
}
constexpr host::ControlRow helpTool(host::Handle id, std::string_view name)
{
    return tools_detail::button(id, name, host::Kind::image, 4, {"Ayuda general", "General help"},
                                tools_detail::helpFace);
}
/// The second drawing of the help pair, hidden at first.
constexpr host::ControlRow helpToolOpen(host::Handle id, std::string_view name)
{
    host::ControlRow row = helpTool(id, name);
    row.visible = false;
    row.meaning = {"Quitar la ayuda general", "Take the general help away"};
    row.drawing = tools_detail::helpOpenFace;
    return row;
}

/// The keys of the tools.
inline constexpr std::string_view guideKey = "Ctrl+G";
inline constexpr std::string_view calculatorKey = "Ctrl+K";
inline constexpr std::string_view reportKey = "Ctrl+R";
inline constexpr std::string_view cloneKey = "Ctrl+D";
inline constexpr std::string_view helpKey = "Shift+F1";
inline constexpr std::string_view checkKey = "Ctrl+T"; ///< kept for the sixth tool

/// Keys that a sheet leaves alone: those of editing, of undo, between windows and of the main menu.
inline constexpr auto reservedKeys = std::to_array<std::string_view>({
    "F6",           "Ctrl+F1", "Ctrl+N",        "Ctrl+O",       "Ctrl+A", "Ctrl+C",   "Ctrl+V",         "Ctrl+X",
    "Ctrl+Z",       "Ctrl+Y",  "Alt+Backspace", "Ctrl+F4",      "Alt+F4", "Ctrl+Tab", "Ctrl+Shift+Tab", "Ctrl+S",
    "Ctrl+Shift+S", "Ctrl+W",  "Ctrl+Shift+I",  "Ctrl+Shift+E", "Alt+1",  "Alt+2",    "Alt+3",          "Alt+4",
    "Alt+5",        "Alt+6",   "Alt+7",         "Alt+8",        "Alt+9",
});

// clang-format off
/// The keys that every sheet has, whatever its fields are.
inline constexpr auto fieldKeys = std::to_array<host::ShortcutRow>({
    {"F1",        host::noControl, host::KeyAction::rightPress, host::noControl, {"Ayuda del cuadro",   "Help on the field"}},
    {"Shift+F10", host::noControl, host::KeyAction::rightPress, host::noControl, {"Ayuda del cuadro",   "Help on the field"}},
    {"F2",        host::noControl, host::KeyAction::hover,      host::noControl, {"Nota del cuadro",    "Note on the field"}},
    {"F3",        host::noControl, host::KeyAction::click,      host::noControl, {"Click en el cuadro", "Click on the field"}},
});
// clang-format on

/// The keys of a sheet's fields and tools; its own keys are joined behind them.
template <Tools tools>
consteval auto toolKeys()
{
    using host::KeyAction;
    using host::noControl;
    constexpr std::array all{
        host::ShortcutRow{guideKey, tools.guide, KeyAction::click, noControl, {"Guía", "Guide"}},
        host::ShortcutRow{calculatorKey, tools.calculator, KeyAction::click, noControl, {"Calculadora", "Calculator"}},
        host::ShortcutRow{reportKey, tools.report, KeyAction::click, noControl, {"Informe", "Report"}},
        host::ShortcutRow{cloneKey, tools.clone.first, KeyAction::click, tools.clone.second, {"Clonar", "Clone"}},
        host::ShortcutRow{
            helpKey, tools.help.first, KeyAction::click, tools.help.second, {"Ayuda general", "General help"}},
    };
    constexpr auto isThere = [](const host::ShortcutRow& row) { return row.control != noControl; };
    std::array<host::ShortcutRow, fieldKeys.size() + std::count_if(all.begin(), all.end(), isThere)> keys{};
    std::copy_if(all.begin(), all.end(), std::copy(fieldKeys.begin(), fieldKeys.end(), keys.begin()), isThere);
    return keys;
}

} // namespace velmor::sheets
