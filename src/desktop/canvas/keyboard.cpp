// SPDX-License-Identifier: MIT
#include "desktop/canvas/keyboard.h"

#include <algorithm>
#include <map>
#include <vector>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPointer>

#include "desktop/canvas/canvas.h"
#include "desktop/canvas/check_tile.h"
#include "desktop/canvas/field_edit.h"
#include "desktop/canvas/pointer.h"
#include "desktop/drawing/texts.h"
#include "host/state_change.h"
#include "rules/code_page.h"
#include "sheets/check_tool.h"

namespace velmor::desktop {

using host::Handle;
using host::Kind;
using host::noControl;

namespace keyboard_detail {

constexpr std::int16_t enterKey = 13;
constexpr std::int16_t escapeKey = 27;
constexpr std::int16_t backspaceKey = 8;
constexpr std::int16_t copyKey = 3;
constexpr std::int16_t pasteKey = 22;
constexpr std::int16_t cutKey = 24;
constexpr std::int16_t undoKey = 26;
constexpr unsigned char unknownCharacter = '?'; ///< treated as a letter, that is, refused with a beep by the filter
constexpr qsizetype longestPaste = 4096;

// clang-format off
constexpr CommonKeyRow commonKeyRows[] = {
    // keys          deed                     Spanish                                        English
    {"Tab",          CommonKey::next,       {"al campo siguiente",                           "to the next field"}},
    {"Shift+Tab",    CommonKey::previous,   {"al campo anterior",                            "to the field before"}},
    {"Menu",         CommonKey::rightPress, {"botón derecho sobre el campo: ayuda o tabla",  "right button on the field: help or table"}},
    {"Shift+F10",    CommonKey::rightPress, {"botón derecho sobre el campo: ayuda o tabla",  "right button on the field: help or table"}},
    {"F1",           CommonKey::rightPress, {"botón derecho sobre el campo: ayuda o tabla",  "right button on the field: help or table"}},
    {"F2",           CommonKey::hover,      {"lo que dice el ratón sobre el campo",          "what the mouse over the field says"}},
    {"Ctrl+F1",      CommonKey::hover,      {"lo que dice el ratón sobre el campo",          "what the mouse over the field says"}},
    {"F6",           CommonKey::nextPane,   {"a la ventana siguiente",                       "to the next window"}},
    {"Alt+Backspace", CommonKey::stepBack,  {"un paso atrás",                                "one step back"}},
    {"Ctrl+Z",       CommonKey::undo,       {"deshace lo tecleado, o un paso",             "undoes typing, or a step"}},
    {"Ctrl+Shift+Z", CommonKey::redo,       {"rehace lo tecleado, o un paso",              "types it again, or a step forward"}},
    {"Ctrl+Y",       CommonKey::redo,       {"rehace lo tecleado, o un paso",              "types it again, or a step forward"}},
    {sheets::checkKey, CommonKey::check,    {"comprueba el diseño terminado",                "checks the finished design"}},
    {"Alt+-",        CommonKey::frame,      {"menú del marco: maximizar, cerrar",            "menu of the frame: maximise, close"}},
    {"Esc",          CommonKey::close,      {"cierra una ventana de ayuda o herramienta",    "closes a window of help or a tool"}},
};
// clang-format on

bool isTyped(const QKeyEvent& event)
{
    const QString text = event.text();
    if (text.isEmpty() || !text.at(0).isPrint())
        return false;
    const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
}

// A modifier alone says nothing yet, and F6 walks between the windows itself.
bool turnsNothing(const QKeyEvent& event)
{
    constexpr Qt::Key still[] = {Qt::Key_Shift,    Qt::Key_Control, Qt::Key_Alt,     Qt::Key_AltGr,   Qt::Key_Meta,
                                 Qt::Key_CapsLock, Qt::Key_F6,      Qt::Key_NumLock, Qt::Key_Super_L, Qt::Key_Super_R};
    return std::find(std::begin(still), std::end(still), event.key()) != std::end(still);
}

QKeyCombination combinationOf(std::string_view keys)
{
    const QKeySequence sequence(shown(keys), QKeySequence::PortableText);
    return sequence.isEmpty() ? QKeyCombination() : sequence[0];
}

struct SearchRow {
    QKeyCombination keys;
    Canvas::Search deed;
};

std::optional<Canvas::Search> searchOf(const host::Window& model, QKeyCombination keys)
{
    static const SearchRow rows[] = {{Qt::CTRL | Qt::Key_F, Canvas::Search::open},
                                     {Qt::CTRL | Qt::Key_H, Canvas::Search::openReplacing},
                                     {QKeyCombination(Qt::Key_F3), Canvas::Search::on},
                                     {Qt::SHIFT | Qt::Key_F3, Canvas::Search::back}};
    if (model.role() == host::Role::editor)
        for (const SearchRow& row : rows)
            if (row.keys == keys)
                return row.deed;
    return std::nullopt;
}

/// A field whose value a box has sent back, when Enter or Tab was to leave it, has its whole text selected, as every field that
/// the program gives the focus: what is typed next is the better value, not the end of the bad one.
class SentBack {
public:
    SentBack(Canvas& canvas, const QKeyEvent& event)
        : canvas_(&canvas), held_(leaves(event) ? canvas.model()->focus() : noControl),
          field_(held_ == noControl ? nullptr : dynamic_cast<FieldEdit*>(canvas.widgetOf(held_))),
          asked_(canvas.desk().questions)
    {}
    ~SentBack()
    {
        if (canvas_ && field_ && canvas_->model() != nullptr && canvas_->model()->focus() == held_ &&
            canvas_->desk().questions != asked_)
            field_->selectWhole();
    }
    SentBack(const SentBack&) = delete;
    SentBack& operator=(const SentBack&) = delete;

private:
    static bool leaves(const QKeyEvent& event)
    {
        const int key = event.key();
        return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Backtab;
    }

