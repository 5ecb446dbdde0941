// SPDX-License-Identifier: MIT
// Walks the tables of Form2: places, texts in both languages, strokes, tab order, files. Each check is seen to fail once, on a
// table that is bad on purpose.
#include <algorithm>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "designs/common_emitter/form2_program.h"

namespace velmor::form2_tables_test {

using namespace form2;
using host::ControlRow;
using host::Handle;
using host::Kind;

bool overlap(const host::Place& one, const host::Place& other)
{
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

bool inside(const host::Place& place, const host::Place& sheet)
{
    return place.left >= 0 && place.top >= 0 && place.left + place.width <= sheet.width &&
           place.top + place.height <= sheet.height;
}

using Complaints = std::vector<std::string>;

Complaints complaintsAboutPlaces(std::span<const ControlRow> rows, const host::Place& sheet)
{
    Complaints found;
    for (const ControlRow& row : rows) {
        if (!inside(row.place, sheet))
            found.push_back(std::string(row.name) + " is outside");
        for (const ControlRow& other : rows)
            if (row.kind == Kind::field && other.kind == Kind::field && row.id < other.id &&
                overlap(row.place, other.place))
                found.push_back(std::string(row.name) + " lies over " + std::string(other.name));
    }
    return found;
}

Complaints complaintsAboutNames(std::span<const ControlRow> rows)
{
    Complaints found;
    std::set<std::string> seen;
    for (const ControlRow& row : rows)
        if (!seen.insert(std::string(row.name)).second)
            found.push_back(std::string(row.name) + " stands twice");
    return found;
}

Complaints complaintsAboutMeanings(std::span<const ControlRow> rows)
{
    Complaints found;
    for (const ControlRow& row : rows) {
        if (!host::takesFocus(row.kind))
            continue;
        if (row.meaning.es.empty() || row.meaning.en.empty())
            found.push_back(std::string(row.name) + " does not say what it is");
        if (row.kind == Kind::field && row.symbol.empty())
            found.push_back(std::string(row.name) + " has no symbol");
    }
    return found;
}

Complaints complaintsAboutStrokes(std::span<const ControlRow> rows)
{
    Complaints found;
    for (const ControlRow& row : rows) {
        const bool drawn =
            row.kind == Kind::line || row.kind == Kind::shape || row.kind == Kind::image || row.kind == Kind::picture;
        if (drawn && row.drawing.empty())
            found.push_back(std::string(row.name) + " draws nothing");
    }
    return found;
}

Complaints complaintsAboutPrompts(std::span<const Saying> rows, std::size_t controlsInTable)
{
    const auto stands = [&](Handle control) { return control < controlsInTable; };
    Complaints found;
    for (const Saying& row : rows) {
        if (!(stands(row.about) || row.when == When::empty) || !(stands(row.place) || row.place == sheets::inBox))
            found.push_back("a prompt for nothing");
        if (row.text.es.empty() || (row.text.en.empty() && !(row.about == Text8 && row.when == When::hover)))
            found.push_back("a prompt in one language: " + std::string(row.text.es));
    }
    return found;
}

TEST(Form2Tables, EveryControlHasItsNameOnce)
{
    EXPECT_EQ(complaintsAboutNames(controls), Complaints{});
    const ControlRow twice[] = {{.id = 0, .name = "Text1"}, {.id = 1, .name = "Text1"}};
    EXPECT_EQ(complaintsAboutNames(twice).size(), 1u);
}

TEST(Form2Tables, EveryPlaceIsInsideTheSheetAndNoTwoFieldsOverlap)
{
    EXPECT_EQ(complaintsAboutPlaces(controls, spec.place), Complaints{});
    const ControlRow bad[] = {{.id = 0, .name = "A", .kind = Kind::field, .place = {0, 0, 100, 100}},
                              {.id = 1, .name = "B", .kind = Kind::field, .place = {50, 50, 100, 100}}};
    EXPECT_EQ(complaintsAboutPlaces(bad, {0, 0, 120, 120}).size(), 2u);
}

TEST(Form2Tables, EverythingThatTakesTheFocusSaysWhatItIsInBothLanguages)
{
    EXPECT_EQ(complaintsAboutMeanings(controls), Complaints{});
    const ControlRow bad[] = {{.id = 0, .name = "A", .kind = Kind::field, .meaning = {"sí", ""}}};
    EXPECT_EQ(complaintsAboutMeanings(bad).size(), 2u);
}

TEST(Form2Tables, EveryLineShapeAndImageHasAStroke)
{
    EXPECT_EQ(complaintsAboutStrokes(controls), Complaints{});
    const ControlRow bad[] = {{.id = 0, .name = "Line1", .kind = Kind::line}};
    EXPECT_EQ(complaintsAboutStrokes(bad).size(), 1u);
}

TEST(Form2Tables, EveryPromptSpeaksBothLanguagesButForTheOneThatNeverDid)
{
    EXPECT_EQ(complaintsAboutPrompts(sayings, controls.size()), Complaints{});
    const Saying bad[] = {{Text1, When::focus, SSPanel1, {"sólo", ""}}, {9999, When::focus, STA70, {"a", "b"}}};
    EXPECT_EQ(complaintsAboutPrompts(bad, controls.size()).size(), 2u);
}

TEST(Form2Tables, AllNamesOfTheDrawingAreThere)
{
    test::Form2Program program;
    for (int i = 1; i <= 20; ++i)
        EXPECT_NE(program.sheet().named("Line" + std::to_string(i)), host::noControl) << i;
    for (const char* name : {"Shape3", "Shape4", "Image1", "image2", "Picture3", "Picture5"})
        EXPECT_NE(program.sheet().named(name), host::noControl) << name;
}

TEST(Form2Tables, TheTabOrderHoldsEveryFieldOnceAndBeginsWithTheChain)
{
    const Handle chain[] = {Text1,  Text3,  Text4,  Text8,  Text21, Text15, Text9, Text10, Text11, Text17,
                            Text12, Text13, Text14, Text16, Text2,  Text5,  Text6, Text7,  Text18, Text19};
    ASSERT_GE(spec.tabOrder.size(), std::size(chain));
    EXPECT_TRUE(std::equal(std::begin(chain), std::end(chain), spec.tabOrder.begin()));
    for (const ControlRow& row : controls)
        if (row.kind == Kind::field) {
            EXPECT_EQ(std::count(spec.tabOrder.begin(), spec.tabOrder.end(), row.id), 1) << row.name;
        }
}

TEST(Form2Tables, AllThatOnlyAMouseReachesHasAKey)
{
    test::Form2Program program;
    std::set<std::string> keys;
    for (const host::ShortcutRow& row : spec.shortcuts) {
        EXPECT_TRUE(keys.insert(std::string(row.keys)).second) << row.keys;
        EXPECT_FALSE(row.meaning.es.empty() || row.meaning.en.empty()) << row.keys;
    }
    for (const ControlRow& row : controls) {
        const bool mouseOnly = !host::takesFocus(row.kind) && (program.sheet().hasSlot(row.id, host::Event::click) ||
                                                               program.sheet().hasSlot(row.id, host::Event::mouseDown));
        const bool has = std::any_of(spec.shortcuts.begin(), spec.shortcuts.end(), [&](const host::ShortcutRow& key) {
            return key.control == row.id || key.target == row.id;
        });
        if (mouseOnly) {
            EXPECT_TRUE(has) << row.name;
        }
    }
}

TEST(Form2Tables, EveryLineIsHiddenAtFirstAndComesWithSomeField)
{
    for (Handle part = Line1; part <= Line20; ++part) {
        EXPECT_FALSE(controls[part].visible) << controls[part].name;
        EXPECT_TRUE(std::any_of(growth.begin(), growth.end(), [part](const host::GrowthRow& row) {
            return row.part == part;
        })) << controls[part].name;
    }
}

TEST(Form2Tables, OnlyTheFirstFieldIsEnabledAtTheStart)
{
    test::Form2Program program;
    for (const ControlRow& row : controls)
        if (row.kind == Kind::field) {
            EXPECT_EQ(program.sheet().enabled(row.id), row.id == Text1) << row.name;
        }
    EXPECT_EQ(program.focus(), "Text1");
}

} // namespace velmor::form2_tables_test
