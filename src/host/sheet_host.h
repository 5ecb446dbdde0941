// SPDX-License-Identifier: MIT
// The operations through which the logic of a window touches the program: focus, boxes, windows, dialogs, clock.
// One concrete class over the event engine; with no screen behind it all of it still works.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/bitext.h"
#include "host/screen.h"
#include "host/settings_store.h"
#include "host/values.h"
#include "host/window.h"

namespace velmor::host {

class Engine;

class SheetHost {
public:
    explicit SheetHost(Engine& engine) : engine_(engine) {}

    ProgramValues& values();
    SettingsStore& settings();
    Screen& screen();
    /// The text of the language of the moment.
    std::string_view pick(const BiText& text);

    // focus
    /// Moves the focus inside `window`: the lost-focus slot of the old field runs, then the focus slot of the target,
    /// before this returns. Nothing happens when the target has the focus already or cannot take it.
    void SetFocus(Window& window, Handle target);

    // messages
    /// Shows a box and waits for its answer: 1 OK, 2 Cancel, 6 Yes, 7 No.
    int MsgBox(std::string_view text, int flags, std::string_view title);
    void Beep();
    std::optional<std::string> InputBox(const host::InputBox& box);
    /// The index of the option chosen; nothing when it is given up.
    std::optional<std::size_t> Choose(const host::Choice& choice);

    // windows
    /// Shows the default instance of a window, loading it first where needed; null (and a trace line
    /// "deferred NAME") when the program has no such window.
    Window* Show(std::string_view name);
    /// Loads the default instance without showing it.
    Window* Load(std::string_view name);
    void Show(Window& window);
    void Hide(std::string_view name);
    void Hide(Window& window);
    /// Asks the window whether it may close and unloads it. True when it is gone.
    bool Unload(Window& window);
    void Unload(std::string_view name); ///< the default instance, if it is loaded
    /// A new instance, loaded when it is shown; null as for `Show`.
    Window* NewInstance(std::string_view name);
    void SetWindowState(Window& window, int state);
    void SetWindowCaption(Window& window, std::string_view caption);
    void Arrange(int kind); ///< 0 cascade, 1 tile horizontal, 2 tile vertical
    void PopupMenu(std::string_view menuOfMainWindow);
    /// The default instance when it is loaded, else null: a statement that touches an unloaded window does nothing.
    Window* find(std::string_view name);
    bool canShow(std::string_view name); ///< the program has a window of that name
    Window& mainWindow();
    Place clientArea(); ///< inner area of the main window
    Window* activeChild();
    /// All loaded windows in order of creation.
    std::vector<Window*> windows();
    bool isLoaded(const Window& window);

    // controls of other windows by name; nothing happens when the window is not loaded
    void setVisible(std::string_view window, std::string_view control, bool visible);
    void setEnabled(std::string_view window, std::string_view control, bool enabled);
    void setText(std::string_view window, std::string_view control, std::string_view text);
    bool visible(std::string_view window, std::string_view control);
    std::string text(std::string_view window, std::string_view control);

    // menu state of the main window
    bool checked(std::string_view menuItem);
    void setChecked(std::string_view menuItem, bool checked);

    // clock and files
    std::string Now();
    std::string Date();
    std::string Time();
    std::optional<std::string> fileDialog(const FileDialog& dialog);
    std::string programFolder();

    /// The active sheet goes one step back or forth when the running slots have ended.
    void StepBack();
    void StepForth();
    bool canStepBack();
    bool canStepForth();

    /// What the window holds is in a file of the person's own, or was just read from one: it need not be kept any longer.
    void workSaved(Window& window);
    /// The person has answered No to the window's question about saving.
    void workGivenUp(Window& window);

    /// Saves nothing: ends the program once the running slots have ended.
    void endProgram();
    /// Asks every sheet, in order of creation, whether it may close. False as soon as one refuses; none is unloaded.
    bool askAllSheets();
    void trace(std::string_view line);
    Engine& engine() { return engine_; }

private:
    Engine& engine_;
};

} // namespace velmor::host
