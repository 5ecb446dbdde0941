// SPDX-License-Identifier: MIT
// The window's own slots, help on pointing, the help pages, the buttons and the pop-ups of the picture.
#include "designs/differential/form3.h"
#include "designs/differential/form3_texts.h"

#include <algorithm>

namespace velmor::form3 {

using host::Handle;

namespace help {

constexpr int pageTop = 50;
constexpr int pageHeight = 6400;
constexpr int pageWidth = 3735;
constexpr int pageMargin = 100; ///< from the main window's inner edge
constexpr host::Place valuesPlace{9600, 690, 1104, 4536};
constexpr sheets::ClonePair clonePair{.first = Image32, .second = Image31};
constexpr host::BiText guide{.es = "difsim.Lab", .en = "difsimin.Lab"};

} // namespace help

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
    host().values().TemperaturaCompartida = texts::startTemperature;
    host().setVisible("MDIForm1", "SSPanel1", false);
    setCaption(pick(spec().sheetTitle));
    setText(Label6, pick(texts::transistorHeading));
    setText(Label11, pick(texts::circuitHeading));
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
    setText(SSPanel1, pick(texts::archivePrompt));
}

std::string_view Form3::statusOf(Handle field) const
{
    for (const texts::StatusRow& row : texts::statusRows())
        if (row.field == field)
            return pick(row.line);
    return {};
}

// The page belongs to the bench while that is on.
void Form3::tellAbout(Handle field)
{
    setText(StatusBar1, statusOf(field));
    if (visible(Image3))
        return;
    for (const texts::StatusRow& row : texts::lessonRows())
        if (row.field == field)
            setText(SSPanel4, pick(row.line));
}

void Form3::endPointing()
{
    for (const texts::PointingRow& row : texts::pointingRows())
        hide(row.drawing);
    hide(Label34, Label36, Text21);
}

// The status line goes back to the field in hand.
void Form3::hoverBackground()
{
    endPointing();
    if (focus() != host::noControl)
        setText(StatusBar1, statusOf(focus()));
}

void Form3::hoverField(host::EventArgs& args)
{
    endPointing();
    setText(StatusBar1, statusOf(args.control));
    for (const texts::PointingRow& row : texts::pointingRows()) {
        if (row.over != args.control)
            continue;
        setText(Label34, row.text);
        show(Label34, row.drawing);
        if (row.values) {
            setPlaceOf(Text21, help::valuesPlace);
            show(Text21);
        }
    }
}

// Over a part the status line is that of the field in hand again, not of what was pointed at before.
void Form3::hoverPart(host::EventArgs& args)
{
    hoverBackground();
    for (const texts::PartRow& row : texts::partRows())
        if (row.part == args.control) {
            setText(Label36, pick(row.name));
            show(Label36);
        }
}

// Right-aligned in the main window, whatever the size of the sheet.
void Form3::showHelp()
{
    const int left = host().clientArea().width - help::pageWidth - help::pageMargin;
    for (const Handle page : {Text19, Text20})
        setPlaceOf(page, {left, help::pageTop, help::pageWidth, help::pageHeight});
    const bool english = host().values().LanguageIsEnglish == host::trueValue;
    setVisible(Text19, english);
    setVisible(Text20, !english);
    hide(Image35);
    show(Image34);
}

void Form3::hideHelp()
{
    hide(Text19, Text20, Image34);
    show(Image35);
}

void Form3::clickEnglishHelp()
{
    hide(Text19);
}

void Form3::changeSpanishHelp()
{
    hide(Text20);
}

void Form3::pressPicture(host::EventArgs& args)
{
    if (args.button == host::Button::left) {
        host().PopupMenu("mnuArchivo");
    } else if (args.button == host::Button::right && args.shift != 0) {
        host().PopupMenu("mnuOp");
    } else if (args.button == host::Button::right) {
        sheets::showBarAsChosen(host());
        const bool hidden = visible(Image34);
        setVisible(Image34, visible(Image35));
        setVisible(Image35, hidden);
    }
}

void Form3::clickClone(host::EventArgs& args)
{
    sheets::clone(*this, help::clonePair, args.control);
}

void Form3::clickCalculator()
{
    sheets::showCalculator(*this);
}

void Form3::clickReport()
{
    sheets::openReport(*this, false);
}

void Form3::clickGuide()
{
    sheets::openGuide(*this, pick(help::guide));
}

} // namespace velmor::form3
