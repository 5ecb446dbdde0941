// SPDX-License-Identifier: MIT
// A sheet that is told as the template with differences: one field accepts another range, one formula leaves room for the
// junction, one prompt says so. The example of how pairs of sheets are written.
#pragma once

#include "sheets/template_sheet.h"

namespace velmor::twin_sheet {

using rules::Real;

extern const host::WindowSpec spec;

/// Load resistor in kilohms: RL = (Es - Eq - Ed - Vj) / QIc, with Vj = 0.7 V; volts and milliamperes. QIc of 0 is a failure.
Real loadResistor(Real Es, Real Eq, Real Ed, Real QIc);

class TwinSheet final : public template_sheet::TemplateSheet {
public:
    explicit TwinSheet(host::SheetHost& host);

    void focusText5(host::EventArgs& args);
};

} // namespace velmor::twin_sheet
