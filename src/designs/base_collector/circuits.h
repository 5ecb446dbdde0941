// SPDX-License-Identifier: MIT
// The circuits of the sheets fed at the emitter or taken out of it, one table a sheet, for the check of a finished design.
#pragma once

#include "check/sheet_table.h"

namespace velmor {

namespace form4 {
extern const check::SheetTable checkedCircuit;
}
namespace form17 {
extern const check::SheetTable checkedCircuit;
}
namespace form9 {
extern const check::SheetTable checkedCircuit;
}

} // namespace velmor
