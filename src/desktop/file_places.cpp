// SPDX-License-Identifier: MIT
#include "desktop/file_places.h"

#include <QDir>
#include <QFileInfo>

#include "desktop/canvas/document_store.h"
#include "desktop/canvas/report_dress.h"
#include "desktop/drawing/texts.h"
#include "host/state_attributes.h"

namespace velmor::desktop {

namespace file_places_detail {

constexpr std::string_view section = "Carpetas";

std::string_view keyOf(FileSort sort)
{
    switch (sort) {
    case FileSort::circuit:
        return "Circuitos";
    case FileSort::text:
        return "Textos";
    case FileSort::report:
        return "Informes";
    case FileSort::print:
        break;
    }
    return "Impresos";
}

QString folderOf(const host::SettingsStore& settings, FileSort sort, const QString& otherwise)
{
    const QString last = shown(settings.value(section, keyOf(sort)).value_or(std::string()));
    return !last.isEmpty() && QDir(last).exists() ? last : otherwise;
}

/// A text of the window's own, as a sheet's file name.
std::string ownText(const host::Window& window, std::string_view name)
{
    for (const host::OwnView& view : host::StateAccess::own(window))
        for (const host::OwnRow& row : view.rows)
            if (row.kind == host::OwnKind::text && row.name == name)
                return row.text(view.record);
    return {};
}

bool ownFlag(const host::Window& window, std::string_view name)
{
    for (const host::OwnView& view : host::StateAccess::own(window))
        for (const host::OwnRow& row : view.rows)
            if (row.kind == host::OwnKind::flag && row.name == name)
                return row.number(view.record) != 0.0;
    return false;
}

/// The design that a report in this window is about; empty for every other window.
QString reportedDesign(host::Window& window)
{
    if (window.role() == host::Role::editor)
        for (const host::ControlRow& row : window.spec().controls)
            if (row.kind == host::Kind::editor)
                if (auto* store = dynamic_cast<DocumentStore*>(&window.store(row.id)))
                    return designOf(*store->document());
    return {};
}

QString nameOf(host::Window& window)
{
    const bool sheet = window.role() == host::Role::sheet;
    const QString file = QFileInfo(shown(ownText(window, sheet ? "NombreArchivo" : "file"))).completeBaseName();
    const QString own = sheet ? shown(window.caption()) : reportedDesign(window);
    const bool chosen = sheet || ownFlag(window, "fileIsChosen");
    return fileNameOf(chosen && !file.isEmpty() ? file : own.isEmpty() ? file : own);
}

} // namespace file_places_detail

using namespace file_places_detail;

QString fileNameOf(const QString& name)
{
    QString result = name;
    // "p/ corriente", "p. corriente"; a name with a point would get no ending.
    for (const QString& shortening : {QStringLiteral("/ "), QStringLiteral(". ")})
        result.replace(shortening, QStringLiteral(" "));
    for (QChar& letter : result)
        if (letter < QLatin1Char(' ') || QStringLiteral("./\\:*?\"<>|").contains(letter))
            letter = QLatin1Char('-');
    return result.simplified();
}

FileProposal proposalFor(host::Window* asking, const host::FileDialog& dialog, const host::SettingsStore& settings,
                         const QString& documents)
{
    const bool saves = dialog.kind == host::DialogKind::save;
    const bool sheet = asking != nullptr && asking->role() == host::Role::sheet;
    const bool report = saves && asking != nullptr && !reportedDesign(*asking).isEmpty();
    FileProposal proposal;
    proposal.sort = sheet ? FileSort::circuit : report ? FileSort::report : FileSort::text;
    const QString own = report || dialog.folder.empty() ? documents : shown(dialog.folder);
    proposal.folder = folderOf(settings, proposal.sort, own);
    if (saves && asking != nullptr)
        proposal.name = nameOf(*asking);
    return proposal;
}

FileProposal proposalForPrint(host::Window* asking, const host::SettingsStore& settings, const QString& documents)
{
    // The dialog for printing has no look at the folder.
    const QString last = folderOf(settings, FileSort::print, documents);
    FileProposal proposal{.sort = FileSort::print, .folder = QFileInfo(last).isWritable() ? last : documents};
    if (asking != nullptr)
        proposal.name = nameOf(*asking);
    if (proposal.name.isEmpty())
        proposal.name = QStringLiteral("Velmor");
    return proposal;
}

void noteFolder(host::SettingsStore& settings, FileSort sort, const QString& file)
{
    settings.setValue(section, keyOf(sort), held(QFileInfo(file).absolutePath()));
}

} // namespace velmor::desktop
