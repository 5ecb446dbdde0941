// SPDX-License-Identifier: MIT
#include "desktop/application.h"

#include <clocale>

#include <QEvent>
#include <QMdiSubWindow>
#include <QStyle>
#include <QTimer>
#include <QWindow>

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

QWidget* widgetOf(const QWindow* window)
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (window != nullptr && widget->windowHandle() == window)
            return widget;
    return nullptr;
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
    connect(this, &QGuiApplication::focusWindowChanged, this, &Application::keepInStep);
}

// The toolkit lets pass what the window system says of the keyboard while a menu is open: it would be in no window after.
void Application::keepInStep()
{
    if (QWidget* menu = activePopupWidget()) {
        menu->installEventFilter(this);
        return;
    }
    QWidget* window = application_detail::widgetOf(focusWindow());
    if (window == nullptr || !window->isVisible() || window->windowType() == Qt::Popup || window == activeWindow())
        return;
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    setActiveWindow(window); // activateWindow() does nothing: the window system has given it the keyboard already
    QT_WARNING_POP
}

bool Application::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide) {
        watched->removeEventFilter(this);
        QTimer::singleShot(0, this, &Application::keepInStep);
    }
    return QApplication::eventFilter(watched, event);
}

} // namespace velmor::desktop
