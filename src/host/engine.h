// SPDX-License-Identifier: MIT
// The event engine: keeps the open windows, the active one, the focus and the nesting of slots, and knows nothing of
// screens. What a person does comes in through the `user...` functions; what slots do comes in through `SheetHost`.
//
// The contract, point by point (each has a test in tests/host):
//  1. Each window has its own focus. Changing windows runs no focus or lost-focus slot.
//  2. A focus move runs the lost-focus slot of the old field and the focus slot of the new one, nested, before the
//     statement that caused it returns. While the lost-focus slot runs no field has the focus. A move made inside it
//     supersedes the outer one, whose target then gets neither slot.
//  3. A move to the field that has the focus, or to one that is hidden or disabled, does nothing. A target that the
//     old field's lost-focus slot has just hidden or disabled still receives the focus.
//  4. A focused field that is hidden or disabled keeps the focus until the outermost slot has ended; then, if it still
//     cannot hold it, its lost-focus slot runs and the next control in tab order that can take the focus gets it.
//  5. A click is judged when the button goes down and is decided whole.
//  6. Showing a window for the first time raises load, resize, repaint, activation, then the first focus.
//  7. A user event that arrives while a slot runs waits for its end.
//  8. A window unloaded in its own slot is gone at once for everyone else and destroyed after the outermost slot.
//  9. A failure of arithmetic or conversion ends the program; nothing runs after it.
// 10. What a field held when the student left it is noted (`Window::asked`): of the field that had the focus when an event of
//     the person began, at the first move away from it in that event. It is the text from before the event, so that nothing
//     that a slot rewrites counts; with Esc it is the default that the key slot has just written.
// 11. The state of a window is copied and restored between events only, and restoring runs no slot at all: no load, no
//     activation, no focus, no change. See `open`.
// 12. What a sheet's event has changed becomes a step when a field has been left, a click made or a box answered, and the
//     event is over. Leading a sheet through its steps runs no slot. See `userStep`.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/event.h"
#include "host/follower.h"
#include "host/screen.h"
#include "host/settings_store.h"
#include "host/sheet_host.h"
#include "host/values.h"
#include "host/window.h"

namespace velmor::host {

class StepHistory;
struct WindowState;
struct StateChange;
enum class Direction : std::uint8_t;

using Catalogue = std::span<const WindowSpec* const>;

/// How a focus move ended.
enum class FocusMove : std::uint8_t { unchanged, refused, superseded, moved };

/// Texts of the message with which the program ends after a failure.
struct FailureTexts {
    BiText text{};
};

class Engine {
public:
    Engine(Catalogue catalogue, Screen& screen, SettingsStore& settings);
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    SheetHost& host() { return host_; }
    ProgramValues& values() { return values_; }
    SettingsStore& settings() { return settings_; }
    Screen& screen() { return screen_; }
    Catalogue catalogue() const { return catalogue_; }

    // what a person does; ignored once the program has ended
    bool userFocus(Window& window, Handle control); ///< false when refused
    void userTab(Window& window, bool backwards = false);
    void userClick(Window& window, Handle control, int shift = 0);
    void userDoubleClick(Window& window, Handle control, bool withClick = true);
    void userPress(Window& window, Handle control, Button button, int shift = 0);
    void userHover(Window& window, Handle control);
    /// A key press in the control that has the focus. Returns the key that the slot let through; 0 when swallowed,
    /// when nothing has the focus or when the focus has moved meanwhile. The caller puts a printable one into the text.
    std::int16_t userKey(Window& window, std::int16_t key);
    /// The person's own change of a field's text (typing, deleting); raises no event on design fields, `change` on editors.
    void userText(Window& window, Handle control, std::string_view text);
    void userEdited(Window& window, Handle editor); ///< the store changed by the person's hand
    void userMenu(Window& window, Handle item);
    void userMenuOpens(Window& window, Handle menu);
    void userChoose(Window& window, Handle list, int index);
    void userDrag(Window& window, Handle source, Handle target);
    void userDragEnter(Window& window, Handle source, Handle target);
    void userDragLeave(Window& window, Handle source, Handle target);
    void userTimer(Window& window, Handle timer);
    /// A key of the window's shortcut table.
    void userShortcut(Window& window, std::size_t row);
    void userActivate(Window& window);
    void userClose(Window& window);
    void userState(Window& window, int state);
    void userResized(Window& window, const Place& place);
    /// Runs anything as an outermost event (start sequence, public operations).
    void userRun(const std::function<void()>& action);
    /// Leads the active sheet one step back or forth: its controls, focus and working numbers, no file name, no flag, no other
    /// window. The sheet then counts as changed. False, with nothing done, while an event is under way and where there is no
    /// such step.
    bool userStep(Direction direction);

