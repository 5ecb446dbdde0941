// SPDX-License-Identifier: MIT
// The tables of `Form11` as those of `Form10` with differences, its life, its pages and the steps of the start.
#include "designs/power/form11.h"

namespace velmor::form11 {

using host::Handle;

namespace window_detail {

constexpr std::int32_t passedColor = 0xE0E0E0;
constexpr std::int32_t whiteColor = 0xFFFFFF;

// clang-format off
constexpr auto shortcuts = sheets::joined(sheets::toolKeys<tools>(), ownKeys, std::to_array<host::ShortcutRow>({
    {"Ctrl+1", image2, host::KeyAction::click, host::noControl, {"Criterios de Armado", "Approaches of Armed"}},
}));
// Rd stands in the driver, where the other sheet's label is beside an emitter resistor.
constexpr auto values = [] {
    auto all = sheets::joined(form10::values, std::to_array<host::ValueRow>({
        {Label16, Line10}, {Label17, Line10}, {Label18, Line10}, {Label19, Line3}, {Label20, Line3}, {Label25, Line9}, {Label26, Line5},
    }));
    for (host::ValueRow& row : all)
        if (row.value == Label14)
            row.part = Line3;
    return all;
}();
// clang-format on
constexpr Handle notes[] = {Label7, Label29};

sheets::SheetSpec sheetTables()
{
    sheets::SheetSpec tables = form10::sheetSpec;
    tables.filter = fileFilter;
    tables.chain = chain;
    tables.sayings = sayings;
    tables.notes = notes;
    tables.tools = tools;
    tables.guide = guideFile;
    return tables;
}

std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<Form11>(host);
}

host::WindowSpec window()
{
    host::WindowSpec window = form10::spec;
    window.name = "Form11";
    window.caption = "Clase B Complementaria";
    window.controls = controls;
    window.slots = slots;
    window.tabOrder = tabOrder;
    window.shortcuts = shortcuts;
    window.create = create;
    window.sheetTitle = sheets::titleOf("Form11");
    window.values = values;
    window.shownPlace = placeOnScreen;
    return window;
}

} // namespace window_detail

using namespace window_detail;

const sheets::SheetSpec sheetSpec = sheetTables();
const host::WindowSpec spec = window();

Form11::Form11(host::SheetHost& host) : Form10(host, form11::spec, form11::sheetSpec, darlingtonStage)
{
    holds(driver_, driverTable, host::Undo::takesBack);
}

void Form11::load()
{
    writeHeadings(helpText);
}

void Form11::hoverPart(host::EventArgs& args)
{
    hideNotes();
    tell(args.control, When::hover);
    show(Label29);
}

// A clone bears the title of the simple sheet.
void Form11::clickClone(host::EventArgs& args)
{
    DesignSheet::clickClone(args);
    host::Window* opened = host().activeChild();
    if (opened != nullptr && opened != this)
        opened->setCaption(pick(form10::spec.sheetTitle));
}

void Form11::openSteps()
{
    host().Show("Form5");
}

// --- the calculation pages

bool Form11::showsPage() const
{
    const host::Window* page = host().find("Form7");
    return page != nullptr && page->shown() && host().visible("Form7", "SSCommand2");
}

// The window starts fresh, and another sheet that waits for it waits no longer.
void Form11::showPage(Page page)
{
    for (host::Window* other : host().windows())
        if (auto* sheet = dynamic_cast<DesignSheet*>(other); sheet != nullptr && sheet != this)
            sheet->setOpenPage(noPage);
    setOpenPage(noPage);
    host().Unload("Form7");
    host().Show("Form7");
    for (const std::string_view hidden :
         {"Picture1", "Picture2", "Command2", "Command3", "Command4", "Command5", "Label1", "Label2", "Label5"})
        host().setVisible("Form7", hidden, false);
    for (const std::string_view shown : {"Label3", "SSCommand2"})
        host().setVisible("Form7", shown, true);
    host().setText("Form7", "Label3", page == pageOfBase ? pageText(basePage) : pageText(signalPage));
    setOpenPage(page);
}

// A page that was left with the sheet in front is done with; one that is not there any more when the sheet comes in front is opened
// again.
void Form11::activate()
{
    frameActivate();
    if (openPage() == noPage || showsPage())
        return;
    if (host().find("Form7") == nullptr)
        showPage(static_cast<Page>(openPage()));
    else
        leavePage();
}

void Form11::comeBack()
{
    frameComeBack();
    if (openPage() != noPage && !showsPage())
        leavePage();
}

void Form11::leavePage()
{
    setOpenPage(noPage);
    hide(Image3);
    show(Label8);
    const bool presetPassed = visible(Text7);
    disable(Text5, Text1, Text10, Text2, Text6);
    show(Text7);
    setBackColor(Text7, whiteColor);
    goOnFromPage(presetPassed);
}

// The first return of a round leads to the preset, a later one on from what has been passed.
void Form11::goOnFromPage(bool presetPassed)
{
    if (!presetPassed) {
        goTo(Text7);
    } else if (!enabled(Text6) && !enabled(Text7) && !enabled(Text4) && !enabled(Text3)) {
        setBackColor(Text7, passedColor);
        goTo(Text8);
    } else if (enabled(Text4) && !enabled(Text8)) {
        disable(Text7);
        setBackColor(Text7, passedColor);
        goTo(Text9);
    }
}

} // namespace velmor::form11
