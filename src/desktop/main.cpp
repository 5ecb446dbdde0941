// SPDX-License-Identifier: MIT
// Starts the program on a screen of real windows.
#include <QTimer>

#include "desktop/application.h"
#include "desktop/desktop_screen.h"
#include "desktop/settings_file.h"
#include "desktop/work_keeping.h"
#include "program/catalogue.h"

int main(int argumentCount, char** arguments)
{
    velmor::desktop::Application application(argumentCount, arguments);
    velmor::desktop::SettingsFile settings;
    velmor::desktop::DesktopScreen screen;
    velmor::host::Engine engine(velmor::program::catalogue(), screen, settings);
    screen.attach(engine);
    velmor::desktop::WorkKeeping keeping(engine, screen);
    velmor::program::start(engine);
    if (engine.ended())
        return 0;
    QTimer::singleShot(0, &application, [&screen, &keeping] {
        screen.settleIn();
        keeping.look();
    });
    const int result = velmor::desktop::Application::exec();
    screen.detach();
    return result;
}
