// SPDX-License-Identifier: MIT
// Starts the program on a screen of real windows.
#include <cstdio>

#include <QTimer>

#include "desktop/application.h"
#include "desktop/arriving_files.h"
#include "desktop/command_line.h"
#include "desktop/desktop_screen.h"
#include "desktop/settings_file.h"
#include "desktop/work_keeping.h"
#include "program/catalogue.h"

int main(int argumentCount, char** arguments)
{
    using namespace velmor;
    const std::span<const char* const> words(arguments, static_cast<std::size_t>(argumentCount));
    const desktop::CommandLine asked =
        desktop::readCommandLine(words.empty() ? words : words.subspan(1), desktop::machineSpeaksEnglish());
    if (!asked.starts()) {
        std::fputs(asked.answer.c_str(), asked.refused ? stderr : stdout);
        return asked.refused ? 2 : 0;
    }
    desktop::Application application(argumentCount, arguments);
    desktop::SettingsFile settings;
    desktop::DesktopScreen screen;
    host::Engine engine(program::catalogue(), screen, settings);
    screen.attach(engine);
    desktop::WorkKeeping keeping(engine, screen);
    desktop::ArrivingFiles arriving(engine, screen);
    program::start(engine);
    if (engine.ended())
        return 0;
    QTimer::singleShot(0, &application, [&] {
        screen.settleIn();
        keeping.look();
        arriving.watch();
        arriving.open(asked.files);
    });
    const int result = desktop::Application::exec();
    screen.detach();
    return result;
}
