// SPDX-License-Identifier: MIT
// Every rule rejects a table that was made to break it, and says what is wrong with it.
#include "lint/lint.h"

#include <gtest/gtest.h>

#include "console/console_screen.h"
#include "host/settings_store.h"

namespace velmor::lint {

namespace lint_test {

using host::ControlRow;
using host::Event;
using host::Handle;
using host::Kind;
using host::Mark;
using host::noControl;
using host::Symbol;
using host::Window;
using host::WindowSpec;

void nothing(Window&, host::EventArgs&) {}

constexpr ControlRow good[] = {
    {.id = 0, .name = "Text1", .kind = Kind::field, .place = {0, 0, 900, 300}, .meaning = {"es", "en"}},
    {.id = 1, .name = "Text2", .kind = Kind::field, .place = {0, 300, 900, 300}, .meaning = {"es", "en"}},
    {.id = 2, .name = "mnuA", .kind = Kind::menu},
    {.id = 3, .name = "mnuB", .kind = Kind::menu, .parent = 2},
};
constexpr WindowSpec windowOf(std::span<const ControlRow> rows)
{
    return {.name = "W", .place = {0, 0, 1000, 1000}, .controls = rows};
}

TEST(LintHandles, RejectRowsOutOfOrderAndParentsThatAreNotThere)
{
    EXPECT_EQ(handles(windowOf(good)), Complaints{});
    constexpr ControlRow rows[] = {{.id = 1, .name = "A"}, {.id = 1, .name = "B", .parent = 7}};
    EXPECT_EQ(handles(windowOf(rows)),
              (Complaints{"\"A\" stands in row 0 with the handle 1", "\"B\" lies in a control that does not exist"}));
}

TEST(LintNames, RejectNamesThatAreMissingOrThereTwice)
{
    EXPECT_EQ(names(windowOf(good)), Complaints{});
    constexpr ControlRow rows[] = {{.id = 0, .name = "Image2"}, {.id = 1, .name = "image2"}, {.id = 2}};
    EXPECT_EQ(names(windowOf(rows)), (Complaints{"\"image2\" is there twice", "row 2 has no name"}));
}

TEST(LintSlots, RejectSlotsThatCanNeverRun)
{
    constexpr ControlRow rows[] = {{.id = 0, .name = "Label1", .kind = Kind::label},
                                   {.id = 1, .name = "Text1", .kind = Kind::field}};
    constexpr host::SlotRow bad[] = {{0, Event::click, nothing},       {0, Event::key, nothing},
                                     {1, Event::key, nullptr},         {5, Event::click, nothing},
                                     {noControl, Event::key, nothing}, {1, Event::load, nothing},
                                     {1, Event::timer, nothing}};
    WindowSpec window = windowOf(rows);
    window.slots = bad;
    EXPECT_EQ(slots(window), (Complaints{"slot 1 waits for an event that \"Label1\" never gets",
                                         "slot 2 has no function and takes none away",
                                         "slot 3 belongs to a control that does not exist",
                                         "slot 4 waits for an event that a window never gets",
                                         "slot 5 waits for an event that \"Text1\" never gets",
                                         "slot 6 waits for an event that \"Text1\" never gets"}));
}

TEST(LintTabOrder, RejectsWhatTakesNoFocusAndWhatStandsTwice)
{
    constexpr ControlRow rows[] = {{.id = 0, .name = "Label1", .kind = Kind::label},
                                   {.id = 1, .name = "Text1", .kind = Kind::field}};
    constexpr Handle order[] = {1, 0, 1, 9};
    WindowSpec window = windowOf(rows);
    window.tabOrder = order;
    EXPECT_EQ(tabOrder(window),
              (Complaints{"\"Label1\" is in the tab order and takes no focus", "\"Text1\" is in the tab order twice",
                          "the tab order names a control that does not exist"}));
}

TEST(LintShortcuts, RejectKeysThatAreGivenTwiceOrLeadNowhere)
{
    using host::KeyAction;
    constexpr host::ShortcutRow keys[] = {{"F1", 0, KeyAction::click, noControl, {"es", "en"}},
                                          {"f1", 1, KeyAction::hover, noControl, {"es", "en"}},
                                          {"F2", 9, KeyAction::click, noControl, {"es", "en"}},
                                          {"F3", 0, KeyAction::dragTo, 9, {"es", "en"}},
                                          {"F4", noControl, KeyAction::run, noControl, {"es", "en"}},
                                          {"F5", 0, KeyAction::click, noControl, {"es", ""}},
                                          {"", 0, KeyAction::click, noControl, {"es", "en"}}};
    WindowSpec window = windowOf(good);
    window.shortcuts = keys;
    EXPECT_EQ(shortcuts(window),
              (Complaints{"the key \"f1\" is given twice", "the key \"F2\" belongs to a control that does not exist",
                          "the key \"F3\" leads to a control that does not exist",
                          "the key \"F4\" runs a slot that is not there",
                          "the key \"F5\" lacks its meaning in a language", "a shortcut has no key"}));
}

TEST(LintParents, RejectItemsBelowNoMenuAndCircles)
{
    EXPECT_EQ(parents(windowOf(good)), Complaints{});
    constexpr ControlRow rows[] = {{.id = 0, .name = "Label1", .kind = Kind::label},
                                   {.id = 1, .name = "mnuA", .kind = Kind::menu, .parent = 0},
                                   {.id = 2, .name = "Text1", .kind = Kind::field, .parent = 0},
                                   {.id = 3, .name = "mnuB", .kind = Kind::menu, .parent = 4},
                                   {.id = 4, .name = "mnuC", .kind = Kind::menu, .parent = 3}};
    EXPECT_EQ(parents(windowOf(rows)), (Complaints{"the item \"mnuA\" hangs below no menu",
                                                   "\"Text1\" lies in what is neither panel nor picture",
                                                   "\"mnuB\" is its own ancestor", "\"mnuC\" is its own ancestor"}));
}

TEST(LintStrokes, RejectPartsOfASheetThatDrawNothing)
{
    static constexpr Mark stroke[] = {{.symbol = Symbol::node}};
    constexpr ControlRow rows[] = {{.id = 0, .name = "Line1", .kind = Kind::line, .drawing = stroke},
                                   {.id = 1, .name = "Line2", .kind = Kind::line},
                                   {.id = 2, .name = "Shape1", .kind = Kind::shape},
                                   {.id = 3, .name = "Image1", .kind = Kind::image},
                                   {.id = 4, .name = "Image2", .kind = Kind::image}};
    constexpr Spot spots[] = {{"W", "image2"}, {"Other", "Line2"}};
    WindowSpec window = windowOf(rows);
    EXPECT_EQ(strokes(window, spots), Complaints{}) << "a tool may have empty images";
    window.role = host::Role::sheet;
    EXPECT_EQ(strokes(window, spots),
              (Complaints{"\"Line2\" draws nothing", "\"Shape1\" draws nothing", "\"Image1\" draws nothing"}));
}

TEST(LintWholeWindow, RejectsAWindowThatIsNone)
{
    EXPECT_EQ(wholeWindow({.sheetTitle = {"es", ""}}),
              (Complaints{"the window has no name", "nothing makes the window", "the window has no size",
                          "the sheet's title is there in one language only"}));
}

TEST(LintFiles, RejectLinesOfControlsThatAreNotThere)
{
    constexpr sheets::FileLine lines[] = {{0}, {noControl}, {7}};
    EXPECT_EQ(files(windowOf(good), {.filter = {"A|*.A", "B|*.B"}, .written = lines, .read = lines}),
              (Complaints{"line 3 that is written names a control that does not exist",
                          "line 3 that is read names a control that does not exist"}));
    EXPECT_EQ(files(windowOf(good), {.filter = {"A|*.A", ""}, .temperatureField = 9}),
              (Complaints{"no line is written", "no line is read", "a filter is missing or has no pattern",
                          "the temperature field does not exist"}));
}

TEST(LintCatalogue, RejectsNamesThereTwiceAndAMainWindowBehindOthers)
{
    const WindowSpec one{.name = "Form2"};
    const WindowSpec two{.name = "form2"};
    const WindowSpec* const windows[] = {&one, &two};
    EXPECT_EQ(catalogue(windows),
              (Complaints{"the window \"form2\" is there twice", "the main window does not come first"}));
}

// --- rules that need a window

struct LintWindow : testing::Test {
    console::ConsoleScreen screen;
    host::MemorySettings settings;
    host::Engine engine{{}, screen, settings};
};

TEST_F(LintWindow, RejectsWhatAPersonMayUseAndDoesNotKnow)
{
    constexpr ControlRow rows[] = {{.id = 0, .name = "Text1", .kind = Kind::field, .text = "12"},
                                   {.id = 1, .name = "Command1", .kind = Kind::button, .meaning = {"es", ""}},
                                   {.id = 2, .name = "Image1", .kind = Kind::image},
                                   {.id = 3, .name = "Image2", .kind = Kind::image},
                                   {.id = 4, .name = "Label1", .kind = Kind::label},
                                   {.id = 5, .name = "Command2", .kind = Kind::button, .text = "OK"},
                                   {.id = 6, .name = "Command3", .kind = Kind::button},
                                   {.id = 7, .name = "Image3", .kind = Kind::image}};
    constexpr host::SlotRow clicks[] = {
        {2, Event::click, nothing}, {4, Event::click, nothing}, {7, Event::click, nothing}};
    constexpr host::ShortcutRow keys[] = {{"F1", 7, host::KeyAction::click, noControl, {"es", "en"}}};
    WindowSpec spec = windowOf(rows);
    spec.slots = clicks;
    spec.shortcuts = keys;
    EXPECT_EQ(meanings(Window(engine.host(), spec)),
              (Complaints{"\"Text1\" does not say what it is", "\"Command1\" says what it is in one language only",
                          "\"Image1\" does not say what it is", "\"Command3\" does not say what it is"}));
    const WindowSpec sound = windowOf(good);
    EXPECT_EQ(meanings(Window(engine.host(), sound)), Complaints{});
}

TEST_F(LintWindow, RejectsMarksThatLeaveTheirControlOrNameNothing)
{
    static constexpr host::GridPoint far[] = {{0, 0}, {400, 0}};
    static constexpr Mark drawing[] = {{.symbol = Symbol::wire, .from = {0, 0}, .to = {40, 40}},
                                       {.symbol = Symbol::wire, .from = {0, 0}, .to = {400, 40}},
                                       {.symbol = Symbol::node, .from = {0, -300}, .to = {9000, 9000}},
                                       {.symbol = Symbol::polyline, .points = far},
                                       {.symbol = Symbol::polyline},
                                       {.symbol = Symbol::label, .from = {0, 0}, .name = "R", .value = 8},
                                       {.symbol = Symbol::label, .from = {0, 0}, .name = "R", .field = 8},
                                       {.symbol = Symbol::text, .from = {0, 0}, .note = {"es", ""}}};
    constexpr ControlRow rows[] = {
        {.id = 0, .name = "Line1", .kind = Kind::line, .place = {0, 0, 600, 600}, .drawing = drawing}};
    const WindowSpec spec = windowOf(rows);
    EXPECT_EQ(marks(Window(engine.host(), spec)),
              (Complaints{"mark 1 of \"Line1\" leaves its control", "mark 2 of \"Line1\" leaves its control",
                          "mark 3 of \"Line1\" leaves its control", "mark 4 of \"Line1\" has no points",
                          "mark 5 of \"Line1\" shows the value of a control that does not exist",
                          "mark 6 of \"Line1\" belongs to a field that does not exist",
                          "mark 7 of \"Line1\" is a text without words in both languages"}));
}

TEST_F(LintWindow, RejectsFieldsWithoutAPlaceOrOutsideTheirWindow)
{
    constexpr ControlRow rows[] = {{.id = 0, .name = "Text1", .kind = Kind::field, .place = {0, 0, 1000, 1000}},
                                   {.id = 1, .name = "Text2", .kind = Kind::field},
                                   {.id = 2, .name = "Text3", .kind = Kind::field, .place = {1, 0, 1000, 10}},
                                   {.id = 3, .name = "Text4", .kind = Kind::field, .place = {0, -1, 10, 10}},
                                   {.id = 4, .name = "Label1", .kind = Kind::label}};
    const WindowSpec spec = windowOf(rows);
    EXPECT_EQ(places(Window(engine.host(), spec)),
              (Complaints{"\"Text2\" has no place", "\"Text3\" lies outside its window",
                          "\"Text4\" lies outside its window"}));
}

TEST_F(LintWindow, JudgesPlacesAsAScreenShowsThem)
{
    constexpr ControlRow rows[] = {{.id = 0, .name = "Text1", .kind = Kind::field, .place = {0, 0, 10, 10}},
                                   {.id = 1, .name = "Text2", .kind = Kind::field, .place = {5000, 0, 10, 10}}};
    WindowSpec spec = windowOf(rows);
    spec.shownPlace = [](const Window&, Handle) { return host::Place{5, 5, 10, 10}; };
    const Window window(engine.host(), spec);
    EXPECT_EQ(places(window), Complaints{});
    EXPECT_EQ(overlaps(window, {}), Complaints{"\"Text1\" lies upon \"Text2\""});
}

TEST_F(LintWindow, RejectsFieldsUponEachOtherUnlessTheyAreNeverSeenTogether)
{
    constexpr ControlRow rows[] = {
        {.id = 0, .name = "Text1", .kind = Kind::field, .place = {0, 0, 100, 100}},
        {.id = 1, .name = "Text2", .kind = Kind::field, .place = {100, 0, 100, 100}},
        {.id = 2, .name = "Text3", .kind = Kind::field, .place = {99, 99, 10, 10}},
        {.id = 3, .name = "Help", .kind = Kind::page, .place = {0, 0, 500, 500}, .overlay = true}};
    const WindowSpec spec = windowOf(rows);
    const Window window(engine.host(), spec);
    EXPECT_EQ(overlaps(window, {}), (Complaints{"\"Text1\" lies upon \"Text3\"", "\"Text2\" lies upon \"Text3\""}));
    constexpr NeverTogether told[] = {{"W", "text3", "Text2"}};
    EXPECT_EQ(overlaps(window, told), Complaints{"\"Text1\" lies upon \"Text3\""});
    constexpr NeverTogether all[] = {{"W", "Text*", "Text*"}};
    EXPECT_EQ(overlaps(window, all), Complaints{});
    constexpr NeverTogether elsewhere[] = {{"Other", "Text3", "Text2"}};
    EXPECT_EQ(overlaps(window, elsewhere).size(), 2u);
}

} // namespace lint_test

} // namespace velmor::lint
