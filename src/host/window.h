// SPDX-License-Identifier: MIT
// A window is plain state plus slots: named controls from a table, and functions that run on events. This file knows
// nothing of screens; a screen learns of changes from the `changed` flags.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/control.h"
#include "host/event.h"
#include "host/own_values.h"

namespace velmor::host {

class SheetHost;
class SlotIndex;
class StepHistory;
class Window;

/// What a window is for; activation, placing and closing go by it.
enum class Role : std::uint8_t { mainWindow, sheet, editor, palette, tool };

/// A key that does what otherwise only the mouse reaches. The desktop listens for it; `action` is played on `control`.
enum class KeyAction : std::uint8_t {
    click, ///< of a menu: the item is chosen, or its items are shown
    doubleClick,
    rightPress,
    hover,
    dragTo,
    run, ///< the window's `shortcut` slot, which is told the index of the row
};
struct ShortcutRow {
    std::string_view keys{};    ///< portable text as in "Ctrl+B", "F1"
    Handle control = noControl; ///< noControl: the control that has the focus
    KeyAction action = KeyAction::click;
    Handle target = noControl; ///< of dragTo; of click: the control that is meant while `control` is hidden
    BiText meaning{};
};

/// A part of a drawing that comes with a field of the chain: hidden in the model until then, and drawn pale meanwhile. Rows
/// with the same part give several fields that bring it.
struct GrowthRow {
    Handle part = noControl;
    Handle field = noControl;
    Handle when = noControl;   ///< belongs to the circuit only while this control is visible
    Handle unless = noControl; ///< belongs to the circuit only while this control is hidden
    Handle norIf = noControl;  ///< and this one
};

/// A text on the drawing that belongs to a part, and is pale while the part is.
struct ValueRow {
    Handle value = noControl;
    Handle part = noControl;
};

/// What a screen must know of a main window to lay it out.
struct MainParts {
    Handle bar = noControl;     ///< panel that takes a strip of its own at an edge
    Handle welcome = noControl; ///< panel that fills the rest while no child is open
    Handle windows = noControl; ///< menu that ends with the list of open children
    Place pageStrip{};          ///< the part of it that may lie over the children while a button talks
    Handle files = noControl;   ///< menu of files, behind whose items a screen may list the files opened last
    /// What a menu is called in either language, whatever it shows now; null where they have one name alone.
    BiText (*menuNames)(Handle menu) = nullptr;
};

/// Everything that is the same for all instances of a window.
struct WindowSpec {
    std::string_view name{};
    Role role = Role::tool;
    std::string_view caption{}; ///< stored title
    Place place{};              ///< width and height: the drawing area in twips; left, top: wish of a tool window
    std::span<const ControlRow> controls{};
    std::span<const SlotRow> slots{};
    std::span<const Handle>
        tabOrder{}; ///< chain order, then the other controls that take the focus; controls left out follow in table order
    std::span<const ShortcutRow> shortcuts{};
    std::unique_ptr<Window> (*create)(SheetHost&) = nullptr;
    bool modal = false;
    bool reading =
        false; ///< is read beside the sheet: it never takes the keyboard by being shown, and typing goes to the sheet
    BiText sheetTitle{}; ///< of a sheet: the caption that a menu or clone gives it
    std::span<const GrowthRow> growth{};
    std::span<const ValueRow> values{};
    /// Where a screen shows a control when that is not its place in the model; null: every control at its place. An empty
    /// place keeps a text from the screen that would only say again what stands beside it.
    Place (*shownPlace)(const Window&, Handle) = nullptr;
    MainParts mainParts{};
};

/// State of a list control.
struct ListState {
    std::vector<std::string> items;
    int selected = -1;
    std::string folder; ///< of file and folder lists: what they show
};

/// Base of all windows: the state of the controls. Slots are functions of the classes derived from it.
class Window {
public:
    Window(SheetHost& host, const WindowSpec& spec);
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    const WindowSpec& spec() const { return spec_; }
    std::string_view name() const { return spec_.name; }
    Role role() const { return spec_.role; }
    SheetHost& host() const { return host_; }
    /// Child windows of the main window: sheets and editors.
    bool isChild() const { return role() == Role::sheet || role() == Role::editor; }

