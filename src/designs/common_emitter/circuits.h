// SPDX-License-Identifier: MIT
// The circuits of the common-emitter sheets, one table a sheet, for the check of a finished design.
#pragma once

#include "check/sheet_table.h"

namespace velmor {

namespace form2 {
extern const check::SheetTable checkedCircuit;
}

namespace desaco {
extern const check::SheetTable checkedCircuit;
}
namespace parc_desac {
extern const check::SheetTable checkedCircuit;
}
namespace form8 {
extern const check::SheetTable checkedCircuit;
}
namespace form18 {
extern const check::SheetTable checkedCircuit;
}

} // namespace velmor
