// SPDX-License-Identifier: MIT
// What the tools of every sheet do: guide, calculator, report, clone, the help pair, the menus of the picture. The statements
// stand in the order told, since windows and check marks are seen to change.
#include "sheets/design_sheet.h"

namespace velmor::sheets {

using host::Handle;

namespace buttons_detail {

constexpr Saying overwriteReport{
    .text = {.es = "Si Acepta, lo escrito por ud. se perdera, (los datos del circuito no se pierden)",
             .en = " Acept, delete edit date, Cancel return... "},
    .title = {.es = " Cuidado!!!", .en = "Warning !!!!"},
    .flags = 65};
constexpr int answerOk = 1;
constexpr host::BiText textEditor{.es = "frmEdito1", .en = "frmEdito3"};

bool anyArrangementMark(host::SheetHost& host)
{
    return host.checked("mnuCas") || host.checked("mnuHoriz") || host.checked("mnuVert");
}

bool isOpen(host::SheetHost& host, std::string_view editor)
{
    const host::Window* open = host.find(editor);
    return open != nullptr && open->shown();
}

// The main window's bar routine: brings up the bar that the student has chosen.
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

} // namespace buttons_detail

using namespace buttons_detail;

void DesignSheet::rearrange()
{
    if (host().checked("mnuCas")) {
        host().Arrange(0);
    } else if (host().checked("mnuHoriz")) {
        host().Arrange(1);
    } else if (host().checked("mnuVert")) {
        host().Arrange(2);
    } else {
        host().Arrange(0);
        host().setChecked("mnuCas", true);
    }
}

void DesignSheet::clickGuide()
{
    openGuide(sheet_.guide);
}

void DesignSheet::openGuide(const host::BiText& guide)
{
    rearrange();
    host().values().ArchivoGuia = pick(guide);
    host::Window* editor = host().NewInstance(pick(textEditor));
    if (editor == nullptr)
        return;
    host().Show(*editor);
    host().SetWindowState(*editor, 0);
}

void DesignSheet::clickCalculator()
{
    host().Show("Calculator");
}

void DesignSheet::clickReport()
{
    host().Arrange(2);
    if (!anyArrangementMark(host()))
        host().setChecked("mnuVert", true);
    showReport(!isOpen(host(), pick(reportEditor)));
}

void DesignSheet::openReportAsking()
{
    showReport(mayWriteReport());
}

bool DesignSheet::mayWriteReport()
{
    host().Arrange(2);
    if (!anyArrangementMark(host()))
        host().setChecked("mnuVert", true);
    return !isOpen(host(), pick(reportEditor)) || tell(overwriteReport) == answerOk;
}

void DesignSheet::showReport(bool build)
{
    const std::string_view name = pick(reportEditor);
    const bool wasOpen = isOpen(host(), name);
    host::Window* editor = host().Show(name);
    if (!wasOpen && editor != nullptr)
        host().SetWindowState(*editor, 0);
    if (build)
        host().setText(name, textOfReport, reportText());
}

host::Window* DesignSheet::openSheet(std::string_view sheetName, const host::BiText& title)
{
    host::Window* opened = host().NewInstance(sheetName);
    if (opened == nullptr)
        return nullptr;
    host().Show(*opened);
    host().SetWindowCaption(*opened, pick(title));
    return opened;
}

// The pair changes places here, and opens with the other drawing in the new window when its first drawing was clicked.
void DesignSheet::clickClone(host::EventArgs& args)
{
    const ImagePair& pair = sheet_.tools.clone;
    const bool first = args.control == pair.first;
    show(first ? pair.second : pair.first);
    hide(args.control);
    host::Window* opened = openSheet(name(), spec().sheetTitle);
    if (first && opened != nullptr) {
        opened->show(pair.second);
        opened->hide(pair.first);
    }
}

void DesignSheet::openHelpBoxes()
{
    const HelpBoxes& boxes = sheet_.helpBoxes;
    setPlaceOf(boxes.spanish, boxes.place);
    setPlaceOf(boxes.english, boxes.place);
    setVisible(boxes.english, inEnglish());
    setVisible(boxes.spanish, !inEnglish());
    hide(sheet_.tools.help.first);
    show(sheet_.tools.help.second);
}

void DesignSheet::openHelpBoxesAt(int left)
{
    openHelpBoxes();
    host::Place place = sheet_.helpBoxes.place;
    place.left = left;
    setPlaceOf(sheet_.helpBoxes.spanish, place);
    setPlaceOf(sheet_.helpBoxes.english, place);
}

void DesignSheet::closeHelpBoxes()
{
    hide(sheet_.helpBoxes.spanish, sheet_.helpBoxes.english, sheet_.tools.help.second);
    show(sheet_.tools.help.first);
}

void DesignSheet::pressPicture(const host::EventArgs& args, const ImagePair& pair)
{
    if (args.button == host::Button::left) {
        host().PopupMenu("mnuArchivo");
    } else if (args.button == host::Button::right && (args.shift == 1 || args.shift == 2)) {
        host().PopupMenu("mnuOp");
    } else if (args.button == host::Button::right && args.shift == 0) {
        showBarAsChosen(host());
        const bool first = visible(pair.first);
        setVisible(pair.first, !first);
        setVisible(pair.second, first);
    }
}

} // namespace velmor::sheets
