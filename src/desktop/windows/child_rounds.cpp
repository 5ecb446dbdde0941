// SPDX-License-Identifier: MIT
#include "desktop/windows/child_rounds.h"

#include <algorithm>

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace velmor::desktop {

namespace child_rounds_detail {

constexpr int minimised = 1;

} // namespace child_rounds_detail

ChildRounds::ChildRounds(Desk& desk, QWidget& mainWindow) : QObject(&mainWindow), desk_(desk), main_(mainWindow)
{
    qApp->installEventFilter(this);
}

// Windows that have gone are left in the list until it grows beyond those that are open: they are never looked into.
void ChildRounds::follow()
{
    const host::Window* active = desk_.engine->activeChild();
    if (active == nullptr || !round_.empty() || (!used_.empty() && used_.front() == active))
        return;
    used_.erase(std::remove(used_.begin(), used_.end(), active), used_.end());
    used_.insert(used_.begin(), active);
    const std::vector<host::Window*> now = open();
    if (used_.size() > 2 * now.size())
        used_.erase(std::remove_if(
                        used_.begin(), used_.end(),
                        [&](const host::Window* one) { return std::find(now.begin(), now.end(), one) == now.end(); }),
                    used_.end());
}

std::vector<host::Window*> ChildRounds::open() const
{
    std::vector<host::Window*> children;
    for (host::Window* window : desk_.engine->windows())
        if (window->isChild() && window->shown() && window->windowState() != child_rounds_detail::minimised)
            children.push_back(window);
    return children;
}

std::vector<host::Window*> ChildRounds::openByUse() const
{
    std::vector<host::Window*> children = open();
    const auto rank = [this](const host::Window* window) {
        return std::find(used_.begin(), used_.end(), window) - used_.begin();
    };
    std::stable_sort(children.begin(), children.end(), [&](const auto* a, const auto* b) { return rank(a) < rank(b); });
    return children;
}

host::Window* ChildRounds::lastUsed() const
{
    const std::vector<host::Window*> children = openByUse();
    return children.empty() ? nullptr : children.front();
}

void ChildRounds::step(bool back)
{
    if (!desk_.idle())
        return;
    if (round_.empty()) {
        round_ = openByUse();
        at_ = 0;
    }
    if (round_.size() < 2)
        return;
    at_ = (at_ + (back ? round_.size() - 1 : 1)) % round_.size();
    if (desk_.engine->isLoaded(round_[at_]))
        desk_.engine->userActivate(*round_[at_]);
}

void ChildRounds::end()
{
    round_.clear();
    follow();
}

bool ChildRounds::eventFilter(QObject* object, QEvent* event)
{
    const bool press = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if ((!press && event->type() != QEvent::KeyRelease) || desk_.closing || !object->isWidgetType())
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Control && event->type() == QEvent::KeyRelease)
        end();
    const bool tab = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
    if (!press || !tab || (key.modifiers() & Qt::ControlModifier) == 0 || QApplication::activeWindow() != &main_ ||
        QApplication::activePopupWidget() != nullptr)
        return false;
    if (event->type() == QEvent::KeyPress)
        step(key.key() == Qt::Key_Backtab || (key.modifiers() & Qt::ShiftModifier) != 0);
    event->accept();
    return true;
}

} // namespace velmor::desktop
