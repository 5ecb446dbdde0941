// SPDX-License-Identifier: MIT
// The menu items of the main window: new and open sheets, files of the active sheet, arrangement, tools, language, bar
// and help.
#include <exception>

#include "frame/design_pages.h"
#include "frame/mdi_form1.h"
#include "frame/mdi_form1_menus.h"
#include "sheets/design_sheet.h"

namespace velmor::main_window {

using host::BiText;
using host::Handle;
using host::trueValue;

namespace item_texts {

constexpr BiText exitQuestion{.es = "¿Desea abandonar Velmor? (sin salvar circuitos...)",
                              .en = "¿Do you wish EXIT of Velmor? (circuits no save...)"};
constexpr std::string_view applicationTitle = "Velmor";
constexpr int exitFlags = 36;
constexpr int answerYes = 6;
constexpr BiText guideOfMenu{.es = "guia1.Lab", .en = "Feedback current.Lab"};
constexpr BiText guideOfBar{.es = "guia2.Lab", .en = "Feedback current.Lab"};
constexpr std::string_view projectGuide = "Proy.Lab";
constexpr BiText textEditor{.es = "frmEdito1", .en = "frmEdito3"};
constexpr BiText helpCaption{.es = "Ayuda,(no necesito a nadie..)", .en = "Help. (ain't got nobody)"};

// Whatever goes wrong with a file ends the action and nothing else.
void swallowErrors(const std::function<void()>& action)
{
    try {
        action();
    } catch (const std::exception&) {
        return;
    }
}

sheets::DesignSheet* activeSheet(host::SheetHost& host)
{
    return dynamic_cast<sheets::DesignSheet*>(host.activeChild());
}

} // namespace item_texts

using namespace item_texts;

host::Window* MDIForm1::makeSheet(std::string_view sheetName)
{
    host::Window* sheet = host().NewInstance(sheetName);
    if (sheet == nullptr)
        return nullptr;
    host().Show(*sheet);
    const DesignItem* design = designOfSheet(sheetName);
    const BiText caption = design != nullptr ? design->windowCaption : sheet->spec().sheetTitle;
    if (!host().pick(caption).empty())
        host().SetWindowCaption(*sheet, host().pick(caption));
    host().Show(*sheet);
    host().SetWindowState(*this, 2);
    if (design != nullptr && design->unloadsForm7)
        host().Unload("Form7");
    return sheet;
}

void MDIForm1::newSheet(std::string_view sheetName)
{
    makeSheet(sheetName);
}

void MDIForm1::openCircuit(std::string_view sheetName, std::string_view path)
{
    swallowErrors([this, sheetName, path] {
        if (auto* sheet = dynamic_cast<sheets::DesignSheet*>(makeSheet(sheetName)))
            sheet->openCircuit(path);
    });
}

void MDIForm1::clickNewItem(host::EventArgs& args)
{
    newSheet(designOfNewItem(args.control)->sheet);
}

void MDIForm1::clickOpenItem(host::EventArgs& args)
{
    swallowErrors([this, &args] {
        if (makeSheet(designOfOpenItem(args.control)->sheet) == nullptr)
            return;
        if (sheets::DesignSheet* sheet = activeSheet(host()))
            sheet->CDL_AbrirDatos();
    });
}

void MDIForm1::save()
{
    swallowErrors([this] {
        sheets::DesignSheet* sheet = activeSheet(host());
        if (sheet == nullptr)
            return;
        if (sheet->NombreArchivo().empty())
            sheet->CDL_GuardarDatos();
        sheet->Guardar();
    });
}

void MDIForm1::saveAs()
{
    swallowErrors([this] {
        sheets::DesignSheet* sheet = activeSheet(host());
        if (sheet == nullptr)
            return;
        sheet->CDL_GuardarDatos();
        sheet->Guardar();
    });
}

void MDIForm1::closeActive()
{
    swallowErrors([this] {
        if (host::Window* child = host().activeChild())
            host().Unload(*child);
    });
}

// What cannot be undone just now stands grey in the menu that opens.
void MDIForm1::markSteps()
{
    setEnabled(mnuDeshacer, host().canStepBack());
    setEnabled(mnuRehacer, host().canStepForth());
}

void MDIForm1::stepBack()
{
    host().StepBack();
}

void MDIForm1::stepForth()
{
    host().StepForth();
}

void MDIForm1::exitWithoutSaving()
{
    if (host().MsgBox(host().pick(item_texts::exitQuestion), item_texts::exitFlags, applicationTitle) ==
        item_texts::answerYes)
        endProgram();
}

void MDIForm1::clickArrangement(host::EventArgs& args)
{
    host().Arrange(args.control - mnuCas);
    for (const Handle item : {mnuCas, mnuHoriz, mnuVert})
        setChecked(item, item == args.control);
}

// With no mark set it tiles, and marks the cascade all the same.
void MDIForm1::arrangeAsMarked()
{
    if (checked(mnuCas)) {
        host().Arrange(0);
    } else if (checked(mnuHoriz)) {
        host().Arrange(1);
    } else if (checked(mnuVert)) {
        host().Arrange(2);
    } else {
        host().Arrange(1);
        setChecked(mnuCas, true);
    }
}

void MDIForm1::openGuide(host::EventArgs& args)
{
    arrangeAsMarked();
    host().values().ArchivoGuia = host().pick(args.control == Image29 ? guideOfBar : guideOfMenu);
    if (host::Window* editor = host().NewInstance(host().pick(textEditor)))
        host().Show(*editor);
}

void MDIForm1::openProject()
{
    if (checked(mnuCas) || checked(mnuHoriz) || checked(mnuVert)) {
        host().Arrange(2);
    } else {
        host().Arrange(0);
        setChecked(mnuCas, true);
    }
    host().values().ArchivoGuia = projectGuide;
    if (host::Window* editor = host().Show(host().pick(textEditor)))
        host().SetWindowState(*editor, 2);
}

void MDIForm1::showImport()
{
    host().Show("frmDrag");
}

void MDIForm1::markScreenMode()
{
    switch (host().values().ScreenMode) {
    case 0:
        setChecked(mnuScreen1, false);
        break;
    case 1:
        setChecked(mnuScreen1, true);
        break;
    default:
        setCaption("NO anda");
    }
}

void MDIForm1::chooseScreen()
{
    host().values().ScreenMode = 1;
    showBarAsChosen();
}

void MDIForm1::switchLanguage(std::int16_t languageIsEnglish)
{
    host().values().LanguageIsEnglish = languageIsEnglish;
    setChecked(mnuIng, english());
    setChecked(mnuEsp, !english());
    writeCaptions();
    host().setText("Form16", "lblButton", host().pick(palette::allDesigns));
}

void MDIForm1::switchToEnglish()
{
    switchLanguage(trueValue);
}

void MDIForm1::switchToSpanish()
{
    switchLanguage(0);
}

// A click that changes the mark writes the opposite language: the program stays in its own, the mark is for the next start.
void MDIForm1::chooseAtStart(Handle chosen, Handle other, std::int16_t ifChecked, std::int16_t ifNot)
{
    host().values().LanguageIsEnglish = checked(chosen) ? ifChecked : ifNot;
    setChecked(chosen, true);
    setChecked(other, false);
    if (checked(mnuFija))
        show(Picture14);
    else if (checked(mnuFlotante))
        host().Show("Form16");
}

void MDIForm1::chooseEnglishAtStart()
{
    chooseAtStart(mnuLenguaje0, mnuLenguaje1, trueValue, 0);
}

void MDIForm1::chooseSpanishAtStart()
{
    chooseAtStart(mnuLenguaje1, mnuLenguaje0, 0, trueValue);
}

void MDIForm1::fixBar()
{
    setChecked(mnuFija, true);
    setChecked(mnuFlotante, false);
    show(SSPanel1, Picture14);
    for (std::size_t i = 0; i < buttonCount; ++i) {
        const Handle button = element(imgButton0, i);
        host::Place place = placeOf(button);
        place.left = barLefts[i];
        setPlaceOf(button, place);
        show(button);
    }
    host::Place place = placeOf(lblButton);
    place.top = barLefts.back();
    setPlaceOf(lblButton, place);
    show(lblButton);
}

void MDIForm1::floatBar()
{
    setChecked(mnuFlotante, true);
    setChecked(mnuFija, false);
    hide(Picture14);
    if (host::Window* palette = host().Show("Form16"))
        host().SetWindowState(*palette, 0);
}

void MDIForm1::showHelp()
{
    host::Window* help = host().Show("Form19");
    if (help == nullptr)
        return;
    host().SetWindowCaption(*help, host().pick(helpCaption));
    host().setVisible("Form19", "Text1", !english());
    host().setVisible("Form19", "Text2", english());
    if (help->windowState() == 1)
        host().SetWindowState(*help, 0);
}

void MDIForm1::showAbout()
{
    host().Show("frmAbout");
}

void MDIForm1::showContact()
{
    host().Show("infoform");
    host().setVisible("infoform", "Label1", true);
    host().setVisible("infoform", "Label2", false);
}

} // namespace velmor::main_window
