// SPDX-License-Identifier: MIT
// Life of the main window: load, activation, resize, captions, the bar that was chosen, and the end of the program.
#include "frame/mdi_form1.h"

#include <string>

#include "frame/design_pages.h"
#include "frame/mdi_form1_menus.h"
#include "frame/welcome_texts.h"

namespace velmor::main_window {

using host::BiText;
using host::Handle;
using host::noControl;

namespace main_texts {

constexpr BiText windowCaption{.es = " El que no sabe dar, no sabe vivir...",
                               .en = "Who doesn't know how to give, doesn't know how to live... "};
constexpr BiText exitQuestion{.es = "¿Desea abandonar Velmor?", .en = "¿Do you wish EXIT of Velmor?"};
constexpr int exitFlags = 36;
constexpr int answerYes = 6;
constexpr std::string_view defaultsSection = "Predeterminados";

} // namespace main_texts

using namespace main_texts;

MDIForm1::MDIForm1(host::SheetHost& host) : host::Window(host, main_window::spec) {}

void MDIForm1::load()
{
    host().Arrange(0);
    setPlace({0, 0, place().width, place().height});
    layOutPages();
    markLanguage();
    setVisible(Picture14, checked(mnuFija));
    writeItemCaptions();
    disableWhatIsMissing();
}

void MDIForm1::layOutPages()
{
    const int width = placeOf(SSPanel1).width - placeOf(Picture14).width;
    for (std::size_t i = 0; i < pagePictureCount; ++i) {
        const Handle picture = element(Picture1, i);
        host::Place place = placeOf(picture);
        place.width = width;
        place.top = picture == Picture2 ? 0 : headPictureHeight;
        if (picture == Picture2)
            place.height = headPictureHeight;
        setPlaceOf(picture, place);
        hide(picture);
    }
}

void MDIForm1::markLanguage()
{
    setChecked(english() ? mnuLenguaje0 : mnuLenguaje1, true);
}

void MDIForm1::disableWhatIsMissing()
{
    for (const DesignItem& design : designItems) {
        const bool there = host().canShow(design.sheet);
        for (const Handle item : {design.newItem, design.openItems[0], design.openItems[1]})
            if (item != noControl)
                setEnabled(item, there);
    }
    for (const NeededWindow& needed : neededWindows) {
        bool there = false;
        for (const std::string_view window : needed.windows)
            there = there || (!window.empty() && host().canShow(window));
        setEnabled(needed.item, there);
    }
}

void MDIForm1::activate()
{
    host().Hide("Form14");
    setChecked(mnuIng, english());
    setChecked(mnuEsp, !english());
    writeCaptions();
}

void MDIForm1::writeItemCaptions()
{
    for (const ItemCaption& caption : itemCaptions)
        setText(caption.item, host().pick(caption.caption));
    for (const NamedText& caption : groupCaptions)
        if (const Handle item = named(caption.name); item != noControl)
            setText(item, host().pick(caption.text));
    setText(lblButton, host().pick(palette::allDesigns));
    for (const DesignItem& design : designItems) {
        if (design.newItem == noControl)
            continue;
        for (const Handle item : {design.newItem, design.openItems[0], design.openItems[1]})
            if (item != noControl)
                setText(item, host().pick(design.itemCaption));
    }
}

void MDIForm1::writeCaptions()
{
    writeItemCaptions();
    setCaption(host().pick(windowCaption));
    for (const NamedText& label : welcomeLabels)
        setText(named(label.name), host().pick(label.text));
}

void MDIForm1::resize()
{
    if (windowState() == 2) {
        host::Place panel = placeOf(SSPanel1);
        panel.width = place().width - placeOf(Picture14).width;
        setPlaceOf(SSPanel1, panel);
    }
    host().Unload("infoform");
    if (checked(mnuFlotante))
        host().Show("Form16");
    else
        host().Hide("Form16");
    if (windowState() == 1)
        hide(Picture14);
}

void MDIForm1::showBarAsChosen()
{
    if (checked(mnuFija)) {
        show(Picture14);
        host().Hide("Form16");
    } else if (checked(mnuFlotante)) {
        host().Show("Form16");
        hide(Picture14);
    }
}

void MDIForm1::pressBackground(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        hide(Picture14);
}

void MDIForm1::askExit(host::EventArgs& args)
{
    args.cancel =
        host().MsgBox(host().pick(main_texts::exitQuestion), main_texts::exitFlags, caption()) != main_texts::answerYes;
}

// The comma is left behind as decimal separator, whatever stood there before the start.
void MDIForm1::endProgram()
{
    saveSettings(host());
    host().values().DecimalSeparator = ",";
    host().endProgram();
}

void saveSettings(host::SheetHost& host)
{
    const bool spanish = !host.checked("mnuLenguaje(0)") && host.checked("mnuLenguaje(1)");
    host.settings().setValue(defaultsSection, "fCastIng", spanish ? "0" : "1");
    host.settings().setValue(defaultsSection, "Pantalla", std::to_string(host.values().ScreenMode));
}

} // namespace velmor::main_window
