// SPDX-License-Identifier: MIT
// What the fields of a chain do that do nothing out of the ordinary, and the help pages by tags.
#include <algorithm>

#include "sheets/design_sheet.h"

namespace velmor::sheets {

using host::Handle;

void DesignSheet::focusField(host::EventArgs& args)
{
    const Handle field = args.control;
    if (!sheet_.helpPages.empty()) {
        LimpiarTags();
        setTag(field, chainRow(field).tag);
    }
    tell(field, When::focus);
    grow(field);
}

void DesignSheet::keyField(host::EventArgs& args)
{
    const Press press = pressed(args);
    if (goesOn(args.control, press))
        goOn(args.control, press);
}

bool DesignSheet::goesOn(Handle field, Press press)
{
    if (press != Press::escape)
        return press == Press::enter;
    const ChainRow& row = chainRow(field);
    if (row.esc.empty())
        return false;
    setText(field, row.esc);
    return true;
}

void DesignSheet::goOn(Handle field, Press press)
{
    const bool otherWords = press == Press::escape && saying(field, When::escape) != nullptr;
    tell(field, otherWords ? When::escape : When::enter);
    goTo(chainRow(field).next);
}

void DesignSheet::leaveField(host::EventArgs& args)
{
    correct(args.control);
}

void DesignSheet::hoverField(host::EventArgs& args)
{
    hideNotes();
    bool voice = false;
    for (const Saying& row : sheet_.sayings) {
        if (row.about != args.control || row.when != When::hover)
            continue;
        tell(row);
        voice = voice || row.place == sheet_.voice;
        if (std::find(sheet_.notes.begin(), sheet_.notes.end(), row.place) != sheet_.notes.end())
            show(row.place);
    }
    for (const Saying& row : sheet_.sayings)
        if (!voice && row.about == args.control && row.when == When::focus && row.place == sheet_.voice)
            tell(row);
}

void DesignSheet::pressField(host::EventArgs& args)
{
    const bool hasPage = std::any_of(sheet_.helpPages.begin(), sheet_.helpPages.end(),
                                     [&](const HelpPage& page) { return page.field == args.control; });
    if (args.button != host::Button::right || !hasPage)
        return;
    setTag(args.control, "1");
    MostrarAyuda();
}

void DesignSheet::LimpiarTags()
{
    for (const ChainRow& row : sheet_.chain)
        setTag(row.field, "0");
}

void DesignSheet::MostrarAyuda()
{
    constexpr host::BiText caption{.es = " Ayuda", .en = " Help"};
    const bool english = inEnglish();
    if (host::Window* panel = host().Show("Form21"))
        host().SetWindowCaption(*panel, pick(caption));
    host().setVisible("Form21", "Label1", english);
    host().setVisible("Form21", "Text22", !english);
    for (const HelpPage& page : sheet_.helpPages) {
        if (rules::ParseLeadingNumber(tag(page.field)) != 1.0)
            continue;
        if (pick(page.page).empty())
            break;
        host().setText("Form21", "SSCommand1", page.shortName);
        host().setText("Form21", "Text22", pick(page.page));
        if (english)
            host().setText("Form21", "Text23", page.page.en);
        break;
    }
    host().setVisible("Form21", "Text23", english);
}

} // namespace velmor::sheets
