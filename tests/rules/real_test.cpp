// SPDX-License-Identifier: MIT
// Real numbers fail where a double would go on with an infinity, and are a double everywhere else.
#include "rules/real.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace velmor::rules::real_test {

using host::FailureKind;
using host::ProgramFailure;

constexpr double largest = std::numeric_limits<double>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();

template <class Formula>
FailureKind failureOf(Formula formula)
{
    try {
        static_cast<void>(formula());
    } catch (const ProgramFailure& failure) {
        return failure.kind();
    }
    ADD_FAILURE() << "the formula did not fail";
    return FailureKind::badArgument;
}

TEST(Real, CalculatesAsADoubleDoes)
{
    EXPECT_EQ((Real(25.0) / 2.0).value(), 12.5);
    EXPECT_EQ((Real(0.1) + 0.2).value(), 0.1 + 0.2);
    EXPECT_EQ((1.0 - Real(0.9)).value(), 1.0 - 0.9);
    EXPECT_EQ((6.28 * Real(50.0) * 1000.0).value(), 6.28 * 50.0 * 1000.0);
    EXPECT_EQ((-Real(3.0)).value(), -3.0);
    EXPECT_EQ((+Real(3.0)).value(), 3.0);
    EXPECT_EQ((Real(7) * 2).value(), 14.0);
    EXPECT_EQ(Real().value(), 0.0);
}

TEST(Real, CanBeAConstant)
{
    constexpr Real emitter = Real(25.0) / 10.0;
    static_assert(emitter == 2.5);
    static_assert(emitter > 2 && emitter <= 2.5 && emitter != 3.0);
    SUCCEED();
}

TEST(Real, ChangesInPlace)
{
    Real number = 10.0;
    number += 2.0;
    number *= 3.0;
    number -= 6.0;
    number /= 4.0;
    EXPECT_EQ(number, 7.5);
}

TEST(Real, ComparesWithPlainNumbersOnEitherSide)
{
    const Real number = 2.0;
    EXPECT_TRUE(number < 3 && 3.0 > number);
    EXPECT_TRUE(number == 2 && 2.0 == number);
    EXPECT_TRUE(number >= 2.0 && number != 2.5);
    EXPECT_TRUE(Real(-0.0) == 0.0);
}

TEST(Real, FailsOnDivisionByZero)
{
    EXPECT_EQ(failureOf([] { return Real(1.0) / 0.0; }), FailureKind::divisionByZero);
    EXPECT_EQ(failureOf([] { return Real(0.0) / 0.0; }), FailureKind::divisionByZero);
    EXPECT_EQ(failureOf([] { return 1.0 / Real(-0.0); }), FailureKind::divisionByZero);
    EXPECT_EQ(failureOf([] { return Real(1.0) / (Real(0.5) - 0.5); }), FailureKind::divisionByZero);
}

TEST(Real, FailsOnOverflow)
{
    EXPECT_EQ(failureOf([] { return Real(largest) + largest; }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { return Real(-largest) - largest; }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { return Real(1e200) * 1e200; }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { return Real(1e200) / 1e-200; }), FailureKind::overflow);
}

TEST(Real, NeverHoldsAnInfinityOrANotANumber)
{
    EXPECT_EQ(failureOf([] { return Real(infinity); }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { return Real(-infinity); }), FailureKind::overflow);
    EXPECT_EQ(failureOf([] { return Real(std::nan("")); }), FailureKind::overflow);
    EXPECT_EQ(Real(largest).value(), largest);
    EXPECT_EQ(Real(-largest).value(), -largest);
}

TEST(Real, KeepsItsValueWhenAStepFails)
{
    Real number = 5.0;
    EXPECT_THROW(number /= 0.0, ProgramFailure);
    EXPECT_THROW(number *= largest, ProgramFailure);
    EXPECT_EQ(number, 5.0);
}

TEST(Real, LosesWhatIsTooSmallInSilence)
{
    EXPECT_EQ(Real(1e-200) * 1e-200, 0.0);
}

} // namespace velmor::rules::real_test
