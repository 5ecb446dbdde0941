// SPDX-License-Identifier: MIT
// The circuits of the differential sheets, one table a sheet, for the check of a finished design.
#pragma once

#include "check/sheet_table.h"

namespace velmor {

namespace form3 {
extern const check::SheetTable checkedCircuit;
}
namespace form13 {
extern const check::SheetTable checkedCircuit;
}
namespace form12 {
extern const check::SheetTable checkedCircuit;
}

} // namespace velmor
