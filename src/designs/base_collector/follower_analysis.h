// SPDX-License-Identifier: MIT
// The analysis page as the emitter follower and the phase splitter fill it: whether the input is a heavy load to the
// generator. Knows no sheet.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "sheets/design_sheet.h"

namespace velmor::base_collector {

/// Powers as they are to be read, each with its unit, and the formula that stands before the generator's.
struct Powers {
    std::string output;
    std::string generator;
    std::string input;
    host::BiText generatorFormula{};
};

/// What the page says of an input that is lighter than the generator, or not.
std::string verdict(const sheets::DesignSheet& sheet, const Powers& powers, bool light);

/// Loads the page without showing it and puts it in its place, beside the field in hand.
host::Window* prepareLeaf(host::SheetHost& host);
/// Shows a fresh page with this text and these pictures, whatever another sheet has left on it.
void openLeaf(host::SheetHost& host, std::string_view text, std::initializer_list<std::string_view> pictures);

} // namespace velmor::base_collector