    // the state of the program
    bool ended() const { return ended_; }
    /// No event is under way and none waits.
    bool idle() const { return depth_ == 0 && pending_.empty(); }
    Window& mainWindow();
    Window* current() const { return current_; }
    Window* activeChild() const { return activeChild_; }
    /// The sheet that is being asked whether it may close, while the program's end asks them all; null otherwise. A screen brings
    /// it to the front; it is not active for that.
    Window* askedAbout() const { return askedAbout_; }
    std::vector<Window*> windows() const; ///< loaded, in order of creation
    /// The same without a copy, for loops in which none comes or goes.
    std::span<const std::unique_ptr<Window>> held() const { return windows_; }
    Window* instance(std::string_view name, int number) const; ///< number counted from 1; 0 the newest
    Window* defaultInstance(std::string_view name) const;
    bool isLoaded(const Window* window) const;
    const WindowSpec* specOf(std::string_view name) const;
    /// Loads the main window without showing it, as a program that has not been started.
    void loadMainWindow();
    /// Size of the main window's inner area in twips, told by the screen.
    void setClientArea(int width, int height);
    Place clientArea() const { return client_; }
    int arrangement() const { return arrangement_; }
    /// Which controls come in turn for the Tab key.
    static std::vector<Handle> tabOrder(const Window& window);

    // the whole state of a window (window_state.h, state_text.h)
    /// Nothing while an event is under way, after the end, or when the window is not open. Long texts are taken apart
    /// (`LongTextCopy`).
    std::optional<WindowState> stateOf(const Window& window) const;
    /// Opens windows as they stood when they were copied: texts, marks, drawing, focus, name, place, own values, shown or
    /// hidden. No slot runs, and nothing is asked. They come in the order given (which is that of creation), behind those that
    /// are open; of them the one that was the current window, else the one used last, is the current one again, and so is the active
    /// child, both without activation. A default instance is the default one again; one that was in its place is an ordinary
    /// instance from then on. Process-wide values are left alone. Places are those of the copy: a screen with another inner area
    /// tells its own (`setClientArea`), which fits maximised children.
    /// A null stands for a state that cannot be opened: of a window that the program lacks, of a second main window. All
    /// are null while an event is under way or after the end.
    std::vector<Window*> open(std::span<const WindowState> states);
    /// Leads a window through a change, without a slot. False, with nothing done, where `stateOf` gives nothing.
    bool apply(Window& window, const StateChange& change, Direction direction);

    // the steps of the sheets (step_history.h)
    bool canStep(Direction direction) const; ///< the active sheet has such a step
    /// Null for what is no sheet, and before it was first shown.
    const StepHistory* stepsOf(const Window& window) const;
    /// All sheets begin anew, as after they were opened from a copy.
    void forgetSteps();
    /// Takes a step of the active sheet as soon as the event is over that asks for it.
    void stepAfterwards(Direction direction) { stepWanted_ = direction; }

