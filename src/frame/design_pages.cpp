// SPDX-License-Identifier: MIT
// Pages and clicks of the design buttons. The order of the steps is behaviour.
#include "frame/design_pages.h"

#include <array>

#include "frame/mdi_form1_controls.h"
#include "frame/palette_texts.h"
#include "sheets/sheet_titles.h"

namespace velmor::palette {

using host::BiText;
using host::Handle;
using main_window::element;

namespace pages_detail {

constexpr BiText generalPaletteCaption{.es = " Todos...", .en = " All circuits..."};
constexpr std::string_view generalMainCaption = "   Velmor";
constexpr BiText simpleTitle = sheets::titleOf("Form8");
constexpr BiText stableTitle = sheets::titleOf("Form18");
constexpr std::size_t chooser = 11;
constexpr std::size_t poemPicture = 12;
constexpr int pageTop = 20;
constexpr int pictureGap = 50;
constexpr int maximWidth = 3700;
constexpr int maximHeight = 2000;
constexpr int minimised = 1;
constexpr int maximised = 2;

/// What a click does first to the welcome panel.
enum class Panel : std::uint8_t { hides, shows, stays };
constexpr std::array<Panel, designCount> panelOnClick{
    Panel::hides, Panel::shows, Panel::stays, Panel::shows, Panel::hides, Panel::shows,
    Panel::shows, Panel::shows, Panel::shows, Panel::shows, Panel::shows, Panel::stays,
};

void showPicture(host::Window& main, std::size_t shown)
{
    const Handle picture = element(main_window::Picture1, shown);
    host::Place place = main.placeOf(picture);
    place.left = main.placeOf(main_window::SSPanel1).width + pictureGap;
    main.setPlaceOf(picture, place);
    for (std::size_t i = 0; i < main_window::pagePictureCount; ++i)
        main.setVisible(element(main_window::Picture1, i), i == shown);
    main.hide(main_window::Image1);
}

void hideNotes(host::Window& main)
{
    for (const SymbolNote& note : symbolNotes)
        main.hide(main.named(note.label));
}

void putTop(host::Window& main, Handle control, int top)
{
    host::Place place = main.placeOf(control);
    place.top = top;
    main.setPlaceOf(control, place);
}

// The height of the head picture is that of the load: button 1 shows that very picture, and must show it the same twice.
void layOut(host::Window& main, std::size_t shown)
{
    if (main.windowState() == minimised)
        return;
    const Handle picture = element(main_window::Picture1, shown);
    host::Place place = main.placeOf(picture);
    place.height = main.placeOf(main_window::SSPanel1).height - main_window::headPictureHeight;
    main.setPlaceOf(picture, place);
    putTop(main, main_window::Label1, pageTop);
}

void openSheet(host::SheetHost& host, std::string_view name, const BiText& title)
{
    host::Window* sheet = host.NewInstance(name);
    if (sheet == nullptr)
        return;
    host.Show(*sheet);
    host.SetWindowCaption(*sheet, host.pick(title));
    host.SetWindowState(host.mainWindow(), maximised);
}

void setPaletteCaption(host::SheetHost& host, std::string_view caption)
{
    if (host::Window* palette = host.find("Form16"))
        host.SetWindowCaption(*palette, caption);
}

} // namespace pages_detail

using namespace pages_detail;

void ShowDesignPage(host::SheetHost& host, std::size_t index)
{
    if (index >= designCount)
        return;
    const DesignPage& page = designPages[index];
    host::Window& main = host.mainWindow();
    const host::Place& maxim = main.placeOf(main_window::Label21);
    main.setPlaceOf(main_window::Label21, {maxim.left, pageTop, maximWidth, maximHeight});
    main.setText(main_window::Label21, host.pick(page.maxim));
    main.show(main_window::Label1, main_window::Label21);
    showPicture(main, index);
    main.setCaption(host.pick(page.hoverMainCaption));
    setPaletteCaption(host, host.pick(page.hoverPaletteCaption));
    main.setText(main_window::Label1, host.pick(page.text));
    hideNotes(main);
    layOut(main, index);
}

void OpenDesign(host::SheetHost& host, std::size_t index)
{
    if (index >= designCount || !host.canShow(designPages[index].sheet))
        return;
    if (index == chooser) {
        // A calculation page that a sheet has left open there gives way.
        if (host.visible(designPages[index].sheet, "SSCommand2"))
            host.Unload(designPages[index].sheet);
        host.Show(designPages[index].sheet);
        return;
    }
    if (panelOnClick[index] != Panel::stays)
        host.mainWindow().setVisible(main_window::SSPanel1, panelOnClick[index] == Panel::shows);
    openSheet(host, designPages[index].sheet, designPages[index].sheetTitle);
}

void OpenVoltageFeedback(host::SheetHost& host, bool stable)
{
    openSheet(host, stable ? "Form18" : "Form8", stable ? stableTitle : simpleTitle);
    host.Unload("Form7");
}

void ClearDesignPage(host::SheetHost& host)
{
    host::Window& main = host.mainWindow();
    main.setCaption(generalMainCaption);
    setPaletteCaption(host, host.pick(generalPaletteCaption));
    if (main.visible(main_window::Picture13))
        main.hide(main_window::Label21);
    for (std::size_t i = 0; i < main_window::pagePictureCount; ++i)
        main.hide(element(main_window::Picture1, i));
    main.show(main_window::Image1);
    hideNotes(main);
    main.hide(main_window::Label1);
    putTop(main, main_window::Label1, pageTop);
    main.show(main_window::SSPanel1);
}

void ShowOrClearPanel(host::SheetHost& host)
{
    host::Window& main = host.mainWindow();
    if (main.windowState() == minimised) {
        host.SetWindowState(main, maximised);
        main.hide(main_window::Label1);
        main.show(main_window::SSPanel1);
        if (host::Window* palette = host.Show("Form16"))
            palette->setPlace({0, 0, palette->place().width, palette->place().height});
        host.Show(main);
    } else {
        main.hide(main_window::SSPanel1, main_window::Label1);
    }
    if (!host.checked("mnuFlotante"))
        host.Hide("Form16");
}

void ShowNotes(host::SheetHost& host)
{
    host::Window& main = host.mainWindow();
    for (const SymbolNote& note : symbolNotes) {
        const Handle label = main.named(note.label);
        main.setText(label, host.pick(note.text));
        main.setVisible(label, main.visible(element(main_window::Picture1, note.button)));
    }
    if (!main.visible(main_window::Picture13))
        return;
    main.setText(main_window::Label1, host.pick(poem.label1));
    main.setText(main_window::Label21, host.pick(poem.label21));
}

void ShowPoem(host::SheetHost& host)
{
    host::Window& main = host.mainWindow();
    showPicture(main, poemPicture);
    layOut(main, poemPicture);
    ShowNotes(host);
    main.show(main_window::Label1, main_window::Label21);
}

void markShape(host::Window& window, host::Handle firstShape, std::size_t index)
{
    constexpr std::size_t shapes = 13;
    for (std::size_t i = 0; i < shapes; ++i)
        window.setBackColor(static_cast<Handle>(firstShape + i), i == index ? markingColor : -1);
}

} // namespace velmor::palette
