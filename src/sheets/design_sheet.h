// SPDX-License-Identifier: MIT
// What all fifteen design sheets share: the public operations, the circuit file, the ask-to-save flow and the life of
// a sheet. It knows no circuit; a sheet adds its controls, slots and formulas.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "host/sheet_host.h"
#include "host/window.h"
#include "rules/circuit_lines.h"

namespace velmor::sheets {

/// One line of a circuit file. `noControl` is a line that carries no value.
struct FileLine {
    host::Handle control = host::noControl;
    bool show = false;      ///< reading makes the control visible
    bool showFirst = false; ///< visible before its line is read, so also where the file ends before it
};

/// What the files and reports of one sheet are, as data.
struct SheetSpec {
    host::BiText filter{};                           ///< `MiFiltro`
    std::span<const FileLine> written{};             ///< order in which `Datos` writes
    std::span<const FileLine> read{};                ///< order in which `Abrir` reads
    host::Handle temperatureField = host::noControl; ///< takes `TemperaturaCompartida` when it gets the focus
};

class DesignSheet : public host::Window {
public:
    DesignSheet(host::SheetHost& host, const host::WindowSpec& window, const SheetSpec& sheet);

    // The public operations, in the order in which the main window knows them. Booleans are -1 and 0.
    std::int16_t OperCancelo() const { return operCancelo_; }
    void setOperCancelo(std::int16_t value) { operCancelo_ = value; }
    std::string MiFiltro() const;
    std::int16_t modificado() const { return modificado_; }
    void setModificado(std::int16_t value) { modificado_ = value; }
    /// Reads the circuit file `NombreArchivo` into the controls. A failure ends it in silence, with what was read in place.
    virtual void Abrir();
    /// Writes the text of `Datos` to `NombreArchivo`, whole or not at all. A failure ends it in silence.
    virtual void Guardar();
    /// The file image: the texts and captions as shown, one a line, each line ended by CR LF.
    virtual std::string Datos() const;
    /// Runs the save dialog and stores the chosen path; a cancelled dialog leaves the old one.
    virtual void CDL_GuardarDatos();
    /// Runs the open dialog, then `Abrir`; a cancelled dialog unloads the sheet without a question.
    virtual void CDL_AbrirDatos();
    const std::string& NombreArchivo() const { return nombreArchivo_; }
    void setNombreArchivo(std::string_view path) { nombreArchivo_ = path; }

    /// Filter and order of its circuit files.
    const SheetSpec& circuitFiles() const { return sheet_; }
    /// The text of the sheet's report as of this moment, lines ended by CR LF.
    virtual std::string reportText() const = 0;

    // Slots that every sheet binds (see `withSheetFrame`).
    void frameComeBack();
    void frameRepaint();
    void frameResize();
    void frameQueryClose(host::EventArgs& args);

    /// A temperature was converted: the temperature field, if it has the focus, takes it at once.
    void temperatureConverted();

    /// What each activation begins with: `Form21` unloaded, the main window's welcome panel and circuit bar hidden.
    void frameActivate();

    std::string_view pick(const host::BiText& text) const { return host().pick(text); }
    std::string decimalSeparator() const { return host().values().DecimalSeparator; }

protected:
    /// The closing steps of `Abrir` behind the last line: the archive prompt and what the sheet shows.
    virtual void opened() {}

private:
    bool PreguntaGuardar();
    void VerificarGuardar();

    const SheetSpec& sheet_;
    std::string nombreArchivo_;
    std::int16_t operCancelo_ = 0;
    std::int16_t modificado_ = 0;
    bool cierreCancelado_ = false;
};

/// The slots of the frame, followed by the sheet's own, which replace a frame slot of the same event.
template <std::size_t Count>
constexpr std::array<host::SlotRow, Count + 5> withSheetFrame(const std::array<host::SlotRow, Count>& own)
{
    using host::Event;
    using host::noControl;
    std::array<host::SlotRow, Count + 5> all{
        host::SlotRow{noControl, Event::activate, host::slot<&DesignSheet::frameActivate>},
        host::SlotRow{noControl, Event::comeBack, host::slot<&DesignSheet::frameComeBack>},
        host::SlotRow{noControl, Event::repaint, host::slot<&DesignSheet::frameRepaint>},
        host::SlotRow{noControl, Event::resize, host::slot<&DesignSheet::frameResize>},
        host::SlotRow{noControl, Event::queryClose, host::slot<&DesignSheet::frameQueryClose>},
    };
    for (std::size_t i = 0; i < Count; ++i)
        all[i + 5] = own[i];
    return all;
}

} // namespace velmor::sheets
