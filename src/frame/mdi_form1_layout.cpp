// SPDX-License-Identifier: MIT
// Where the real window shows the circuit bar and the welcome panel. The places that the slots read and write are told by
// the program's rules and overlap; these do not: a bar of two columns, and a page with its text to the left of its picture.
#include "frame/mdi_form1_layout.h"

#include "frame/mdi_form1_controls.h"

namespace velmor::main_window {

namespace layout_table {

constexpr int barWidth = 2400;
constexpr int left = barWidth + 600;
constexpr int textWidth = 8300;
constexpr int top = pageStrip.top;
constexpr host::Place header{left, 500, 10000, 1150};
constexpr host::Place subtitle{left, 1650, 10000, 420};
constexpr host::Place advice{left, 2080, 10000, 640};
constexpr host::Place picture{left + 8700, top + 150, 8100, 4700};
constexpr host::Place pageText{left, top + 200, textWidth, 2150};
constexpr host::Place maxim{left, top + 2500, textWidth, 800};
constexpr host::Place maximBelow{left, top + 5150, textWidth, 800}; ///< the general page keeps the last one
constexpr host::Place notes{left, top + 3450, textWidth, 1400};
constexpr host::Place emblem{left, top + 250, 16650, 4500};
constexpr host::Place stanzasLeft{left, top + 200, 4050, 4600};
constexpr host::Place stanzasRight{left + 4250, top + 200, 4050, 4600};

constexpr int columns = 2;
constexpr host::Place firstButton{120, 160, 1040, 1080};
constexpr int columnStep = 1120;
constexpr int rowStep = 1200;
constexpr int halo = 30;
constexpr host::Place guide{firstButton.left + columnStep, firstButton.top + 6 * rowStep, 1040, 1080};
constexpr host::Place all{firstButton.left, firstButton.top + 7 * rowStep, 2160, 520};

host::Place buttonPlace(int index)
{
    return {firstButton.left + index % columns * columnStep, firstButton.top + index / columns * rowStep,
            firstButton.width, firstButton.height};
}

host::Place shapePlace(int index)
{
    const host::Place button = buttonPlace(index);
    return {button.left - halo, button.top - halo, button.width + 2 * halo, button.height + 2 * halo};
}

} // namespace layout_table

host::Place shownPlaceOf(const host::Window& window, host::Handle control)
{
    using namespace layout_table;
    const bool poem = window.visible(Picture13);
    if (control >= Picture1 && control <= Picture13)
        return picture;
    if (control >= Shape1_0 && control <= Shape1_12)
        return shapePlace(control - Shape1_0);
    if (control >= imgButton0 && control <= imgButton12)
        return buttonPlace(control - imgButton0);
    switch (control) {
    case Label35:
        return header;
    case Label3:
        return subtitle;
    case Label4:
        return advice;
    case Label1:
        return poem ? stanzasLeft : pageText;
    case Label21:
        return poem ? stanzasRight : window.visible(Image1) ? maximBelow : maxim;
    case Label20:
    case Label22:
    case Label24:
    case Label25:
    case Label26:
    case Label33:
        return notes;
    case lblButton:
        return all;
    case Image29:
        return guide;
    case Image1:
        return emblem;
    case SSPanel1:
        return welcomePanel;
    case Picture14:
        return circuitBar;
    default:
        return window.placeOf(control);
    }
}

} // namespace velmor::main_window
