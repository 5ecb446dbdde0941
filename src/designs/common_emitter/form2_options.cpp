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

void Form2::lostPicture1()
{
    hide(Image2);
    goTo(Text1);
}

void Form2::clickPicture2()
{
    drawBootstrapping(true);
    writeSecondBootstrap();
    hide(Image2);
}

// The way back, but that `image2` stays as it is. The notes are shown until the pointer moves on.
void Form2::clickPicture7()
{
    drawBootstrapping(false);
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
