// SPDX-License-Identifier: MIT
// What the player chooses to do next: going on with a design, trying slots that were never reached, or anything at all.
#include "player/player.h"

#include <algorithm>

#include "host/text_store.h"
#include "rules/code_page.h"

namespace velmor::player {

using host::Event;
using host::Handle;
using host::Kind;
using host::noControl;
using host::Window;

std::vector<Window*> Player::shownWindows() const
{
    std::vector<Window*> shown = engine_->windows();
    std::erase_if(shown,
                  [](const Window* window) { return !window->shown() && window->role() != host::Role::mainWindow; });
    return shown;
}

// While a modal window stands, a person reaches no other.
Window* Player::modalWindow() const
{
    for (const std::unique_ptr<Window>& window : engine_->held())
        if (window->spec().modal && window->shown())
            return window.get();
    return nullptr;
}

Window& Player::windowToPlay()
{
    if (Window* modal = modalWindow())
        return *modal;
    std::vector<Window*> shown = shownWindows();
    if (!game_.onlyWindow.empty() && chance_.in(80)) {
        std::vector<Window*> wanted;
        std::copy_if(shown.begin(), shown.end(), std::back_inserter(wanted),
                     [this](const Window* window) { return host::sameName(window->name(), game_.onlyWindow); });
        if (!wanted.empty())
            return *chance_.one(wanted);
    }
    if (engine_->current() != nullptr && chance_.in(50))
        return *engine_->current();
    return *chance_.one(shown);
}

Handle Player::anyControl(const Window& window)
{
    return window.controlCount() == 0 || chance_.in(5) ? noControl
                                                       : static_cast<Handle>(chance_.below(window.controlCount()));
}

// --- designs

Window* Player::sheetInHand()
{
    Window* child = engine_->activeChild();
    if (child != nullptr && child->role() == host::Role::sheet)
        return child;
    for (Window* window : shownWindows())
        if (window->role() == host::Role::sheet)
            return window;
    return nullptr;
}

void Player::designStep()
{
    Window* sheet = sheetInHand();
    if (sheet == nullptr) {
        openSomething();
        return;
    }
    if (engine_->current() != sheet) {
        perform({.act = Act::activate, .window = sheet});
        return;
    }
    if (sheet->windowState() == 1 && chance_.in(50))
        perform({.act = Act::state, .window = sheet, .detail = 0});
    const Handle held = sheet->focus();
    if (held == noControl || sheet->row(held).kind != Kind::field) {
        perform({.act = Act::focus, .window = sheet, .control = anyControl(*sheet)});
        return;
    }
    const unsigned dice = static_cast<unsigned>(chance_.below(100));
    const unsigned typing = mood_ == Mood::design ? 35 : 5;
    if (dice < typing)
        typeNumber(*sheet);
    else if (dice < 82)
        perform({.act = Act::key, .window = sheet, .control = held, .detail = 13});
    else if (dice < 93)
        perform({.act = Act::key, .window = sheet, .control = held, .detail = 27});
    else if (dice < 96)
        perform({.act = Act::tab, .window = sheet});
    else
        perform({.act = Act::click, .window = sheet, .control = anyControl(*sheet)});
}

// A sheet whose focus has left the fields is finished: another is begun.
void Player::straightStep()
{
    Window* sheet = sheetInHand();
    if (sheet == nullptr)
        return openSomething();
    if (engine_->current() != sheet)
        return perform({.act = Act::activate, .window = sheet});
    const Handle held = sheet->focus();
    if (held == noControl || sheet->row(held).kind != Kind::field || chance_.in(2))
        return perform({.act = Act::close, .window = sheet});
    if (chance_.in(35)) {
        perform({.act = Act::text, .window = sheet, .control = held});
        typeText(*sheet, usualNumber(chance_));
    }
    if (engine_->isLoaded(sheet))
        perform({.act = Act::key, .window = sheet, .control = sheet->focus(), .detail = chance_.in(80) ? 13 : 27});
}

void Player::typeNumber(Window& sheet)
{
    const Handle held = sheet.focus();
    const unsigned serial = sheet.serial();
    perform({.act = Act::text, .window = &sheet, .control = held});
    typeText(sheet, plausibleNumber(chance_));
    if (!engine_->isLoaded(&sheet) || sheet.serial() != serial)
        return;
    if (chance_.in(85))
        perform({.act = Act::key, .window = &sheet, .control = sheet.focus(), .detail = 13});
    else if (chance_.in(50))
        perform({.act = Act::tab, .window = &sheet});
}

void Player::typeText(Window& window, const std::string& text)
{
    for (const char32_t character : host::toCodePoints(text)) {
        if (!engine_->isLoaded(&window) || engine_->ended())
            return;
        const auto code = rules::windows1252Code(character);
        perform({.act = Act::key,
                 .window = &window,
                 .control = window.focus(),
                 .detail = code ? *code : 255,
                 .text = host::toUtf8(std::u32string(1, character))});
    }
}

// --- everything else

void Player::roamStep()
{
    Window& window = windowToPlay();
    if (window.windowState() == 1 && chance_.in(30))
        perform({.act = Act::state, .window = &window, .detail = 0});
    else if (engine_->current() != &window && window.role() != host::Role::palette && chance_.in(60))
        perform({.act = Act::activate, .window = &window});
    else if (chance_.in(75) && !window.spec().slots.empty())
        playSlot(window);
    else
        oddStep(window);
}

// Slots that were never reached are tried first.
void Player::playSlot(Window& window)
{
    const host::SlotRow* row = &chance_.one(window.spec().slots);
    for (int tries = 0; tries < 3 && coverage_.reached(window.spec(), {row->control, row->event}); ++tries)
        row = &chance_.one(window.spec().slots);
    playSlot(window, row->control, row->event);
}

void Player::playSlot(Window& window, Handle control, Event event)
{
    const bool isMenu = control != noControl && window.row(control).kind == Kind::menu;
    switch (event) {
    case Event::focus:
        return perform({.act = Act::focus, .window = &window, .control = control});
    case Event::lostFocus:
        if (window.focus() != control)
            return perform({.act = Act::focus, .window = &window, .control = control});
        return perform({.act = Act::tab, .window = &window});
    case Event::click:
    case Event::mouseUp:
        if (isMenu && window.role() == host::Role::editor && chance_.in(40))
            selectSomething(window);
        return perform({.act = isMenu ? Act::menu : Act::click,
                        .window = &window,
                        .control = control,
                        .detail = isMenu          ? 0
                                  : chance_.in(5) ? chance_.between(1, 3)
                                                  : 0});
    case Event::doubleClick:
        return perform({.act = Act::doubleClick, .window = &window, .control = control, .detail = 1});
    case Event::mouseDown:
        return perform({.act = Act::press,
                        .window = &window,
                        .control = control,
                        .detail = chance_.in(60) ? 1 : chance_.between(0, 7)});
    case Event::hover:
        return perform({.act = Act::hover, .window = &window, .control = control});
    case Event::key:
        return playKey(window, control);
    case Event::menuOpen:
        return perform({.act = Act::menuOpens, .window = &window, .control = control});
    case Event::timer:
        return perform({.act = Act::timer, .window = &window, .control = control});
    case Event::change:
        return window.row(control).kind == Kind::list ? useList(window, control) : editStep(window, control);
    case Event::dragEnter:
    case Event::drop:
        return perform({.act = chance_.in(30) ? Act::dragEnter : Act::drag,
                        .window = &window,
                        .control = anyControl(window),
                        .target = control});
    case Event::dragLeave:
        return perform({.act = Act::dragLeave, .window = &window, .control = anyControl(window), .target = control});
    case Event::repaint:
    case Event::resize:
        return perform({.act = Act::resize, .window = &window, .detail = chance_.between(0, 2000)});
    case Event::queryClose:
    case Event::unload:
        return chance_.in(30) ? perform({.act = Act::close, .window = &window}) : oddStep(window);
    default:
        oddStep(window);
    }
}

void Player::playKey(Window& window, Handle control)
{
    perform({.act = Act::focus, .window = &window, .control = control});
    if (engine_->isLoaded(&window))
        perform({.act = Act::key,
                 .window = &window,
                 .control = control,
                 .detail = chance_.in(50)   ? 13
                           : chance_.in(50) ? 27
                                            : '1',
                 .text = "1"});
}

// Cut and copy wait for a selection.
void Player::selectSomething(Window& window)
{
    for (const host::ControlRow& row : window.spec().controls)
        if (row.kind == Kind::editor) {
            perform({.act = Act::edit, .window = &window, .control = row.id, .text = "a selection"});
            perform({.act = Act::selectText, .window = &window, .control = row.id});
            return;
        }
}

void Player::useList(Window& window, Handle list)
{
    const std::size_t entries = window.list(list).items.size();
    perform({.act = Act::choose,
             .window = &window,
             .control = list,
             .detail = static_cast<int>(chance_.below(entries + 1)) - 1});
}

void Player::editStep(Window& window, Handle editor)
{
    if (window.row(editor).kind != Kind::editor) {
        perform({.act = Act::text, .window = &window, .control = editor, .text = plausibleNumber(chance_)});
        return;
    }
    host::TextStore& store = window.store(editor);
    const std::size_t length = store.length();
    if (length > 20'000)
        store.select(0, length);
    else
        store.select(chance_.below(length + 1), chance_.in(50) ? 0 : chance_.below(40));
    if (chance_.in(30)) {
        perform({.act = Act::selectText,
                 .window = &window,
                 .control = editor,
                 .detail = static_cast<int>(chance_.below(length + 1))});
        return;
    }
    static constexpr const char* words[] = {"", "a", "\n", "Qic", " RL ", "ñandú", "report of the student\n", "Ω"};
    perform({.act = Act::edit, .window = &window, .control = editor, .text = chance_.one(words)});
}

// An event that the window may have no slot for, or that concerns the window as a whole.
void Player::oddStep(Window& window)
{
    const Handle control = anyControl(window);
    switch (chance_.below(20)) {
    case 0:
        return perform({.act = Act::tab, .window = &window});
    case 1:
        return perform({.act = Act::tabBack, .window = &window});
    case 2:
        return perform({.act = Act::click, .window = &window, .control = control});
    case 3:
        return perform({.act = Act::hover, .window = &window, .control = control});
    case 4:
        return perform({.act = Act::press, .window = &window, .control = control, .detail = chance_.between(0, 7)});
    case 5:
        return perform(
            {.act = Act::doubleClick, .window = &window, .control = control, .detail = chance_.between(0, 1)});
    case 6:
        return perform({.act = Act::key,
                        .window = &window,
                        .control = window.focus(),
                        .detail = chance_.between(1, 255),
                        .text = "x"});
    case 7:
    case 8:
        if (!window.spec().shortcuts.empty())
            perform({.act = Act::shortcut,
                     .window = &window,
                     .detail = static_cast<int>(chance_.below(window.spec().shortcuts.size()))});
        return;
    case 9:
        return perform({.act = Act::state, .window = &window, .detail = chance_.between(0, 2)});
    case 10:
        return perform({.act = Act::resize, .window = &window, .detail = chance_.between(0, 2000)});
    case 11:
        return perform({.act = Act::mainArea, .detail = chance_.between(0, 12'000)});
    case 12:
    case 13:
    case 14:
        return openSomething();
    case 15:
        if (window.role() == host::Role::sheet)
            perform({.act = Act::operation,
                     .window = &window,
                     .detail = chance_.between(0, 3),
                     .text = chance_.one(ground_->files())});
        return;
    case 16:
        return typeText(window, plausibleNumber(chance_));
    case 17:
        return perform({.act = Act::drag, .window = &window, .control = control, .target = anyControl(window)});
    case 18:
        return perform({.act = Act::step, .detail = chance_.in(40) ? 1 : 0});
    default:
        if (chance_.in(window.role() == host::Role::mainWindow ? 5 : 60))
            perform({.act = Act::close, .window = &window});
    }
}

void Player::openSomething()
{
    const host::WindowSpec* spec = chance_.one(program_.catalogue);
    for (int tries = 0; tries < 4 && spec->role != host::Role::sheet; ++tries)
        spec = chance_.one(program_.catalogue);
    if (!game_.onlyWindow.empty() && chance_.in(85))
        if (const host::WindowSpec* target = engine_->specOf(game_.onlyWindow))
            spec = target;
    if (spec->role == host::Role::sheet)
        perform({.act = Act::newSheet, .text = std::string(spec->name)});
    else if (spec->role != host::Role::mainWindow)
        perform({.act = Act::show, .text = std::string(spec->name)});
}

// The window of the game is opened when it is not; tools beside a sheet, as in the program.
void Player::openTarget()
{
    if (game_.onlyWindow.empty() || modalWindow() != nullptr)
        return;
    Window* target = engine_->instance(game_.onlyWindow, 0);
    if (target == nullptr || !target->shown())
        openSomething();
}

void Player::usePopup()
{
    Window& owner = *screen_->popupOwner;
    const Handle menu = screen_->popup;
    screen_->popupOwner = nullptr;
    std::vector<Handle> items;
    for (const host::ControlRow& row : owner.spec().controls)
        if (row.kind == Kind::menu && row.parent == menu)
            items.push_back(row.id);
    if (!items.empty() && engine_->isLoaded(&owner))
        perform({.act = Act::menu, .window = &owner, .control = chance_.one(items)});
}

// Close, menu, timer and mouse events that come while a question stands; the engine lets them wait.
void Player::meanwhile()
{
    std::vector<Window*> shown = shownWindows();
    Window& window = *chance_.one(shown);
    const Handle control = anyControl(window);
    switch (chance_.below(6)) {
    case 0:
        engine_->userClose(window);
        return;
    case 1:
        engine_->userHover(window, control);
        return;
    case 2:
        engine_->userResized(window, {0, 0, chance_.between(3000, 9000), 4000});
        return;
    case 3:
        if (control != noControl && window.row(control).kind == Kind::menu)
            engine_->userMenu(window, control);
        return;
    case 4:
        if (control != noControl && window.row(control).kind == Kind::timer)
            engine_->userTimer(window, control);
        return;
    default:
        engine_->userActivate(window);
    }
}

} // namespace velmor::player
