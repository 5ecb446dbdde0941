// SPDX-License-Identifier: MIT
// A pair of texts, Spanish and English, of which one is chosen at the moment of use.
#pragma once

#include <cstdint>
#include <string_view>

namespace velmor::host {

/// Value of a 16-bit boolean that is true; false is 0.
inline constexpr std::int16_t trueValue = -1;

/// Two texts of one meaning. `in` picks by `LanguageIsEnglish`: -1 is English, any other value Spanish.
struct BiText {
    std::string_view es;
    std::string_view en;

    constexpr std::string_view in(std::int16_t languageIsEnglish) const
    {
        return languageIsEnglish == trueValue ? en : es;
    }
    friend constexpr bool operator==(const BiText&, const BiText&) = default;
};

} // namespace velmor::host
