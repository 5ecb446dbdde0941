// SPDX-License-Identifier: MIT
// What the tables of Form2 hold beside the rules that every window keeps: prompts in both languages, the drawing's names, the
// order of the chain, the growth of the drawing, the start.
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

using Complaints = std::vector<std::string>;

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
