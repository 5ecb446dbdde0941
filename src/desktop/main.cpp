// SPDX-License-Identifier: MIT
// Starts the program on a screen of real windows.
#include <clocale>

#include <QApplication>
#include <QTimer>

#include "desktop/control_pane.h"
#include "desktop/desktop_screen.h"
#include "desktop/program_icon.h"
#include "desktop/settings_file.h"
#include "program/catalogue.h"

int main(int argumentCount, char** arguments)
{
    QApplication application(argumentCount, arguments);
    // The toolkit has taken the locale of the environment: a comma must not get into numbers.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("Velmor"));
    QApplication::setDesktopFileName(QStringLiteral("velmor"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(velmor::desktop::programIcon());
    QApplication::setStyle(QStringLiteral("Fusion"));
    velmor::desktop::tellAssistiveTechnology();

    velmor::desktop::SettingsFile settings;
    velmor::desktop::DesktopScreen screen;
    velmor::host::Engine engine(velmor::program::catalogue(), screen, settings);
    screen.attach(engine);
    velmor::program::start(engine);
    if (engine.ended())
        return 0;
    QTimer::singleShot(0, &application, [&screen] { screen.prepareFolder(); });
    const int result = QApplication::exec();
    screen.detach();
    return result;
}
