// SPDX-License-Identifier: MIT
// The number rules. Digits are turned into doubles and back by the correctly rounding functions of <charconv>, which
// know no locale; all that decides which characters belong to a number is written out here.
#include "rules/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

namespace velmor::rules {

using host::FailureKind;
using host::ProgramFailure;

namespace number_reading {

constexpr bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}
constexpr bool isExponentLetter(char letter)
{
    return letter == 'E' || letter == 'e' || letter == 'D' || letter == 'd';
}
constexpr bool isSkipped(char letter)
{
    return letter == ' ' || letter == '\t' || letter == '\n';
}

// A decimal number being read, in the form that from_chars takes, with what is needed when it is out of range.
struct DecimalText {
    std::string characters;
    bool hasDigit = false;
    bool negative = false;
};

// Walks over a text and never shows the characters that the leading-number rule skips.
class SkippingCursor {
public:
    explicit SkippingCursor(std::string_view text) : text_(text) { skip(); }

    [[nodiscard]] char peek() const { return position_ < text_.size() ? text_[position_] : '\0'; }
    void advance()
    {
        ++position_;
        skip();
    }

private:
    void skip()
    {
        while (position_ < text_.size() && isSkipped(text_[position_]))
            ++position_;
    }

    std::string_view text_;
    std::size_t position_ = 0;
};

bool readSign(SkippingCursor& cursor)
{
    const char sign = cursor.peek();
    if (sign == '+' || sign == '-')
        cursor.advance();
    return sign == '-';
}

void readDigits(SkippingCursor& cursor, DecimalText& number)
{
    for (; isDigit(cursor.peek()); cursor.advance()) {
        number.characters += cursor.peek();
        number.hasDigit = true;
    }
}

// The letter counts only when digits follow it, so nothing is kept before the first of them.
void readExponent(SkippingCursor& cursor, DecimalText& number)
{
    if (!number.hasDigit || !isExponentLetter(cursor.peek()))
        return;
    cursor.advance();
    const bool negative = readSign(cursor);
    if (!isDigit(cursor.peek()))
        return;
    number.characters += negative ? "e-" : "e";
    readDigits(cursor, number);
}

DecimalText readDecimal(SkippingCursor& cursor)
{
    DecimalText number;
    readDigits(cursor, number);
    if (cursor.peek() == '.') {
        cursor.advance();
        number.characters += '.';
        readDigits(cursor, number);
    }
    readExponent(cursor, number);
    return number;
}

int digitOf(char letter)
{
    if (isDigit(letter))
        return letter - '0';
    if (letter >= 'A' && letter <= 'F')
        return letter - 'A' + 10;
    if (letter >= 'a' && letter <= 'f')
        return letter - 'a' + 10;
    return 16;
}

int baseOf(char letter)
{
    if (letter == 'H' || letter == 'h')
        return 16;
    if (letter == 'O' || letter == 'o')
        return 8;
    return 0;
}

// The cursor stands on the "&".
double readPrefixed(SkippingCursor& cursor)
{
    cursor.advance();
    const int base = baseOf(cursor.peek());
    if (base == 0)
        return 0.0;
    cursor.advance();
    double value = 0.0;
    for (; digitOf(cursor.peek()) < base; cursor.advance())
        value = value * base + digitOf(cursor.peek());
    return std::min(value, std::numeric_limits<double>::max());
}

// The power of ten of the leading digit, clamped: its sign tells a number too large from one too small.
long leadingPower(std::string_view characters)
{
    const std::size_t letter = std::min(characters.find('e'), characters.size());
    const std::size_t point = std::min(characters.substr(0, letter).find('.'), letter);
    const std::size_t first = std::min(characters.find_first_of("123456789"), letter);
    const long power = static_cast<long>(point) - static_cast<long>(first);
    long exponent = 0;
    for (std::size_t i = letter + 1; i < characters.size(); ++i)
        if (isDigit(characters[i]))
            exponent = std::min(exponent * 10 + (characters[i] - '0'), 1'000'000'000'000L);
    const bool negative = letter + 1 < characters.size() && characters[letter + 1] == '-';
    return negative ? power - exponent : power + exponent;
}

struct Conversion {
    double value = 0.0;
    bool overflowed = false;
};

// A value too large comes back as the largest double, one too small as 0.
Conversion toDouble(std::string_view characters)
{
    Conversion result;
    const char* end = characters.data() + characters.size();
    if (std::from_chars(characters.data(), end, result.value).ec != std::errc::result_out_of_range)
        return result;
    result.overflowed = leadingPower(characters) > 0;
    result.value = result.overflowed ? std::numeric_limits<double>::max() : 0.0;
    return result;
}

// No zero is negative: "-0" would be shown.
double signedValue(double size, bool negative)
{
    return negative && size != 0.0 ? -size : size;
}

// Exact, and the same whatever the rounding mode that some driver may have left behind.
double roundTiesToEven(double number)
{
    return number - std::remainder(number, 1.0);
}

std::string_view withoutSurroundingBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Reads a plain number as a whole; `characters` receives it without its sign, with "." as point and "e" as exponent.
class StrictReader {
public:
    StrictReader(std::string_view text, std::string_view decimalSeparator) : rest_(text), separator_(decimalSeparator)
    {}

