// SPDX-License-Identifier: MIT
// The files opened last, at the end of a menu: made anew each time the menu opens. Knows neither circuits nor settings.
#pragma once

#include <functional>

#include <QObject>
#include <QStringList>

class QAction;
class QMenu;

namespace velmor::desktop {

class RecentMenu final : public QObject {
public:
    explicit RecentMenu(QMenu& menu);

    std::function<QStringList()> paths; ///< the latest first
    std::function<void(int index)> chosen;

private:
    void renew();

    QMenu& menu_;
    QList<QAction*> actions_;
};

/// A path as a menu shows it: the home folder as "~", shortened in its middle, and no letter of it taken for a key.
QString shownPath(const QString& path, const QString& home);

} // namespace velmor::desktop
