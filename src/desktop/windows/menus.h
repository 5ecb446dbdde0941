// SPDX-License-Identifier: MIT
// The menus of a window from its control table: captions, check marks, what is enabled. A menu that opens asks the engine
// first, an item that is chosen is told to it.
#pragma once

#include <unordered_map>
#include <vector>

#include <QObject>

#include "desktop/canvas/desk.h"
#include "host/window.h"

class QAction;
class QMenu;
class QWidget;

namespace velmor::desktop {

class Menus final : public QObject {
public:
    /// Makes the window's menus, as actions of `owner`. Captions follow the language of the moment through the model; those that a
    /// window has only written when it was made are shown in it.
    Menus(Desk& desk, host::Window& model, QWidget& owner);

    static bool hasMenus(const host::WindowSpec& spec);
    void apply(const std::vector<host::Handle>& changes);
    /// The program speaks another language.
    void relabel();
    /// What leads the active sheet one step back or forth, saves or closes it is grey where it would do nothing.
    void followActive();
    void forgetModel() { model_ = nullptr; }
    /// The menu of a row that has items; null otherwise.
    QMenu* menuOf(host::Handle menu) const;
    QAction* actionOf(host::Handle item) const;
    /// What stands in a bar, in order.
    const std::vector<host::Handle>& tops() const { return tops_; }
    /// As the window gives it, with its letter.
    QString captionOf(host::Handle item) const;
    /// All that can be chosen.
    std::vector<QAction*> items() const;
    /// The menu is about to be seen: the engine is asked.
    void opening(host::Handle menu);

private:
    void add(host::Handle row, QWidget& parent);
    void refresh(host::Handle item);
    QString keysOf(host::Handle item) const;

    Desk& desk_;
    host::Window* model_;
    std::vector<bool> hasItems_;
    std::vector<host::Handle> tops_;
    std::unordered_map<host::Handle, QMenu*> menus_;
    std::unordered_map<host::Handle, QAction*> actions_;
};

} // namespace velmor::desktop
