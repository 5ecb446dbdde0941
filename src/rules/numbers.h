// SPDX-License-Identifier: MIT
// The rules of number entry and number text on which every field and every displayed result stands. Nothing here
// depends on the C locale: the decimal separator is handed in by the caller, who keeps it as a process-wide value.
#pragma once

#include "rules/real.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace velmor::rules {

struct KeyFilterResult {
    std::int16_t key = 0; // the key that goes on to the field; 0 is swallowed
    bool beep = false;    // whether the caller must sound Beep
};

/// Decides what becomes of a key pressed in an input field, before anything else sees it; `key` is replaced by the
/// result. A comma becomes a point; minus and slash vanish in silence; blanks, other signs and letters vanish with a
/// beep. After every key, whatever it was, the caller writes "." as DecimalSeparator: that repair is the second half of
/// this rule.
KeyFilterResult KeyFilter(std::int16_t& key) noexcept;

/// The number that a field's text begins with, read with "." as the point in every locale; 0 when there is none. Never
/// fails: "12.5 V" is 12.5, "1 2" is 12, "Rb2" is 0, "1.2.3" is 1.2, "2 Es" is 2, "&HFFFF" is 65535. Blanks, tabs and
/// line feeds are skipped wherever they stand. A value out of range gives the nearest finite double.
double ParseLeadingNumber(std::string_view text);

/// The number that the whole text is, apart from surrounding blanks, with `decimalSeparator` or "." as the point.
/// Throws ProgramFailure: badNumber for anything else, also for an empty text or one with a unit; overflow for a number
/// too large.
double StrictNumber(std::string_view text, std::string_view decimalSeparator);

/// A fixed-point number with four decimals, from -922337203685477.5808 to 922337203685477.5807.
class CurrencyValue {
public:
    /// number x 10000, rounded to the nearest integer, ties to the even one. Throws ProgramFailure (overflow) out of
    /// range.
    explicit CurrencyValue(Real number);

    /// The number whose ten-thousandths are counted by `tenThousandths`.
    static constexpr CurrencyValue fromScaled(std::int64_t tenThousandths) noexcept
    {
        CurrencyValue result;
        result.scaled_ = tenThousandths;
        return result;
    }

    [[nodiscard]] constexpr std::int64_t scaled() const noexcept { return scaled_; }

    /// For formulas that go on with the rounded value: they calculate in double precision.
    [[nodiscard]] constexpr double toDouble() const noexcept { return static_cast<double>(scaled_) / 10000.0; }

    friend constexpr auto operator<=>(CurrencyValue, CurrencyValue) noexcept = default;

private:
    constexpr CurrencyValue() noexcept = default;

    std::int64_t scaled_ = 0;
};

/// Up to four decimals without trailing zeros: "12.5", "3", "0.0012", "-1.25", "0".
std::string CurrencyText(CurrencyValue number, std::string_view decimalSeparator);

/// How the sheets display a result: CurrencyText(CurrencyValue(number)).
std::string CurrencyText(Real number, std::string_view decimalSeparator);

/// Cuts the fraction off toward zero: 2.9 gives 2, -2.9 gives -2.
double TruncToInteger(double number) noexcept;
Real TruncToInteger(Real number) noexcept;

/// The nearest integer, ties to the even one: 2.5 gives 2, 3.5 gives 4. Throws ProgramFailure (overflow) beyond 16
/// bits.
std::int16_t RoundToInt16(Real number);

/// At most 15 significant digits, no trailing zeros; from 1E+15 on and below 0.0001 in size with an exponent, a capital
/// E with sign and at least two digits.
std::string NumberText(Real number, std::string_view decimalSeparator);

} // namespace velmor::rules
