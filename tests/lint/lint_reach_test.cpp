// SPDX-License-Identifier: MIT
// The rules about what a person reaches reject tables that were made to break them.
#include <gtest/gtest.h>

#include "lint/lint.h"

namespace velmor::lint {

namespace lint_reach_test {

using host::ControlRow;
using host::Event;
using host::KeyAction;
using host::Kind;
using host::noControl;
using host::Role;
using host::WindowSpec;

void nothing(host::Window&, host::EventArgs&) {}

constexpr WindowSpec sheetOf(std::span<const ControlRow> rows)
{
    return {.name = "W", .role = Role::sheet, .place = {0, 0, 1000, 1000}, .controls = rows};
}

TEST(LintSymbols, RejectFieldsWithoutSymbolAndWhatDoesNotSayWhatItIs)
{
    constexpr ControlRow rows[] = {
        {.id = 0, .name = "Text1", .kind = Kind::field, .symbol = "Q", .meaning = {"es", "en"}},
        {.id = 1, .name = "Text2", .kind = Kind::field, .symbol = "Q", .meaning = {"es", ""}},
        {.id = 2, .name = "Text3", .kind = Kind::field, .meaning = {"es", "en"}},
        {.id = 3, .name = "Button", .kind = Kind::button},
        {.id = 4, .name = "Image1", .kind = Kind::image, .look = host::Look::toolButton},
        {.id = 5, .name = "Label1", .kind = Kind::label}};
    EXPECT_EQ(symbols(sheetOf(rows), {}),
              (Complaints{"\"Text2\" does not say what it is", "\"Text3\" has no symbol",
                          "\"Button\" does not say what it is", "\"Image1\" does not say what it is"}));
    constexpr Spot told[] = {{"W", "Text3"}, {"Other", "Text2"}};
    EXPECT_EQ(symbols(sheetOf(rows), told),
              (Complaints{"\"Text2\" does not say what it is", "\"Button\" does not say what it is",
                          "\"Image1\" does not say what it is"}));
    WindowSpec tool = sheetOf(rows);
    tool.role = Role::tool;
    EXPECT_EQ(symbols(tool, {}), Complaints{});
}

TEST(LintStayInside, RejectsControlsOfASheetThatLeaveIt)
{
    constexpr ControlRow rows[] = {{.id = 0, .name = "A", .kind = Kind::label, .place = {0, 0, 1000, 1000}},
                                   {.id = 1, .name = "B", .kind = Kind::label, .place = {1, 0, 1000, 1000}},
                                   {.id = 2, .name = "C", .kind = Kind::label, .place = {0, 1, 1000, 1000}},
                                   {.id = 3, .name = "D", .kind = Kind::label, .place = {-1, 0, 10, 10}},
                                   {.id = 4, .name = "E", .kind = Kind::label, .place = {0, -1, 10, 10}}};
    EXPECT_EQ(stayInside(sheetOf(rows)), (Complaints{"\"B\" leaves the sheet", "\"C\" leaves the sheet",
                                                     "\"D\" leaves the sheet", "\"E\" leaves the sheet"}));
}

TEST(LintKeysForTheMouse, RejectWhatOnlyAMouseReaches)
{
    constexpr ControlRow rows[] = {
        {.id = 0, .name = "Image1", .kind = Kind::image}, {.id = 1, .name = "Image2", .kind = Kind::image},
        {.id = 2, .name = "Image3", .kind = Kind::image}, {.id = 3, .name = "Image4", .kind = Kind::image},
        {.id = 4, .name = "Text1", .kind = Kind::field},  {.id = 5, .name = "mnuA", .kind = Kind::menu},
        {.id = 6, .name = "Image5", .kind = Kind::image}};
    constexpr host::SlotRow slots[] = {{0, Event::click, nothing},         {0, Event::mouseDown, nothing},
                                       {1, Event::mouseDown, nothing},     {2, Event::drop, nothing},
                                       {3, Event::click, nothing},         {4, Event::click, nothing},
                                       {5, Event::click, nothing},         {6, Event::hover, nothing},
                                       {noControl, Event::click, nothing}, {2, Event::hover, nothing}};
    constexpr host::ShortcutRow keys[] = {{"F2", 1, KeyAction::rightPress, noControl, {"es", "en"}},
                                          {"F3", 1, KeyAction::dragTo, 2, {"es", "en"}},
                                          {"F4", 3, KeyAction::hover, noControl, {"es", "en"}}};
    WindowSpec window = sheetOf(rows);
    window.slots = slots;
    window.shortcuts = keys;
    EXPECT_EQ(keysForTheMouse(window, {}),
              (Complaints{"\"Image1\" is reached by the mouse alone", "\"Image4\" is reached by the mouse alone"}));
    constexpr Spot told[] = {{"w", "image1"}, {"Other", "Image4"}};
    EXPECT_EQ(keysForTheMouse(window, told), Complaints{"\"Image4\" is reached by the mouse alone"});
    window.role = Role::palette;
    EXPECT_EQ(keysForTheMouse(window, told),
              (Complaints{"\"Image4\" is reached by the mouse alone", "\"Image5\" speaks by the mouse alone",
                          "\"Image3\" speaks by the mouse alone"}));
    window.role = Role::tool;
    EXPECT_EQ(keysForTheMouse(window, {}), Complaints{});
}

} // namespace lint_reach_test

} // namespace velmor::lint
