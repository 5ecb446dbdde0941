// SPDX-License-Identifier: MIT
// The circuit bar and the talkative panel of the main window: the same deeds as the palette's, with the bar's own shapes.
#include "frame/design_pages.h"
#include "frame/mdi_form1.h"

namespace velmor::main_window {

namespace bar_detail {

std::size_t indexOf(host::Handle button)
{
    return static_cast<std::size_t>(button - imgButton0);
}

} // namespace bar_detail

void MDIForm1::hoverBarButton(host::EventArgs& args)
{
    palette::markShape(*this, Shape1_0, bar_detail::indexOf(args.control));
    palette::ShowDesignPage(host(), bar_detail::indexOf(args.control));
}

// The border of the pressed image is its check mark.
void MDIForm1::pressBarButton(host::EventArgs& args)
{
    if (args.button != host::Button::left)
        return;
    setChecked(args.control, true);
    hide(element(Shape1_0, bar_detail::indexOf(args.control)));
}

void MDIForm1::releaseBarButton(host::EventArgs& args)
{
    setChecked(args.control, false);
    show(element(Shape1_0, bar_detail::indexOf(args.control)));
}

void MDIForm1::clickBarButton(host::EventArgs& args)
{
    palette::OpenDesign(host(), bar_detail::indexOf(args.control));
}

void MDIForm1::hoverBarLabel()
{
    palette::ClearDesignPage(host());
    palette::markShape(*this, Shape1_0, palette::noShape);
}

void MDIForm1::clickBarLabel()
{
    palette::ShowOrClearPanel(host());
}

void MDIForm1::pressBar(host::EventArgs& args)
{
    if (args.button == host::Button::right)
        host().PopupMenu("mnuContexto");
}

void MDIForm1::hoverMaxim()
{
    palette::ShowNotes(host());
}

void MDIForm1::clickTitle()
{
    palette::ShowPoem(host());
}

void MDIForm1::runShortcut()
{
    hide(Picture14);
}

} // namespace velmor::main_window
