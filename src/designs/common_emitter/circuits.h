// SPDX-License-Identifier: MIT
// The circuits of the common-emitter sheets, one table a sheet, for the check of a finished design.
#pragma once

#include "check/sheet_table.h"

namespace velmor {

namespace form2 {
extern const check::SheetTable circuit;
}

namespace desaco {
extern const check::SheetTable circuit;
}
namespace parc_desac {
extern const check::SheetTable circuit;
}
namespace form8 {
extern const check::SheetTable circuit;
}
namespace form18 {
extern const check::SheetTable circuit;
}

} // namespace velmor
