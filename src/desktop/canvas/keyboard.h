// SPDX-License-Identifier: MIT
// The keyboard of one canvas: each key becomes what the engine must hear first, and goes on to the text box only as far as
// the window's key slot lets it.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include <QKeySequence>
#include <QString>

#include "desktop/canvas/palette_walk.h"
#include "host/bitext.h"
#include "host/engine.h"
#include "host/state_change.h"
#include "host/window.h"

class QInputMethodEvent;
class QKeyEvent;

namespace velmor::desktop {

class Canvas;
class FieldEdit;

/// What a key does in every window, beside the rows of the window's own table.
enum class CommonKey : std::uint8_t {
    next,
    previous,
    rightPress,
    hover,
    nextPane,
    close,
    stepBack,
    undo,
    redo,
    check,
    frame
};
struct CommonKeyRow {
    std::string_view keys;
    CommonKey deed;
    host::BiText meaning;
};
std::span<const CommonKeyRow> commonKeys();

/// The row of a window's shortcut table for these keys; noRow when there is none.
std::size_t shortcutRow(const host::WindowSpec& spec, QKeyCombination keys);
inline constexpr std::size_t noRow = static_cast<std::size_t>(-1);
/// To the next pane, or to the menu of the frame.
bool isBetweenWindows(const QKeyEvent& event);
/// The keys of an event, whether or not they lie on the number pad.
QKeyCombination keysOf(const QKeyEvent& event);

class Keyboard {
public:
    explicit Keyboard(Canvas& canvas) : canvas_(canvas) {}

    /// True for a key of the window's table that a menu or a text box would otherwise take.
    bool wants(const QKeyEvent& event) const;
    /// True when the key is done with; false when the widget that has the focus shall have it too.
    bool pressed(const QKeyEvent& event);
    /// Text from an input method (accents, other scripts). True when it is done with.
    bool composed(const QInputMethodEvent& event);

private:
    bool goesBehind(const QKeyEvent& event) const;
    bool runSearch(QKeyCombination keys);
    bool runShortcut(QKeyCombination keys);
    bool runCommon(QKeyCombination keys);
    bool run(CommonKey deed);
    bool closeTool();
    bool step(host::Direction direction);
    bool undoTyping(host::Direction direction);
    bool pressFirstButton();
    bool fieldKey(FieldEdit& field, const QKeyEvent& event);
    bool textKey(const QKeyEvent& event);
    bool paneKey(const QKeyEvent& event);
    bool passes(std::int16_t key);
    void typeText(FieldEdit& field, const QString& text);
    void paste(FieldEdit& field);
    QString filtered(const QString& text);

    Canvas& canvas_;
    PaletteWalk walk_;
};

/// The key code of a character: its code in Windows-1252, 63 when it has none.
std::int16_t keyCode(char32_t character);
/// The character of a key code.
char32_t characterOf(std::int16_t code);

} // namespace velmor::desktop