    bool read(DecimalText& number)
    {
        number.negative = takeSign();
        takeDigits(number);
        if (takePoint()) {
            number.characters += '.';
            takeDigits(number);
        }
        return number.hasDigit && takeExponent(number) && rest_.empty();
    }

private:
    bool takeSign()
    {
        const bool negative = rest_.starts_with('-');
        if (negative || rest_.starts_with('+'))
            rest_.remove_prefix(1);
        return negative;
    }

    bool takeDigits(DecimalText& number)
    {
        std::size_t count = 0;
        while (count < rest_.size() && isDigit(rest_[count]))
            ++count;
        number.characters += rest_.substr(0, count);
        number.hasDigit = number.hasDigit || count > 0;
        rest_.remove_prefix(count);
        return count > 0;
    }

    bool takePoint()
    {
        const std::string_view point = !separator_.empty() && rest_.starts_with(separator_) ? separator_ : ".";
        if (!rest_.starts_with(point))
            return false;
        rest_.remove_prefix(point.size());
        return true;
    }

    bool takeExponent(DecimalText& number)
    {
        if (rest_.empty() || !isExponentLetter(rest_.front()))
            return true;
        rest_.remove_prefix(1);
        number.characters += takeSign() ? "e-" : "e";
        return takeDigits(number);
    }

    std::string_view rest_;
    std::string_view separator_;
};

} // namespace number_reading

KeyFilterResult KeyFilter(std::int16_t& key) noexcept
{
    KeyFilterResult result{key, false};
    if (key == ',') {
        result.key = '.';
    } else if (key == '-' || key == '/') {
        result.key = 0;
    } else if (key >= ' ' && key <= 255 && key != '.' && (key < '0' || key > '9')) {
        result = {0, true};
    }
    key = result.key;
    return result;
}

double ParseLeadingNumber(std::string_view text)
{
    number_reading::SkippingCursor cursor(text);
    const bool negative = number_reading::readSign(cursor);
    if (cursor.peek() == '&')
        return number_reading::signedValue(number_reading::readPrefixed(cursor), negative);
    const number_reading::DecimalText number = number_reading::readDecimal(cursor);
    return number.hasDigit ? number_reading::signedValue(number_reading::toDouble(number.characters).value, negative)
                           : 0.0;
}

double StrictNumber(std::string_view text, std::string_view decimalSeparator)
{
    number_reading::DecimalText number;
    if (!number_reading::StrictReader(number_reading::withoutSurroundingBlanks(text), decimalSeparator).read(number))
        throw ProgramFailure(FailureKind::badNumber);
    const number_reading::Conversion conversion = number_reading::toDouble(number.characters);
    if (conversion.overflowed)
        throw ProgramFailure(FailureKind::overflow);
    return number_reading::signedValue(conversion.value, number.negative);
}

CurrencyValue::CurrencyValue(Real number)
{
    // The limits are 2 to the 63rd power: the upper one, which the type cannot hold, is the first double beyond it.
    constexpr double limit = 9223372036854775808.0;
    const double scaled = number_reading::roundTiesToEven((number * 10000.0).value());
    if (scaled < -limit || scaled >= limit)
        throw ProgramFailure(FailureKind::overflow);
    scaled_ = static_cast<std::int64_t>(scaled);
}

std::string CurrencyText(CurrencyValue number, std::string_view decimalSeparator)
{
    // Negated as unsigned: the size of the lowest value does not fit the signed type.
    const auto bits = static_cast<std::uint64_t>(number.scaled());
    const std::uint64_t size = number.scaled() < 0 ? 0 - bits : bits;
    std::string text = number.scaled() < 0 ? "-" : "";
    text += std::to_string(size / 10000);
    std::string decimals = std::to_string(10000 + size % 10000).substr(1);
    decimals.erase(decimals.find_last_not_of('0') + 1);
    if (decimals.empty())
        return text;
    return text.append(decimalSeparator).append(decimals);
}

std::string CurrencyText(Real number, std::string_view decimalSeparator)
{
    return CurrencyText(CurrencyValue(number), decimalSeparator);
}

double TruncToInteger(double number) noexcept
{
    return std::trunc(number) + 0.0;
}

Real TruncToInteger(Real number) noexcept
{
    return TruncToInteger(number.value());
}

std::int16_t RoundToInt16(Real number)
{
    const double rounded = number_reading::roundTiesToEven(number.value());
    if (rounded < -32768.0 || rounded > 32767.0)
        throw ProgramFailure(FailureKind::overflow);
    return static_cast<std::int16_t>(rounded);
}

std::string NumberText(Real number, std::string_view decimalSeparator)
{
    constexpr int significantDigits = 15;
    std::array<char, 32> buffer{};
    const double value = number_reading::signedValue(std::abs(number.value()), number.value() < 0.0);
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general,
                                   significantDigits);
    std::string text;
    for (const char* letter = buffer.data(); letter != end.ptr; ++letter) {
        if (*letter == '.')
            text += decimalSeparator;
        else
            text += *letter == 'e' ? 'E' : *letter;
    }
    return text;
}

} // namespace velmor::rules
