// SPDX-License-Identifier: MIT
// The list of the program's windows, one line each.
#include "program/catalogue.h"

#include <vector>

#include "designs/base_collector/form17.h"
#include "designs/base_collector/form4.h"
#include "designs/base_collector/form9.h"
#include "designs/common_emitter/desaco.h"
#include "designs/common_emitter/form18.h"
#include "designs/common_emitter/form2.h"
#include "designs/common_emitter/form8.h"
#include "designs/common_emitter/parc_desac.h"
#include "designs/differential/form12_controls.h"
#include "designs/differential/form13_controls.h"
#include "designs/differential/form3_controls.h"
#include "designs/power/form10.h"
#include "designs/power/form11.h"
#include "designs/power/form15.h"
#include "designs/power/form20.h"
#include "editors/editor.h"
#include "editors/find_dialogs.h"
#include "frame/form16_controls.h"
#include "frame/mdi_form1_controls.h"
#include "tools/calculator.h"
#include "tools/form14.h"
#include "tools/form19.h"
#include "tools/form21.h"
#include "tools/form22.h"
#include "tools/form5.h"
#include "tools/form6.h"
#include "tools/form7.h"
#include "tools/frm_about.h"
#include "tools/frm_drag.h"
#include "tools/infoform.h"

namespace velmor::program {

host::Catalogue catalogue()
{
    // clang-format off
    static const std::vector<const host::WindowSpec*> windows{
        &main_window::spec,

        // sheets, family by family
        &form2::spec,
        &desaco::spec,
        &parc_desac::spec,
        &form8::spec,
        &form18::spec,

        &form4::spec,
        &form17::spec,
        &form9::spec,

        &form3::spec,
        &form13::spec,
        &form12::spec,

        &form15::spec,
        &form20::spec,
        &form10::spec,
        &form11::spec,

        // around them
        &palette::spec,
        &editors::frmEditor,
        &editors::frmEdito1,
        &editors::frmEdito2,
        &editors::frmEdito3,
        &find_dialogs::frmFind,
        &find_dialogs::frmReplace,
        &calculator::spec,
        &form14::spec,
        &form19::spec,
        &form21::spec,
        &form22::spec,
        &form5::spec,
        &form6::spec,
        &form7::spec,
        &frm_about::spec,
        &frm_drag::spec,
        &infoform::spec,
    };
    // clang-format on
    return windows;
}

} // namespace velmor::program