    QPointer<Canvas> canvas_;
    Handle held_;
    QPointer<FieldEdit> field_;
    std::size_t asked_;
};

bool isUndo(QKeyCombination keys)
{
    return std::any_of(std::begin(commonKeyRows), std::end(commonKeyRows), [keys](const CommonKeyRow& row) {
        const bool undoes =
            row.deed == CommonKey::stepBack || row.deed == CommonKey::undo || row.deed == CommonKey::redo;
        return undoes && combinationOf(row.keys) == keys;
    });
}

} // namespace keyboard_detail

std::span<const CommonKeyRow> commonKeys()
{
    return keyboard_detail::commonKeyRows;
}

std::int16_t keyCode(char32_t character)
{
    return rules::windows1252Code(character).value_or(keyboard_detail::unknownCharacter);
}

char32_t characterOf(std::int16_t code)
{
    return rules::windows1252Character(static_cast<unsigned char>(code));
}

// Parsed once for all windows of a kind: this is asked at every key.
std::size_t shortcutRow(const host::WindowSpec& spec, QKeyCombination keys)
{
    static std::map<const host::WindowSpec*, std::vector<QKeyCombination>> tables;
    auto known = tables.find(&spec);
    if (known == tables.end()) {
        known = tables.emplace(&spec, std::vector<QKeyCombination>()).first;
        for (const host::ShortcutRow& row : spec.shortcuts)
            known->second.push_back(keyboard_detail::combinationOf(row.keys));
    }
    const auto found = std::find(known->second.begin(), known->second.end(), keys);
    return found == known->second.end() ? noRow : static_cast<std::size_t>(found - known->second.begin());
}

QKeyCombination keysOf(const QKeyEvent& event)
{
    return QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(event.key()));
}

bool isBetweenWindows(const QKeyEvent& event)
{
    using namespace keyboard_detail;
    return std::any_of(std::begin(commonKeyRows), std::end(commonKeyRows), [&](const CommonKeyRow& row) {
        return (row.deed == CommonKey::nextPane || row.deed == CommonKey::frame) &&
               combinationOf(row.keys) == keysOf(event);
    });
}

