// SPDX-License-Identifier: MIT
// One line a sheet.
#include "designs/circuits.h"

#include <array>

#include "designs/base_collector/circuits.h"
#include "designs/common_emitter/circuits.h"
#include "designs/differential/circuits.h"
#include "designs/power/circuits.h"

namespace velmor::designs {

const check::SheetTable* circuitTableOf(std::string_view window)
{
    static const std::array tables{
        &form2::checkedCircuit,  &desaco::checkedCircuit, &parc_desac::checkedCircuit, &form8::checkedCircuit,
        &form18::checkedCircuit, &form4::checkedCircuit,  &form17::checkedCircuit,     &form9::checkedCircuit,
        &form3::checkedCircuit,  &form13::checkedCircuit, &form12::checkedCircuit,     &form15::checkedCircuit,
        &form20::checkedCircuit, &form10::checkedCircuit, &form11::checkedCircuit,
    };
    for (const check::SheetTable* table : tables)
        if (host::sameName(table->sheet, window))
            return table;
    return nullptr;
}

} // namespace velmor::designs
