// SPDX-License-Identifier: MIT
#include "desktop/windows/menus.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include <QAction>
#include <QMenu>
#include <QVariant>
#include <QWidget>

#include "desktop/drawing/texts.h"
#include "host/engine.h"
#include "host/state_change.h"

namespace velmor::desktop {

using host::Handle;
using host::Kind;
using host::noControl;

namespace menus_detail {

constexpr std::string_view undoKey = "Ctrl+Z";
constexpr std::string_view redoKey = "Ctrl+Y";
constexpr std::string_view saveKey = "Ctrl+S";
constexpr std::string_view saveAsKey = "Ctrl+Shift+S";
constexpr std::string_view closeKey = "Ctrl+W";

/// Whether what the main window does at these keys would do anything now; nothing is said of other keys.
std::optional<bool> mayDo(const host::Engine& engine, std::string_view keys)
{
    if (keys == undoKey || keys == redoKey)
        return engine.canStep(keys == undoKey ? host::Direction::back : host::Direction::forth);
    const host::Window* child = engine.activeChild();
    if (keys == saveKey || keys == saveAsKey)
        return child != nullptr && child->role() == host::Role::sheet;
    return keys == closeKey ? std::optional(child != nullptr) : std::nullopt;
}

} // namespace menus_detail

bool Menus::hasMenus(const host::WindowSpec& spec)
{
    return std::any_of(spec.controls.begin(), spec.controls.end(),
                       [](const auto& row) { return row.kind == Kind::menu; });
}

Menus::Menus(Desk& desk, host::Window& model, QWidget& owner)
    : QObject(&owner), desk_(desk), model_(&model), hasItems_(model.controlCount(), false)
{
    for (const host::ControlRow& row : model.spec().controls)
        if (row.kind == Kind::menu && row.parent != noControl)
            hasItems_[row.parent] = true;
    for (const host::ControlRow& row : model.spec().controls)
        if (row.kind == Kind::menu) {
            add(row.id, row.parent == noControl ? owner : *menus_.at(row.parent));
            if (row.parent == noControl)
                tops_.push_back(row.id);
        }
}

void Menus::add(Handle row, QWidget& parent)
{
    QAction* action = nullptr;
    if (hasItems_[row]) {
        auto* menu = new QMenu(&parent);
        menus_[row] = menu;
        action = menu->menuAction();
        connect(menu, &QMenu::aboutToShow, this, [this, row] { opening(row); });
    } else {
        action = new QAction(&parent);
        action->setSeparator(model_->text(row) == "-");
        connect(action, &QAction::triggered, this, [this, row] {
            if (model_ != nullptr && !desk_.closing)
                desk_.engine->userMenu(*model_, row);
            if (model_ != nullptr)
                refresh(row);
        });
        const QString keys = keysOf(row);
        if (!keys.isEmpty()) {
            action->setShortcut(QKeySequence(keys, QKeySequence::PortableText));
            // Keys of a child or tool reach the engine through its keyboard; here they are only told.
            if (model_->role() != host::Role::mainWindow)
                action->setShortcutContext(Qt::WidgetShortcut);
        }
    }
    parent.addAction(action);
    actions_[row] = action;
    refresh(row);
}

QString Menus::keysOf(Handle item) const
{
    for (const host::ShortcutRow& row : model_->spec().shortcuts)
        if (row.control == item)
            return shown(row.keys);
    return {};
}

void Menus::refresh(Handle item)
{
    QAction* action = actionOf(item);
    if (action == nullptr || model_ == nullptr)
        return;
    const host::Control& state = model_->control(item);
    const QString caption = captionOf(item);
    if (action->text() != caption && !action->isSeparator()) {
        action->setProperty("givenCaption", QVariant());
        action->setText(caption);
    }
    action->setVisible(state.visible && model_->row(item).look != host::Look::invisible);
    action->setEnabled(state.enabled);
    if (state.checked)
        action->setCheckable(true);
    if (action->isCheckable())
        action->setChecked(state.checked);
}

// The model greys the items of undo when their menu opens; the screen does so at once, and greys what saves a circuit where
// none is in hand. They are known by their keys.
void Menus::followActive()
{
    if (model_ == nullptr || model_->role() != host::Role::mainWindow)
        return;
    for (const host::ShortcutRow& row : model_->spec().shortcuts) {
        QAction* action = row.control == noControl ? nullptr : actionOf(row.control);
        if (const auto may = menus_detail::mayDo(*desk_.engine, row.keys); action != nullptr && may)
            action->setEnabled(*may && model_->enabled(row.control));
    }
}

void Menus::apply(const std::vector<Handle>& changes)
{
    for (const Handle control : changes)
        if (model_ != nullptr && model_->row(control).kind == Kind::menu)
            refresh(control);
}

void Menus::relabel()
{
    for (const auto& [item, action] : actions_)
        refresh(item);
}

void Menus::opening(Handle menu)
{
    if (model_ != nullptr && desk_.idle())
        desk_.engine->userMenuOpens(*model_, menu);
}

QString Menus::captionOf(Handle item) const
{
    if (model_ == nullptr)
        return {};
    const std::string& text = model_->text(item);
    const host::BiText& both = model_->row(item).meaning;
    const bool given = !both.es.empty() && !both.en.empty() && (text == both.es || text == both.en);
    return (given ? shown(desk_.english() ? both.en : both.es) : shown(text)).simplified();
}

std::vector<QAction*> Menus::items() const
{
    std::vector<QAction*> items;
    for (const auto& [handle, action] : actions_)
        if (action->menu() == nullptr)
            items.push_back(action);
    return items;
}

QMenu* Menus::menuOf(Handle menu) const
{
    const auto found = menus_.find(menu);
    return found == menus_.end() ? nullptr : found->second;
}

QAction* Menus::actionOf(Handle item) const
{
    const auto found = actions_.find(item);
    return found == actions_.end() ? nullptr : found->second;
}

} // namespace velmor::desktop