bool Keyboard::wants(const QKeyEvent& event) const
{
    const host::Window* model = canvas_.model();
    if (model == nullptr)
        return false;
    const QKeyCombination keys = keysOf(event);
    const bool steps = model->role() == host::Role::sheet || model->role() == host::Role::editor;
    const bool checks = canvas_.checkTile().isThere() && keys == keyboard_detail::combinationOf(sheets::checkKey);
    return shortcutRow(model->spec(), keys) != noRow || checks || (steps && keyboard_detail::isUndo(keys)) ||
           keyboard_detail::searchOf(*model, keys).has_value();
}

bool Keyboard::pressed(const QKeyEvent& event)
{
    host::Window* model = canvas_.model();
    if (model == nullptr || canvas_.desk().closing)
        return true;
    if (canvas_.desk().touched)
        canvas_.desk().touched(&canvas_);
    if (event.key() == Qt::Key_Escape && canvas_.pointer().cancelDrag())
        return true;
    if (goesBehind(event))
        return true;
    if (canvas_.desk().turnTo && !keyboard_detail::turnsNothing(event)) {
        QPointer<Canvas> alive(&canvas_);
        canvas_.desk().turnTo(*model);
        if (!alive || canvas_.model() == nullptr)
            return true;
    }
    const keyboard_detail::SentBack sentBack(canvas_, event);
    const QKeyCombination keys = keysOf(event);
    if (runSearch(keys) || runShortcut(keys))
        return true;
    if (model->role() == host::Role::palette && walk_.pressed(*model, canvas_.desk(), event.key()))
        return true;
    if (runCommon(keys))
        return true;
    const Handle held = model->focus();
    if (held == noControl)
        return false;
    QWidget* widget = canvas_.widgetOf(held);
    if (auto* field = dynamic_cast<FieldEdit*>(widget))
        return fieldKey(*field, event);
    return host::takesFocus(model->row(held).kind) && model->row(held).kind != Kind::page &&
                   model->row(held).kind != Kind::editor && model->row(held).kind != Kind::list
               ? paneKey(event)
               : textKey(event);
}

// What is only read keeps the keys with which one reads; what a student types is meant for the sheet.
bool Keyboard::goesBehind(const QKeyEvent& event) const
{
    if (!canvas_.model()->spec().reading || !canvas_.desk().typeBehind || wants(event))
        return false;
    const bool writes = (keyboard_detail::isTyped(event) && event.key() != Qt::Key_Space) ||
                        event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete ||
                        event.matches(QKeySequence::Paste);
    return writes && canvas_.desk().typeBehind(event);
}

// An editor's search line is the screen's own; the menu items open the program's windows.
bool Keyboard::runSearch(QKeyCombination keys)
{
    const auto deed = keyboard_detail::searchOf(*canvas_.model(), keys);
    if (!deed || !canvas_.search)
        return false;
    canvas_.search(*deed);
    return true;
}

bool Keyboard::runShortcut(QKeyCombination keys)
{
    const std::size_t row = shortcutRow(canvas_.model()->spec(), keys);
    if (row == noRow)
        return false;
    const Desk& desk = canvas_.desk();
    host::Window& model = *canvas_.model();
    desk.engine->userShortcut(model, row);
    if (desk.hovered && model.spec().shortcuts[row].action == host::KeyAction::hover && desk.idle())
        desk.hovered(model, model.spec().shortcuts[row].control);
    return true;
}

bool Keyboard::runCommon(QKeyCombination keys)
{
    if (keys.key() == Qt::Key_Backtab)
        keys = QKeyCombination(Qt::ShiftModifier, Qt::Key_Tab);
    for (const CommonKeyRow& row : keyboard_detail::commonKeyRows)
        if (keyboard_detail::combinationOf(row.keys) == keys)
            return run(row.deed);
    return false;
}

