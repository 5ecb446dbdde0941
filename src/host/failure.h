// SPDX-License-Identifier: MIT
// The failure that ends the program: what a number rule throws and the event engine catches. It carries the kind of
// failure only; the words that the student reads are chosen where it is caught.
#pragma once

#include <stdexcept>

namespace velmor::host {

enum class FailureKind {
    divisionByZero, // a divisor of zero, whatever it divides
    overflow,       // a result outside the range of its type
    badNumber,      // a text that had to be a number and is none
    badArgument,    // a function asked for a value that it does not have, such as the logarithm of zero
};

/// The plain English name of a kind, for traces and for the text of what().
constexpr const char* failureName(FailureKind kind) noexcept
{
    switch (kind) {
    case FailureKind::divisionByZero:
        return "Division by zero";
    case FailureKind::overflow:
        return "Overflow";
    case FailureKind::badNumber:
        return "Not a number";
    case FailureKind::badArgument:
        return "Value not allowed";
    }
    return "Failure";
}

class ProgramFailure : public std::runtime_error {
public:
    explicit ProgramFailure(FailureKind kind) : std::runtime_error(failureName(kind)), kind_(kind) {}

    [[nodiscard]] FailureKind kind() const noexcept { return kind_; }

private:
    FailureKind kind_;
};

} // namespace velmor::host
