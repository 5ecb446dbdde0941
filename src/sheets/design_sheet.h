// SPDX-License-Identifier: MIT
// What all fifteen design sheets share: the public operations, the circuit file, the ask-to-save flow and the life of
// a sheet. It knows no circuit; a sheet adds its controls, slots and formulas.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "host/sheet_host.h"
#include "host/window.h"
#include "rules/circuit_lines.h"
#include "rules/numbers.h"
#include "sheets/chain.h"
#include "sheets/saying.h"
#include "sheets/tools.h"

namespace velmor::sheets {

using rules::Real;

inline constexpr std::int16_t enterKey = 13;
inline constexpr std::int16_t escapeKey = 27;

/// True for a filtered key that changes the text of its field.
constexpr bool changesField(std::int16_t filteredKey)
{
    return filteredKey != 0 && filteredKey != enterKey && filteredKey != escapeKey;
}

/// One line of a circuit file. `noControl` is a line that carries no value.
struct FileLine {
    host::Handle control = host::noControl;
    bool show = false;        ///< reading makes the control visible
    bool showFirst = false;   ///< visible before its line is read, so also where the file ends before it
    bool saysVisible = false; ///< written: whether the control is visible, "-1" or "0"
    bool disable = false;     ///< reading disables the field: what it holds is a record
};

/// Pages that lie on the sheet and come and go with the pair of the help tool.
struct HelpBoxes {
    host::Handle spanish = host::noControl;
    host::Handle english = host::noControl;
    host::Place place{}; ///< where both open
};

/// What one kind of sheet says, accepts and writes, as data.
struct SheetSpec {
    // the circuit file
    host::BiText filter{};                           ///< `MiFiltro`
    std::span<const FileLine> written{};             ///< order in which `Datos` writes
    std::span<const FileLine> read{};                ///< order in which `Abrir` reads
    host::Handle temperatureField = host::noControl; ///< takes `TemperaturaCompartida` when it gets the focus
    // the chain, what is said along it, and the help
    std::span<const ChainRow> chain{};
    std::span<const Saying> sayings{};
    host::Handle voice = host::noControl;  ///< the panel of the teacher's voice
    std::span<const host::Handle> notes{}; ///< beside the fields; pointing at a field shows its own alone
    std::span<const HelpPage> helpPages{}; ///< in the order in which tags are tested; none: the sheet has no tags
    HelpBoxes helpBoxes{};
    // the tools
    Tools tools{};
    host::BiText guide{}; ///< file of the guide tool
};

/// What a key press asks of a field of the chain.
enum class Press : std::uint8_t {
    nothing, ///< an ordinary key, or Enter in the empty field, which has been told so
    enter,   ///< go on; the field is bare by now
    escape,  ///< take the default and go on
};

class DesignSheet : public host::Window {
public:
    DesignSheet(host::SheetHost& host, const host::WindowSpec& window, const SheetSpec& sheet);

    // --- the public operations, in the order in which the main window knows them; booleans are -1 and 0
    std::int16_t OperCancelo() const { return operCancelo_; }
    void setOperCancelo(std::int16_t value) { operCancelo_ = value; }
    std::string MiFiltro() const;
    std::int16_t modificado() const { return modificado_; }
    bool holdsUnsaved() override { return modificado_ != 0; }
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
    /// What the open dialog does with its answer: takes the path and the title from it and reads the file.
    void openCircuit(std::string_view path);
    const std::string& NombreArchivo() const { return nombreArchivo_; }
    void setNombreArchivo(std::string_view path) { nombreArchivo_ = path; }

    /// The page of a tool window that this sheet waits for, by the sheet's own count; 0 for none. At most one sheet waits.
    std::int16_t openPage() const { return openPage_; }
    void setOpenPage(std::int16_t page) { openPage_ = page; }

    /// The tables of this kind of sheet.
    const SheetSpec& tables() const { return sheet_; }
    /// The text of the sheet's report as of this moment, lines ended by CR LF.
    virtual std::string reportText() const = 0;

    // --- slots that every sheet binds (`sheetSlots`)
    void frameComeBack();
    void frameRepaint();
    void frameResize();
    void frameQueryClose(host::EventArgs& args);
    /// What each activation begins with: `Form21` unloaded, the main window's welcome panel and circuit bar hidden.
    void frameActivate();

    // --- slots that every field of the chain has, unless the sheet has its own (`sheetSlots`)
    /// Tag, prompts and parts of the drawing of the field in hand.
    void focusField(host::EventArgs& args);
    /// Enter and Esc as the row says: what is said, then on to the next field.
    void keyField(host::EventArgs& args);
    /// The correction of the row.
    void leaveField(host::EventArgs& args);
    /// The field's note and prompt; without a prompt for the pointer, that of the focus.
    void hoverField(host::EventArgs& args);
    /// Right button: the field's help page.
    void pressField(host::EventArgs& args);

