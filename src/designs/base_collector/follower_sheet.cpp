// SPDX-License-Identifier: MIT
// The slots that follower and splitter have alike.
#include "designs/base_collector/follower_sheet.h"

namespace velmor::base_collector {

using host::Handle;
using sheets::Press;

FollowerSheet::FollowerSheet(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet,
                             const FollowerTables& tables, bool& passed)
    : DesignSheet(host, window, sheet), tables_(tables), passed_(passed)
{}

void FollowerSheet::clickBackground()
{
    host().Hide("frmEdito3");
}

void FollowerSheet::unload()
{
    host().Unload("Form6");
}

Press FollowerSheet::pressed(host::EventArgs& args)
{
    const Press press = DesignSheet::pressed(args);
    if (press == Press::nothing && args.key != 0 && args.control != tables_.last)
        passed_ = false;
    return press;
}

void FollowerSheet::rewrite(Handle field, std::string_view newText)
{
    if (text(field) == newText)
        return;
    setText(field, newText);
    passed_ = false;
}

void FollowerSheet::goOnFrom(Handle field)
{
    for (const ClosedBehind& row : tables_.closedBehind)
        if (row.field == field)
            disable(row.closed);
    goTo(chainRow(field).next);
}

void FollowerSheet::keyField(host::EventArgs& args)
{
    if (pressed(args) == Press::enter)
        goOnFrom(args.control);
}

void FollowerSheet::leaveField(host::EventArgs& args)
{
    if (correct(args.control))
        passed_ = false;
}

void FollowerSheet::clickField(host::EventArgs& args)
{
    if (const ClickValue* row = clickValueOf(tables_.clickValues, args.control))
        rewrite(row->field, row->text);
}

void FollowerSheet::openResistorTable(const host::EventArgs& args)
{
    if (args.button == host::Button::right)
        host().Show("Form14");
}

void FollowerSheet::setWidth(Handle control, int width)
{
    host::Place place = placeOf(control);
    place.width = width;
    setPlaceOf(control, place);
}

void FollowerSheet::setTop(Handle control, int top)
{
    host::Place place = placeOf(control);
    place.top = top;
    setPlaceOf(control, place);
}

void FollowerSheet::exchange(Handle gone, Handle shown)
{
    show(shown);
    host().SetFocus(*this, shown);
    hide(gone);
}

} // namespace velmor::base_collector
