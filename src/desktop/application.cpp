// SPDX-License-Identifier: MIT
#include "desktop/application.h"

#include <clocale>

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
    setWindowIcon(programIcon());
    setStyle(new QuietStyle);
    tellAssistiveTechnology();
}

} // namespace velmor::desktop
