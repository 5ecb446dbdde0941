// SPDX-License-Identifier: MIT
// Breaking a text to the printer's width, and the test for letters of a word. Knows no window and no printer.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace velmor::editors {

/// Width of a printed line: 8 inches in twips.
inline constexpr int printedLineWidth = 11520;

/// Breaks a text (lines ended by CR LF) so that no line is wider than `printedLineWidth`: a line that grows too wide is cut
/// behind its last blank, or at the limit when it has none, and ended by a carriage return. `widthOf` gives the width of
/// one character in twips; a line feed has none.
std::string breakForPrinter(std::string_view text, const std::function<int(char32_t)>& widthOf);

/// True for A to Z, a to z, 0 to 9 and Á á É é Í í Ó ó; Ú ú Ñ ñ are absent on purpose.
bool isWordCharacter(int code);

} // namespace velmor::editors
