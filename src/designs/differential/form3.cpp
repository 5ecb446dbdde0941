// SPDX-License-Identifier: MIT
// The window's own slots, help on pointing, the help pages and the pop-ups of the picture.
#include "designs/differential/form3.h"
#include "designs/differential/form3_texts.h"
#include "designs/differential/start_temperature.h"

#include <algorithm>

namespace velmor::form3 {

using host::Handle;
using sheets::When;

namespace window_detail {

constexpr int helpMargin = 100; // from the main window's inner edge

} // namespace window_detail

Form3::Form3(host::SheetHost& host) : sheets::DesignSheet(host, form3::spec, sheetSpec)
{
    holds(q_, quantityTable, host::Undo::takesBack);
}

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form3>(host);
}

void Form3::load()
{
    host().values().TemperaturaCompartida = differential::startTemperature;
    host().setVisible("MDIForm1", "SSPanel1", false);
    setCaption(pick(spec().sheetTitle));
    write(Label6, texts::transistorHeading);
    write(Label11, texts::circuitHeading);
    setText(Text19, texts::englishHelp);
    setText(Text20, texts::spanishHelp);
    setText(Text21, texts::commercialValues);
    HideBench();
}

void Form3::clickBackground()
{
    HideBench();
}

void Form3::opened()
{
    for (Handle field = Text2; field <= Text18; ++field)
        disable(field);
    showFinishedPicture();
    hide(Label42, Label43, Label44, SSPanel4, Image30, Image33, C3, c7);
    write(SSPanel1, texts::archivePrompt);
    q_.passed = false;
}

void Form3::leaveStability(host::EventArgs& args)
{
    leaveField(args);
    host().values().TemperaturaCompartida = differential::startTemperature;
}

// --- help

// The page belongs to the bench while that is on.
void Form3::tellAbout(Handle field)
{
    tell(field, When::focus);
    if (!visible(Image3))
        tell(field, When::lesson);
}

// The line goes back to the field in hand; what is in hand without a line of its own leaves it empty.
void Form3::hoverBackground()
{
    hideNotes();
    if (focus() == host::noControl)
        return;
    setText(StatusBar1, "");
    for (const sheets::Saying& row : texts::sayings)
        if (row.about == focus() && row.when == When::focus && row.place == StatusBar1)
            tell(row);
}

// Over a part the line is that of the field in hand, not of what was pointed at before.
void Form3::hoverPart(host::EventArgs& args)
{
    hoverBackground();
    hoverField(args);
    if (args.control == Image11 && visible(image2))
        tell(texts::finishedLoad);
}

// Right-aligned in the main window, whatever the size of the sheet.
void Form3::openHelpBoxes()
{
    openHelpBoxesAt(host().clientArea().width - sheetSpec.helpBoxes.place.width - window_detail::helpMargin);
}

void Form3::clickEnglishHelp()
{
    hide(Text19);
}

void Form3::changeSpanishHelp()
{
    hide(Text20);
}

// Shift, Ctrl or both bring the menu of options.
void Form3::pressPicture(host::EventArgs& args)
{
    host::EventArgs press = args;
    press.shift = std::min(press.shift, 1);
    DesignSheet::pressPicture(press, tools.help);
}

} // namespace velmor::form3
