// SPDX-License-Identifier: MIT
#include "desktop/windows/recent_menu.h"

#include <QDir>
#include <QMenu>

namespace velmor::desktop {

namespace recent_menu_detail {

constexpr qsizetype longest = 60; ///< letters; beyond them the menu would be wider than what it names
constexpr int digits = 9;

} // namespace recent_menu_detail

QString shownPath(const QString& path, const QString& home)
{
    QString shown = path;
    if (!home.isEmpty() && shown.startsWith(home + QLatin1Char('/')))
        shown.replace(0, home.size(), QStringLiteral("~"));
    // The end of a path tells more than its beginning.
    if (shown.size() > recent_menu_detail::longest) {
        const qsizetype head = recent_menu_detail::longest / 4;
        shown = shown.left(head) + QChar(0x2026) + shown.right(recent_menu_detail::longest - head - 1);
    }
    return shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

RecentMenu::RecentMenu(QMenu& menu) : QObject(&menu), menu_(menu)
{
    connect(&menu, &QMenu::aboutToShow, this, [this] { renew(); });
}

void RecentMenu::renew()
{
    qDeleteAll(actions_);
    actions_.clear();
    const QStringList files = paths ? paths() : QStringList();
    if (files.isEmpty())
        return;
    actions_.append(menu_.addSeparator());
    for (int i = 0; i < files.size(); ++i) {
        const QString key = i < recent_menu_detail::digits ? QStringLiteral("&%1  ").arg(i + 1) : QStringLiteral("   ");
        QAction* action = menu_.addAction(key + shownPath(files[i], QDir::homePath()));
        connect(action, &QAction::triggered, this, [this, i] {
            if (chosen)
                chosen(i);
        });
        actions_.append(action);
    }
}

} // namespace velmor::desktop
