// SPDX-License-Identifier: MIT
// The steps that slots are made of.
#include "sheets/steps.h"

namespace velmor::sheets {

using host::BiText;
using host::Handle;

const BoxText placeANumber{.text = {.es = "Debe colocar una cifra...", .en = " Place a number..."},
                           .title = {.es = "Error", .en = "Error"},
                           .flags = 48};

namespace steps_detail {

constexpr BoxText overwriteReport{
    .text = {.es = "Si Acepta, lo escrito por ud. se perdera, (los datos del circuito no se pierden)",
             .en = " Acept, delete edit date, Cancel return... "},
    .title = {.es = " Cuidado!!!", .en = "Warning !!!!"},
    .flags = 65};
constexpr int answerOk = 1;

bool anyArrangementMark(host::SheetHost& host)
{
    return host.checked("mnuCas") || host.checked("mnuHoriz") || host.checked("mnuVert");
}

} // namespace steps_detail

std::int16_t filteredKey(DesignSheet& sheet, host::EventArgs& args)
{
    const rules::KeyFilterResult filtered = rules::KeyFilter(args.key);
    if (filtered.beep)
        sheet.host().Beep();
    sheet.host().values().DecimalSeparator = ".";
    sheet.setModificado(host::trueValue);
    return args.key;
}

Press pressed(DesignSheet& sheet, host::EventArgs& args, const BoxText& whenEmpty)
{
    const std::int16_t key = filteredKey(sheet, args);
    if (key == escapeKey)
        return Press::escape;
    if (key != enterKey)
        return Press::nothing;
    if (isEmpty(sheet, args.control)) {
        say(sheet, whenEmpty);
        return Press::nothing;
    }
    makeBare(sheet, args.control);
    return Press::enter;
}

rules::Real number(const host::Window& window, Handle control)
{
    return rules::ParseLeadingNumber(window.text(control));
}

rules::Real strictNumber(DesignSheet& sheet, Handle field)
{
    makeBare(sheet, field);
    return rules::StrictNumber(sheet.text(field), sheet.decimalSeparator());
}

void writeNumber(DesignSheet& sheet, Handle control, rules::Real value)
{
    sheet.setText(control, digits(sheet, value));
}

std::string shown(const DesignSheet& sheet, rules::Real value)
{
    return rules::CurrencyText(value, sheet.decimalSeparator());
}

std::string digits(const DesignSheet& sheet, rules::Real value)
{
    return rules::NumberText(value, sheet.decimalSeparator());
}

bool isEmpty(const host::Window& window, Handle field)
{
    return window.text(field).empty();
}

void makeBare(DesignSheet& sheet, Handle field)
{
    writeNumber(sheet, field, number(sheet, field));
}

bool correctToRange(DesignSheet& sheet, Handle field, double low, double high, double otherwise)
{
    const rules::Real value = number(sheet, field);
    if (value >= low && value <= high)
        return false;
    writeNumber(sheet, field, otherwise);
    return true;
}

bool correctFrom(DesignSheet& sheet, Handle field, double low, double otherwise)
{
    if (number(sheet, field) >= low)
        return false;
    writeNumber(sheet, field, otherwise);
    return true;
}

void goTo(DesignSheet& sheet, Handle field)
{
    sheet.show(field);
    sheet.enable(field);
    sheet.host().SetFocus(sheet, field);
}

int say(const DesignSheet& sheet, const BoxText& box)
{
    return sheet.host().MsgBox(sheet.pick(box.text), box.flags, sheet.pick(box.title));
}

void clone(DesignSheet& sheet, const ClonePair& pair, Handle clicked)
{
    const Handle other = clicked == pair.first ? pair.second : pair.first;
    sheet.show(other);
    sheet.hide(clicked);
    host::Window* opened = sheet.host().NewInstance(sheet.name());
    if (opened == nullptr)
        return;
    sheet.host().Show(*opened);
    opened->setCaption(sheet.pick(sheet.spec().sheetTitle));
    if (clicked == pair.first) {
        opened->show(pair.second);
        opened->hide(pair.first);
    }
}

void showCalculator(DesignSheet& sheet)
{
    sheet.host().Show("Calculator");
}

void showBarAsChosen(host::SheetHost& host)
{
    host::Window* mainWindow = host.find("MDIForm1");
    if (mainWindow == nullptr)
        return;
    host::EventArgs args;
    args.control = mainWindow->named("mnudise");
    if (args.control != host::noControl)
        mainWindow->runSlot(args.control, host::Event::click, args);
}

void rearrange(host::SheetHost& host)
{
    if (host.checked("mnuCas")) {
        host.Arrange(0);
    } else if (host.checked("mnuHoriz")) {
        host.Arrange(1);
    } else if (host.checked("mnuVert")) {
        host.Arrange(2);
    } else {
        host.Arrange(0);
        host.setChecked("mnuCas", true);
    }
}

void openGuide(DesignSheet& sheet, std::string_view guide)
{
    host::SheetHost& host = sheet.host();
    rearrange(host);
    host.values().ArchivoGuia = guide;
    host::Window* editor = host.NewInstance(host.pick({.es = "frmEdito1", .en = "frmEdito3"}));
    if (editor == nullptr)
        return;
    host.Show(*editor);
    host.SetWindowState(*editor, 0);
}

void openReport(DesignSheet& sheet, bool askFirst)
{
    using namespace steps_detail;
    host::SheetHost& host = sheet.host();
    host.Arrange(2);
    if (!anyArrangementMark(host))
        host.setChecked("mnuVert", true);
    const std::string_view name = host.pick({.es = "frmEdito2", .en = "frmEdito3"});
    const host::Window* open = host.find(name);
    const bool isOpen = open != nullptr && open->shown();
    const bool build = !isOpen || (askFirst && say(sheet, overwriteReport) == answerOk);
    host::Window* editor = host.Show(name);
    if (!isOpen && editor != nullptr)
        host.SetWindowState(*editor, 0);
    if (build)
        host.setText(name, "txtEdit", sheet.reportText());
}

} // namespace velmor::sheets
