// SPDX-License-Identifier: MIT
// A random player for the real windows: keys, texts, clicks, drags, menus, frames, boxes and dialogs, from a seed. A polite
// game does what a student can do; a rude one moves and sizes frames as no hand could.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "desktop/desktop_fixture.h"
#include "desktop/fire/watchdog.h"
#include "desktop/work_keeping.h"
#include "player/chance.h"

class QDialog;

namespace velmor::desktop {
class CheckWindow;
}

namespace velmor::test {

class WindowGame {
public:
    WindowGame(std::uint64_t seed, bool rude, Watchdog& watchdog);
    ~WindowGame();

    void play(int events);
    /// What stood wrong after an event, with the event's name.
    const std::vector<std::string>& faults() const { return faults_; }
    int ends() const { return ends_; }
    int answers() const { return answers_; }
    int checks() const { return checks_; }

    struct Move {
        int weight;
        bool rude;
        const char* name;
        void (WindowGame::*deed)();
    };

private:
    void begin();
    void step(int number);
    const Move& chosen();
    void handOver();
    void check(const std::string& event);
    void checkPictures(const std::string& event);
    void comparePictures(const std::string& event);
    std::string faultNow();
    std::string frameFault();
    std::string keyboardFault();

    void typeNumber();
    void typeText();
    void pressKey();
    void pressTableKey();
    void click();
    void rightClick();
    void doubleClick();
    void drag();
    void hover();
    void paste();
    void chooseMenu();
    void arrange();
    void switchLanguage();
    void changeState();
    void moveFrame();
    void sizeFrame();
    void shakeIcons();
    void closeSomething();
    void activateSomething();
    void sizeMain();
    void wheel();
    void pressOffer();
    void playCheck();
    void finishCurrentSource();
    static desktop::CheckWindow* openCheck();

    void answerSoon();
    void answer();
    void answerDialog(QDialog& dialog);
    host::Window* someWindow();
    std::vector<desktop::ChildFrame*> frames();
    desktop::ChildFrame* someFrame();
    host::Handle someControl(host::Window& window);
    void press(host::Window& window, Qt::MouseButton button);

    player::Chance chance_;
    bool rude_;
    bool placesWindows_; ///< false in one game of four: tools are parts of the main window
    Watchdog& watchdog_;
    QTemporaryDir home_;
    std::int64_t time_ = 1795000000; ///< of the clock; each event takes a second
    std::unique_ptr<Bench> on_;
    std::unique_ptr<desktop::WorkKeeping> keeping_;
    std::unique_ptr<QObject> life_; ///< answers wait for nobody once the game is over
    std::vector<std::string> faults_;
    std::string standing_; ///< the fault that was there after the event before
    const void* lastDialog_ = nullptr;
    int patience_ = 0;
    int roundsOpen_ = 0; ///< of a box that is yet to be looked at
    int ends_ = 0;
    int answers_ = 0;
    int checks_ = 0; ///< deeds in the window of a check
};

} // namespace velmor::test
