// SPDX-License-Identifier: MIT
// Plays random games on the real windows: velmor-window-player GAMES EVENTS [SEED]. Every second game is rude. Its own home
// and no programs to start: nothing of the person who runs it is touched.
#include <cstdio>
#include <cstdlib>

#include <QTemporaryDir>

#include "desktop/application.h"
#include "desktop/fire/window_game.h"

namespace velmor::test::window_player {

constexpr double longestEvent = 2.0; ///< seconds

void quiet(QtMsgType kind, const QMessageLogContext&, const QString& message)
{
    if (kind == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void settleIn(const QTemporaryDir& home)
{
    for (const char* place :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(place, home.path().toLocal8Bit());
    qputenv("PATH", "");
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

int play(int games, int events, std::uint64_t seed)
{
    // Under the sanitizers everything takes several times as long.
    const char* patience = std::getenv("VELMOR_PATIENCE");
    Watchdog watchdog(longestEvent * (patience == nullptr ? 1.0 : std::atof(patience)));
    int faults = 0;
    for (int i = 0; i < games; ++i) {
        const std::uint64_t own = seed + static_cast<std::uint64_t>(i);
        WindowGame game(own, i % 2 == 1, watchdog);
        game.play(events);
        std::printf("game %llu (%s): %d events, %d answers, %d in checks, %d ends, %zu faults\n",
                    static_cast<unsigned long long>(own), i % 2 == 1 ? "rude" : "polite", events, game.answers(),
                    game.checks(), game.ends(), game.faults().size());
        for (const std::string& fault : game.faults())
            std::printf("  %s\n", fault.c_str());
        std::fflush(stdout);
        faults += static_cast<int>(game.faults().size());
    }
    std::printf("slowest: %s, %.3f s\n", watchdog.slowest().c_str(), watchdog.slowestSeconds());
    return faults == 0 ? 0 : 1;
}

} // namespace velmor::test::window_player

int main(int argc, char** argv)
{
    using namespace velmor::test::window_player;
    const int games = argc > 1 ? std::atoi(argv[1]) : 4;
    const int events = argc > 2 ? std::atoi(argv[2]) : 200;
    const std::uint64_t seed = argc > 3 ? std::strtoull(argv[3], nullptr, 10) : 1;
    const QTemporaryDir home;
    settleIn(home);
    qInstallMessageHandler(quiet);
    velmor::desktop::Application::setAttribute(Qt::AA_DontUseNativeDialogs);
    const velmor::desktop::Application application(argc, argv);
    QApplication::setCursorFlashTime(0); // a caret that comes and goes would make two pictures of one window
    return play(games, events, seed);
}
