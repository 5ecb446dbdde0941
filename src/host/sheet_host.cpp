// SPDX-License-Identifier: MIT
// The operations of the host, each a few lines over the engine.
#include "host/sheet_host.h"

#include <utility>

#include "host/engine.h"
#include "host/state_change.h"

namespace velmor::host {

namespace sheet_host_detail {

/// A control by name in a window; no window when it is not open or has none of that name.
std::pair<Window*, Handle> controlOf(Window* open, std::string_view control)
{
    const Handle found = open == nullptr ? noControl : open->named(control);
    return {found == noControl ? nullptr : open, found};
}

} // namespace sheet_host_detail

ProgramValues& SheetHost::values()
{
    return engine_.values_;
}

SettingsStore& SheetHost::settings()
{
    return engine_.settings_;
}

Screen& SheetHost::screen()
{
    return engine_.screen_;
}

std::string_view SheetHost::pick(const BiText& text)
{
    return text.in(engine_.values_.LanguageIsEnglish);
}

void SheetHost::SetFocus(Window& window, Handle target)
{
    engine_.moveFocus(window, target);
}

int SheetHost::MsgBox(std::string_view text, int flags, std::string_view title)
{
    if (engine_.ended_)
        return static_cast<int>(Answer::cancel);
    const MessageBox box{std::string(text), std::string(title), flags};
    engine_.trace("box \"" + box.text + "\" title \"" + box.title + "\" flags " + std::to_string(flags));
    if (engine_.onBox)
        engine_.onBox(box);
    engine_.screen_.bringUpToDate();
    const Answer answer = engine_.screen_.messageBox(box);
    engine_.moment_ = Engine::Moment::stepEnds;
    return static_cast<int>(answer);
}

void SheetHost::Beep()
{
    engine_.screen_.beep();
}

std::optional<std::string> SheetHost::InputBox(const host::InputBox& box)
{
    engine_.screen_.bringUpToDate();
    return engine_.screen_.inputBox(box);
}

std::optional<std::size_t> SheetHost::Choose(const host::Choice& choice)
{
    if (engine_.ended_)
        return std::nullopt;
    engine_.screen_.bringUpToDate();
    return engine_.screen_.choose(choice);
}

Window* SheetHost::Load(std::string_view name)
{
    if (Window* open = engine_.defaultInstance(name))
        return open;
    const WindowSpec* spec = engine_.specOf(name);
    if (spec == nullptr) {
        engine_.trace("deferred " + std::string(name));
        return nullptr;
    }
    Window* made = engine_.make(*spec, true);
    engine_.load(*made);
    return made;
}

Window* SheetHost::Show(std::string_view name)
{
    Window* window = Load(name);
    if (window != nullptr)
        engine_.show(*window);
    return window;
}

void SheetHost::Show(Window& window)
{
    engine_.show(window);
}

void SheetHost::Hide(std::string_view name)
{
    if (Window* window = find(name))
        engine_.hide(*window);
}

void SheetHost::Hide(Window& window)
{
    engine_.hide(window);
}

bool SheetHost::Unload(Window& window)
{
    return engine_.unload(window, CloseReason::code);
}

void SheetHost::Unload(std::string_view name)
{
    if (Window* window = find(name))
        engine_.unload(*window, CloseReason::code);
}

Window* SheetHost::NewInstance(std::string_view name)
{
    const WindowSpec* spec = engine_.specOf(name);
    if (spec == nullptr) {
        engine_.trace("deferred " + std::string(name));
        return nullptr;
    }
    return engine_.make(*spec, false);
}

void SheetHost::SetWindowState(Window& window, int state)
{
    engine_.setState(window, state);
}

void SheetHost::SetWindowCaption(Window& window, std::string_view caption)
{
    window.setCaption(caption);
}

void SheetHost::Arrange(int kind)
{
    engine_.arrange(kind);
}

void SheetHost::PopupMenu(std::string_view menuOfMainWindow)
{
    Window& owner = mainWindow();
    const Handle menu = owner.named(menuOfMainWindow);
    engine_.trace("popup " + std::string(menuOfMainWindow));
    if (menu != noControl)
        engine_.screen_.popupMenu(owner, menu);
}

Window* SheetHost::find(std::string_view name)
{
    return engine_.defaultInstance(name);
}

bool SheetHost::canShow(std::string_view name)
{
    return engine_.specOf(name) != nullptr;
}

Place SheetHost::clientArea()
{
    return engine_.clientArea();
}

Window& SheetHost::mainWindow()
{
    return engine_.mainWindow();
}

Window* SheetHost::activeChild()
{
    return engine_.activeChild_;
}

std::vector<Window*> SheetHost::windows()
{
    return engine_.windows();
}

bool SheetHost::isLoaded(const Window& window)
{
    return engine_.isLoaded(&window);
}

void SheetHost::setVisible(std::string_view window, std::string_view control, bool visible)
{
    if (const auto [open, found] = sheet_host_detail::controlOf(find(window), control); open != nullptr)
        open->setVisible(found, visible);
}

void SheetHost::setEnabled(std::string_view window, std::string_view control, bool enabled)
{
    if (const auto [open, found] = sheet_host_detail::controlOf(find(window), control); open != nullptr)
        open->setEnabled(found, enabled);
}

void SheetHost::setText(std::string_view window, std::string_view control, std::string_view text)
{
    if (const auto [open, found] = sheet_host_detail::controlOf(find(window), control); open != nullptr)
        open->setText(found, text);
}

bool SheetHost::visible(std::string_view window, std::string_view control)
{
    const auto [open, found] = sheet_host_detail::controlOf(find(window), control);
    return open != nullptr && open->visible(found);
}

std::string SheetHost::text(std::string_view window, std::string_view control)
{
    const auto [open, found] = sheet_host_detail::controlOf(find(window), control);
    return open == nullptr ? std::string{} : open->wholeText(found);
}

bool SheetHost::checked(std::string_view menuItem)
{
    const Window& owner = mainWindow();
    const Handle item = owner.named(menuItem);
    return item != noControl && owner.checked(item);
}

void SheetHost::setChecked(std::string_view menuItem, bool checked)
{
    Window& owner = mainWindow();
    const Handle item = owner.named(menuItem);
    if (item != noControl)
        owner.setChecked(item, checked);
}

std::string SheetHost::Now()
{
    return engine_.screen_.now();
}

std::string SheetHost::Date()
{
    return engine_.screen_.date();
}

std::string SheetHost::Time()
{
    return engine_.screen_.time();
}

std::optional<std::string> SheetHost::fileDialog(const FileDialog& dialog)
{
    engine_.screen_.bringUpToDate();
    return engine_.screen_.fileDialog(dialog);
}

std::string SheetHost::programFolder()
{
    return engine_.screen_.programFolder();
}

void SheetHost::StepBack()
{
    engine_.stepAfterwards(Direction::back);
}

void SheetHost::StepForth()
{
    engine_.stepAfterwards(Direction::forth);
}

bool SheetHost::canStepBack()
{
    return engine_.canStep(Direction::back);
}

bool SheetHost::canStepForth()
{
    return engine_.canStep(Direction::forth);
}

void SheetHost::workSaved(Window& window)
{
    if (engine_.follower_ != nullptr)
        engine_.follower_->workSaved(window);
    if (engine_.onWorkSaved)
        engine_.onWorkSaved(window);
}

void SheetHost::workGivenUp(Window& window)
{
    if (engine_.follower_ != nullptr)
        engine_.follower_->workGivenUp(window);
}

void SheetHost::endProgram()
{
    engine_.end();
}

bool SheetHost::askAllSheets()
{
    return engine_.askAllSheets();
}

void SheetHost::trace(std::string_view line)
{
    engine_.trace(line);
}

} // namespace velmor::host
