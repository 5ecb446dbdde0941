// SPDX-License-Identifier: MIT
// The table of slots of a sheet: those of the frame, of its chain and of its tools, then the sheet's own, which replace any of
// the same event. Knows no sheet.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "sheets/design_sheet.h"
#include "sheets/rows.h"

namespace velmor::sheets {

/// What every sheet does as a window, whatever its fields are.
inline constexpr std::array frameSlots{
    host::SlotRow{host::noControl, host::Event::activate, host::slot<&DesignSheet::frameActivate>},
    host::SlotRow{host::noControl, host::Event::comeBack, host::slot<&DesignSheet::frameComeBack>},
    host::SlotRow{host::noControl, host::Event::repaint, host::slot<&DesignSheet::frameRepaint>},
    host::SlotRow{host::noControl, host::Event::resize, host::slot<&DesignSheet::frameResize>},
    host::SlotRow{host::noControl, host::Event::queryClose, host::slot<&DesignSheet::frameQueryClose>},
};

namespace slots_detail {

using host::Event;
using host::noControl;
using host::slot;
using host::SlotRow;

// A sheet that declares one of the five itself gets its own.
template <class Sheet, std::size_t Count>
consteval std::array<SlotRow, 5 * Count> chainRows(const std::array<ChainRow, Count>& chain)
{
    std::array<SlotRow, 5 * Count> rows{};
    std::size_t next = 0;
    for (const ChainRow& row : chain) {
        rows[next++] = {row.field, Event::focus, slot<&Sheet::focusField>};
        rows[next++] = {row.field, Event::key, slot<&Sheet::keyField>};
        rows[next++] = {row.field, Event::lostFocus, slot<&Sheet::leaveField>};
        rows[next++] = {row.field, Event::hover, slot<&Sheet::hoverField>};
        rows[next++] = {row.field, Event::mouseDown, slot<&Sheet::pressField>};
    }
    return rows;
}

template <class Sheet, Tools tools>
consteval auto toolRows()
{
    constexpr std::array all{
        SlotRow{tools.guide, Event::click, slot<&Sheet::clickGuide>},
        SlotRow{tools.calculator, Event::click, slot<&Sheet::clickCalculator>},
        SlotRow{tools.report, Event::click, slot<&Sheet::clickReport>},
        SlotRow{tools.clone.first, Event::click, slot<&Sheet::clickClone>},
        SlotRow{tools.clone.second, Event::click, slot<&Sheet::clickClone>},
        SlotRow{tools.help.first, Event::click, slot<&Sheet::openHelpBoxes>},
        SlotRow{tools.help.second, Event::click, slot<&Sheet::closeHelpBoxes>},
    };
    constexpr auto isThere = [](const SlotRow& row) { return row.control != noControl; };
    std::array<SlotRow, std::count_if(all.begin(), all.end(), isThere)> rows{};
    std::copy_if(all.begin(), all.end(), rows.begin(), isThere);
    return rows;
}

} // namespace slots_detail

/// All slots of a sheet. A row of `own` without a function takes a slot of the frame away.
template <class Sheet, Tools tools, std::size_t Fields, std::size_t Own>
consteval auto sheetSlots(const std::array<ChainRow, Fields>& chain, const std::array<host::SlotRow, Own>& own)
{
    using namespace slots_detail;
    return joined(frameSlots, chainRows<Sheet>(chain), toolRows<Sheet, tools>(), own);
}

} // namespace velmor::sheets
