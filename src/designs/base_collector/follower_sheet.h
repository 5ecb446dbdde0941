// SPDX-License-Identifier: MIT
// What the fields of the emitter follower and of the phase splitter do alike: no Esc, a value that a click restores, a
// field that Enter closes behind it, and a finished design that ends with the first change. Knows no control.
#pragma once

#include <span>
#include <string_view>

#include "designs/base_collector/click_value.h"
#include "sheets/design_sheet.h"

namespace velmor::base_collector {

/// A field that Enter in another one closes.
struct ClosedBehind {
    host::Handle field = host::noControl;
    host::Handle closed = host::noControl;
};
/// The tables of one of the sheets, besides its `SheetSpec`.
struct FollowerTables {
    std::span<const ClickValue> clickValues{};
    std::span<const ClosedBehind> closedBehind{};
    host::Handle last = host::noControl; ///< the field that ends the design: a change there is the student's last word
};

class FollowerSheet : public sheets::DesignSheet {
public:
    void clickBackground();
    void unload();
    void keyField(host::EventArgs& args);
    void leaveField(host::EventArgs& args);
    void clickField(host::EventArgs& args);
    void openResistorTable(const host::EventArgs& args);

protected:
    /// `passed` is the working number that says so; it lives in the sheet's own record.
    FollowerSheet(host::SheetHost& host, const host::WindowSpec& window, const sheets::SheetSpec& sheet,
                  const FollowerTables& tables, bool& passed);

    /// A key press, filtered; a change of an earlier field ends what was finished.
    sheets::Press pressed(host::EventArgs& args);
    /// Writes what the sheet makes of a field; another text than before ends what was finished.
    void rewrite(host::Handle field, std::string_view text);
    void goOnFrom(host::Handle field);
    void setWidth(host::Handle control, int width);
    void setTop(host::Handle control, int top);
    /// One picture in the place of another, the keyboard with it.
    void exchange(host::Handle gone, host::Handle shown);

private:
    const FollowerTables& tables_;
    bool& passed_;
};

} // namespace velmor::base_collector
