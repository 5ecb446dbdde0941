// SPDX-License-Identifier: MIT
// The whole program with one of the sheets fed back by voltage in it, played as a student would, without a screen.
#pragma once

#include <string>
#include <string_view>

#include "designs/common_emitter/form18.h"
#include "designs/common_emitter/form8.h"
#include "host/engine.h"
#include "program/catalogue.h"
#include "quiet_screen.h"

namespace velmor::test {

template <class Sheet>
class FeedbackProgram {
public:
    explicit FeedbackProgram(std::string_view name, std::int16_t languageIsEnglish = host::trueValue)
        : engine(program::catalogue(), screen, settings)
    {
        engine.values().LanguageIsEnglish = languageIsEnglish;
        engine.loadMainWindow();
        engine.userRun([&] {
            window_ = engine.host().NewInstance(name);
            engine.host().Show(*window_);
        });
    }

    Sheet& sheet() { return static_cast<Sheet&>(*window_); }
    void enter() { engine.userKey(*window_, 13); }
    void enter(host::Handle field, std::string_view text)
    {
        engine.userFocus(*window_, field);
        engine.userText(*window_, field, text);
        enter();
    }
    void focus(host::Handle field) { engine.userFocus(*window_, field); }
    void click(host::Handle control) { engine.userClick(*window_, control); }
    /// The design of the proposals up to the preset, with another supply.
    void playToPreset(std::string_view supply)
    {
        focus(feedback::Text2);
        enter();
        enter();
        click(feedback::Command1);
        enter(feedback::Text16, supply);
    }

    AskedScreen screen;
    host::MemorySettings settings;
    host::Engine engine;

private:
    host::Window* window_ = nullptr;
};

struct Form8Program : FeedbackProgram<form8::Form8> {
    explicit Form8Program(std::int16_t languageIsEnglish = host::trueValue)
        : FeedbackProgram("Form8", languageIsEnglish)
    {}
};
struct Form18Program : FeedbackProgram<form18::Form18> {
    explicit Form18Program(std::int16_t languageIsEnglish = host::trueValue)
        : FeedbackProgram("Form18", languageIsEnglish)
    {}
};

} // namespace velmor::test
