// SPDX-License-Identifier: MIT
// The other menus of the editors: clipboard, search, arrangement, colours, fonts, printing.
#include "editors/editor.h"
#include "editors/print_layout.h"
#include "host/engine.h"

namespace velmor::editors {

namespace editor_menus_detail {

constexpr std::int32_t red = 0xFF0000; // what the colour dialog starts on
enum Shortcut : std::int16_t { findKey, replaceKey };

} // namespace editor_menus_detail

void Editor::replaceSelection(std::string_view text)
{
    store(txtEdit).replaceSelection(text);
    host().engine().programEdited(*this, txtEdit);
}

void Editor::editMenuOpens()
{
    const bool anything = store(txtEdit).selectionLength() > 0;
    setEnabled(mnuEditItem0, anything);
    setEnabled(mnuEditItem1, anything);
}

void Editor::copy()
{
    document_.actionCancelled = false;
    host::TextStore& text = store(txtEdit);
    host().screen().setClipboardText(text.slice(text.selectionStart(), text.selectionLength()));
}

void Editor::cut()
{
    copy();
    replaceSelection("");
    document_.changed = true;
}

void Editor::paste()
{
    document_.actionCancelled = false;
    replaceSelection(host().screen().clipboardText());
    document_.changed = true;
}

void Editor::find()
{
    document_.actionCancelled = false;
    host().Show("frmFind");
}

void Editor::replace()
{
    document_.actionCancelled = false;
    host().Show("frmReplace");
}

void Editor::shortcut(host::EventArgs& args)
{
    if (args.key == editor_menus_detail::findKey)
        find();
    else if (args.key == editor_menus_detail::replaceKey)
        replace();
}

void Editor::cascade()
{
    host().Arrange(0);
}

void Editor::tileHorizontally()
{
    host().Arrange(1);
}

void Editor::tileVertically()
{
    host().Arrange(2);
}

void Editor::bringCircuitsBack()
{
    if (host().checked("mnuFija"))
        host().setVisible("MDIForm1", "Picture14", true);
    else if (host().checked("mnuFlotante"))
        host().Show("Form16");
}

void Editor::backColour()
{
    document_.actionCancelled = false;
    if (const auto chosen = host().screen().colourDialog(editor_menus_detail::red))
        setBackColor(txtEdit, *chosen);
}

void Editor::foreColour()
{
    document_.actionCancelled = false;
    const auto chosen = host().screen().colourDialog(editor_menus_detail::red);
    if (!chosen)
        return;
    host::Font changed = font(txtEdit);
    changed.color = *chosen;
    setFont(txtEdit, changed);
}

void Editor::fonts()
{
    document_.actionCancelled = false;
    if (const auto chosen = host().screen().fontDialog(font(txtEdit)))
        setFont(txtEdit, *chosen);
}

void Editor::about()
{
    document_.actionCancelled = false;
    host().Show("frmAbout");
}

void Editor::newWindow()
{
    document_.actionCancelled = false;
    if (editor_.newDocumentByItem) {
        newDocument();
        return;
    }
    host::SheetHost& program = host();
    const std::string guide(editor_.guideOfNewWindow);
    if (!guide.empty())
        program.values().ArchivoGuia = guide;
    if (host::Window* opened = program.NewInstance(pick(editor_.newWindow)))
        program.Show(*opened);
    if (!guide.empty())
        program.values().ArchivoGuia = guide;
}

void Editor::print()
{
    document_.actionCancelled = false;
    std::string text;
    for (const char letter : store(txtEdit).all()) {
        if (letter == '\n')
            text.push_back('\r');
        text.push_back(letter);
    }
    const host::Font face = font(txtEdit);
    host::Font measured = face;
    if (!editor_.printsFontSize)
        measured.size = 0; // the printer's own
    const auto widthOf = [&](char32_t character) {
        return host().screen().printedWidth(measured, host::toUtf8(std::u32string_view(&character, 1)));
    };
    host().screen().print(
        {.text = breakForPrinter(text, widthOf), .font = face, .fontSizeGiven = editor_.printsFontSize});
}

} // namespace velmor::editors
