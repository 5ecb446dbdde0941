// SPDX-License-Identifier: MIT
// Files, ask-to-save and life of a design sheet. The crossed titles of the save dialog are the program's.
#include "sheets/design_sheet.h"

#include <filesystem>
#include <utility>
#include <vector>

namespace velmor::sheets {

using host::BiText;
using host::trueValue;

namespace design_sheet_texts {

constexpr std::string_view applicationTitle = "Velmor";
constexpr BiText openTitle{.es = "Abrir Circuito", .en = "Open Circuit"};
constexpr BiText saveTitle{.es = "Save Circuit", .en = "Guardar Circuito"}; // crossed on purpose
constexpr int saveFlags = 2638862;
constexpr int openFlags = 2645004;
constexpr BiText keepChanges{.es = "El presente archivo ha cambiado. ¿Desea guardar los cambios?",
                             .en = "The present file has changed. does you want to keep the changes?"};
constexpr int keepChangesFlags = 67;
constexpr int answerCancel = 2;
constexpr int answerYes = 6;

// The file's title is its name; a sheet shows it without its last four characters.
std::string captionOf(const std::string& path)
{
    const std::u32string name = host::toCodePoints(std::filesystem::path(path).filename().string());
    return host::toUtf8(name.size() > 4 ? name.substr(0, name.size() - 4) : std::u32string());
}

} // namespace design_sheet_texts

using namespace design_sheet_texts;

DesignSheet::DesignSheet(host::SheetHost& host, const host::WindowSpec& window, const SheetSpec& sheet)
    : host::Window(host, window), sheet_(sheet)
{
    static constexpr auto flags = host::someMembers<DesignSheet>(
        host::own<&DesignSheet::nombreArchivo_>("NombreArchivo"), host::own<&DesignSheet::operCancelo_>("OperCancelo"),
        host::own<&DesignSheet::modificado_>("modificado"), host::own<&DesignSheet::openPage_>("openPage"),
        host::own<&DesignSheet::cierreCancelado_>("CierreCancelado"));
    holds(*this, flags, host::Undo::leaves);
}

std::string DesignSheet::MiFiltro() const
{
    return std::string(pick(sheet_.filter));
}

void DesignSheet::Abrir()
{
    std::optional<rules::CircuitReader> reader = rules::CircuitReader::open(nombreArchivo_);
    if (!reader)
        return;
    for (const FileLine& line : sheet_.read) {
        if (line.showFirst)
            show(line.control);
        const std::optional<std::string> read = reader->readLine();
        if (!read)
            return;
        if (line.control == host::noControl)
            continue;
        if (line.show)
            show(line.control);
        if (line.disable)
            disable(line.control);
        setText(line.control, *read);
    }
    opened();
    modificado_ = 0;
    host().workSaved(*this);
}

std::string DesignSheet::Datos() const
{
    std::vector<std::string> lines;
    for (const FileLine& line : sheet_.written) {
        if (line.saysVisible)
            lines.emplace_back(visible(line.control) ? "-1" : "0");
        else
            lines.push_back(line.control == host::noControl ? std::string() : text(line.control));
    }
    return rules::joinCircuitLines(lines);
}

void DesignSheet::Guardar()
{
    if (nombreArchivo_.empty() || !rules::writeCircuitFile(nombreArchivo_, Datos()))
        return;
    modificado_ = 0;
    host().workSaved(*this);
}

void DesignSheet::CDL_GuardarDatos()
{
    const auto path = host().fileDialog({.kind = host::DialogKind::save,
                                         .title = std::string(pick(saveTitle)),
                                         .filter = MiFiltro(),
                                         .folder = host().programFolder(),
                                         .flags = saveFlags});
    if (path)
        nombreArchivo_ = *path;
}

void DesignSheet::CDL_AbrirDatos()
{
    const auto path = host().fileDialog({.kind = host::DialogKind::open,
                                         .title = std::string(pick(openTitle)),
                                         .filter = MiFiltro(),
                                         .folder = host().programFolder(),
                                         .flags = openFlags});
    if (!path) {
        operCancelo_ = trueValue;
        host().Unload(*this);
        return;
    }
    openCircuit(*path);
}

void DesignSheet::openCircuit(std::string_view path)
{
    nombreArchivo_ = path;
    setCaption(captionOf(nombreArchivo_));
    operCancelo_ = 0;
    Abrir();
}

bool DesignSheet::PreguntaGuardar()
{
    const int answer = host().MsgBox(pick(keepChanges), keepChangesFlags, applicationTitle);
    if (answer == answerCancel)
        cierreCancelado_ = true;
    else if (answer != answerYes)
        host().workGivenUp(*this);
    return answer == answerYes;
}

// Asked even when nothing was changed, as long as the sheet has no file: the student is never in doubt.
void DesignSheet::VerificarGuardar()
{
    if (nombreArchivo_.empty()) {
        if (!PreguntaGuardar())
            return;
        CDL_GuardarDatos();
        Guardar();
    } else if (modificado_ != 0 && PreguntaGuardar()) {
        Guardar();
    }
}

void DesignSheet::frameQueryClose(host::EventArgs& args)
{
    if (operCancelo_ == 0)
        VerificarGuardar();
    if (std::exchange(cierreCancelado_, false))
        args.cancel = true;
}

void DesignSheet::frameActivate()
{
    host().Unload("Form21");
    frameRepaint();
}

void DesignSheet::frameComeBack()
{
    host().Unload("Form21");
}

void DesignSheet::frameRepaint()
{
    host().setVisible("MDIForm1", "SSPanel1", false);
    host().setVisible("MDIForm1", "Picture14", false);
}

void DesignSheet::temperatureConverted()
{
    if (sheet_.temperatureField == host::noControl || focus() != sheet_.temperatureField)
        return;
    host::EventArgs args;
    runSlot(sheet_.temperatureField, host::Event::focus, args);
}

// This is how the circuit bar or the palette comes back when a sheet is made smaller.
void DesignSheet::frameResize()
{
    if (host().checked("mnuFija")) {
        host().setVisible("MDIForm1", "Picture14", true);
        host().Hide("Form16");
    } else if (host().checked("mnuFlotante")) {
        host().Show("Form16");
        host().setVisible("MDIForm1", "Picture14", false);
    }
}

} // namespace velmor::sheets
