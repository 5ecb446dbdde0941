// SPDX-License-Identifier: MIT
#include "desktop/application.h"

#include <clocale>

#include <QTimer>

#include "desktop/canvas/control_pane.h"
#include "desktop/drawing/program_icon.h"
#include "desktop/drawing/quiet_style.h"

namespace velmor::desktop {

Application::Application(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments)
{
    // The toolkit has taken the locale of the environment: a comma must not get into numbers.
    std::setlocale(LC_NUMERIC, "C");
    setApplicationName(QStringLiteral("Velmor"));
    setDesktopFileName(QStringLiteral("velmor"));
    setQuitOnLastWindowClosed(false);
    // The desktop's own dialogs would speak its language, not the program's.
    setAttribute(Qt::AA_DontUseNativeDialogs);
    // Drawn when the first window is on its way to the screen.
    QTimer::singleShot(0, this, [] { setWindowIcon(programIcon()); });
    setStyle(new QuietStyle);
    tellAssistiveTechnology();
}

} // namespace velmor::desktop
