// SPDX-License-Identifier: MIT
#include "desktop/windows/menu_bar.h"

#include <algorithm>

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTimer>

#include "desktop/drawing/texts.h"

namespace velmor::desktop {

using host::Handle;
using host::noControl;

namespace menu_bar_detail {

constexpr std::size_t numbered = 9;
constexpr const char* givenCaption = "givenCaption"; ///< property: the caption before letters were dealt out

QString captionOf(const QAction& action)
{
    const QVariant given = action.property(givenCaption);
    return given.isValid() ? given.toString() : action.text();
}

QString withoutLetter(QString caption)
{
    const qsizetype at = caption.indexOf(QLatin1Char('&'));
    return at < 0 ? caption : caption.remove(at, 1);
}

QChar letterOf(const QString& caption)
{
    const qsizetype at = caption.indexOf(QLatin1Char('&'));
    return at < 0 || at + 1 >= caption.size() ? QChar() : caption.at(at + 1).toUpper();
}

QString withOtherLetter(const QString& caption, const QSet<QChar>& taken)
{
    QString bare = withoutLetter(caption);
    for (qsizetype i = 0; i < bare.size(); ++i)
        if (bare.at(i).isLetter() && !taken.contains(bare.at(i).toUpper()))
            return bare.insert(i, QLatin1Char('&'));
    return bare;
}

/// Letters for the menu and for those that it leads to, as often as they are opened: captions follow the language.
void giveLettersWhenOpened(QMenu& menu)
{
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu] { giveLetters(menu.actions()); });
    for (const QAction* action : menu.actions())
        if (action->menu() != nullptr)
            giveLettersWhenOpened(*action->menu());
}

/// An item of the main window that the editor has too.
bool repeats(const QAction& own, const QList<QAction*>& items)
{
    return own.menu() == nullptr && std::any_of(items.begin(), items.end(), [&](const QAction* item) {
               return item->isVisible() && item->menu() == nullptr && !item->isSeparator() &&
                      menuName(captionOf(*item)) == menuName(captionOf(own));
           });
}

} // namespace menu_bar_detail

using namespace menu_bar_detail;

QString menuName(const QString& caption)
{
    return withoutLetter(caption).remove(QLatin1Char('.')).simplified().toLower();
}

// First come those whose captions have a letter, then those without one, and those whose letter is gone.
void giveLetters(const QList<QAction*>& actions)
{
    QSet<QChar> taken;
    const auto write = [&taken](QAction& action, const QString& caption) {
        if (const QChar letter = letterOf(caption); !letter.isNull())
            taken.insert(letter);
        if (action.text() != caption) {
            action.setProperty(givenCaption, captionOf(action));
            action.setText(caption);
        }
    };
    QList<QAction*> others;
    for (QAction* action : actions) {
        if (action->isSeparator() || !action->isVisible())
            continue;
        const QChar letter = letterOf(captionOf(*action));
        if (letter.isNull() || taken.contains(letter))
            others.append(action);
        else
            write(*action, captionOf(*action));
    }
    for (QAction* action : others)
        write(*action, withOtherLetter(captionOf(*action), taken));
}

MenuBar::MenuBar(Desk& desk, QMainWindow& window, Menus& own, const host::MainParts& parts)
    : QObject(&window), desk_(desk), window_(window), own_(own), list_(parts.windows)
{
    // An editor may speak the language in which the program has not yet spoken.
    for (const Handle top : own.tops())
        if (parts.menuNames != nullptr)
            for (const std::string_view name : {parts.menuNames(top).es, parts.menuNames(top).en})
                if (!name.empty())
                    names_[top].insert(menuName(shown(name)));
    QMenu* menu = list_ == noControl ? nullptr : own.menuOf(list_);
    if (menu != nullptr)
        connect(menu, &QMenu::aboutToShow, this, [this, menu] { listChildren(*menu); });
    for (const Handle top : own.tops())
        if (own.menuOf(top) != nullptr)
            giveLettersWhenOpened(*own.menuOf(top));
    if (menu == nullptr)
        return;
    for (std::size_t number = 0; number < numbered; ++number) {
        auto* action = new QAction(this);
        action->setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(number))));
        connect(action, &QAction::triggered, this, [this, number] { turnTo(number); });
        window.addAction(action);
        numbered_.push_back(action);
    }
}

MenuBar::~MenuBar() = default;

// What stands in the bar, to be built anew only when it has changed.
QStringList MenuBar::captions() const
{
    QStringList captions;
    for (const Menus* menus : {static_cast<const Menus*>(&own_), static_cast<const Menus*>(child_)})
        if (menus != nullptr)
            for (const Handle top : menus->tops())
                captions += menus->actionOf(top)->isVisible() ? menus->captionOf(top) : QString();
    return captions;
}

void MenuBar::follow(Menus* child)
{
    if (child == child_ && !hasChild_ && child == nullptr)
        return;
    const bool changed = child_ != child || hasChild_ != (child != nullptr);
    child_ = child;
    hasChild_ = child != nullptr;
    const QStringList now = captions();
    if (!changed && now == told_)
        return;
    told_ = now;
    rebuild();
}