    // Controls, by handle. Reading one that the table lacks is a programming error.
    /// As many as a handle can count: the lint holds every table to that.
    Handle controlCount() const { return static_cast<Handle>(controls_.size()); }
    const ControlRow& row(Handle control) const { return spec_.controls[control]; }
    const Control& control(Handle control) const { return controls_[control]; }
    /// Finds a control without regard to capitals; noControl when there is none. The bare name of an array is its
    /// element 0.
    Handle named(std::string_view controlName) const;

    const std::string& text(Handle control) const { return controls_[control].text; }
    const std::string& tag(Handle control) const { return controls_[control].tag; }
    bool visible(Handle control) const { return controls_[control].visible; }
    bool enabled(Handle control) const { return controls_[control].enabled; }
    bool checked(Handle control) const { return controls_[control].checked; }
    const Place& placeOf(Handle control) const { return controls_[control].place; }

    void setText(Handle control, std::string_view text);
    void setTag(Handle control, std::string_view tag);
    void setVisible(Handle control, bool visible);
    void setEnabled(Handle control, bool enabled);
    void setChecked(Handle control, bool checked);
    void setPlaceOf(Handle control, const Place& place);
    void setBackColor(Handle control, std::int32_t color);
    void setForeColor(Handle control, std::int32_t color);
    void setFontSize(Handle control, std::int16_t points);

    template <class... Handles>
    void show(Handles... controls)
    {
        (setVisible(controls, true), ...);
    }
    template <class... Handles>
    void hide(Handles... controls)
    {
        (setVisible(controls, false), ...);
    }
    template <class... Handles>
    void enable(Handles... controls)
    {
        (setEnabled(controls, true), ...);
    }
    template <class... Handles>
    void disable(Handles... controls)
    {
        (setEnabled(controls, false), ...);
    }

    /// The drawing that a control shows: its row's, or the one borrowed from another control (a flapping butterfly).
    std::span<const Mark> drawing(Handle control) const;
    void borrowDrawing(Handle control, Handle from);
    /// Typeface of an editor.
    const Font& font(Handle editor);
    void setFont(Handle editor, const Font& font);
    /// Path of a picture file that an image shows; empty for none.
    const std::string& picture(Handle control) const;
    void setPicture(Handle control, std::string_view path);

    /// The long text of an editor control.
    TextStore& store(Handle editor);
    /// Text of any control, read from its store when it is an editor.
    std::string wholeText(Handle control);
    ListState& list(Handle control) { return lists_[control]; }
    void listChanged(Handle control) { markChanged(control); }

    /// True when the control is visible, enabled and of a kind that takes the focus.
    bool canTakeFocus(Handle control) const;
    /// Which control of this window has the focus; noControl for none, also while a lost-focus slot runs.
    Handle focus() const { return focus_; }

    const std::string& caption() const { return caption_; }
    void setCaption(std::string_view caption);
    bool shown() const { return shown_; }
    int windowState() const { return state_; } ///< 0 normal, 1 minimised, 2 maximised
    const Place& place() const { return place_; }
    void setPlace(const Place& place);
    bool isDefaultInstance() const { return isDefault_; }

    /// Runs the slot of an event, if the window has one. True when there was one.
    bool runSlot(Handle control, Event event, EventArgs& args);
    bool hasSlot(Handle control, Event event) const;

    /// What stood in a field when the student left it last, before anything that the sheet made of it; empty before that.
    const std::string& asked(Handle field) const;

