// SPDX-License-Identifier: MIT
// Documents of the editors: opening, reading, saving, and the questions that keep a text from being lost.
#include "editors/editor.h"

#include <filesystem>
#include <system_error>

#include "host/engine.h"
#include "rules/code_page.h"
#include "rules/whole_file.h"

namespace velmor::editors {

namespace editor_detail {

// clang-format off
constexpr auto documentTable = host::everyMember<Document>(
    host::own<&Document::name>("NombreDocumento"),
    host::own<&Document::file>("file"),
    host::own<&Document::fileIsChosen>("fileIsChosen"),
    host::own<&Document::isNew>("DocumentoNuevo"),
    host::own<&Document::changed>("DocumentoCambiado"),
    host::own<&Document::actionCancelled>("AccionCancelada"),
    host::own<&Document::exitConfirmed>("exitConfirmed"));
// clang-format on

constexpr std::string_view guideFolder = "Archivos";
constexpr std::string_view fileFilter =
    "Archivos de Laboratorio (*.LAB)|*.Lab|Archivos detexto(*.txt)|*.txt|Todos los archivos (*.*)|*.*";
constexpr std::string_view applicationTitle = "Velmor";
constexpr std::size_t largestDocument = std::size_t{64} * 1024 * 1024;
constexpr int answerOk = 1;
constexpr int answerCancel = 2;
constexpr int answerYes = 6;
constexpr int answerNo = 7;

// A document is read line by line and every line is added with its line break: a last line without one gets it.
std::string linesOf(std::string text)
{
    std::string lines;
    lines.reserve(text.size() + 1);
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] != '\r')
            lines.push_back(text[i]);
        else if (i + 1 >= text.size() || text[i + 1] != '\n')
            lines.push_back('\n');
    if (!lines.empty() && lines.back() != '\n')
        lines.push_back('\n');
    return lines;
}

// On disk a line ends with CR LF; the text goes out in one piece as a record with a final line break.
std::string recordOf(const std::string& text)
{
    std::string record;
    record.reserve(text.size() + text.size() / 32 + 2);
    for (const char letter : text) {
        if (letter == '\n')
            record.push_back('\r');
        record.push_back(letter);
    }
    return record.append("\r\n");
}

std::string pathOfGuide(const std::string& folder, std::string_view name)
{
    return (folder + "/").append(guideFolder).append("/").append(name);
}

} // namespace editor_detail

using namespace editor_detail;

Editor::Editor(host::SheetHost& host, const host::WindowSpec& window, const EditorSpec& editor)
    : host::Window(host, window), editor_(editor)
{
    holds(document_, documentTable, host::Undo::leaves);
}

void Editor::load()
{
    document_.changed = false;
    document_.isNew = true;
    centre();
    const host::Place inner = place();
    setPlaceOf(txtEdit, {0, 0, inner.width - editor_.lessWidthAtStart, inner.height - editor_.lessHeightAtStart});
    if (document_.actionCancelled)
        return;
    if (editor_.guide == GuidePlace::none)
        runOpen();
    else
        openGuide();
}

// The main window's inner area is the screen that a child window knows.
void Editor::centre()
{
    const host::Place screen = host().engine().clientArea();
    host::Place wanted = place();
    wanted.left = (screen.width - wanted.width) / 2;
    wanted.top = (screen.height - wanted.height) / 2;
    setPlace(wanted);
}

void Editor::resize()
{
    setPlaceOf(txtEdit, {0, 0, place().width, place().height});
}

/// Where a guide stands or, when it does not, where it would: names are found without regard to capitals.
std::string Editor::fileOfGuide(bool bareName, const std::string& guide) const
{
    const std::string folder = host().programFolder();
    const auto within =
        bareName ? std::optional<std::filesystem::path>(folder) : rules::findFolder(folder, guideFolder);
    if (!within || guide.empty())
        return pathOfGuide(folder, guide);
    return rules::findFile(*within, guide).value_or(*within / guide).string();
}

// Where the two report editors look differs on purpose. After a missing guide the pointer must not stay an hourglass.
void Editor::openGuide()
{
    const std::string guide = host().values().ArchivoGuia;
    const bool bareName = editor_.guide == GuidePlace::programFolder;
    setBusy(true);
    putText("");
    document_.changed = false;
    document_.name = bareName ? guide : pathOfGuide(host().programFolder(), guide);
    document_.file = fileOfGuide(bareName, guide);
    document_.fileIsChosen = false;
    if (readDocument(fileOfGuide(editor_.guide != GuidePlace::archivos, guide)))
        setTitle(document_.name + std::string(pick(editor_.guideTitle)));
    setBusy(false);
}

void Editor::putText(std::string_view text)
{
    setText(txtEdit, text);
}

/// Reads a whole document into the text. False, with the old text in place, when it cannot be read.
bool Editor::readDocument(const std::string& path)
{
    const std::optional<std::string> bytes = rules::readWhole(path, largestDocument);
    if (!bytes)
        return false;
    putText(linesOf(rules::decodeDocument(*bytes)));
    document_.isNew = false;
    document_.changed = false;
    host().workSaved(*this);
    return true;
}