void MenuBar::rebuild()
{
    QMenuBar& bar = *window_.menuBar();
    giveKeysTo(false);
    bar.clear();
    for (Merged& merged : merged_)
        merged.menu.release()->deleteLater(); // one of them may be what the person has just chosen from
    merged_.clear();
    for (const Handle top : own_.tops()) {
        bar.addAction(own_.actionOf(top));
        names_[top].insert(menuName(own_.captionOf(top)));
    }
    if (child_ == nullptr) {
        giveLetters(bar.actions());
        return;
    }
    QAction* last = nullptr; // what the editor's next menu stands behind
    for (const Handle top : child_->tops()) {
        QAction* action = child_->actionOf(top);
        const auto same = std::find_if(own_.tops().begin(), own_.tops().end(), [&](Handle own) {
            return own_.menuOf(own) != nullptr && action->isVisible() && own_.actionOf(own)->isVisible() &&
                   names_[own].contains(menuName(child_->captionOf(top)));
        });
        if (same != own_.tops().end()) {
            addMerged(*same, top);
            last = merged_.back().menu->menuAction();
            bar.insertAction(own_.actionOf(*same), last);
            bar.removeAction(own_.actionOf(*same));
            continue;
        }
        const qsizetype at = last == nullptr ? 0 : bar.actions().indexOf(last) + 1;
        bar.insertAction(bar.actions().value(at), action);
        last = action;
    }
    giveKeysTo(true);
    giveLetters(bar.actions());
}

void MenuBar::addMerged(Handle own, Handle child)
{
    Merged merged{child, own, std::make_unique<QMenu>(&window_)};
    merged.menu->menuAction()->setText(own_.captionOf(own));
    fill(merged); // at once: the keys of its items work without its being seen
    connect(merged.menu.get(), &QMenu::aboutToShow, this, [this, menu = merged.menu.get(), own, child] {
        if (child_ != nullptr)
            child_->opening(child);
        own_.opening(own);
        for (const Merged& one : merged_)
            if (one.menu.get() == menu && child_ != nullptr)
                fill(one);
    });
    merged_.push_back(std::move(merged));
}

void MenuBar::fill(const Merged& merged)
{
    QMenu& menu = *merged.menu;
    menu.clear();
    const QList<QAction*> first = child_->menuOf(merged.child)->actions();
    menu.addActions(first);
    menu.addSeparator();
    for (QAction* action : own_.menuOf(merged.own)->actions())
        if (!repeats(*action, first) && std::find(listed_.begin(), listed_.end(), action) == listed_.end())
            menu.addAction(action);
    giveLetters(menu.actions());
    if (merged.own == list_)
        listChildren(menu);
}

// A key that the editor has for itself is not shown twice.
void MenuBar::giveKeysTo(bool child)
{
    for (const auto& [action, keys] : std::exchange(keysTaken_, {}))
        action->setShortcut(keys);
    if (!child || child_ == nullptr)
        return;
    for (QAction* own : own_.items())
        for (const QAction* item : child_->items())
            if (!own->shortcut().isEmpty() && own->shortcut() == item->shortcut()) {
                keysTaken_.emplace_back(own, own->shortcut());
                own->setShortcut(QKeySequence());
            }
}

std::vector<host::Window*> MenuBar::children() const
{
    std::vector<host::Window*> children;
    for (host::Window* window : desk_.engine->windows())
        if (window->isChild() && window->shown())
            children.push_back(window);
    return children;
}

void MenuBar::listChildren(QMenu& menu)
{
    for (QAction* action : std::exchange(listed_, {})) {
        for (QMenu* shown : {&menu, own_.menuOf(list_)})
            shown->removeAction(action);
        if (std::find(numbered_.begin(), numbered_.end(), action) == numbered_.end())
            action->deleteLater();
    }
    const std::vector<host::Window*> open = children();
    if (!open.empty()) {
        // Ours, not the menu's: a menu that is cleared would take it along.
        listed_.push_back(new QAction(this));
        listed_.back()->setSeparator(true);
        menu.addAction(listed_.back());
    }
    for (std::size_t i = 0; i < open.size(); ++i) {
        QAction* action = i < numbered_.size() ? numbered_[i] : new QAction(this);
        QString title = shown(open[i]->caption()).simplified().replace(QLatin1Char('&'), QStringLiteral("&&"));
        action->setText(i < numbered_.size() ? QStringLiteral("&%1  %2").arg(i + 1).arg(title) : title);
        action->setCheckable(true);
        action->setChecked(open[i] == desk_.engine->activeChild());
        if (i >= numbered_.size())
            connect(action, &QAction::triggered, this, [this, i] { turnTo(i); });
        menu.addAction(action);
        listed_.push_back(action);
    }
}

// A menu that closes gives the keyboard back to the child that had it, which Qt takes for a turn to that child: so afterwards.
void MenuBar::turnTo(std::size_t number)
{
    QTimer::singleShot(0, this, [this, number] {
        const std::vector<host::Window*> open = desk_.closing ? std::vector<host::Window*>() : children();
        if (number >= open.size() || !desk_.idle())
            return;
        host::Window& child = *open[number];
        constexpr int minimised = 1;
        if (child.windowState() == minimised)
            desk_.engine->userState(child, 0);
        if (desk_.engine->isLoaded(&child))
            desk_.engine->userActivate(child);
    });
}

} // namespace velmor::desktop
