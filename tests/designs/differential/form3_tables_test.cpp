// SPDX-License-Identifier: MIT
// Walks the tables of Form3: places, names, meanings, texts in both languages, help, keys, bench, file. Each check is seen to
// fail once, on rows that are bad on purpose.
#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "designs/differential/form3.h"
#include "designs/differential/form3_texts.h"

namespace velmor::form3_tables_test {

using namespace form3;
using host::BiText;
using host::ControlRow;
using host::Handle;
using host::Kind;
using Complaints = std::vector<std::string>;

bool inside(const host::Place& place, const host::Place& sheet)
{
    return place.left >= 0 && place.top >= 0 && place.left + place.width <= sheet.width &&
           place.top + place.height <= sheet.height;
}

bool overlap(const host::Place& one, const host::Place& other)
{
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

Complaints aboutPlaces(std::span<const ControlRow> rows, const host::Place& sheet)
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

Complaints aboutNames(std::span<const ControlRow> rows)
{
    Complaints found;
    std::set<std::string> seen;
    for (const ControlRow& row : rows)
        if (!seen.insert(std::string(row.name)).second)
            found.push_back(std::string(row.name) + " stands twice");
    return found;
}

Complaints aboutMeanings(std::span<const ControlRow> rows)
{
    Complaints found;
    for (const ControlRow& row : rows) {
        const bool due = host::takesFocus(row.kind) || row.look == host::Look::toolButton;
        if (due && (row.meaning.es.empty() || row.meaning.en.empty()))
            found.push_back(std::string(row.name) + " does not say what it is");
    }
    return found;
}

bool bothLanguages(const BiText& text)
{
    return !text.es.empty() && !text.en.empty();
}

Complaints aboutLines(std::span<const sheets::Saying> rows, std::span<const sheets::ChainRow> due, sheets::When when,
                      Handle place)
{
    Complaints found;
    for (const sheets::ChainRow& field : due)
        if (std::count_if(rows.begin(), rows.end(), [&](const sheets::Saying& row) {
                return row.about == field.field && row.when == when && row.place == place;
            }) != 1)
            found.push_back("not one line for control " + std::to_string(field.field));
    for (const sheets::Saying& row : rows)
        if (row.text.es.empty() != row.text.en.empty())
            found.push_back("one language for control " + std::to_string(row.about));
    return found;
}

Complaints aboutKeys(std::span<const host::ShortcutRow> rows)
{
    Complaints found;
    std::set<std::string> seen;
    for (const host::ShortcutRow& row : rows) {
        if (!seen.insert(std::string(row.keys)).second)
            found.push_back(std::string(row.keys) + " stands twice");
        if (!bothLanguages(row.meaning))
            found.push_back(std::string(row.keys) + " does not say what it does");
    }
    return found;
}

TEST(Form3Tables, EveryControlHasItsNameOnceAndLiesInsideTheSheet)
{
    EXPECT_EQ(aboutNames(spec.controls), Complaints{});
    EXPECT_EQ(aboutPlaces(spec.controls, spec.place), Complaints{});
    const ControlRow bad[] = {{.id = 0, .name = "A", .kind = Kind::field, .place = {0, 0, 100, 100}},
                              {.id = 1, .name = "A", .kind = Kind::field, .place = {50, 50, 100, 100}}};
    EXPECT_EQ(aboutNames(bad).size(), 1u);
    EXPECT_EQ(aboutPlaces(bad, {0, 0, 120, 120}).size(), 2u);
}

TEST(Form3Tables, PlacesOfTheFinishedDesignAndOfTheBenchLieInsideTheSheet)
{
    for (const PointPlaces& row : pointPlaces) {
        EXPECT_TRUE(inside(row.didactic, spec.place)) << row.point;
        EXPECT_TRUE(inside(row.finished, spec.place)) << row.point;
        EXPECT_EQ(spec.controls[row.point].place, row.didactic) << row.point;
    }
    for (const WavePlaces& row : wavePlaces) {
        EXPECT_TRUE(inside(row.didactic, spec.place));
        EXPECT_TRUE(inside(row.finished, spec.place));
    }
    for (const GeneratorPart& row : generatorParts) {
        EXPECT_EQ(spec.controls[row.part].place, row.onFace) << row.part;
        EXPECT_TRUE(inside(row.besideMeter, spec.place)) << row.part;
    }
    for (const host::Place& page : {pageInsteadOfFields, pageBelowTools})
        EXPECT_TRUE(inside(page, spec.place));
}

TEST(Form3Tables, WhatTakesTheFocusOrIsAButtonSaysWhatItIs)
{
    EXPECT_EQ(aboutMeanings(spec.controls), Complaints{});
    const ControlRow bad[] = {{.id = 0, .name = "A", .kind = Kind::field, .meaning = {"sí", ""}},
                              {.id = 1, .name = "B", .kind = Kind::image, .look = host::Look::toolButton}};
    EXPECT_EQ(aboutMeanings(bad).size(), 2u);
}

TEST(Form3Tables, EveryFieldHasItsLineItsPageAndItsPlaceInTheTabOrder)
{
    using sheets::When;
    EXPECT_EQ(aboutLines(texts::sayings, chain, When::focus, StatusBar1), Complaints{});
    EXPECT_EQ(aboutLines(texts::sayings, chain, texts::lesson, SSPanel4), Complaints{});
    for (std::size_t i = 0; i < chain.size(); ++i)
        EXPECT_EQ(chain[i].field, spec.tabOrder[i]) << i;
    const sheets::Saying bad[] = {{Text1, When::focus, StatusBar1, {"uno", ""}}};
    EXPECT_EQ(aboutLines(bad, chain, When::focus, StatusBar1).size(), chain.size());
}

TEST(Form3Tables, EnterLeadsThroughTheWholeChain)
{
    for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
        EXPECT_EQ(chain[i].next, chain[i + 1].field) << i;
        EXPECT_LE(chain[i].from, chain[i].to) << i;
        EXPECT_TRUE(chain[i].otherwise >= chain[i].from && chain[i].otherwise <= chain[i].to)
            << "the correction is out of range: " << i;
    }
    EXPECT_EQ(chain.back().next, host::noControl);
}

TEST(Form3Tables, EveryFieldHasADefaultButTheTwoThatTheSheetWorksOut)
{
    for (const sheets::ChainRow& row : chain) {
        const bool workedOut = row.field == Text15 || row.field == Text18;
        EXPECT_EQ(std::count_if(defaults.begin(), defaults.end(),
                                [&](const Default& found) { return found.field == row.field; }),
                  workedOut ? 0 : 1)
            << row.field;
    }
}

TEST(Form3Tables, HelpOnPointingDrawsWhatItSays)
{
    int drawings = 0;
    for (const sheets::Saying& row : texts::sayings) {
        if (row.when != sheets::When::hover || spec.controls[row.place].kind != Kind::shape)
            continue;
        ++drawings;
        EXPECT_FALSE(spec.controls[row.place].drawing.empty());
        EXPECT_EQ(spec.controls[row.place].place, spec.controls[Label34].place);
        EXPECT_EQ(std::count_if(texts::sayings.begin(), texts::sayings.end(),
                                [&](const sheets::Saying& text) {
                                    return text.about == row.about && text.place == Label34 && !text.text.es.empty();
                                }),
                  1);
    }
    EXPECT_EQ(drawings, 5);
}

TEST(Form3Tables, WhatComesWithTheChainGivesWayToTheFinishedPicture)
{
    ASSERT_EQ(spec.growth.size(), 4u);
    for (const host::GrowthRow& row : spec.growth) {
        EXPECT_EQ(row.unless, image2);
        EXPECT_FALSE(spec.controls[row.part].visible) << spec.controls[row.part].name;
    }
}

TEST(Form3Tables, EveryKeyStandsOnceAndSaysWhatItDoes)
{
    EXPECT_EQ(aboutKeys(spec.shortcuts), Complaints{});
    const host::ShortcutRow bad[] = {{.keys = "Ctrl+1", .meaning = {"a", "b"}}, {.keys = "Ctrl+1"}};
    EXPECT_EQ(aboutKeys(bad).size(), 2u);
}

TEST(Form3Tables, WhatTheMouseAloneReachesHasAKey)
{
    // The common keys serve the field in hand (hover, right press); Tab reaches the buttons.
    const std::set<Handle> common{Text6, Text19, Text20, c1, c4, c5, C3, c6, c7};
    std::set<Handle> reached;
    for (const host::ShortcutRow& row : spec.shortcuts)
        reached.insert({row.control, row.target});
    for (const host::SlotRow& row : spec.slots) {
        const bool ofMouse = row.event == host::Event::click || row.event == host::Event::drop;
        if (!ofMouse || row.control == host::noControl || common.contains(row.control))
            continue;
        if (host::takesFocus(spec.controls[row.control].kind))
            continue;
        // Ctrl+B switches, Ctrl+E goes back; Image26 takes the drops of Image11.
        const bool byDeed = row.control == Image30 || row.control == Image33 || row.control == Image1;
        EXPECT_TRUE(byDeed || reached.contains(row.control)) << spec.controls[row.control].name;
    }
}

TEST(Form3Tables, EveryCellOfTheBenchStandsOnce)
{
    EXPECT_EQ(probeRows().size(), 27u);
    for (const ProbeRow& row : probeRows()) {
        EXPECT_EQ(probeRow(row.point, row.inputs), &row) << row.reading;
        EXPECT_FALSE(row.reading.empty());
        EXPECT_TRUE(bothLanguages(row.panel));
        EXPECT_EQ(row.englishOnly, row.point == Image4);
    }
    EXPECT_EQ(probeRow(Image22, {Signal::B, Signal::B}), nullptr);
    EXPECT_EQ(probeRow(Image22, {Signal::none, Signal::none}), nullptr);
    for (const MeterRow& row : meterRows()) {
        EXPECT_EQ(meterRow(row.point, row.current, row.function), &row);
        EXPECT_NE(row.value, nullptr);
        EXPECT_TRUE(bothLanguages(row.unit.prompt));
        EXPECT_EQ(spec.controls[row.unit.onFace].kind, Kind::shape);
    }
    EXPECT_EQ(meterRow(Image5, Current::ac, Function::V), nullptr);
    EXPECT_EQ(meterRow(Image4, Current::dc, Function::none), nullptr);
}

TEST(Form3Tables, TheWaveOfTheOtherOutputIsInOppositePhase)
{
    // What Image4 shows is the opposite of what Image24 shows, and output 2 of output 1, wherever one wave is set.
    const auto opposite = [](Waves waves) { return waves == Waves::Image23 ? Waves::Image25 : Waves::Image23; };
    for (const ProbeRow& row : probeRows()) {
        if (row.waves != Waves::Image23 && row.waves != Waves::Image25)
            continue;
        const ProbeRow* pair = nullptr;
        if (row.point == Image22)
            pair = probeRow(Image26, row.inputs);
        else if (row.point == Image24)
            pair = probeRow(Image4, row.inputs);
        if (pair != nullptr && pair->waves != Waves::asTheyAre) {
            EXPECT_EQ(pair->waves, opposite(row.waves)) << row.reading;
        }
    }
}

TEST(Form3Tables, TheFileHasTwentyNineLinesInOrder)
{
    ASSERT_EQ(sheetSpec.written.size(), 29u);
    ASSERT_EQ(sheetSpec.read.size(), 29u);
    for (std::size_t i = 0; i < 18; ++i)
        EXPECT_EQ(spec.controls[sheetSpec.written[i].control].name, "Text" + std::to_string(i + 1));
    for (std::size_t i = 0; i < 29; ++i)
        EXPECT_EQ(sheetSpec.written[i].control, sheetSpec.read[i].control);
    EXPECT_EQ(sheetSpec.written[28].control, Label40);
}

} // namespace velmor::form3_tables_test