bool Editor::writeDocument(const std::string& path)
{
    if (!rules::writeWhole(path, rules::encodeDocument(recordOf(store(txtEdit).all()))))
        return false;
    host().workSaved(*this);
    return true;
}

void Editor::takeFile(const std::string& path)
{
    document_.name = document_.file = path;
    document_.fileIsChosen = true;
}

void Editor::changed()
{
    document_.changed = true;
}

// The text editors write their titles on the report editor, which gets them only when it is loaded.
void Editor::setTitle(std::string_view title)
{
    if (!editor_.titlesOnReportEditor)
        setCaption(title);
    else if (host::Window* reportEditor = host().find("frmEdito3"))
        reportEditor->setCaption(title);
}

void Editor::setBusy(bool busy)
{
    host().screen().busyPointer(busy);
}

int Editor::ask(const Question& question)
{
    return host().MsgBox(pick(question.text), question.flags, pick(question.title));
}

bool Editor::holdsUnsaved()
{
    return document_.isNew ? store(txtEdit).length() > 0 : document_.changed;
}

/// The ask-to-save rule. True when the command may go on: nothing to lose, the answer No, or a save that was done.
bool Editor::mayDiscard(const Question& keep, bool exiting)
{
    if (!holdsUnsaved())
        return true;
    switch (ask(keep)) {
    case answerYes:
        return exiting && !document_.isNew ? writeDocument(document_.file) : runSaveAs();
    case answerNo:
        host().workGivenUp(*this);
        return true;
    default:
        return false;
    }
}

void Editor::startEmpty()
{
    putText("");
    setTitle(pick(editor_.newTitle));
    document_.fileIsChosen = false;
    document_.isNew = true;
    document_.changed = false;
}

void Editor::newDocument()
{
    document_.actionCancelled = false;
    if (mayDiscard(editor_.keep, false))
        startEmpty();
}

// Without the guide that a new editor opens with.
bool Editor::openFile(const std::string& path)
{
    document_.actionCancelled = true;
    host().Show(*this);
    document_.actionCancelled = false;
    if (!readDocument(path))
        return false;
    takeFile(path);
    setCaption(path);
    return true;
}

void Editor::openDocument()
{
    document_.actionCancelled = false;
    if (mayDiscard(editor_.keep, false))
        runOpen();
}

void Editor::runOpen()
{
    const auto path = host().fileDialog({.kind = host::DialogKind::open,
                                         .title = std::string(applicationTitle),
                                         .filter = std::string(fileFilter),
                                         .folder = host().programFolder(),
                                         .flags = 0});
    if (!path)
        return;
    setBusy(true);
    const bool read = readDocument(*path);
    setBusy(false);
    if (!read)
        return;
    takeFile(*path);
    setTitle(document_.name + std::string(pick(editor_.documentTitle)));
}

void Editor::saveDocument()
{
    document_.actionCancelled = false;
    if (document_.isNew) {
        runSaveAs();
    } else if (document_.changed && writeDocument(document_.file)) {
        runOpen();
    }
}

void Editor::saveDocumentAs()
{
    document_.actionCancelled = false;
    runSaveAs();
}

/// Saving does not reset `DocumentoCambiado`: the next exit asks again.
bool Editor::runSaveAs()
{
    const auto path = host().fileDialog({.kind = host::DialogKind::save,
                                         .title = std::string(applicationTitle),
                                         .filter = std::string(fileFilter),
                                         .folder = host().programFolder(),
                                         .flags = 0});
    if (!path)
        return false;
    std::error_code ignored;
    if (std::filesystem::exists(*path, ignored) && ask(editor_.replaceFile) != answerOk)
        return false;
    if (!writeDocument(*path))
        return false;
    takeFile(*path);
    document_.isNew = false;
    setTitle(document_.name + std::string(pick(editor_.documentTitle)));
    return true;
}

void Editor::exit()
{
    document_.actionCancelled = false;
    if (!mayDiscard(editor_.keepAtExit, true))
        return;
    if (editor_.confirmExit.flags == 0) {
        if (host::Window* reportEditor = host().find("frmEdito3"))
            host().Show(*reportEditor);
    } else if (ask(editor_.confirmExit) == answerOk) {
        document_.exitConfirmed = true;
        host().Unload(*this);
    }
}

// Whoever closes the window is asked, but for its own exit, which has asked already.
void Editor::queryClose(host::EventArgs& args)
{
    if (document_.exitConfirmed || args.reason == host::CloseReason::programEnd || editor_.closeByButton.flags == 0)
        return;
    const int answer = host().MsgBox(pick(editor_.closeByButton.text), editor_.closeByButton.flags, caption());
    args.cancel = answer == answerNo || answer == answerCancel;
}

} // namespace velmor::editors
