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
class QMenuBar;

namespace velmor::desktop {

class Menus final : public QObject {
public:
    /// Fills `bar` with the window's menus; without a menu row the bar stays empty. Captions follow the language of the
    /// moment through the model, nothing is translated here.
    Menus(Desk& desk, host::Window& model, QMenuBar& bar);

    static bool hasMenus(const host::WindowSpec& spec);
    void apply(const std::vector<host::Handle>& changes);
    /// What leads the active sheet one step back or forth is grey where there is no such step.
    void followSteps();
    void forgetModel() { model_ = nullptr; }
    /// The menu of a row that has items; null otherwise.
    QMenu* menuOf(host::Handle menu) const;
    QAction* actionOf(host::Handle item) const;

private:
    void add(host::Handle row, QWidget& parent);
    void refresh(host::Handle item);
    void opening(host::Handle menu);
    QString keysOf(host::Handle item) const;

    Desk& desk_;
    host::Window* model_;
    std::vector<bool> hasItems_;
    std::unordered_map<host::Handle, QMenu*> menus_;
    std::unordered_map<host::Handle, QAction*> actions_;
};

} // namespace velmor::desktop
