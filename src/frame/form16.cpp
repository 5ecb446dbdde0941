// SPDX-License-Identifier: MIT
// Slots of the palette.
#include "frame/form16.h"

#include <string>

#include "frame/design_pages.h"
#include "frame/mdi_form1.h"

namespace velmor::palette {

using host::BiText;
using host::Handle;

namespace form16_texts {

constexpr BiText windowCaption{.es = "        Diseños posibles en Velmor", .en = "Designing..."};
constexpr BiText exitQuestion{.es = "¿Desea abandonar Velmor?", .en = "¿Do you wish EXIT of Velmor?"};
constexpr BiText otherInstanceStart{.es = "El programa ", .en = "The program "};
constexpr BiText otherInstanceEnd{.es = " ya se esta ejecutando.", .en = " already  this executing ."};
constexpr std::string_view applicationTitle = "Velmor";
constexpr int exitFlags = 36;
constexpr int warningFlags = 48;
constexpr int answerYes = 6;

std::size_t indexOf(Handle button)
{
    return static_cast<std::size_t>(button - imgButton0);
}
Handle shapeOf(Handle button)
{
    return static_cast<Handle>(Shape1_0 + (button - imgButton0));
}

} // namespace form16_texts

using namespace form16_texts;

Form16::Form16(host::SheetHost& host) : host::Window(host, palette::spec) {}

void Form16::load()
{
    warnOfOtherInstance();
    writeCaptions();
}

void Form16::activate()
{
    writeCaptions();
}

void Form16::writeCaptions()
{
    setCaption(host().pick(windowCaption));
    setText(lblButton, host().pick(allDesigns));
}

// A warning and no more: the new instance goes on.
void Form16::warnOfOtherInstance()
{
    if (!host().screen().otherInstanceRunning())
        return;
    std::string text(host().pick(otherInstanceStart));
    text += host().screen().executableName();
    text += host().pick(otherInstanceEnd);
    host().MsgBox(text, warningFlags, applicationTitle);
}

void Form16::askExit(host::EventArgs& args)
{
    args.cancel = host().MsgBox(host().pick(exitQuestion), exitFlags, caption()) != answerYes;
}

void Form16::EndProgram()
{
    main_window::saveSettings(host());
    host().settings().setValue("international", "sDecimal", ".");
    host().endProgram();
}

void Form16::hoverButton(host::EventArgs& args)
{
    markShape(*this, Shape1_0, indexOf(args.control));
    ShowDesignPage(host(), indexOf(args.control));
}

// The border of the pressed image is its check mark.
void Form16::pressButton(host::EventArgs& args)
{
    if (args.button != host::Button::left)
        return;
    setChecked(args.control, true);
    hide(shapeOf(args.control));
}

void Form16::releaseButton(host::EventArgs& args)
{
    setChecked(args.control, false);
    show(shapeOf(args.control));
}

void Form16::clickButton(host::EventArgs& args)
{
    OpenDesign(host(), indexOf(args.control));
}

void Form16::hoverAll()
{
    ClearDesignPage(host());
    markShape(*this, Shape1_0, noShape);
}

void Form16::clickAll()
{
    ShowOrClearPanel(host());
}

} // namespace velmor::palette
