// SPDX-License-Identifier: MIT
// The number rules, against tables worked out by hand (here) and by tests/figures/number_rules.py (number_figures.h).
#include "rules/numbers.h"

#include "places.h"
#include "rules/number_figures.h"

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <locale>
#include <optional>
#include <random>
#include <string>

namespace velmor::rules::numbers_test {

using host::FailureKind;
using host::ProgramFailure;

constexpr double largest = std::numeric_limits<double>::max();

template <class Action>
std::optional<FailureKind> failureOf(Action action)
{
    try {
        action();
    } catch (const ProgramFailure& failure) {
        return failure.kind();
    }
    return std::nullopt;
}

// The whole range of keys, row by row as the rule is told; `result` 0 with `same` stands for "unchanged".
struct KeyRow {
    int from;
    int to;
    bool same;
    int result;
    bool beep;
};

// clang-format off
constexpr KeyRow keyRows[] = {
    // from      to   same   result  beep
    {-32768,     31,  true,  0,      false},
    {    32,     43,  false, 0,      true },
    {    44,     44,  false, 46,     false},
    {    45,     45,  false, 0,      false},
    {    46,     46,  true,  0,      false},
    {    47,     47,  false, 0,      false},
    {    48,     57,  true,  0,      false},
    {    58,    255,  false, 0,      true },
    {   256,  32767,  true,  0,      false},
};
// clang-format on

TEST(KeyFilter, TreatsEveryKeyAsTheTableSays)
{
    int keys = 0;
    for (const KeyRow& row : keyRows) {
        for (int code = row.from; code <= row.to; ++code, ++keys) {
            auto key = static_cast<std::int16_t>(code);
            const KeyFilterResult result = KeyFilter(key);
            ASSERT_EQ(result.key, row.same ? code : row.result) << code;
            ASSERT_EQ(result.beep, row.beep) << code;
            ASSERT_EQ(key, result.key) << code;
        }
    }
    EXPECT_EQ(keys, 65536);
}

struct ReadingRow {
    const char* text;
    double number;
};

// clang-format off
constexpr ReadingRow readingRows[] = {
    {"",                    0},
    {" \t\n",               0},
    {"  7.5 V ",            7.5},
    {"12.5 V",              12.5},
    {"10 mA",               10},
    {"2.2  ohms",           2.2},
    {"1,5",                 1},
    {"2,5",                 2},
    {"Rb2",                 0},
    {"1.2.3",               1.2},
    {"1 2",                 12},
    {"1\t2\n3 . 5",         123.5},
    {"1\r2",                1},
    {"- volts",             0},
    {"- 5 V",               -5},
    {"+5",                  5},
    {"--5",                 0},
    {"+-5",                 0},
    {".5",                  0.5},
    {"5.",                  5},
    {".",                   0},
    {"-.",                  0},
    {".E5",                 0},
    {"E5",                  0},
    {"2 Es",                2},
    {"2E",                  2},
    {"2E+",                 2},
    {"2E-V",                2},
    {"2E3",                 2000},
    {"2e3",                 2000},
    {"2D3",                 2000},
    {"2d-3",                0.002},
    {"2 E + 3",             2000},
    {"2.E2",                200},
    {".5E1",                5},
    {"2E1.5",               20},
    {"2E1E1",               20},
    {"1E999",               largest},
    {"-1E999",              -largest},
    {"1E-999",              0},
    {"-1E-999",             0},
    {"0E999",               0},
    {"1E99999999999999999999999999",  largest},
    {"1E-99999999999999999999999999", 0},
    {"1.7976931348623157E308",        largest},
    {"1.8E308",             largest},
    {"5E-324",              5e-324},
    {"1E-400",              0},
    {"-0",                  0},
    {"-0.000",              0},
    {"&HFFFF",              65535},
    {"&hffff",              65535},
    {"& H F F",             255},
    {"&H10.5",              16},
    {"&HG",                 0},
    {"&H",                  0},
    {"&",                   0},
    {"&5",                  0},
    {"&O17",                15},
    {"&o178",               15},
    {"-&H10",               -16},
    {"1&H10",               1},
    {"0x10",                0},
    {"inf",                 0},
    {"nan",                 0},
    {"\xC2\xB1" "5",        0},
    {"007",                 7},
};
// clang-format on

TEST(ParseLeadingNumber, ReadsTheNumberThatATextBeginsWith)
{
    for (const ReadingRow& row : readingRows) {
        const double number = ParseLeadingNumber(row.text);
        EXPECT_EQ(number, row.number) << '"' << row.text << '"';
        EXPECT_FALSE(number == 0.0 && std::signbit(number)) << '"' << row.text << '"';
    }
}

TEST(ParseLeadingNumber, AgreesWithTheFiguresOfTheScript)
{
    for (const auto& figure : number_figures::leadingFigures)
        EXPECT_EQ(ParseLeadingNumber(figure.text), figure.number) << '"' << figure.text << '"';
}

TEST(ParseLeadingNumber, PlacesAnExponentAgainstLongRowsOfDigits)
{
    const std::string zeros(400, '0');
    EXPECT_EQ(ParseLeadingNumber("0." + zeros + "25E402"), 25.0);
    EXPECT_EQ(ParseLeadingNumber("25" + zeros + "E-400"), 25.0);
    EXPECT_EQ(ParseLeadingNumber("25" + zeros), largest);
    EXPECT_EQ(ParseLeadingNumber("0." + zeros + "25"), 0.0);
    EXPECT_EQ(ParseLeadingNumber("25" + zeros + "E-1000"), 0.0);
    EXPECT_EQ(ParseLeadingNumber("0." + zeros + "25E1000"), largest);
    EXPECT_EQ(ParseLeadingNumber("&H" + std::string(400, 'F')), largest);
}

TEST(ParseLeadingNumber, KnowsNoEndOfATextButItsLength)
{
    EXPECT_EQ(ParseLeadingNumber(std::string_view("12345", 2)), 12.0);
    EXPECT_EQ(ParseLeadingNumber(std::string_view("1\0002", 3)), 1.0);
    EXPECT_EQ(ParseLeadingNumber(std::string(1'000'000, ' ') + "4"), 4.0);
}

std::string randomText(std::mt19937_64& dice)
{
    constexpr std::string_view likely = "0123456789.0123456789+-EeDd&HhOo \t\n,VmK";
    std::string text(dice() % 24, '\0');
    for (char& letter : text)
        letter = dice() % 8 == 0 ? static_cast<char>(dice() % 256) : likely[dice() % likely.size()];
    return text;
}

TEST(ParseLeadingNumber, NeverFailsAndNeverReadsOnBehindALetter)
{
    std::mt19937_64 dice(20240511);
    for (int round = 0; round < 200'000; ++round) {
        const std::string text = randomText(dice);
        const double number = ParseLeadingNumber(text);
        ASSERT_TRUE(std::isfinite(number)) << text;
        ASSERT_FALSE(number == 0.0 && std::signbit(number)) << text;
        // A letter that belongs to no number ends it, whatever follows.
        ASSERT_EQ(ParseLeadingNumber(text + "x" + randomText(dice)), number) << text;
    }
}

TEST(StrictNumber, TakesAPlainNumberWithSurroundingBlanks)
{
    EXPECT_EQ(StrictNumber("12.5", "."), 12.5);
    EXPECT_EQ(StrictNumber(" \t12.5  ", "."), 12.5);
    EXPECT_EQ(StrictNumber("-3", "."), -3.0);
    EXPECT_EQ(StrictNumber("+3", "."), 3.0);
    EXPECT_EQ(StrictNumber(".5", "."), 0.5);
    EXPECT_EQ(StrictNumber("5.", "."), 5.0);
    EXPECT_EQ(StrictNumber("1.5E+15", "."), 1.5e15);
    EXPECT_EQ(StrictNumber("1E-05", "."), 0.00001);
    EXPECT_EQ(StrictNumber("1E-999", "."), 0.0);
    EXPECT_FALSE(std::signbit(StrictNumber("-0", ".")));
}

TEST(StrictNumber, TakesTheSeparatorOfTheMomentAndThePoint)
{
    EXPECT_EQ(StrictNumber("2,5", ","), 2.5);
    EXPECT_EQ(StrictNumber("2.5", ","), 2.5);
    EXPECT_EQ(StrictNumber("2.5", ""), 2.5);
    EXPECT_EQ(failureOf([] { StrictNumber("2,5", "."); }), FailureKind::badNumber);
    EXPECT_EQ(failureOf([] { StrictNumber("1.234,5", ","); }), FailureKind::badNumber);
}

TEST(StrictNumber, FailsOnAnythingElse)
{
    for (const char* text : {"",   " ",   "10 mA", "1 2",  "1.2.3", "- 5", "--5",  ".",  "-",   "E5",
                             "2E", "2E+", "2Es",   "&H10", "inf",   "nan", "0x10", "5x", "\n5", "5\xC2\xA0"})
        EXPECT_EQ(failureOf([text] { StrictNumber(text, "."); }), FailureKind::badNumber) << '"' << text << '"';
    EXPECT_EQ(failureOf([] { StrictNumber(std::string_view("5\0", 2), "."); }), FailureKind::badNumber);
    EXPECT_EQ(failureOf([] { StrictNumber("1E309", "."); }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { StrictNumber("-1E309", "."); }), FailureKind::overflow);
}

TEST(CurrencyValue, AgreesWithTheFiguresOfTheScript)
{
    for (const auto& figure : number_figures::currencyFigures) {
        const CurrencyValue value(figure.number);
        EXPECT_EQ(value.scaled(), figure.scaled) << figure.number;
        EXPECT_EQ(CurrencyText(value, "."), figure.text) << figure.number;
    }
}

TEST(CurrencyValue, SendsTiesToTheEvenInteger)
{
    EXPECT_EQ(CurrencyValue(0.03125).scaled(), 312);
    EXPECT_EQ(CurrencyValue(0.09375).scaled(), 938);
    EXPECT_EQ(CurrencyValue(-0.03125).scaled(), -312);
    EXPECT_EQ(CurrencyValue(-0.09375).scaled(), -938);
    EXPECT_EQ(CurrencyValue(0.03125).toDouble(), 0.0312);
    // No doubles are 0.00005 and 0.00015: the product with 10000 is 0.5, a tie, for the one and below 1.5 for the
    // other.
    EXPECT_EQ(CurrencyValue(0.00005).scaled(), 0);
    EXPECT_EQ(CurrencyValue(0.00015).scaled(), 1);
    EXPECT_EQ(CurrencyValue(std::nextafter(0.03125, 1.0)).scaled(), 313);
}

TEST(CurrencyValue, FailsOutsideItsRange)
{
    // 2 to the 63rd power over 10000 lies between 922337203685477.5 and .625, neighbouring doubles.
    EXPECT_EQ(CurrencyValue(922337203685477.5).scaled(), 9223372036854774784);
    EXPECT_EQ(failureOf([] { CurrencyValue(922337203685477.625); }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { CurrencyValue(-922337203685477.75); }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { CurrencyValue(1e300); }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { CurrencyValue(1e307); }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { CurrencyValue(std::nan("")); }), FailureKind::overflow);
}

TEST(CurrencyText, ShowsUpToFourDecimals)
{
    EXPECT_EQ(CurrencyText(12.5, "."), "12.5");
    EXPECT_EQ(CurrencyText(3.0, "."), "3");
    EXPECT_EQ(CurrencyText(0.0012, "."), "0.0012");
    EXPECT_EQ(CurrencyText(-1.25, "."), "-1.25");
    EXPECT_EQ(CurrencyText(0.0, "."), "0");
    EXPECT_EQ(CurrencyText(-0.00001, "."), "0");
    EXPECT_EQ(CurrencyText(-0.5, ","), "-0,5");
    EXPECT_EQ(CurrencyText(1000000.0, ","), "1000000");
    EXPECT_EQ(CurrencyText(0.99995, "."), "1");
    EXPECT_EQ(CurrencyText(CurrencyValue::fromScaled(std::numeric_limits<std::int64_t>::max()), "."),
              "922337203685477.5807");
    EXPECT_EQ(CurrencyText(CurrencyValue::fromScaled(std::numeric_limits<std::int64_t>::min()), "."),
              "-922337203685477.5808");
}

TEST(CurrencyText, ReadsBackAsTheSameNumber)
{
    std::mt19937_64 dice(7);
    for (int round = 0; round < 50'000; ++round) {
        const auto scaled = static_cast<std::int64_t>(dice() >> (12 + dice() % 50)) * (round % 2 == 0 ? 1 : -1);
        const CurrencyValue value = CurrencyValue::fromScaled(scaled);
        const double number = ParseLeadingNumber(CurrencyText(value, "."));
        ASSERT_EQ(number, value.toDouble()) << scaled;
        // Beyond this size neighbouring doubles lie too far apart to tell every ten-thousandth.
        if (std::abs(scaled) < 1'000'000'000'000'000) {
            ASSERT_EQ(CurrencyValue(number).scaled(), scaled);
        }
    }
}

TEST(TruncToInteger, CutsTheFractionOffTowardZero)
{
    EXPECT_EQ(TruncToInteger(2.9), 2.0);
    EXPECT_EQ(TruncToInteger(-2.9), -2.0);
    EXPECT_EQ(TruncToInteger(1e300), 1e300);
    EXPECT_FALSE(std::signbit(TruncToInteger(-0.9)));
    EXPECT_EQ(NumberText(TruncToInteger(Real(-0.9)), "."), "0");
    EXPECT_EQ(NumberText(TruncToInteger(Real(99.999) / 3.0), "."), "33");
}

TEST(RoundToInt16, SendsTiesToTheEvenIntegerAndFailsBeyond16Bits)
{
    EXPECT_EQ(RoundToInt16(2.5), 2);
    EXPECT_EQ(RoundToInt16(3.5), 4);
    EXPECT_EQ(RoundToInt16(-2.5), -2);
    EXPECT_EQ(RoundToInt16(-3.5), -4);
    EXPECT_EQ(RoundToInt16(0.5), 0);
    EXPECT_EQ(RoundToInt16(-0.5), 0);
    EXPECT_EQ(RoundToInt16(0.49999999999999994), 0);
    EXPECT_EQ(RoundToInt16(2.51), 3);
    EXPECT_EQ(RoundToInt16(32767.4), 32767);
    EXPECT_EQ(RoundToInt16(-32768.5), -32768);
    EXPECT_EQ(failureOf([] { RoundToInt16(32767.5); }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { RoundToInt16(-32768.6); }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { RoundToInt16(1e300); }), FailureKind::overflow);
}

TEST(NumberText, AgreesWithTheFiguresOfTheScript)
{
    for (const auto& figure : number_figures::textFigures)
        EXPECT_EQ(NumberText(figure.number, "."), figure.text);
}

TEST(NumberText, ShowsFifteenDigitsAndAnExponentOnlyWhereItMust)
{
    EXPECT_EQ(NumberText(20.0, "."), "20");
    EXPECT_EQ(NumberText(0.5, "."), "0.5");
    EXPECT_EQ(NumberText(-0.5, "."), "-0.5");
    EXPECT_EQ(NumberText(2.5, ","), "2,5");
    EXPECT_EQ(NumberText(1.0 / 3.0, "."), "0.333333333333333");
    EXPECT_EQ(NumberText(0.1 + 0.2, "."), "0.3");
    EXPECT_EQ(NumberText(999999999999999.0, "."), "999999999999999");
    EXPECT_EQ(NumberText(1e15, "."), "1E+15");
    EXPECT_EQ(NumberText(1.5e15, ","), "1,5E+15");
    EXPECT_EQ(NumberText(0.0001, "."), "0.0001");
    EXPECT_EQ(NumberText(0.00001, "."), "1E-05");
    EXPECT_EQ(NumberText(-0.0, "."), "0");
    EXPECT_EQ(failureOf([] { NumberText(std::numeric_limits<double>::infinity(), "."); }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { NumberText(std::nan(""), "."); }), FailureKind::overflow);
}

// Half of them anywhere in the range of doubles, half of the size that fields have.
double randomDouble(std::mt19937_64& dice)
{
    const auto mantissa = static_cast<double>(dice() % (1ULL << 53)) + 1.0;
    const int exponent = static_cast<int>(dice() % (dice() % 2 == 0 ? 1960 : 30));
    return std::ldexp(dice() % 2 == 0 ? mantissa : -mantissa, exponent < 30 ? exponent - 53 : exponent - 1020);
}

TEST(NumberText, ReadsBackAsTheSameText)
{
    std::mt19937_64 dice(15);
    for (int round = 0; round < 200'000; ++round) {
        const double number = randomDouble(dice);
        const std::string text = NumberText(number, ".");
        const double read = ParseLeadingNumber(text);
        // Fifteen digits: half a unit of the last one is at most 5E-15 of the number; the doubles round a little more.
        ASSERT_LE(std::abs(read / number - 1.0), 5.4e-15) << text;
        ASSERT_EQ(NumberText(read, "."), text);
        ASSERT_EQ(StrictNumber(NumberText(number, ","), ","), read) << text;
    }
}

TEST(NumberText, ReadsBackExactlyWhatAPersonTypes)
{
    std::mt19937_64 dice(4);
    for (int round = 0; round < 50'000; ++round) {
        const std::string text = std::to_string(dice() % 10'000'000 + 1) + "." + std::to_string(dice() % 10'000) + "1";
        ASSERT_EQ(NumberText(ParseLeadingNumber(text), "."), text);
    }
}

TEST(FailureKinds, HaveNamesOfTheirOwn)
{
    EXPECT_STREQ(ProgramFailure(FailureKind::divisionByZero).what(), "Division by zero");
    EXPECT_STREQ(ProgramFailure(FailureKind::overflow).what(), "Overflow");
    EXPECT_STREQ(ProgramFailure(FailureKind::badNumber).what(), "Not a number");
    EXPECT_STREQ(ProgramFailure(FailureKind::badArgument).what(), "Value not allowed");
}

// The C and C++ locales of a student in Argentina while it lives.
class CommaLocale {
public:
    CommaLocale() : oldC_(std::setlocale(LC_ALL, nullptr)), oldCpp_(std::locale())
    {
        ::setenv("LOCPATH", (places::build() + "/locales").c_str(), 0);
        present_ = std::setlocale(LC_ALL, "es_AR.UTF-8") != nullptr;
        if (present_)
            std::locale::global(std::locale("es_AR.UTF-8"));
    }
    ~CommaLocale()
    {
        std::locale::global(oldCpp_);
        std::setlocale(LC_ALL, oldC_.c_str());
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    bool present() const { return present_; }

private:
    std::string oldC_;
    std::locale oldCpp_;
    bool present_ = false;
};

TEST(NumberRules, AreTheSameUnderACommaLocale)
{
    const CommaLocale locale;
    ASSERT_TRUE(locale.present()) << "es_AR.UTF-8 is missing";
    char half[8] = {};
    std::snprintf(half, sizeof half, "%.1f", 0.5);
    ASSERT_STREQ(half, "0,5");

    EXPECT_EQ(NumberText(1234567.5, "."), "1234567.5");
    EXPECT_EQ(NumberText(1.5e-7, "."), "1.5E-07");
    EXPECT_EQ(CurrencyText(1234567.25, "."), "1234567.25");
    EXPECT_EQ(ParseLeadingNumber("12.5 V"), 12.5);
    EXPECT_EQ(ParseLeadingNumber("12,5 V"), 12.0);
    EXPECT_EQ(StrictNumber("12.5", "."), 12.5);
    EXPECT_EQ(failureOf([] { StrictNumber("12,5", "."); }), FailureKind::badNumber);
}

} // namespace velmor::rules::numbers_test