    // --- slots of the tools
    void clickGuide();
    void clickCalculator();
    void clickReport(); ///< an editor that is open already keeps its text
    void clickClone(host::EventArgs& args);
    void openHelpBoxes();
    void openHelpBoxesAt(int left); ///< for a sheet that counts the place of its boxes from an edge of the main window
    void closeHelpBoxes();

    /// A temperature was converted: the temperature field, if it has the focus, takes it at once.
    void temperatureConverted();

    // --- saying
    std::string_view pick(const host::BiText& text) const { return host().pick(text); }
    bool inEnglish() const { return host().values().LanguageIsEnglish == host::trueValue; }
    /// Writes the text to its place, or shows the box. Returns the answer of a box.
    int tell(const Saying& row);
    /// All rows of the sheet about this field and moment, in their order; those of every field where it has none of its own.
    void tell(host::Handle field, When when);
    void write(host::Handle control, const host::BiText& text) { setText(control, pick(text)); }
    void hideNotes();

    // --- keys
    /// What each key press begins with: the key filter, its beep, the separator put back to ".", and `modificado` set.
    /// Returns the filtered key, which is also the event's key from then on.
    std::int16_t filteredKey(host::EventArgs& args);
    /// A key press in `args.control`, filtered first. Enter in an empty field tells so and asks nothing; Enter in a filled one
    /// rewrites it as its bare number before anything else of the step.
    Press pressed(host::EventArgs& args);

    // --- numbers
    std::string decimalSeparator() const { return host().values().DecimalSeparator; }
    /// The number that a field's or caption's text begins with.
    Real at(host::Handle control) const;
    /// The number of a field that must hold nothing else: the field is rewritten as its bare number.
    Real take(host::Handle field);
    void makeBare(host::Handle field);
    bool isEmpty(host::Handle field) const { return text(field).empty(); }
    /// The text of a number: up to 15 digits.
    std::string digits(Real value) const;
    /// The text of a displayed result: four decimals.
    std::string shown(Real value) const;
    /// The text of a number without its fraction.
    std::string whole(Real value) const;
    /// Writes a number into a field: up to 15 digits.
    void write(host::Handle control, Real value) { setText(control, digits(value)); }
    /// Writes `otherwise` when the field's number is out of range (also for an empty field). A value in range is left as typed.
    /// True when it had to be corrected.
    bool correct(host::Handle field, double from, double to, double otherwise);
    bool correctFrom(host::Handle field, double from, double otherwise);
    /// The correction of the field's row in the chain.
    bool correct(host::Handle field);

    // --- moving on
    const ChainRow& chainRow(host::Handle field) const;
    /// True when the chain goes on from this field: Enter, or Esc where the row names a default, which the field takes.
    bool goesOn(host::Handle field, Press press);
    /// What the field says when the chain goes on, then to its next.
    void goOn(host::Handle field, Press press);
    /// Shows and enables the control and gives it the focus.
    void goTo(host::Handle field);

    // --- the drawing
    /// Shows the parts that come with this field, as far as they belong to the circuit.
    void grow(host::Handle field);
    void growWhole();
    void clearDrawing();

    // --- help by tags
    void LimpiarTags();
    /// Shows the page of the first field, in the order of the pages, whose tag is 1.
    void MostrarAyuda();

    // --- buttons
    /// Another blank sheet opens in front, under this title; null when the program has no such sheet.
    host::Window* openSheet(std::string_view sheetName, const host::BiText& title);
    /// Guide: a new text editor of the language opens the file.
    void openGuide(const host::BiText& guide);
    /// Report: an editor that is open already is only overwritten when the student accepts.
    void openReportAsking();
    /// Its two halves: arranging the windows and asking, true when the report may be written; then showing the editor, and writing.
    bool mayWriteReport();
    void showReport(bool build);
    /// A press on the ground of the drawing. Right button with Shift or Ctrl: the menu of options; right button alone: the bar
    /// of circuits, and the pair exchanged; left button: the menu of files.
    void pressPicture(const host::EventArgs& args, const ImagePair& pair);

protected:
    /// What a step has taken back or done again is a change like any other.
    void stepped() override { modificado_ = host::trueValue; }
    /// The closing steps of `Abrir` behind the last line: the archive prompt and what the sheet shows.
    virtual void opened() {}

private:
    bool PreguntaGuardar();
    void VerificarGuardar();
    const Saying* saying(host::Handle field, When when) const;
    void rearrange();

    const SheetSpec& sheet_;
    std::string nombreArchivo_;
    std::int16_t operCancelo_ = 0;
    std::int16_t modificado_ = 0;
    std::int16_t openPage_ = 0;
    bool cierreCancelado_ = false;
};

} // namespace velmor::sheets
