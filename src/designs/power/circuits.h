// SPDX-License-Identifier: MIT
// The circuits of the power sheets, one table a sheet, for the check of a finished design.
#pragma once

#include "check/sheet_table.h"

namespace velmor {

namespace form15 {
extern const check::SheetTable checkedCircuit;
}
namespace form20 {
extern const check::SheetTable checkedCircuit;
}
namespace form10 {
extern const check::SheetTable checkedCircuit;
}
namespace form11 {
extern const check::SheetTable checkedCircuit;
}

} // namespace velmor
