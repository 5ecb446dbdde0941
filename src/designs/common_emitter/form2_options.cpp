// SPDX-License-Identifier: MIT
// The option pictures and tools of `Form2`. Which pictures are visible says which circuit is being designed.
#include "designs/common_emitter/emitter_formulas.h"
#include "designs/common_emitter/form2.h"
#include "sheets/sheet_titles.h"

namespace velmor::form2 {

namespace options_detail {

constexpr int smallPanel = 600;
constexpr int largePanel = 8775;
constexpr int minimised = 1;

} // namespace options_detail

using namespace options_detail;

// Another kind of sheet opens in front; this one starts over behind it.
void Form2::openVariant(std::string_view sheetName, const host::BiText& title)
{
    openSheet(sheetName, title);
    goTo(Text1);
}

void Form2::clickPicture6()
{
    openVariant("desaco", sheets::desacoFromForm2);
}

void Form2::lostPicture6()
{
    goTo(Text1);
}

void Form2::clickPicture4()
{
    openVariant("ParcDesac", sheets::parcDesacFromForm2);
}

void Form2::clickPicture1()
{
    if (visible(Picture1)) {
        goTo(Text1);
        write(STA70, common_emitter::bypassHint);
    }
    show(Picture6);
    hide(Picture1, Picture10, Picture11);
}

void Form2::lostPicture1()
{
    hide(Image2);
    goTo(Text1);
}

void Form2::clickPicture11()
{
    show(Image2, Text21, Picture10);
    hide(Picture11, Picture6, Picture1);
    tell(common_emitter::bypassAssigned);
    goTo(Text1);
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
    if (at(Text19) != 0)
        setText(statu72, "Cbp2=\n" + shown(common_emitter::secondBootstrapCapacitor(at(Text19), at(Text12))));
    hide(Image2);
}

// The way back, but that `image2` stays as it is. The notes are shown until the pointer moves on.
void Form2::clickPicture7()
{
    drawBootstrapping(false);
}

// Bootstrapping divides both resistors of the base: their plain drawings give way to the halves, and what is known of the plain
// stage to what is known of this one.
void Form2::drawBootstrapping(bool drawn)
{
    for (const host::Handle control : {Line20, Picture3, Picture5, Picture7, statu61, statu62, statu71, statu72})
        setVisible(control, drawn);
    for (const host::Handle control :
         {Line15, Line16, Picture2, sta1, statu31, statu32, status5, status6, status7, status8, status9})
        setVisible(control, !drawn);
}

void Form2::clickGuide()
{
    openGuide(visible(Image2) ? guideByEmitter : guideByBase);
}

void Form2::clickImage34()
{
    show(Image35);
    hide(Image34);
}

void Form2::clickImage35()
{
    host::Window* page = host().Show("Form19");
    if (page == nullptr)
        return;
    host().SetWindowCaption(*page, pick(noteWindowTitle));
    host().setVisible("Form19", "Text1", !inEnglish());
    host().setVisible("Form19", "Text2", inEnglish());
    if (page->windowState() == minimised)
        host().SetWindowState(*page, 0);
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

void Form2::pressImage1(host::EventArgs& args)
{
    pressPicture(args, tools.help);
}

} // namespace velmor::form2
