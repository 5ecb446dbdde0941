// SPDX-License-Identifier: MIT
// The whole program with one common-emitter sheet in it, played as a student would, without a screen.
#pragma once

#include <string>
#include <string_view>

#include "host/engine.h"
#include "program/catalogue.h"
#include "quiet_screen.h"

namespace velmor::test {

/// `C` are the controls of the sheet.
template <class Sheet, class C>
class EmitterProgram {
public:
    explicit EmitterProgram(std::string_view name, std::int16_t languageIsEnglish = host::trueValue)
        : engine(program::catalogue(), screen, settings)
    {
        engine.values().LanguageIsEnglish = languageIsEnglish;
        engine.loadMainWindow();
        engine.userRun([this, name] {
            window_ = engine.host().NewInstance(name);
            engine.host().Show(*window_);
        });
    }

    Sheet& sheet() { return static_cast<Sheet&>(*window_); }
    std::string focus() const
    {
        const host::Handle held = window_->focus();
        return held == host::noControl ? "none" : std::string(window_->row(held).name);
    }
    void key(std::int16_t code) { engine.userKey(*window_, code); }
    void enter() { key(13); }
    void escape() { key(27); }
    /// Replaces the text of the field in hand, as typing does.
    void type(std::string_view text) { engine.userText(*window_, window_->focus(), text); }
    void typeAndEnter(std::string_view text)
    {
        type(text);
        enter();
    }
    void click(host::Handle control) { engine.userClick(*window_, control); }
    void hover(host::Handle control) { engine.userHover(*window_, control); }
    /// Plays a default design from the field in hand up to the focus of the field; Rb2 is 12, Rb1 as proposed.
    void playTo(host::Handle field)
    {
        for (int guard = 0; guard < 40 && window_->focus() != field; ++guard) {
            if (window_->focus() == C::Text16)
                type(supply);
            if (window_->focus() == C::Text18)
                type("12");
            enter();
        }
    }

    AskedScreen screen;
    host::MemorySettings settings;
    host::Engine engine;
    std::string supply = "35"; ///< V, what `playTo` enters

private:
    host::Window* window_ = nullptr;
};

} // namespace velmor::test
