// SPDX-License-Identifier: MIT
// Plays a program by chance: designs with plausible numbers, and every event of every window. After each event the state of
// the program is checked; the same seed plays the same game again.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "console/walk.h"
#include "host/settings_store.h"
#include "player/chance.h"
#include "player/checked.h"
#include "player/consistency.h"
#include "player/coverage.h"
#include "player/player_screen.h"

namespace velmor::player {

/// What a person does in one event.
enum class Act : std::uint8_t {
    focus,
    tab,
    tabBack,
    click,
    doubleClick,
    press,
    hover,
    key,
    text,
    edit,
    selectText,
    menu,
    menuOpens,
    choose,
    drag,
    dragEnter,
    dragLeave,
    timer,
    shortcut,
    activate,
    close,
    state,
    resize,
    mainArea,
    newSheet,
    show,
    operation,
    step,
    count
};

struct Deed {
    Act act = Act::click;
    host::Window* window = nullptr;
    host::Handle control = host::noControl;
    int detail = 0; ///< key, button, shift, state, list entry, row
    host::Handle target = host::noControl;
    std::string text{};
};

/// A deed that is over: its window may be gone.
struct Remembered {
    Act act = Act::click;
    const host::WindowSpec* window = nullptr;
    unsigned serial = 0;
    host::Handle control = host::noControl;
    int detail = 0;
    host::Handle target = host::noControl;
    std::string text{};
};

struct Game {
    std::uint64_t seed = 1;
    std::string onlyWindow{};   ///< most events go to this window; empty for the whole program
    std::size_t windowCap = 10; ///< more open windows are closed
    bool straight =
        false; ///< a diligent student: designs from first to last field with plausible numbers, nothing else
};

class Player {
public:
    Player(const console::WalkedProgram& program, Game game,
           std::shared_ptr<Playground> ground = std::make_shared<Playground>());
    ~Player();
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    /// Plays so many events. False when something is wrong; `fault` says what, and nothing more can be played.
    bool play(std::uint64_t events);
    /// What is wrong, with seed, event number and the last events before it.
    const std::string& fault() const { return fault_; }
    /// Finished designs whose checks were worked out.
    int checks() const { return designChecks_.worked(); }
    const Coverage& coverage() const { return coverage_; }
    const Playground& ground() const { return *ground_; }
    /// A second player that goes on with this very game in a program of its own, whose windows were opened from the texts of
    /// this one's states. Null when that is not possible just now; `problem` says so when it should have been.
    std::unique_ptr<Player> branched(std::string& problem);
    /// What the program has done since the last call: slots, boxes, focus moves, windows. Kept from the first call on.
    std::string takeLog();
    std::uint64_t events() const { return events_; }
    /// Runs after each event that was in order.
    std::function<void()> afterEvent;
    /// Told of each program that is begun, and by null before it goes.
    std::function<void(host::Engine*)> onProgram;
    /// The program has ended by a failure of arithmetic.
    bool programFailed() const { return !failureKind_.empty(); }
    std::string lastEvents() const;
    host::Engine& engine() { return *engine_; }
    /// Carries out one event and checks what must hold after it.
    void perform(const Deed& deed);

private:
    enum class Mood : std::uint8_t { design, defaults, roam };

    void startProgram();
    void makeProgram();
    bool goOnWith(const Player& other, std::string& problem);
    bool openFrom(const host::Engine& engine, std::string& problem);
    void endProgram();
    void move();
    void changeMood();
    void keepWindowsFew();

    void designStep();
    void straightStep();
    void typeNumber(host::Window& sheet);
    void pressKey(host::Window& window, std::int16_t key, const std::string& character);
    void typeText(host::Window& window, const std::string& text);
    void roamStep();
    void playSlot(host::Window& window);
    void playSlot(host::Window& window, host::Handle control, host::Event event);
    void playKey(host::Window& window, host::Handle control);
    void oddStep(host::Window& window);
    void editStep(host::Window& window, host::Handle editor);
    void selectSomething(host::Window& window);
    void useList(host::Window& window, host::Handle list);
    void openSomething();
    void openTarget();
    void usePopup();
    void meanwhile();

    host::Window* sheetInHand();
    host::Window& windowToPlay();
    host::Handle anyControl(const host::Window& window);
    std::vector<host::Window*> shownWindows() const;
    host::Window* modalWindow() const;

    void carryOut(const Deed& deed);
    void carryOutDrag(const Deed& deed);
    void carryOutWindow(const Deed& deed);
    void leadStep(host::Direction direction);
    void runOperation(host::Window& window, int operation, const std::string& path);
    void check();
    void report(const std::string& what);

    const console::WalkedProgram& program_;
    Game game_;
    Chance chance_;
    std::shared_ptr<Playground> ground_;
    Coverage coverage_;
    host::MemorySettings settings_;
    std::unique_ptr<PlayerScreen> screen_;
    std::unique_ptr<host::Engine> engine_;
    Mood mood_ = Mood::roam;
    int moodLeft_ = 0;
    std::uint64_t events_ = 0;
    int slotsInEvent_ = 0;
    unsigned newestWindow_ = 0;
    SlotOrder order_;
    std::string orderFault_;
    std::string failureKind_;
    std::string fault_;
    DesignChecks designChecks_;
    std::deque<Remembered> history_;
    std::string log_;
    bool logged_ = false;
};

/// One event in words, for reports.
std::string inWords(const Remembered& deed);

} // namespace velmor::player