bool Keyboard::run(CommonKey deed)
{
    host::Window& model = *canvas_.model();
    host::Engine& engine = *canvas_.desk().engine;
    const Handle held = model.focus();
    const bool writes = held != noControl && model.row(held).kind == Kind::editor;
    switch (deed) {
    case CommonKey::next:
    case CommonKey::previous:
        if (writes)
            return false; // a tab is a character there
        engine.userTab(model, deed == CommonKey::previous);
        return true;
    case CommonKey::rightPress:
        if (writes)
            return false;
        engine.userPress(model, held, host::Button::right);
        return true;
    case CommonKey::hover:
        engine.userHover(model, held);
        return true;
    case CommonKey::nextPane:
        if (canvas_.desk().nextPane)
            canvas_.desk().nextPane();
        return true;
    case CommonKey::close:
        return closeTool();
    case CommonKey::stepBack:
        return step(host::Direction::back);
    case CommonKey::undo:
        return undoTyping(host::Direction::back) || step(host::Direction::back);
    case CommonKey::redo:
        return undoTyping(host::Direction::forth) || step(host::Direction::forth);
    case CommonKey::frame:
        if (!model.isChild() || !canvas_.desk().showFrameMenu)
            return false;
        canvas_.desk().showFrameMenu(model);
        return true;
    case CommonKey::check:
        if (!canvas_.checkTile().isThere())
            return false;
        canvas_.checkTile().press();
        canvas_.checkTile().release();
        return true;
    }
    return false;
}

// Keys of undo are a sheet's own; they reach no slot. Editors undo what was written, small windows typing alone.
bool Keyboard::step(host::Direction direction)
{
    if (canvas_.model()->role() != host::Role::sheet)
        return false;
    canvas_.desk().engine->userStep(direction);
    return true;
}

bool Keyboard::undoTyping(host::Direction direction)
{
    const host::Window& model = *canvas_.model();
    const bool back = direction == host::Direction::back;
    QWidget* inHand = model.focus() == noControl ? nullptr : canvas_.widgetOf(model.focus());
    if (auto* text = qobject_cast<QPlainTextEdit*>(inHand); text != nullptr && !text->isReadOnly()) {
        back ? text->undo() : text->redo();
        return true;
    }
    auto* field = dynamic_cast<FieldEdit*>(inHand);
    if (model.role() != host::Role::sheet || field == nullptr ||
        !(back ? field->isUndoAvailable() : field->isRedoAvailable()))
        return false;
    field->handTaken();
    back ? field->undo() : field->redo();
    return true;
}

// A small window goes at Escape, unless the control in hand has a use of its own for the key.
bool Keyboard::closeTool()
{
    host::Window& model = *canvas_.model();
    Desk& desk = canvas_.desk();
    if (model.role() == host::Role::palette) {
        if (desk.nextPane)
            desk.nextPane();
        return true;
    }
    if (model.role() != host::Role::tool)
        return false;
    const Handle held = model.focus();
    const bool hears = held != noControl && model.hasSlot(held, host::Event::key);
    if ((!hears || passes(keyboard_detail::escapeKey)) && canvas_.model() != nullptr)
        desk.engine->userClose(model);
    return true;
}

bool Keyboard::passes(std::int16_t key)
{
    return canvas_.desk().engine->userKey(*canvas_.model(), key) == key;
}

// Enter in a field of a small window that knows nothing of the key does what the window is for.
bool Keyboard::pressFirstButton()
{
    host::Window& model = *canvas_.model();
    if (model.role() != host::Role::tool || model.hasSlot(model.focus(), host::Event::key))
        return false;
    for (const Handle control : host::Engine::tabOrder(model))
        if (model.row(control).kind == Kind::button && model.canTakeFocus(control)) {
            canvas_.desk().engine->userClick(model, control);
            return true;
        }
    return false;
}

