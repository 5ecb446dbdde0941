// SPDX-License-Identifier: MIT
// Tables of the engine's fixture program.
#include "host/fixture.h"

namespace velmor::test {

using host::ControlRow;
using host::Event;
using host::Handle;
using host::Kind;
using host::noControl;
using host::SlotRow;

namespace fixture_detail {

constexpr ControlRow controls[] = {
    {.id = First, .name = "First", .kind = Kind::field},
    {.id = Second, .name = "Second", .kind = Kind::field},
    {.id = Third, .name = "Third", .kind = Kind::field},
    {.id = Press, .name = "Press", .kind = Kind::button},
    {.id = Photo, .name = "Photo", .kind = Kind::picture},
    {.id = Still, .name = "Still", .kind = Kind::image},
    {.id = Words, .name = "Words", .kind = Kind::label},
    {.id = ItemMenu, .name = "ItemMenu", .kind = Kind::menu},
    {.id = Item, .name = "Item(1)", .kind = Kind::menu, .parent = ItemMenu},
};
static_assert(host::rowsInOrder(controls));

constexpr Handle order[] = {First, Second, Third};

constexpr std::array<SlotRow, 9 * 9 + 9> makeSlots()
{
    std::array<SlotRow, 9 * 9 + 9> rows{};
    std::size_t at = 0;
    for (Handle control = 0; control < 9; ++control) {
        rows[at++] = noting<Event::focus>(control);
        rows[at++] = noting<Event::lostFocus>(control);
        rows[at++] = noting<Event::click>(control);
        rows[at++] = noting<Event::doubleClick>(control);
        rows[at++] = noting<Event::mouseDown>(control);
        rows[at++] = noting<Event::mouseUp>(control);
        rows[at++] = noting<Event::hover>(control);
        rows[at++] = noting<Event::key>(control);
        rows[at++] = noting<Event::menuOpen>(control);
    }
    rows[at++] = noting<Event::load>(noControl);
    rows[at++] = noting<Event::activate>(noControl);
    rows[at++] = noting<Event::comeBack>(noControl);
    rows[at++] = noting<Event::repaint>(noControl);
    rows[at++] = noting<Event::resize>(noControl);
    rows[at++] = noting<Event::queryClose>(noControl);
    rows[at++] = noting<Event::unload>(noControl);
    rows[at++] = noting<Event::click>(noControl);
    rows[at++] = noting<Event::hover>(noControl);
    return rows;
}
constexpr auto slots = makeSlots();

extern const host::WindowSpec mainSpec, sheetSpec, toolSpec, paletteSpec;
template <const host::WindowSpec& Spec>
std::unique_ptr<host::Window> create(host::SheetHost& host)
{
    return std::make_unique<FixtureWindow>(host, Spec);
}
const host::WindowSpec mainSpec{
    .name = "Main", .role = host::Role::mainWindow, .controls = controls, .slots = slots, .create = create<mainSpec>};
const host::WindowSpec sheetSpec{.name = "Sheet",
                                 .role = host::Role::sheet,
                                 .controls = controls,
                                 .slots = slots,
                                 .tabOrder = order,
                                 .create = create<sheetSpec>};
const host::WindowSpec toolSpec{
    .name = "Tool", .role = host::Role::tool, .controls = controls, .slots = slots, .create = create<toolSpec>};
const host::WindowSpec paletteSpec{.name = "Palette",
                                   .role = host::Role::palette,
                                   .controls = controls,
                                   .slots = slots,
                                   .create = create<paletteSpec>};
const host::WindowSpec* const windows[] = {&mainSpec, &sheetSpec, &toolSpec, &paletteSpec};

} // namespace fixture_detail

FixtureProgram::FixtureProgram() : engine(fixture_detail::windows, screen, settings)
{
    engine.loadMainWindow();
    FixtureWindow::log.clear();
}

FixtureWindow& FixtureProgram::newSheet()
{
    engine.userRun([this] { engine.host().Show(*engine.host().NewInstance("Sheet")); });
    return sheet();
}

} // namespace velmor::test
