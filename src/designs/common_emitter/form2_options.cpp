// SPDX-License-Identifier: MIT
// The option pictures and buttons of `Form2`. Which pictures are visible says which circuit is being designed.
#include <algorithm>

#include "designs/common_emitter/form2.h"

namespace velmor::form2 {

using host::Handle;
using sheets::goTo;
using sheets::say;

namespace options_detail {

constexpr sheets::ClonePair clones{Image5, Image4};
constexpr int smallPanel = 600;
constexpr int largePanel = 8775;
constexpr int minimised = 1;

} // namespace options_detail

using namespace options_detail;

void Form2::hoverButton(host::EventArgs& args)
{
    const auto row = std::find_if(buttonNames.begin(), buttonNames.end(),
                                  [&](const ButtonName& name) { return name.button == args.control; });
    if (row == buttonNames.end())
        return;
    write(Boost, row->balloon);
    show(Boost);
}

// Another kind of sheet opens in front; this one starts over behind it.
void Form2::openVariant(std::string_view sheetName, const host::BiText& title)
{
    host::Window* opened = host().NewInstance(sheetName);
    if (opened != nullptr) {
        host().Show(*opened);
        host().SetWindowCaption(*opened, pick(title));
    }
    goTo(*this, Text1);
}

void Form2::clickPicture6()
{
    openVariant("desaco", desacoTitle);
}

void Form2::lostPicture6()
{
    goTo(*this, Text1);
}

void Form2::clickPicture4()
{
    openVariant("ParcDesac", parcDesacTitle);
}

void Form2::clickPicture1()
{
    if (visible(Picture1)) {
        goTo(*this, Text1);
        write(STA70, bypassHint);
    }
    show(Picture6);
    hide(Picture1, Picture10, Picture11);
}

void Form2::lostPicture1()
{
    hide(Image2);
    goTo(*this, Text1);
}

void Form2::clickPicture11()
{
    show(Image2, Text21, Picture10);
    hide(Picture11, Picture6, Picture1);
    say(*this, bypassAssigned);
    goTo(*this, Text1);
    setText(Text11, "55");
}

void Form2::clickPicture10()
{
    hide(Picture10);
    show(Picture11);
}

void Form2::clickPicture2()
{
    drawBootstrapping(true);
    show(Picture7, statu61, statu62, statu71, statu72);
    if (at(Text19) != 0)
        setText(statu72, "Cbp2=\n" + fourDecimals(secondBootstrapCapacitor(at(Text19), at(Text12))));
    hide(Image2, Picture2, sta1, statu31, statu32, status5, status6, status7, status8, status9);
}

// The way back, but that `image2` stays as it is. The notes are shown until the pointer moves on.
void Form2::clickPicture7()
{
    drawBootstrapping(false);
    hide(Picture7, statu61, statu62, statu71, statu72);
    show(Picture2, sta1, statu31, statu32, status5, status6, status7, status8, status9);
}

void Form2::clickClone(host::EventArgs& args)
{
    sheets::clone(*this, clones, args.control);
}

void Form2::clickImage3()
{
    sheets::showCalculator(*this);
}

void Form2::clickImage34()
{
    show(Image35);
    hide(Image34);
}

void Form2::clickImage35()
{
    const bool inEnglish = host().values().LanguageIsEnglish == host::trueValue;
    host::Window* page = host().Show("Form19");
    if (page == nullptr)
        return;
    host().SetWindowCaption(*page, pick(noteWindowTitle));
    host().setVisible("Form19", "Text1", !inEnglish);
    host().setVisible("Form19", "Text2", inEnglish);
    if (page->windowState() == minimised)
        host().SetWindowState(*page, 0);
}

void Form2::clickSSCommand1()
{
    const host::BiText guide{.es = visible(Image2) ? "polemisor.Lab" : "guia1.Lab", .en = "Feedback Current.Lab"};
    sheets::openGuide(*this, pick(guide));
}

void Form2::clickSSCommand3()
{
    sheets::openReport(*this, true);
}

void Form2::clickSSPanel1()
{
    host::Place place = placeOf(SSPanel1);
    const bool grows = place.height == smallPanel;
    place.height = grows ? largePanel : smallPanel;
    setPlaceOf(SSPanel1, place);
    if (!grows)
        write(SSPanel1, helpTitle);
}

void Form2::clickSTA70()
{
    setVisible(STA70, !visible(STA70));
}

// Right button with Shift or Ctrl: the options; right button alone: the bar of circuits; left button: the files.
void Form2::pressImage1(host::EventArgs& args)
{
    if (args.button == host::Button::left) {
        host().PopupMenu("mnuArchivo");
    } else if (args.button == host::Button::right && (args.shift == 1 || args.shift == 2)) {
        host().PopupMenu("mnuOp");
    } else if (args.button == host::Button::right && args.shift == 0) {
        sheets::showBarAsChosen(host());
        const bool first = visible(Image35);
        setVisible(Image35, !first);
        setVisible(Image34, first);
    }
}

} // namespace velmor::form2
