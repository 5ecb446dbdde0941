// SPDX-License-Identifier: MIT
// The deeper pages of `Form21`: what "to know more" says about each topic, and where its second button leads back to.
// Texts only, in Spanish alone, as the window shows them in no other language.
#pragma once

#include <array>
#include <string_view>

namespace velmor::form21 {

/// What `SSCommand1` does when it reads `caption`: `page` goes to `Text22`, and `SSCommand2` shows with `nextCaption`.
struct DeepPage {
    std::string_view caption;
    std::string_view page;
    std::string_view nextCaption;
};

/// One row for each caption that a sheet, or the way back, puts on `SSCommand1`; captions are compared to the letter.
extern const std::array<DeepPage, 37> deepPages;

/// What `SSCommand2` does when it reads `caption`: the window is unloaded, or `SSCommand1` shows with `backTo`.
struct WayBack {
    std::string_view caption;
    std::string_view backTo;
    bool unloads;
};

extern const std::array<WayBack, 8> waysBack;

/// The caption of `SSCommand1` that has no page: pressing it unloads the window.
inline constexpr std::string_view leaveCaption = " Salir";

} // namespace velmor::form21
