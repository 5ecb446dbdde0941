// SPDX-License-Identifier: MIT
// The pages of `Form7`, which presents the two voltage-feedback circuits. Texts only.
#pragma once

#include "host/bitext.h"

namespace velmor::form7 {

/// `Label3` after the choice of the simple circuit, and after that of the stable one: when it serves, and the flow of design.
extern const host::BiText flowOfSimple;
extern const host::BiText flowOfStable;

/// `Label4`: the table of formulas of both circuits.
extern const host::BiText formulas;

/// `Label5`: the base resistors of the stabilised circuit.
extern const host::BiText baseResistors;

} // namespace velmor::form7
