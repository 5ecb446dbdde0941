// SPDX-License-Identifier: MIT
// The window's own slots: its life, the two pictures, the boxes, the currents under the pointer and the door to the current
// source.
#include "designs/differential/form13.h"
#include "designs/differential/form13_texts.h"
#include "designs/differential/start_temperature.h"

#include <algorithm>

namespace velmor::form13 {

using host::Handle;
using sheets::When;

namespace window_detail {

constexpr int pictureLeft = -120; // twips, as all places in this file
constexpr int pictureHeight = 6255;
constexpr int circuitWidth = 9795;
constexpr int mirrorWidth = 9855;

/// Where a result lies beside the full circuit and where beside the mirror; -1: that edge stays.
struct Moved {
    Handle label = host::noControl;
    int circuitLeft = -1;
    int circuitTop = -1;
    int mirrorLeft = -1;
    int mirrorTop = -1;
};
constexpr Moved moved[] = {
    {Label2, 1380, -1, 1580, -1}, {Label3, 1380, -1, 1580, -1},      {Label12, 8050, 3050, 7900, 3200},
    {Label4, 1750, -1, 1890, -1}, {Label33, 7550, 2500, 7270, 2740}, {Label24, -1, 2680, -1, 2880},
};

/// Parts that each picture has in its own way.
struct OneOfTwo {
    Handle circuit = host::noControl;
    Handle mirror = host::noControl;
};
constexpr OneOfTwo partsOfPictures[] = {{Shape7, Shape8}, {Shape9, Shape10}};

} // namespace window_detail

using namespace window_detail;

Form13::Form13(host::SheetHost& host) : sheets::DesignSheet(host, form13::spec, sheetSpec)
{
    holds(q_, quantityTable, host::Undo::takesBack);
}

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form13>(host);
}

// --- the life of the sheet

void Form13::load()
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    setCaption(pick(spec().sheetTitle));
    setText(Text22, texts::helpText.es);
    setText(Text23, texts::helpText.en);
    setPlaceOf(Image1, {pictureLeft, 0, circuitWidth, pictureHeight});
    setPlaceOf(image2, {pictureLeft, 0, mirrorWidth, pictureHeight});
}

// The greeting and the boxes are written after the focus has moved, since the field that is left and Text1 fill them too. At the
// first showing nothing has the focus yet: then Text1 comes last and says what it wants.
void Form13::activate()
{
    frameActivate();
    host().values().TemperaturaCompartida = differential::startTemperature;
    host().Hide("Form16");
    show(Text1);
    if (focus() != host::noControl)
        host().SetFocus(*this, Text1);
    write(Label25, texts::beginning);
    write(SSCommand1, visible(Image1) ? texts::viewMirror : texts::viewCircuit);
    write(Label18, texts::sourceDoor);
    write(Label26, texts::data);
    write(Label27, texts::considerations);
    write(Label6, texts::heading);
    host().SetFocus(*this, Text1);
}

void Form13::opened()
{
    for (const sheets::FileLine& line : sheetSpec.read)
        if (row(line.control).kind != host::Kind::field)
            show(line.control);
    growWhole();
    tell(texts::archived);
    q_.passed = false;
}

void Form13::clickBackground()
{
    host().Unload("Calculator");
}

void Form13::clickSource()
{
    if (host::Window* source = host().NewInstance("Form12"))
        host().Show(*source);
}

// --- the boxes and what is under the pointer

// A result is seen as soon as there is something to show.
void Form13::put(Handle label, const std::string& caption)
{
    setText(label, caption);
    show(label);
}

void Form13::clickBox(host::EventArgs& args)
{
    const auto* box =
        std::find_if(std::begin(boxes), std::end(boxes), [&](const Box& row) { return row.box == args.control; });
    host::Place place = placeOf(args.control);
    place.height = place.height == lowBox ? box->high : lowBox;
    setPlaceOf(args.control, place);
}

void Form13::hoverCurrent(host::EventArgs& args)
{
    for (const texts::Current& current : texts::currents)
        if (current.label == args.control)
            put(Label34, std::string(current.transistor).append(current.symbol) + digits(at(args.control)) + "  mA");
}

void Form13::hoverBackground()
{
    hideNotes();
    hoverLine(focus());
}

// The prompt stays that of the field in hand; the line below it tells of the one that is pointed at.
void Form13::hoverField(host::EventArgs& args)
{
    hideNotes();
    hoverLine(args.control);
}

void Form13::hoverLine(Handle field)
{
    for (const sheets::Saying& row : texts::sayings)
        if (row.about == field && row.when == When::focus && row.place == Label28)
            tell(row);
}

void Form13::pressField(host::EventArgs& args)
{
    constexpr Handle resistors[] = {Text6, Text7, Text10, Text11};
    if (args.button != host::Button::right)
        return;
    if (args.control == Text1)
        host().Show("Form22");
    else if (std::find(std::begin(resistors), std::end(resistors), args.control) != std::end(resistors))
        host().Show("Form14");
}

// --- the two pictures

void Form13::clickView()
{
    hide(Label15, Label10, Label11, Label13, Label35);
    showMirror(visible(Image1));
    if (!visible(Text1))
        setVisible(Label14, !text(Label14).empty());
}

void Form13::showMirror(bool mirror)
{
    setVisible(image2, mirror);
    setVisible(Image1, !mirror);
    for (const OneOfTwo& part : partsOfPictures) {
        const bool reached = visible(part.circuit) || visible(part.mirror);
        setVisible(part.mirror, mirror && reached);
        setVisible(part.circuit, !mirror && reached);
    }
    show(Label25);
    hide(Label35, Label22);
    if (!mirror)
        for (const Handle label : {Label31, Label35, Label22, Label15, Label5})
            setVisible(label, !text(label).empty());
    for (const Moved& row : moved) {
        host::Place place = placeOf(row.label);
        const int left = mirror ? row.mirrorLeft : row.circuitLeft;
        const int top = mirror ? row.mirrorTop : row.circuitTop;
        place.left = left < 0 ? place.left : left;
        place.top = top < 0 ? place.top : top;
        setPlaceOf(row.label, place);
    }
    write(SSCommand1, mirror ? texts::viewCircuit : texts::viewMirror);
}

} // namespace velmor::form13
