// SPDX-License-Identifier: MIT
// The main window: menus, language, the choice of bar, the files of the active sheet, and the end of the program. It
// knows the sheets by name and by their public operations only.
#pragma once

#include <functional>
#include <string_view>

#include "frame/mdi_form1_controls.h"
#include "host/sheet_host.h"
#include "host/window.h"

namespace velmor::main_window {

class MDIForm1 : public host::Window {
public:
    explicit MDIForm1(host::SheetHost& host);

    /// A new sheet as its item of the menu of new sheets makes it; `desaco` and `ParcDesac`, which have none, as their
    /// open item does before the dialog. Nothing happens when the program has no such window.
    void newSheet(std::string_view sheetName);
    /// A new sheet that holds a circuit file, as its open item makes it once the dialog is answered.
    void openCircuit(std::string_view sheetName, std::string_view path);
    /// Brings up the bar that the student has chosen, fixed or floating, and puts the other away. Windows that do not
    /// know this class run it as the click slot of `mnudise`.
    void showBarAsChosen();
    /// Writes all captions of menus and welcome labels, and the window's own, in the language of the moment.
    void writeCaptions();

    // slots of the window
    void load();
    void activate();
    void resize();
    void askExit(host::EventArgs& args);
    void endProgram();
    void pressBackground(host::EventArgs& args);

    // slots of the circuit bar and of the welcome panel
    void hoverBarButton(host::EventArgs& args);
    void pressBarButton(host::EventArgs& args);
    void releaseBarButton(host::EventArgs& args);
    void clickBarButton(host::EventArgs& args);
    void hoverBarLabel();
    void clickBarLabel();
    void pressBar(host::EventArgs& args);
    void hoverMaxim();
    void clickTitle();
    void runShortcut();

    // slots of the menus
    void clickNewItem(host::EventArgs& args);
    void clickOpenItem(host::EventArgs& args);
    void clickArrangement(host::EventArgs& args);
    void save();
    void saveAs();
    void closeActive();
    void exitWithoutSaving();
    void openGuide(host::EventArgs& args);
    void openProject();
    void showImport();
    void markSteps();
    void stepBack();
    void stepForth();
    void markScreenMode();
    void switchToEnglish();
    void switchToSpanish();
    void fixBar();
    void floatBar();
    void chooseEnglishAtStart();
    void chooseSpanishAtStart();
    void chooseScreen();
    void showHelp();
    void showAbout();
    void showContact();

private:
    host::Window* makeSheet(std::string_view sheetName);
    void writeItemCaptions();
    void markLanguage();
    void disableWhatIsMissing();
    void switchLanguage(std::int16_t languageIsEnglish);
    void chooseAtStart(host::Handle chosen, host::Handle other, std::int16_t ifChecked, std::int16_t ifNot);
    void layOutPages();
    void arrangeAsMarked();
    bool english() const { return host().values().LanguageIsEnglish == host::trueValue; }
};

/// Writes the language of the next start and the screen mode to the settings store. The language comes from the two marks
/// under `mnuPredet(0)`, never from the language of the moment.
void saveSettings(host::SheetHost& host);

} // namespace velmor::main_window
