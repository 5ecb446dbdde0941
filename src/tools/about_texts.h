// SPDX-License-Identifier: MIT
// What the thank-you window `frmAbout` and the window about updates `infoform` say. Texts only; no address is given.
#pragma once

#include "host/bitext.h"

#include <array>

namespace velmor::about {

/// Texts of `frmAbout`. `thanks` is `Label4`; `credits` are the elements of `Label1`; `closing` is `Label2`.
struct AboutTexts {
    host::BiText title;
    host::BiText heading;
    host::BiText thanks;
    std::array<host::BiText, 3> credits;
    host::BiText closing;
};

extern const AboutTexts aboutTexts;

/// The lines of `infoform`'s `Label1`, top to bottom.
extern const std::array<host::BiText, 4> updateLines;

extern const host::BiText updateTitle;

} // namespace velmor::about
