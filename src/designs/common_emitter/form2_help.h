// SPDX-License-Identifier: MIT
// The help pages of `Form2`'s fields, which a press of the right button shows. Texts only, in the order in which the
// tags are tested.
#pragma once

#include "host/bitext.h"

#include <array>
#include <string_view>

namespace velmor::form2 {

/// The page of one field: what `Form21` calls the field on its button, and what it says about it.
struct HelpPage {
    std::string_view field;
    std::string_view shortName;
    host::BiText page;
};

extern const std::array<HelpPage, 19> helpPages;

} // namespace velmor::form2
