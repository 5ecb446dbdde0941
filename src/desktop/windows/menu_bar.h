// SPDX-License-Identifier: MIT
// The one menu bar of the program: the main window's menus and, while an editor is active, that editor's in the same bar. Menus
// of one name become one, the editor's items first; no letter is given twice. One menu ends with the list of open children.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QSet>

#include "desktop/canvas/desk.h"
#include "desktop/windows/menus.h"

class QMainWindow;

namespace velmor::desktop {

class MenuBar final : public QObject {
public:
    /// `list` is the main window's menu that ends with the open children; noControl for none.
    MenuBar(Desk& desk, QMainWindow& window, Menus& own, const host::MainParts& parts);
    ~MenuBar() override;

    /// The bar holds these menus too; null for the main window's alone.
    void follow(Menus* child);

private:
    struct Merged {
        host::Handle child = host::noControl;
        host::Handle own = host::noControl;
        std::unique_ptr<QMenu> menu;
    };

    void rebuild();
    void addMerged(host::Handle own, host::Handle child);
    void fill(const Merged& merged);
    void giveKeysTo(bool child);
    void listChildren(QMenu& menu);
    void turnTo(std::size_t number);
    std::vector<host::Window*> children() const;
    QStringList captions() const;

    Desk& desk_;
    QMainWindow& window_;
    Menus& own_;
    host::Handle list_;
    QPointer<Menus> child_;
    bool hasChild_ = false;
    QStringList told_;
    /// Those that its menus have borne, in either language.
    std::map<host::Handle, QSet<QString>> names_;
    std::vector<Merged> merged_;
    std::vector<QAction*> numbered_; ///< the first nine children by key
    std::vector<QAction*> listed_;
    std::vector<std::pair<QAction*, QKeySequence>> keysTaken_;
};

/// The name in a caption: no letter marked, no dots, no capitals.
QString menuName(const QString& caption);
/// Marks a letter where there is none, and another where one is given twice; earlier ones keep theirs.
void giveLetters(const QList<QAction*>& actions);

} // namespace velmor::desktop
