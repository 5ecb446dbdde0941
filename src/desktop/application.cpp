// SPDX-License-Identifier: MIT
#include "desktop/application.h"

#include <clocale>

#include <QEvent>
#include <QMdiSubWindow>
#include <QTimer>

#include "desktop/canvas/control_pane.h"
#include "desktop/drawing/program_icon.h"
#include "desktop/drawing/quiet_style.h"

namespace velmor::desktop {

namespace application_detail {

// A child window that stands already has taken the toolkit's own icon and is not told of another.
void giveIcon()
{
    QApplication::setWindowIcon(programIcon());
    for (QWidget* widget : QApplication::allWidgets())
        if (qobject_cast<QMdiSubWindow*>(widget) != nullptr) {
            QEvent changed(QEvent::WindowIconChange);
            QApplication::sendEvent(widget, &changed);
        }
}

} // namespace application_detail

Application::Application(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments)
{
    // The toolkit has taken the locale of the environment: a comma must not get into numbers.
    std::setlocale(LC_NUMERIC, "C");
    setApplicationName(QStringLiteral("Velmor"));
    setDesktopFileName(QStringLiteral("velmor"));
    setQuitOnLastWindowClosed(false);
    // Drawn when the first window is on its way to the screen.
    QTimer::singleShot(0, this, application_detail::giveIcon);
    setStyle(new QuietStyle);
    tellAssistiveTechnology();
}

} // namespace velmor::desktop