    void setTrace(std::function<void(std::string_view)> sink) { trace_ = std::move(sink); }
    void trace(std::string_view line) const;
    void setFailureText(const BiText& text) { failureText_ = text; }
    /// One follower at most, which lives as long as it follows.
    void setFollower(Follower* follower) { follower_ = follower; }
    /// Counts each slot run and each box shown, for coverage by players. Null switches it off.
    std::function<void(const Window&, Handle, Event)> onSlot;
    std::function<void(const MessageBox&)> onBox;
    /// Tells of a sheet that was led a step.
    std::function<void(const Window&)> onStep;
    /// Tells of a window whose work was written to a file of the person's own, or just read from one.
    std::function<void(const Window&)> onWorkSaved;

    /// A slot has put a new text into an editor: its change slot runs.
    void programEdited(Window& window, Handle editor);

private:
    friend class SheetHost;
    class Scope;

    /// What an event means for the steps of the sheets that it has changed.
    enum class Moment : std::uint8_t {
        passing,   ///< the step goes on
        activated, ///< the step ends where the design itself has changed
        stepEnds,
    };

    void outermost(const std::function<void()>& action);
    void endSteps();
    Window* steppedSheet() const;
    void settle();
    void settleFocus(Window& window);
    void buryTheDead();
    void runPending();
    void fail(std::string_view what);
    bool run(Window& window, Handle control, Event event, EventArgs& args);
    void run(Window& window, Event event);

    void takeInHand(const Window& window, bool escape = false);
    void noteAsked(Window& window, Handle left);
    FocusMove moveFocus(Window& window, Handle target, bool force = false);
    void firstFocus(Window& window);
    bool mouseAllowed(const Window& window, Handle control) const;
    bool pressMovesFocus(Window& window, Handle control);
    void mouseSlots(Window& window, Handle control, int shift);

    Window* make(const WindowSpec& spec, bool isDefault);
    Window* open(const WindowState& state);
    void bringInFront(std::vector<std::pair<double, Window*>> used);
    void load(Window& window);
    void show(Window& window);
    void hide(Window& window);
    bool unload(Window& window, CloseReason reason);
    void closeMainWindow(CloseReason reason);
    bool askAllSheets();
    void drop(Window& window);
    void makeCurrent(Window& window);
    void leave(Window& window);
    void activateChild(Window* child);
    void joinMaximised(Window& window);
    void enterState(Window& window, int state);
    void setState(Window& window, int state);
    void resized(Window& window);
    void arrange(int kind);
    Place arrangedPlace(int kind, int index, int count) const;
    void end();

    Catalogue catalogue_;
    Screen& screen_;
    SettingsStore& settings_;
    ProgramValues values_;
    SheetHost host_;
    std::vector<std::unique_ptr<Window>> windows_;
    std::vector<std::unique_ptr<Window>> dead_;
    std::vector<Window*> history_; ///< the latest current window last
    Window* current_ = nullptr;
    Window* activeChild_ = nullptr;
    Window* askedAbout_ = nullptr;
    std::deque<std::function<void()>> pending_;
    /// The field that had the focus when the person's event began, until it is left.
    struct InHand {
        const Window* window = nullptr;
        Handle control = noControl;
        bool escape = false;
        std::string text{};
    };
    InHand inHand_;
    Follower* follower_ = nullptr;
    std::function<void(std::string_view)> trace_;
    BiText failureText_{"El programa debe terminar: un cálculo no es posible con estos valores.",
                        "The program must end: a calculation is not possible with these values."};
    BiText keptText_{" Su trabajo está guardado: la próxima vez se le ofrecerá en la ventana principal.",
                     " Your work is kept: it will be offered to you in the main window next time."};
    Place client_{0, 0, 20250, 10125};
    unsigned serial_ = 0;
    int depth_ = 0;
    int arrangement_ = -1;
    Moment moment_ = Moment::passing;
    std::optional<Direction> stepWanted_;
    bool ended_ = false;
};

} // namespace velmor::host
