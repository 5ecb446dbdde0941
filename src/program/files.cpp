// SPDX-License-Identifier: MIT
#include "program/files.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "editors/editor.h"
#include "frame/mdi_form1.h"
#include "rules/circuit_lines.h"
#include "rules/whole_file.h"
#include "sheets/design_sheet.h"
#include "sheets/sheet_titles.h"

namespace velmor::program {

namespace files_detail {

using host::BiText;

constexpr std::string_view applicationTitle = "Velmor";
constexpr int plainWarning = 48;
constexpr BiText textEditor{.es = "frmEdito1", .en = "frmEdito3"};
constexpr std::size_t largestText = std::size_t{64} * 1024 * 1024;

// clang-format off
constexpr BiText cannotBeRead{.es = "No se puede leer el archivo %1.", .en = "The file %1 cannot be read."};
constexpr BiText isNoText{.es = "El archivo %1 no es un circuito ni un texto.", .en = "The file %1 is neither a circuit nor a text."};
constexpr BiText whichCircuit{.es = "El archivo %1 puede ser de más de un circuito. ¿De cuál es?",
                              .en = "The file %1 may belong to more than one circuit. Which one is it?"};
// clang-format on

std::string lower(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return result;
}

/// What stands behind the last "*." of a dialog's filter.
std::string endingOf(std::string_view filter)
{
    const std::size_t star = filter.rfind("*.");
    return star == std::string_view::npos ? std::string() : std::string(filter.substr(star + 2));
}

std::string nameOf(const std::string& path)
{
    return std::filesystem::path(path).filename().string();
}

/// The text with the file's name in it, in the language of the moment.
std::string about(host::SheetHost& host, const BiText& text, const std::string& path)
{
    std::string said(host.pick(text));
    return said.replace(said.find("%1"), 2, "\"" + nameOf(path) + "\"");
}

void tell(host::SheetHost& host, const BiText& text, const std::string& path)
{
    host.MsgBox(about(host, text, path), plainWarning, applicationTitle);
}

/// A sheet's title as a button bears it: no blanks around it, none twice.
std::string titleOf(host::SheetHost& host, std::string_view sheet)
{
    const auto row = std::find_if(sheets::sheetTitles.begin(), sheets::sheetTitles.end(),
                                  [sheet](const sheets::SheetTitle& title) { return title.sheet == sheet; });
    std::string title;
    for (const char letter : row == sheets::sheetTitles.end() ? sheet : host.pick(row->title))
        if (letter != ' ' || (!title.empty() && title.back() != ' '))
            title.push_back(letter);
    return title;
}

std::optional<std::string_view> askWhich(host::SheetHost& host, const std::vector<std::string_view>& sheets,
                                         const std::string& path)
{
    host::Choice choice{about(host, whichCircuit, path), std::string(applicationTitle), {}};
    for (const std::string_view sheet : sheets)
        choice.options.push_back(titleOf(host, sheet));
    const std::optional<std::size_t> chosen = host.Choose(choice);
    return chosen && *chosen < sheets.size() ? std::optional(sheets[*chosen]) : std::nullopt;
}

/// What cannot be read says so.
bool canBeRead(host::SheetHost& host, const std::string& path)
{
    if (rules::readWhole(path, rules::largestCircuitFile))
        return true;
    tell(host, cannotBeRead, path);
    return false;
}

void showCircuit(host::SheetHost& host, std::string_view sheet, const std::string& path)
{
    if (auto* mainWindow = dynamic_cast<main_window::MDIForm1*>(&host.mainWindow()))
        mainWindow->openCircuit(sheet, path);
}

// What holds a zero byte is no text in any code page of ours.
void readText(host::SheetHost& host, const std::string& path)
{
    const std::optional<std::string> bytes = rules::readWhole(path, largestText);
    if (!bytes)
        return tell(host, cannotBeRead, path);
    if (bytes->find('\0') != std::string::npos)
        return tell(host, isNoText, path);
    auto* editor = dynamic_cast<editors::Editor*>(host.NewInstance(host.pick(textEditor)));
    if (editor != nullptr && !editor->openFile(path))
        tell(host, cannotBeRead, path);
}

} // namespace files_detail

std::vector<CircuitEnding> circuitEndings(host::Engine& engine)
{
    std::vector<CircuitEnding> endings;
    for (const host::WindowSpec* spec : engine.catalogue()) {
        if (spec->role != host::Role::sheet)
            continue;
        const std::unique_ptr<host::Window> window = spec->create(engine.host());
        const auto* sheet = dynamic_cast<const sheets::DesignSheet*>(window.get());
        if (sheet == nullptr)
            continue;
        endings.push_back({spec->name, files_detail::endingOf(sheet->tables().filter.es), false});
        endings.push_back({spec->name, files_detail::endingOf(sheet->tables().filter.en), true});
    }
    return endings;
}

std::vector<std::string_view> sheetsOf(host::Engine& engine, std::string_view path)
{
    std::string ending = std::filesystem::path(path).extension().string();
    std::vector<std::string_view> sheets;
    if (ending.size() < 2)
        return sheets;
    ending = files_detail::lower(ending.substr(1));
    for (const CircuitEnding& row : circuitEndings(engine))
        if (files_detail::lower(row.ending) == ending && (sheets.empty() || sheets.back() != row.sheet))
            sheets.push_back(row.sheet);
    return sheets;
}

// While a slot runs it waits for its end, and so holds what it needs.
void openFile(host::Engine& engine, const std::string& path)
{
    engine.userRun([&engine, path] {
        host::SheetHost& host = engine.host();
        const std::vector<std::string_view> sheets = sheetsOf(engine, path);
        if (sheets.empty())
            return files_detail::readText(host, path);
        // Nobody is asked whose a file is that cannot be had.
        if (!files_detail::canBeRead(host, path))
            return;
        const std::optional<std::string_view> sheet =
            sheets.size() == 1 ? sheets.front() : files_detail::askWhich(host, sheets, path);
        if (sheet)
            files_detail::showCircuit(host, *sheet, path);
    });
}

void openCircuit(host::Engine& engine, std::string_view sheet, const std::string& path)
{
    engine.userRun([&engine, sheet = std::string(sheet), path] {
        if (files_detail::canBeRead(engine.host(), path))
            files_detail::showCircuit(engine.host(), sheet, path);
    });
}

} // namespace velmor::program
