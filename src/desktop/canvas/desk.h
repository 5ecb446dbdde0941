// SPDX-License-Identifier: MIT
// What all views of one running program share: the engine behind them, the measure of their places, their colours.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

#include <QRect>
#include <QRegion>

#include "desktop/canvas/first_pictures.h"
#include "desktop/drawing/palette_of_inks.h"
#include "host/control.h"
#include "host/engine.h"

class QKeyEvent;
class QWidget;

namespace velmor::desktop {

struct Desk {
    host::Engine* engine = nullptr;
    const Inks* inks = &lightInks();
    double textScale = 1.0; ///< of letters that no sheet holds, by the size of the main window
    double scale = 1.0;     ///< logical pixels of 15 twips of a window's place, by the size of the main window
    std::unique_ptr<FirstPictures> firstPictures = std::make_unique<FirstPictures>();
    bool muted = false;                    ///< pasted characters that the key filter refuses make no sound
    bool placesWindows = true;             ///< false where the desktop alone says where windows stand
    std::size_t questions = 0;             ///< how many have been asked, boxes and dialogs
    bool closing = false;                  ///< the program has ended; views take no more events
    std::function<QRegion()> taken;        ///< what a new window should not lie on: tools and the field in hand
    std::function<QRect()> inHand;         ///< the field in hand, on the screen; empty without one
    std::function<void()> nextPane;        ///< the keyboard goes to the next window that is open beside the main one
    std::function<void(QWidget*)> touched; ///< a person pressed a key or a button in that view
    /// A person types or presses in that window, which a window that is only read may have in front of it.
    std::function<void(host::Window&)> turnTo;
    /// A key typed in a window that is only read goes to the sheet behind it; false when there is none.
    std::function<bool(const QKeyEvent&)> typeBehind;
    /// The menu of that window's frame opens: the keyboard's way to what the buttons in its title do.
    std::function<void(const host::Window&)> showFrameMenu;
    /// The pointer, or a key in its place, has come over a control of that window; noControl is its background.
    std::function<void(const host::Window&, host::Handle)> hovered;

    /// The window has a design that can be checked, once it has passed; and the check itself.
    std::function<bool(const host::Window&)> canCheck;
    std::function<QWidget*(const host::Window&)> checkOf; ///< the window of its check, or null
    std::function<void(host::Window&)> check;

    bool english() const { return engine->values().LanguageIsEnglish == host::trueValue; }
    bool idle() const { return !closing && engine->idle() && !engine->ended(); }
    int pixels(int twips) const { return static_cast<int>(twips * scale / 15.0 + (twips < 0 ? -0.5 : 0.5)); }
    int twips(int pixels) const { return static_cast<int>(pixels * 15.0 / scale + (pixels < 0 ? -0.5 : 0.5)); }
    // Edges are rounded, not sizes: what ends with the area in twips ends with it in pixels.
    QRect pixelsOf(const host::Place& place) const
    {
        const int left = pixels(place.left);
        const int top = pixels(place.top);
        return {left, top, pixels(place.left + place.width) - left, pixels(place.top + place.height) - top};
    }
    host::Place twipsOf(const QRect& box) const
    {
        return {twips(box.x()), twips(box.y()), twips(box.width()), twips(box.height())};
    }
};

} // namespace velmor::desktop
