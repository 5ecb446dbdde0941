// SPDX-License-Identifier: MIT
// The window's own slots, what every field does, and the restart: each activation begins the design anew.
#include "designs/differential/form12.h"
#include "designs/differential/form12_texts.h"

namespace velmor::form12 {

using host::Handle;
using sheets::Press;
using sheets::When;

namespace window_detail {

constexpr int rightOfHelp = 6000; // twips, from the main window's edge

} // namespace window_detail

Form12::Form12(host::SheetHost& host) : sheets::DesignSheet(host, form12::spec, sheetSpec)
{
    holds(q_, quantityTable, host::Undo::takesBack);
}

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form12>(host);
}

void Form12::load()
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    setCaption(pick(spec().sheetTitle));
    setText(Text22, texts::helpText.es);
    setText(Text23, texts::helpText.en);
}

// The field that was in hand is left before Text1 disables the chain behind it; else leaving it would enable parts of that chain
// again, and the results of the analysis would get the focus.
void Form12::activate()
{
    frameActivate();
    host().Unload("Calculator");
    host().Hide("Form16");
    disable(Text2, Text3, Text4, Text5, Text6, Text7, Text9, Text10);
    enable(Text1);
    host().SetFocus(*this, Text1);
    write(Label11, texts::heading);
    write(Label7, texts::analysis);
    write(Text10, texts::restart);
    tell(Text1, When::focus);
}

void Form12::opened()
{
    growWhole();
    tellVoltages();
    tell(texts::archived);
    q_.passed = false;
}

// The lines above the drawing are again those of the field in hand.
void Form12::hoverBackground()
{
    for (const sheets::Saying& row : texts::sayings)
        if (row.about == focus() && row.when == When::focus && row.place != SSPanel1)
            tell(row);
}

void Form12::openHelpBoxes()
{
    openHelpBoxesAt(host().clientArea().width - sheetSpec.helpBoxes.place.width - window_detail::rightOfHelp);
}

// --- every field

// The drawing grows when a field is left, not when it gets the focus.
void Form12::focusField(host::EventArgs& args)
{
    tell(args.control, When::focus);
}

// A key that the filter lets through changes the design.
Press Form12::entered(host::EventArgs& args)
{
    const Press press = pressed(args);
    q_.passed = q_.passed && !sheets::changesField(args.key);
    return press;
}

void Form12::keyField(host::EventArgs& args)
{
    if (entered(args) == Press::enter)
        goTo(chainRow(args.control).next);
}

void Form12::pressField(host::EventArgs& args)
{
    const bool resistor = args.control == Text4 || args.control == Text6 || args.control == Text7;
    if (args.button == host::Button::right && resistor)
        host().Show("Form14");
}

std::string Form12::clickValue(Handle field)
{
    switch (field) {
    case Text9:
        q_.EbiasCalc = eBiasOf(q_.Eq, q_.Eb);
        return digits(q_.EbiasCalc);
    case Text4:
        return shown(q_.ResCalc);
    case Text5:
        return shown(q_.K);
    case Text6:
        return shown(q_.Rb1Calc);
    case Text7:
        return shown(q_.Rb2Calc);
    default:
        return "2";
    }
}

void Form12::clickField(host::EventArgs& args)
{
    setText(args.control, clickValue(args.control));
    tellPageOf(args.control);
    if (args.control == Text2)
        hide(Label2);
    if (args.control == Text2 || args.control == Text3) {
        hide(Label3, Label4, Label5, Label6, Label7);
        placeholdersBehind(args.control);
    }
}

void Form12::placeholdersBehind(Handle field)
{
    bool behind = false;
    for (const sheets::ChainRow& link : chain) {
        if (behind && link.field != Text10)
            setText(link.field, row(link.field).text);
        behind = behind || link.field == field;
    }
}

/// The page of a field, with what has been worked out for it.
void Form12::tellPageOf(Handle field)
{
    tell(field, When::focus);
    switch (field) {
    case Text4:
        return setText(SSPanel1, pageOfRes());
    case Text5:
        return setText(SSPanel1, pageOfK());
    case Text6:
        return setText(SSPanel1, pageOfRb1());
    case Text7:
        return setText(SSPanel1, pageOfRb2());
    default:
        return;
    }
}

/// The voltages beside their parts, as their fields have them.
void Form12::tellVoltages()
{
    setText(Label1, "Eb = " + text(Text2));
    setText(Label2, "Eq = " + text(Text3));
    setText(Label3, "Ebias = " + text(Text9));
    setText(Label6, "ERes = " + text(Text8));
    show(Label1, Label2, Label3, Label6);
}

} // namespace velmor::form12