    /// Controls changed since the last call, each once; `windowChanged` likewise for title, state and place.
    std::vector<Handle> takeChanges();
    bool takeWindowChanged();
    /// The same for whoever follows the state of the window: controls changed since its last call, each once.
    std::vector<Handle> takeTouched();
    const std::vector<Handle>& touched() const { return touched_; }
    /// Grows with each control that is set to something else.
    unsigned settings() const { return settings_; }
    /// Grows with each change of an editor's text.
    unsigned textRevision() const { return textRevision_; }

    /// The person has made something of the window that no file holds, as far as the window itself knows.
    virtual bool holdsUnsaved() { return false; }
    /// Grows with whatever may have changed the window's state.
    unsigned stirrings() const { return settings_ + textRevision_ + otherStirrings_; }

    /// Creation number within the program, counted from 1.
    unsigned serial() const { return serial_; }

protected:
    /// A step was taken back or done again. No slot runs then, and none may be run here.
    virtual void stepped() {}
    void markChanged(Handle control);
    /// Tells of values of the window's own that belong to its state; called in the constructor, once for each record.
    template <class Record, std::size_t Count>
    void holds(Record& record, const OwnTable<Record, Count>& table, Undo undo)
    {
        own_.push_back({&record, table.rows, undo});
    }

private:
    friend class Engine;
    friend class StateAccess;

    void markTouched(Handle control);

    SheetHost& host_;
    const WindowSpec& spec_;
    const SlotIndex& slots_;
    std::vector<Control> controls_;
    std::map<Handle, std::unique_ptr<TextStore>> stores_;
    std::map<Handle, ListState> lists_;
    std::map<Handle, Handle> borrowedDrawings_;
    std::map<Handle, std::string> pictures_;
    std::map<Handle, Font> fonts_;
    std::map<Handle, std::string> asked_;
    std::vector<OwnView> own_;
    std::vector<Handle> changes_;
    std::vector<Handle> touched_;
    std::unique_ptr<StepHistory> steps_; ///< of a sheet, from when it was first shown
    std::string caption_;
    Place place_;
    Place normalPlace_;
    Handle focus_ = noControl;
    unsigned focusMoves_ = 0;
    unsigned serial_ = 0;
    unsigned textRevision_ = 0;
    unsigned settings_ = 0;
    unsigned otherStirrings_ = 0; ///< slots run, title and place set
    int state_ = 0;
    bool shown_ = false;
    bool everShown_ = false;
    bool loaded_ = false;
    bool gone_ = false;
    bool isDefault_ = false;
    bool windowChanged_ = true;
};

/// Index of a slot in a window's slot table, built once per table.
class SlotIndex {
public:
    static const SlotIndex& of(const WindowSpec& spec);
    SlotFunction find(Handle control, Event event) const;

private:
    explicit SlotIndex(const WindowSpec& spec);
    std::vector<std::array<SlotFunction, static_cast<std::size_t>(Event::count)>> byControl_;
};

/// True while the circuit that is being designed has the part of this row.
bool belongs(const Window& window, const GrowthRow& row);
/// How a drawing stands there: a part that the chain has not reached yet is pale, one of another circuit is not there.
enum class Tone : std::uint8_t { ink, pale, away };
/// The tone of a control that is a part of the drawing (`growth`) or a value on it (`values`). What is neither is ink while
/// it is visible.
Tone toneOf(const Window& window, Handle control);

/// True while the choice that the control stands for is in force (`ControlRow::chosen`).
bool isChosen(const Window& window, Handle control);

/// Where a screen shows a control: its place, unless the window's table says otherwise.
Place shownPlace(const Window& window, Handle control);

/// Equality of names without regard to ASCII capitals.
bool sameName(std::string_view one, std::string_view other);

/// Checks at compile time that each row stands at the index of its handle.
consteval bool rowsInOrder(std::span<const ControlRow> rows)
{
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].id != i)
            return false;
    return true;
}

} // namespace velmor::host
