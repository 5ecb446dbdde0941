// SPDX-License-Identifier: MIT
// From an event of the game to the engine: each act is what a person's hand does in the real window.
#include "player/player.h"

#include "host/state_change.h"
#include "host/text_store.h"
#include "sheets/design_sheet.h"

namespace velmor::player {

namespace deeds_detail {

constexpr std::string_view actNames[] = {
    "focus", "tab",       "tab back",  "click",  "double click", "press",     "hover",
    "key",   "text",      "edit",      "select", "menu",         "opens",     "choose",
    "drag",  "drag over", "drag away", "timer",  "shortcut",     "activate",  "close",
    "state", "resize",    "main area", "new",    "show",         "operation", "step",
};
static_assert(std::size(actNames) == static_cast<std::size_t>(Act::count));

std::string nameOf(const host::WindowSpec& window, host::Handle control)
{
    return control == host::noControl ? std::string(".") : std::string(window.controls[control].name);
}

} // namespace deeds_detail

std::string inWords(const Remembered& deed)
{
    using namespace deeds_detail;
    std::string words(actNames[static_cast<std::size_t>(deed.act)]);
    if (deed.window != nullptr) {
        words += " " + std::string(deed.window->name) + "/" + std::to_string(deed.serial);
        words += " " + nameOf(*deed.window, deed.control);
        if (deed.target != host::noControl)
            words += " on " + nameOf(*deed.window, deed.target);
    }
    if (deed.detail != 0)
        words += " " + std::to_string(deed.detail);
    return deed.text.empty() ? words : words + " \"" + deed.text + "\"";
}

void Player::carryOut(const Deed& deed)
{
    host::Engine& engine = *engine_;
    switch (deed.act) {
    case Act::focus:
        engine.userFocus(*deed.window, deed.control);
        return;
    case Act::tab:
    case Act::tabBack:
        engine.userTab(*deed.window, deed.act == Act::tabBack);
        return;
    case Act::click:
        engine.userClick(*deed.window, deed.control, deed.detail);
        return;
    case Act::doubleClick:
        engine.userDoubleClick(*deed.window, deed.control, deed.detail != 0);
        return;
    case Act::press:
        engine.userPress(*deed.window, deed.control, deed.detail % 2 != 0 ? host::Button::right : host::Button::left,
                         deed.detail / 2);
        return;
    case Act::hover:
        engine.userHover(*deed.window, deed.control);
        return;
    case Act::key:
        pressKey(*deed.window, static_cast<std::int16_t>(deed.detail), deed.text);
        return;
    case Act::text:
        engine.userText(*deed.window, deed.control, deed.text);
        return;
    case Act::edit:
        deed.window->store(deed.control).replaceSelection(deed.text);
        engine.userEdited(*deed.window, deed.control);
        return;
    case Act::selectText:
        deed.window->store(deed.control).select(static_cast<std::size_t>(deed.detail), 10);
        return;
    case Act::menu:
        engine.userMenu(*deed.window, deed.control);
        return;
    case Act::menuOpens:
        engine.userMenuOpens(*deed.window, deed.control);
        return;
    case Act::choose:
        engine.userChoose(*deed.window, deed.control, deed.detail);
        return;
    case Act::drag:
    case Act::dragEnter:
    case Act::dragLeave:
        carryOutDrag(deed);
        return;
    case Act::timer:
        engine.userTimer(*deed.window, deed.control);
        return;
    case Act::shortcut:
        engine.userShortcut(*deed.window, static_cast<std::size_t>(deed.detail));
        return;
    default:
        carryOutWindow(deed);
    }
}

void Player::carryOutDrag(const Deed& deed)
{
    if (deed.act == Act::drag)
        engine_->userDrag(*deed.window, deed.control, deed.target);
    else if (deed.act == Act::dragEnter)
        engine_->userDragEnter(*deed.window, deed.control, deed.target);
    else
        engine_->userDragLeave(*deed.window, deed.control, deed.target);
}

void Player::carryOutWindow(const Deed& deed)
{
    host::Engine& engine = *engine_;
    switch (deed.act) {
    case Act::activate:
        engine.userActivate(*deed.window);
        return;
    case Act::close:
        engine.userClose(*deed.window);
        return;
    case Act::state:
        engine.userState(*deed.window, deed.detail);
        return;
    case Act::resize:
        engine.userResized(*deed.window,
                           {deed.detail, deed.detail / 2, 4000 + 7 * deed.detail, 3000 + 5 * deed.detail});
        return;
    case Act::mainArea:
        engine.setClientArea(9000 + deed.detail, 6000 + deed.detail / 2);
        return;
    case Act::newSheet:
        if (const host::WindowSpec* spec = engine.specOf(deed.text))
            program_.newSheet(engine, *spec);
        return;
    case Act::show:
        engine.userRun([&] { engine.host().Show(deed.text); });
        return;
    case Act::step:
        return leadStep(deed.detail == 0 ? host::Direction::back : host::Direction::forth);
    case Act::operation:
        runOperation(*deed.window, deed.detail, deed.text);
        return;
    default:
        return;
    }
}

// The focus moves without a slot.
void Player::leadStep(host::Direction direction)
{
    engine_->userStep(direction);
}

// What comes through the menus of the main window, and a file name that only a program can give.
void Player::runOperation(host::Window& window, int operation, const std::string& path)
{
    auto* sheet = dynamic_cast<sheets::DesignSheet*>(&window);
    if (sheet == nullptr)
        return;
    engine_->userRun([&] {
        switch (operation) {
        case 1:
            sheet->setNombreArchivo(path);
            sheet->Abrir();
            return;
        case 2:
            sheet->CDL_AbrirDatos();
            return;
        case 3:
            sheet->CDL_GuardarDatos();
            sheet->Guardar();
            return;
        default:
            sheet->setNombreArchivo(path);
        }
    });
}

// A key that the slot lets through goes into the text behind it, as a real field does it.
void Player::pressKey(host::Window& window, std::int16_t key, const std::string& character)
{
    const host::Handle held = window.focus();
    const std::int16_t passed = engine_->userKey(window, key);
    if (passed == 0 || !engine_->isLoaded(&window) || held == host::noControl)
        return;
    if (window.row(held).kind == host::Kind::editor) {
        window.store(held).replaceSelection(passed == 13 ? "\n" : character);
        engine_->userEdited(window, held);
    } else if (window.row(held).kind == host::Kind::field) {
        std::u32string text = host::toCodePoints(window.text(held));
        if (passed == 8 && !text.empty())
            text.pop_back();
        if (text.size() < 200)
            engine_->userText(window, held, host::toUtf8(text) + (passed >= 32 ? character : std::string()));
    }
}

} // namespace velmor::player
