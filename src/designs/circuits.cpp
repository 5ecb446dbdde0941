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
        &form2::circuit,  &desaco::circuit, &parc_desac::circuit, &form8::circuit,  &form18::circuit,
        &form4::circuit,  &form17::circuit, &form9::circuit,      &form3::circuit,  &form13::circuit,
        &form12::circuit, &form15::circuit, &form20::circuit,     &form10::circuit, &form11::circuit,
    };
    for (const check::SheetTable* table : tables)
        if (host::sameName(table->sheet, window))
            return table;
    return nullptr;
}

} // namespace velmor::designs
