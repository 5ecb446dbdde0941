// SPDX-License-Identifier: MIT
// The chain of a sheet as rows: one field after the other, what each accepts and where it leads. Knows no sheet.
#pragma once

#include <limits>
#include <string_view>

#include "host/bitext.h"
#include "host/drawing.h"

namespace velmor::sheets {

inline constexpr double noLimit = std::numeric_limits<double>::max();

/// One field of the chain. The slots of the frame (`DesignSheet::focusField`, `keyField`, `leaveField`, `hoverField`) do what
/// the row says; a field that does more, less or in another order has slots of its own and uses of its row what it needs.
struct ChainRow {
    host::Handle field = host::noControl;
    host::Handle next = host::noControl; ///< where Enter and Esc go
    std::string_view esc{};              ///< what Esc writes before it goes on; empty: Esc does nothing
    double from = -noLimit;              ///< least value accepted when the field is left
    double to = noLimit;                 ///< largest
    double otherwise = 0;                ///< written for a value out of range
    std::string_view tag = "1";          ///< of the field in hand, on sheets with help pages
};

/// What `Form21` says about a field after a press of the right button. Pages stand in the order in which tags are tested.
struct HelpPage {
    host::Handle field = host::noControl;
    std::string_view shortName{}; ///< of the field, on the panel's button
    host::BiText page{};          ///< empty in the language of the moment: the panel stays as it was
};

} // namespace velmor::sheets
