// SPDX-License-Identifier: MIT
// The table of `Form2`'s controls: the rows of its family (emitter_controls.h) and its own, and what of its drawing comes with
// which field.
#include "designs/common_emitter/form2_controls.h"

#include <array>

#include "designs/common_emitter/emitter_controls.h"

namespace velmor::form2 {

namespace tables_detail {

using namespace common_emitter;                  // NOLINT(google-build-using-namespace): the rows of the family
using namespace common_emitter::controls_detail; // NOLINT(google-build-using-namespace): and the words of its tables

constexpr auto title = sheets::titleBlock({"Emisor común, clase A", "Common emitter, class A"});

// clang-format off
constexpr auto ownRows = std::to_array<ControlRow>({
    paper(Image1, "Image1", title),
    choice(Picture6, "Picture6", 0,
       {"Diseñar con emisor desacoplado", "Design with the emitter bypassed"}, bypassMarks),
    choice(Picture4, "Picture4", 1,
       {"Diseñar con emisor parcialmente desacoplado", "Design with the emitter partly bypassed"}, partialMarks),
    inForce(Picture1, "Picture1", 6,
       {"Desacoplado: vuelve al comienzo", "Bypassed: back to the beginning"}, bypassMarks),
});
constexpr auto rows = sheets::inHandleOrder<controlCount>(emitterRows<Control>, modeRows<Control>, ownRows);

constexpr auto growthRows = sheets::joined(emitterGrowth<Control>, modeGrowth<Control>);
constexpr auto valueRows = sheets::joined(emitterValues<Control>, modeValues<Control>);
// clang-format on

static_assert(host::rowsInOrder(rows));

} // namespace tables_detail

const std::span<const host::ControlRow> controls = tables_detail::rows;
const std::span<const host::Handle> notes = common_emitter::emitterNotes<Control>;
const std::span<const host::GrowthRow> growth = tables_detail::growthRows;
const std::span<const host::ValueRow> values = tables_detail::valueRows;

} // namespace velmor::form2
