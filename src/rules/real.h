// SPDX-License-Identifier: MIT
// The real number that every formula of the sheets is written with: a double that is always finite. Division by zero
// and overflow throw ProgramFailure, so that no infinity ever travels on to a label.
#pragma once

#include "host/failure.h"

#include <compare>
#include <limits>

namespace velmor::rules {

class Real {
public:
    constexpr Real() noexcept = default;

    /// Throws ProgramFailure (overflow) for an infinity or a not-a-number.
    constexpr Real(double value) : value_(value) // NOLINT(google-explicit-constructor): formulas hold plain constants
    {
        if (!isFinite(value))
            throw host::ProgramFailure(host::FailureKind::overflow);
    }

    [[nodiscard]] constexpr double value() const noexcept { return value_; }

    constexpr Real& operator+=(Real other) { return *this = Real(value_ + other.value_); }
    constexpr Real& operator-=(Real other) { return *this = Real(value_ - other.value_); }
    constexpr Real& operator*=(Real other) { return *this = Real(value_ * other.value_); }

    /// Throws ProgramFailure: divisionByZero when `other` is 0, also for 0 / 0; overflow when the quotient is too
    /// large.
    constexpr Real& operator/=(Real other)
    {
        if (other.value_ == 0.0)
            throw host::ProgramFailure(host::FailureKind::divisionByZero);
        return *this = Real(value_ / other.value_);
    }

    friend constexpr Real operator+(Real left, Real right) { return left += right; }
    friend constexpr Real operator-(Real left, Real right) { return left -= right; }
    friend constexpr Real operator*(Real left, Real right) { return left *= right; }
    friend constexpr Real operator/(Real left, Real right) { return left /= right; }
    friend constexpr Real operator-(Real number) { return Real(-number.value_); }
    friend constexpr Real operator+(Real number) { return number; }

    friend constexpr bool operator==(Real left, Real right) noexcept { return left.value_ == right.value_; }
    friend constexpr std::partial_ordering operator<=>(Real left, Real right) noexcept
    {
        return left.value_ <=> right.value_;
    }

private:
    static constexpr bool isFinite(double value) noexcept
    {
        // A not-a-number fails both comparisons.
        return value >= std::numeric_limits<double>::lowest() && value <= std::numeric_limits<double>::max();
    }

    double value_ = 0.0;
};

} // namespace velmor::rules