bool Keyboard::fieldKey(FieldEdit& field, const QKeyEvent& event)
{
    using namespace keyboard_detail;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        if (!pressFirstButton())
            passes(enterKey);
        return true;
    }
    if (event.key() == Qt::Key_Escape) {
        passes(escapeKey);
        return true;
    }
    if (event.matches(QKeySequence::Paste)) {
        paste(field);
        return true;
    }
    if (isTyped(event)) {
        typeText(field, event.text());
        return true;
    }
    // A letter with Alt is a menu's that no menu has: the line edit would write it past the key slot.
    if (event.modifiers() == Qt::AltModifier && !event.text().isEmpty() && event.text().at(0).isPrint())
        return true;
    if (!turnsNothing(event))
        field.handTaken();
    if (event.key() == Qt::Key_Backspace)
        return !passes(backspaceKey);
    if (event.matches(QKeySequence::Cut))
        return !passes(cutKey);
    if (event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo))
        return !passes(undoKey);
    if (event.matches(QKeySequence::Copy))
        passes(copyKey);
    return false;
}

// Pages, editors and lists: the slot hears the key first, the widget does with it what such widgets do.
bool Keyboard::textKey(const QKeyEvent& event)
{
    using namespace keyboard_detail;
    const Handle held = canvas_.model()->focus();
    if (!canvas_.model()->hasSlot(held, host::Event::key))
        return false;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return !passes(enterKey);
    if (event.key() == Qt::Key_Escape)
        return !passes(escapeKey);
    if (event.key() == Qt::Key_Backspace)
        return !passes(backspaceKey);
    if (isTyped(event))
        return !passes(keyCode(event.text().toUcs4().value(0)));
    return false;
}

bool Keyboard::paneKey(const QKeyEvent& event)
{
    using namespace keyboard_detail;
    host::Window& model = *canvas_.model();
    const Handle held = model.focus();
    const Kind kind = model.row(held).kind;
    if (event.key() == Qt::Key_Space && (kind == Kind::option || kind == Kind::check)) {
        canvas_.desk().engine->userClick(model, held);
        return true;
    }
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        passes(enterKey);
    else if (event.key() == Qt::Key_Escape)
        passes(escapeKey);
    else if (event.key() == Qt::Key_Backspace)
        passes(backspaceKey);
    else if (isTyped(event))
        passes(keyCode(event.text().toUcs4().value(0)));
    else
        return false;
    return true;
}

QString Keyboard::filtered(const QString& text)
{
    QString result;
    QPointer<Canvas> alive(&canvas_);
    const Handle held = canvas_.model()->focus();
    for (const char32_t character : text.toUcs4()) {
        if (character < 32 || character == 127)
            continue;
        const std::int16_t key = keyCode(character);
        const std::int16_t passed = canvas_.desk().engine->userKey(*canvas_.model(), key);
        if (!alive || canvas_.model() == nullptr || canvas_.model()->focus() != held)
            return {};
        if (passed == key)
            result += QString::fromUcs4(&character, 1);
        else if (const char32_t replaced = characterOf(passed); passed != 0)
            result += QString::fromUcs4(&replaced, 1);
    }
    return result;
}

void Keyboard::typeText(FieldEdit& field, const QString& text)
{
    QPointer<FieldEdit> alive(&field);
    const QString passed = filtered(text);
    if (alive && !passed.isEmpty()) {
        field.handTaken();
        field.insert(passed);
    }
}

void Keyboard::paste(FieldEdit& field)
{
    QPointer<FieldEdit> alive(&field);
    QPointer<Canvas> canvas(&canvas_);
    const QString text = QGuiApplication::clipboard()->text().left(keyboard_detail::longestPaste);
    if (text.isEmpty() || !passes(keyboard_detail::pasteKey) || !alive)
        return;
    Desk& desk = canvas_.desk();
    desk.muted = true;
    const QString passed = filtered(text);
    desk.muted = false;
    if (alive && !passed.isEmpty()) {
        field.handTaken();
        field.insert(passed);
    }
}

bool Keyboard::composed(const QInputMethodEvent& event)
{
    host::Window* model = canvas_.model();
    if (model == nullptr || model->focus() == noControl || event.commitString().isEmpty())
        return false;
    auto* field = dynamic_cast<FieldEdit*>(canvas_.widgetOf(model->focus()));
    if (field == nullptr)
        return false;
    typeText(*field, event.commitString());
    return true;
}

} // namespace velmor::desktop
