// SPDX-License-Identifier: MIT
// The checks of the open sheets: a window for each that was asked for, which follows its sheet. Made when the first check is
// asked for, not before.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>

#include "desktop/canvas/desk.h"
#include "host/screen.h"

class QPlainTextEdit;
class QWidget;

namespace velmor::desktop {

class CheckWindow;
class WindowKeeper;

class DesignChecks {
public:
    using AskFile = std::function<std::optional<std::string>(const host::FileDialog&)>;

    DesignChecks(Desk& desk, WindowKeeper& keeper, AskFile askFile);
    ~DesignChecks();

    /// Whether the window has a design that can be checked.
    static bool isFor(const host::Window& window);
    /// Checks the design of the sheet, in the window that it has already or in a new one.
    void open(host::Window& sheet);
    /// The sheets or the language may have changed.
    void follow();
    /// The sheet is gone, its check goes with it.
    void gone(const host::Window& sheet);
    CheckWindow* windowOf(const host::Window& sheet) const;

private:
    struct Entry {
        CheckWindow* window = nullptr;
        unsigned stirrings = 0;
    };

    void handBack();
    CheckWindow* make(host::Window& sheet);
    bool toReport(host::Window& sheet, const QString& text);
    std::string_view editorName() const;
    void writeReport(host::Window& sheet);
    QPlainTextEdit* reportOf(const host::Window& sheet) const;

    Desk& desk_;
    WindowKeeper& keeper_;
    AskFile askFile_;
    std::unordered_map<const host::Window*, Entry> entries_;
    bool english_;
};

} // namespace velmor::desktop
