// SPDX-License-Identifier: MIT
// Where the real main window shows the circuit bar and the welcome panel. The places that the slots read and write are
// told by the program's rules and overlap; these do not.
#include "frame/mdi_form1_controls.h"

namespace velmor::main_window {

namespace layout_table {

using host::Handle;
using host::Place;

constexpr int columnWidth = 1130;
constexpr int rowHeight = 1170;
constexpr int margin = 90;

constexpr Place panelPlace{0, 0, 17850, 10125};
constexpr Place picturePlace{9200, 2600, 8000, 5700};
constexpr Place notePlace{11000, 500, 6300, 1900};

constexpr Place cell(int index)
{
    return {margin + index % 2 * columnWidth, margin + index / 2 * rowHeight, columnWidth - 60, rowHeight - 60};
}

Place barPlace(Handle control)
{
    constexpr int last = 12;
    if (control >= Shape1_0 && control <= Shape1_12) {
        const Place button = cell(control - Shape1_0);
        return {button.left - 20, button.top - 20, button.width + 40, button.height + 40};
    }
    if (control >= imgButton0 && control < imgButton0 + last)
        return cell(control - imgButton0);
    if (control == imgButton12)
        return cell(last + 3);
    return control == lblButton ? cell(last) : cell(last + 1);
}

} // namespace layout_table

host::Place shownPlaceOf(const host::Window& window, host::Handle control)
{
    using namespace layout_table;
    if (control == Picture14)
        return window.row(control).place;
    if (control >= Shape1_0 && control <= Image29)
        return barPlace(control);
    if (control >= Picture1 && control <= Picture13)
        return picturePlace;
    switch (control) {
    case SSPanel1: return panelPlace;
    case Label35:  return {900, 700, 9500, 1100};
    case Label3:   return {900, 1900, 9500, 450};
    case Label4:   return {900, 2450, 8000, 900};
    case Label1:   return {900, 3600, 7900, 3200};
    case Label21:  return {900, 6950, 7900, 1350};
    case Label20: case Label22: case Label24: case Label25: case Label26: case Label33:
        return notePlace;
    default:       return window.placeOf(control);
    }
}

} // namespace velmor::main_window
