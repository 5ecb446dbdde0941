// SPDX-License-Identifier: MIT
// What the four editors share: one large text, a document on disk, and the menus around it. Each window adds a table
// of its texts and flags; the crossed titles of the text editors are in those tables.
#pragma once

#include <string>
#include <string_view>

#include "host/sheet_host.h"
#include "host/window.h"

namespace velmor::editors {

/// The controls that every editor has, first in its table and in this order.
enum Control : host::Handle {
    txtEdit,
    mnuFile,
    mnuFilenew,
    mnuFileOpen,
    mnuGuardar,
    mnuFileSaveAs,
    mnuImprimir,
    mnuFileItem,
    mnuFileexit,
    mnuEdit,
    mnuEditItem0,
    mnuEditItem1,
    mnuEditItem2,
    mnuSearch,
    mnuBuscar,
    mnuBr,
    mnuWindow,
    mnuCas,
    mnuHoriz,
    mnuVert,
    mnuCircuit,
    mnuSettings,
    mnuBackColorItem,
    mnuForeColorItem,
    mnuFontSizesItem,
    mnuHelp,
    mnuAbout,
    controlCount
};

/// A question: text, title, flags.
struct Question {
    host::BiText text{};
    host::BiText title{};
    int flags = 0;
};

/// Where a window looks for the guide that it opens with.
enum class GuidePlace : std::uint8_t {
    archivos,       ///< the subfolder "Archivos" of the program's folder
    archivosByName, ///< the path of "Archivos" is kept as the name, but the bare name is opened in the program's folder
    programFolder,  ///< the bare name, in the program's folder
    none,           ///< no guide: the open dialog runs at once
};

/// What distinguishes one editor from another.
struct EditorSpec {
    GuidePlace guide = GuidePlace::archivos;
    bool titlesOnReportEditor = false; ///< titles go to `frmEdito3`, when that is loaded, instead of this window
    host::BiText guideTitle{};         ///< behind the path, after a guide was read
    host::BiText documentTitle{};      ///< behind the path, after open and save as
    host::BiText newTitle{};           ///< title of a new document
    Question keep{};                   ///< ask-to-save
    Question keepAtExit{};
    Question replaceFile{};
    Question confirmExit{};              ///< flags 0: no confirmation
    Question closeByButton{};            ///< flags 0: no question
    bool newDocumentByItem = false;      ///< `mnuFileItem` makes a new document here instead of a new window
    host::BiText newWindow{};            ///< the editor that `mnuFileItem` opens
    std::string_view guideOfNewWindow{}; ///< `ArchivoGuia` set around it; empty leaves it alone
    bool printsFontSize = true;
    int lessWidthAtStart = 0; ///< how much smaller than the window the text is until the first resize, twips
    int lessHeightAtStart = 0;
};

/// What an editor knows of its document, beside the text.
struct Document {
    std::string name;          ///< `NombreDocumento`
    std::string file;          ///< the file that the name means: whole path, with the capitals that it has on the disk
    bool fileIsChosen = false; ///< a person has named that file; it is not the guide that the editor opened with
    bool isNew = true;
    bool changed = false;
    bool actionCancelled = false;
    bool exitConfirmed = false;
};

class Editor : public host::Window {
public:
    Editor(host::SheetHost& host, const host::WindowSpec& window, const EditorSpec& editor);

    void load();
    void resize();
    void queryClose(host::EventArgs& args);
    void changed();
    void shortcut(host::EventArgs& args);

    /// Shows the document of that file under its path, in an editor that nothing was opened in yet. False, with an empty
    /// editor, when it cannot be read.
    bool openFile(const std::string& path);
    void newDocument();
    void openDocument();
    void saveDocument();
    void saveDocumentAs();
    void print();
    void newWindow();
    void exit();
    void editMenuOpens();
    void cut();
    void copy();
    void paste();
    void find();
    void replace();
    void cascade();
    void tileHorizontally();
    void tileVertically();
    void bringCircuitsBack();
    void backColour();
    void foreColour();
    void fonts();
    void about();

    bool holdsUnsaved() override;
    const std::string& NombreDocumento() const { return document_.name; }
    bool DocumentoNuevo() const { return document_.isNew; }
    bool DocumentoCambiado() const { return document_.changed; }
    void setAccionCancelada(bool cancelled) { document_.actionCancelled = cancelled; }

private:
    std::string_view pick(const host::BiText& text) const { return host().pick(text); }
    int ask(const Question& question);
    bool mayDiscard(const Question& keep, bool exiting);
    void openGuide();
    bool readDocument(const std::string& path);
    bool writeDocument(const std::string& path);
    void takeFile(const std::string& path);
    bool runSaveAs();
    void runOpen();
    void putText(std::string_view text);
    void replaceSelection(std::string_view text);
    void setTitle(std::string_view title);
    void setBusy(bool busy);
    void startEmpty();
    void centre();
    std::string fileOfGuide(bool bareName, const std::string& guide) const;

    const EditorSpec& editor_;
    Document document_;
};

/// Rows of the menus and the slots, the same for all four; a window's table leaves out what it lacks by hiding it.
extern const std::span<const host::SlotRow> editorSlots;
extern const std::span<const host::ShortcutRow> editorShortcuts;

extern const host::WindowSpec frmEditor;
extern const host::WindowSpec frmEdito1;
extern const host::WindowSpec frmEdito2;
extern const host::WindowSpec frmEdito3;

} // namespace velmor::editors
