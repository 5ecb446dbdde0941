// SPDX-License-Identifier: MIT
#include "desktop/application.h"

#include <clocale>

#include <QEvent>
#include <QMdiSubWindow>
#include <QStyle>
#include <QTimer>

#include "desktop/canvas/control_pane.h"
#include "desktop/drawing/quiet_style.h"

namespace velmor::desktop {

namespace application_detail {

// Given when the first window is on its way to the screen. The frame of the first sheet has asked for it by then, which has it
// drawn, and must be told.
void showIcon()
{
    QApplication::setWindowIcon(QApplication::style()->standardIcon(QStyle::SP_TitleBarMenuButton));
    for (QWidget* widget : QApplication::allWidgets())
        if (qobject_cast<QMdiSubWindow*>(widget) != nullptr) {
            QEvent changed(QEvent::WindowIconChange);
            QCoreApplication::sendEvent(widget, &changed);
        }
}

} // namespace application_detail

Application::Application(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments)
{
    // The toolkit has taken the locale of the environment: a comma must not get into numbers.
    std::setlocale(LC_NUMERIC, "C");
    // It would move a part of a window by copying it on the screen, and forgets that others have come to lie over it.
    qputenv("QT_NO_FAST_MOVE", "1");
    setApplicationName(QStringLiteral("Velmor"));
    setDesktopFileName(QStringLiteral("velmor"));
    setQuitOnLastWindowClosed(false);
    // The desktop's own dialogs would speak its language, not the program's.
    setAttribute(Qt::AA_DontUseNativeDialogs);
    QTimer::singleShot(0, this, application_detail::showIcon);
    setStyle(new QuietStyle);
    tellAssistiveTechnology();
}

} // namespace velmor::desktop
