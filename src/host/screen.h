// SPDX-License-Identifier: MIT
// What a screen must be able to do: answer questions and follow the windows. Real windows and the console implement it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/control.h"
#include "host/text_store.h"

namespace velmor::host {

class Window;

/// Answers of a message box, with the numbers that slots compare.
enum class Answer : std::uint8_t { ok = 1, cancel = 2, yes = 6, no = 7 };

enum class BoxButtons : std::uint8_t { ok, okCancel, yesNoCancel, yesNo };
enum class BoxIcon : std::uint8_t { none, stop, question, warning, information };

struct MessageBox {
    std::string text;
    std::string title;
    int flags = 0;

    BoxButtons buttons() const;
    BoxIcon icon() const;
    bool secondIsDefault() const { return (flags & 256) != 0; }
    bool offers(Answer answer) const;
    /// What Escape or the window's button answers: Cancel where it is offered, else No, else OK.
    Answer escape() const;
};

enum class DialogKind : std::uint8_t { open, save };

struct FileDialog {
    DialogKind kind = DialogKind::open;
    std::string title;
    std::string filter; ///< "description|pattern|description|pattern"
    std::string folder; ///< where it starts
    int flags = 0;
};

struct InputBox {
    std::string prompt;
    std::string title;
    std::string initial;
    int left = 0; ///< twips
    int top = 0;
};

/// One thing of several, each with a button that bears its name.
struct Choice {
    std::string text;
    std::string title;
    std::vector<std::string> options;
};

struct PrintJob {
    std::string text; ///< lines ended by carriage returns as the caller broke them
    Font font;
    bool fontSizeGiven = true; ///< false: the printer keeps its own size
};

/// A screen. Questions return when answered; notices must not call back into the engine before they return,
/// except through the engine's `user...` functions, which wait for the running slot.
class Screen {
public:
    virtual ~Screen() = default;

    // questions
    virtual Answer messageBox(const MessageBox& box) = 0;
    virtual std::optional<std::string> fileDialog(const FileDialog& dialog) = 0;
    virtual std::optional<std::string> inputBox(const InputBox& box) = 0;
    /// The index of the option chosen; nothing when it is given up, as by a screen that knows no such question.
    virtual std::optional<std::size_t> choose(const Choice& choice);
    virtual std::optional<std::int32_t> colourDialog(std::int32_t initial) = 0;
    virtual std::optional<Font> fontDialog(const Font& initial) = 0;
    virtual std::string now() = 0; ///< date and time, short format
    virtual std::string date() = 0;
    virtual std::string time() = 0;
    virtual std::string clipboardText() = 0;
    virtual int printedWidth(const Font& font, std::string_view text) = 0; ///< twips
    virtual std::string programFolder() = 0;                               ///< without a slash at the end
    virtual std::string executableName() = 0;
    virtual bool otherInstanceRunning() = 0;

    // deeds
    virtual void beep() = 0;
    virtual void setClipboardText(std::string_view text) = 0;
    virtual void print(const PrintJob& job) = 0;
    /// Starts an external program directly, never through a shell. An empty `program` means the document itself.
    virtual bool run(const std::string& program, const std::string& argument) = 0;
    virtual void popupMenu(Window& owner, Handle menu) = 0;
    virtual void busyPointer(bool busy) { (void)busy; }
    /// The program must end after a failure of arithmetic; `text` says so plainly.
    virtual void programFailed(std::string_view text) = 0;

    // the view follows
    virtual std::unique_ptr<TextStore> makeTextStore(Window& window, Handle editor);
    virtual void windowCreated(Window& window) { (void)window; }
    virtual void windowRaised(Window& window) { (void)window; } ///< shown, activated or brought to front
    virtual void windowGone(Window& window) { (void)window; }   ///< before the window is destroyed
    virtual void arranged(int kind) { (void)kind; }
    virtual void bringUpToDate() {} ///< state changed; called after each outermost event and before each question
    virtual void programEnded() {}
};

} // namespace velmor::host
