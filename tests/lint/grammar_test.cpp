// SPDX-License-Identifier: MIT
// Every rule of the grammar rejects a sheet that breaks it in one thing, and says what is wrong.
#include "lint/grammar.h"

#include <gtest/gtest.h>

#include "sheets/template_sheet.h"

namespace velmor::lint {

namespace grammar_test {

using namespace template_sheet;
using host::Handle;
using host::KeyAction;
using host::Mark;
using host::noControl;
using host::Symbol;

/// The template's tables, to be spoilt.
struct Grammar : testing::Test {
    template <class Row>
    static std::vector<Row> copyOf(std::span<const Row> rows)
    {
        return {rows.begin(), rows.end()};
    }

    std::vector<host::ControlRow> rows = copyOf<host::ControlRow>(template_sheet::spec.controls);
    std::vector<host::ShortcutRow> keys = copyOf<host::ShortcutRow>(template_sheet::spec.shortcuts);
    std::vector<host::GrowthRow> parts = copyOf<host::GrowthRow>(template_sheet::spec.growth);
    std::vector<host::ValueRow> values = copyOf<host::ValueRow>(template_sheet::spec.values);
    std::vector<Handle> order = copyOf<Handle>(template_sheet::spec.tabOrder);
    std::vector<sheets::ChainRow> fields = copyOf<sheets::ChainRow>(sheetSpec.chain);
    std::vector<sheets::Saying> said = copyOf<sheets::Saying>(sheetSpec.sayings);
    std::vector<sheets::HelpPage> pages = copyOf<sheets::HelpPage>(sheetSpec.helpPages);
    host::WindowSpec window = template_sheet::spec;
    sheets::SheetSpec tables = sheetSpec;

    Sheet sheet()
    {
        window.controls = rows;
        window.shortcuts = keys;
        window.growth = parts;
        window.values = values;
        window.tabOrder = order;
        tables.chain = fields;
        tables.sayings = said;
        tables.helpPages = pages;
        return {window, tables};
    }
    host::ShortcutRow& key(std::string_view name)
    {
        return *std::find_if(keys.begin(), keys.end(), [name](const auto& row) { return row.keys == name; });
    }
};

struct GrammarZones : Grammar {};
struct GrammarTools : Grammar {};
struct GrammarKeys : Grammar {};
struct GrammarSymbols : Grammar {};
struct GrammarGrowth : Grammar {};
struct GrammarChain : Grammar {};
struct GrammarSayings : Grammar {};
struct GrammarHelp : Grammar {};

// --- zones

TEST_F(GrammarZones, RejectAVoiceElsewhere)
{
    rows[SSPanel1].place.top += 15;
    EXPECT_EQ(zones(sheet()), Complaints{"\"SSPanel1\" is the voice and does not stand on top"});
    tables.voice = noControl;
    EXPECT_EQ(zones(sheet()), Complaints{"the sheet has no voice"});
}

TEST_F(GrammarZones, KeepTheStripOfTheNextStep)
{
    rows[status1].place = sheets::zones::nextStep;
    EXPECT_EQ(zones(sheet()), Complaints{});
    rows[status1].place.left += 15;
    EXPECT_EQ(zones(sheet()), Complaints{"\"status1\" stands where voice and next step stand"});
}

TEST_F(GrammarZones, RejectFieldsOutsideTheParametersUnlessTheirSymbolIsAbove)
{
    rows[Text3].place = sheets::at(400, 300, 73, 22);
    EXPECT_EQ(zones(sheet()), Complaints{"\"Text3\" does not stand among the parameters"});
    rows[Text3].symbolSide = host::SymbolSide::above;
    EXPECT_EQ(zones(sheet()), Complaints{});
}

TEST_F(GrammarZones, RejectWhatStandsWhereTheToolsStandAlsoInAnEmptyPlace)
{
    rows[Picture6].place = sheets::at(1110, 218, 84, 58);
    EXPECT_EQ(zones(sheet()), Complaints{"\"Picture6\" stands where the tools stand"});
    rows[Picture6].overlay = true;
    EXPECT_EQ(zones(sheet()), Complaints{});
}

TEST_F(GrammarZones, RejectAPaperThatIsMissingOrElsewhere)
{
    rows[Image1].place.left += 15;
    EXPECT_EQ(zones(sheet()), Complaints{"\"Image1\" is paper and does not lie in the middle"});
    rows[Image1] = template_sheet::spec.controls[Image1];
    rows[Image1].look = host::Look::plain;
    EXPECT_EQ(zones(sheet()), Complaints{"the sheet has no paper"});
}

// --- tools

TEST_F(GrammarTools, RejectAnotherPlaceDrawingOrMeaning)
{
    EXPECT_EQ(tools(sheet()), Complaints{});
    std::swap(rows[Image3].place, rows[SSCommand3].place);
    EXPECT_EQ(tools(sheet()), (Complaints{"\"Image3\" is not the calculator of all sheets",
                                          "\"SSCommand3\" is not the report of all sheets"}));
    rows = copyOf<host::ControlRow>(template_sheet::spec.controls);
    rows[SSCommand1].drawing = rows[Image3].drawing;
    rows[Image35].meaning.en = "Help";
    rows[Image4].visible = true;
    EXPECT_EQ(tools(sheet()), (Complaints{"\"SSCommand1\" is not the guide of all sheets",
                                          "\"Image4\" is not the clone's second image of all sheets",
                                          "\"Image35\" is not the help of all sheets"}));
}

TEST_F(GrammarTools, RejectAToolThatIsHiddenAtFirstUnlessItComesLateAndTheOtherWayRound)
{
    const Spot late[] = {{"TemplateSheet", "sscommand3"}};
    EXPECT_EQ(tools(sheet(), late), Complaints{"\"SSCommand3\" is not the report of all sheets"});
    rows[SSCommand3].visible = false;
    EXPECT_EQ(tools(sheet()), Complaints{"\"SSCommand3\" is not the report of all sheets"});
    EXPECT_EQ(tools(sheet(), late), Complaints{});
}

TEST_F(GrammarTools, RejectHalfAPairAndWhatDoesNotExist)
{
    tables.tools.clone.second = noControl;
    tables.tools.guide = 999;
    EXPECT_EQ(tools(sheet()), (Complaints{"the guide does not exist", "the clone lacks one of its images"}));
}

TEST_F(GrammarTools, MayBeMissing)
{
    tables.tools = {};
    EXPECT_EQ(tools(sheet()), Complaints{});
}

// --- keys

TEST_F(GrammarKeys, RejectAToolWithAnotherKey)
{
    key("Ctrl+R").keys = "Ctrl+I";
    EXPECT_EQ(sheetKeys(sheet(), {}),
              (Complaints{"\"SSCommand3\" does not have the key Ctrl+R", "\"SSCommand3\" has another key: Ctrl+I"}));
}

TEST_F(GrammarKeys, RejectTwoKeysForOnePair)
{
    keys.push_back({"Ctrl+5", Image4, KeyAction::click, noControl, {"es", "en"}});
    keys.push_back({"Ctrl+2", Text1, KeyAction::click, noControl, {"es", "en"}});
    keys.push_back({"Ctrl+3", Text1, KeyAction::click, noControl, {"es", "en"}});
    keys.push_back({"Ctrl+4", Text1, KeyAction::click, noControl, {"es", "en"}});
    EXPECT_EQ(sheetKeys(sheet(), {}), Complaints{"\"Image5\" has another key: Ctrl+5"});
}

TEST_F(GrammarKeys, RejectAPairWhoseKeyServesOneImage)
{
    key("Ctrl+D").target = noControl;
    EXPECT_EQ(sheetKeys(sheet(), {}),
              (Complaints{"\"Image5\" does not have the key Ctrl+D", "the key Ctrl+D is not the sheet's to give"}));
}

TEST_F(GrammarKeys, RejectKeysOfTheHouse)
{
    constexpr host::ShortcutRow ofTheMainWindow[] = {{"Ctrl+Shift+G"}};
    for (const char* const taken : {"F6", "ctrl+z", "Ctrl+Tab", "Alt+Backspace", "Ctrl+T", "Alt+3", "Ctrl+Shift+G"}) {
        keys.push_back({taken, Text1, KeyAction::click, noControl, {"es", "en"}});
        EXPECT_EQ(sheetKeys(sheet(), ofTheMainWindow),
                  Complaints{"the key " + std::string(taken) + " is not the sheet's to give"});
        keys.pop_back();
    }
}

TEST_F(GrammarKeys, RejectAFieldKeyThatIsMissingOrDoesSomethingElse)
{
    key("F2").control = Text1;
    EXPECT_EQ(sheetKeys(sheet(), {}),
              (Complaints{"the key F2 of the field in hand is missing", "the key F2 is not the sheet's to give"}));
}

TEST_F(GrammarKeys, RejectDigitsThatDoNotCountFromOne)
{
    key("Ctrl+1").keys = "Ctrl+2";
    EXPECT_EQ(sheetKeys(sheet(), {}), Complaints{"the keys of options do not count from Ctrl+1: Ctrl+2"});
}

// --- symbols

TEST_F(GrammarSymbols, RejectFieldsUnderOtherNamesOrUnits)
{
    EXPECT_EQ(symbols(sheet()), Complaints{});
    rows[Text3].symbol = "Q_ic";
    rows[Text4].unit = "mA";
    rows[Text5].unit = "Ω";
    EXPECT_EQ(symbols(sheet()), (Complaints{"\"Text3\" has the symbol Q_ic, which is not in the notation",
                                            "\"Text4\" measures E_q in mA"}));
}

TEST_F(GrammarSymbols, RejectOtherSpellingsOnTheDrawing)
{
    static constexpr Mark bad[] = {
        {.symbol = Symbol::label, .name = "Q_ic"},   {.symbol = Symbol::label, .name = "Beta"},
        {.symbol = Symbol::label, .name = "QIc ="},  {.symbol = Symbol::label, .name = "R_x/2"},
        {.symbol = Symbol::label, .name = "+E_s"},   {.symbol = Symbol::label, .name = "R_b1/2"},
        {.symbol = Symbol::label, .name = "r'_e ="}, {.symbol = Symbol::npn, .name = "Q_1"},
        {.symbol = Symbol::meter, .name = "A"},      {.symbol = Symbol::text, .name = "QIc"}};
    rows[Line1].drawing = bad;
    EXPECT_EQ(symbols(sheet()), (Complaints{"the drawing of \"Line1\" bears Q_ic, which is not in the notation",
                                            "the drawing of \"Line1\" bears Beta, which is not in the notation",
                                            "the drawing of \"Line1\" bears QIc, which is not in the notation",
                                            "the drawing of \"Line1\" bears R_x, which is not in the notation"}));
}

// --- growth

TEST_F(GrammarGrowth, RejectsPartsThatAreNoneOrThereFromTheStart)
{
    EXPECT_EQ(growth(sheet()), Complaints{});
    rows[Line1].visible = true;
    rows[Line2].drawing = {};
    rows[Line3].overlay = true;
    parts.push_back({999, Text1});
    EXPECT_EQ(growth(sheet()),
              (Complaints{"\"Line1\" grows and is there from the start", "\"Line2\" grows and draws nothing",
                          "\"Line3\" grows and lies above the drawing", "a part that grows does not exist"}));
}

TEST_F(GrammarGrowth, RejectsPartsThatHangOnNothing)
{
    parts[0].field = Picture6;
    parts[1].when = 999;
    parts[2].unless = Line1;
    EXPECT_EQ(growth(sheet()), (Complaints{"\"Line1\" comes with what is no field of the chain",
                                           "\"Line2\" hangs on a control that says nothing of the circuit",
                                           "\"Line3\" hangs on a control that says nothing of the circuit"}));
}

TEST_F(GrammarGrowth, RejectsValuesOnWhatDoesNotGrow)
{
    values[0].part = Image1;
    values[1].value = 999;
    EXPECT_EQ(growth(sheet()), (Complaints{"\"RL\" is a value on what does not grow", "a value does not exist"}));
}

TEST_F(GrammarGrowth, RejectsStrokesThatNeitherGrowNorAreThere)
{
    parts.erase(parts.begin() + 2);
    EXPECT_EQ(growth(sheet()), Complaints{"\"Line3\" is neither there from the start nor grows"});
}

// --- chain

TEST_F(GrammarChain, RejectsRowsOfNoFieldsAndWaysOutOfTheChain)
{
    EXPECT_EQ(chain(sheet(), {}), Complaints{});
    fields.push_back({Line1});
    order.insert(order.begin() + 5, Line1);
    fields[4].next = RL;
    EXPECT_EQ(chain(sheet(), {}), (Complaints{"\"Text5\" leads to \"RL\", which is not in the chain",
                                              "\"Line1\" is no field and stands in the chain"}));
}

TEST_F(GrammarChain, RejectsACorrectionOutOfRange)
{
    fields[0].otherwise = 31;
    fields[1].from = 26;
    EXPECT_EQ(chain(sheet(), {}), (Complaints{"\"Text1\" is corrected to a value that it does not accept",
                                              "\"Text2\" is corrected to a value that it does not accept"}));
}

TEST_F(GrammarChain, RejectsAFieldThatNobodyReachesUnlessThereIsAReason)
{
    fields[3].next = noControl;
    EXPECT_EQ(chain(sheet(), {}), Complaints{"\"Text5\" is not reached from the first field"});
    constexpr Unreached told[] = {{"TemplateSheet", "Text5", "a click opens it"}};
    EXPECT_EQ(chain(sheet(), told), Complaints{});
    constexpr Unreached withoutReason[] = {{"TemplateSheet", "Text5", ""}};
    EXPECT_EQ(chain(sheet(), withoutReason).size(), 1u);
}

TEST_F(GrammarChain, RejectsAnotherOrderOfTheTabKeyAndNoChain)
{
    std::swap(order[1], order[2]);
    EXPECT_EQ(chain(sheet(), {}), Complaints{"the order of the Tab key does not begin with the chain"});
    fields.clear();
    EXPECT_EQ(chain(sheet(), {}), Complaints{"the sheet has no chain"});
}

// --- sayings and help

TEST_F(GrammarSayings, RejectWhatIsSaidNowhereAboutNothingOrNever)
{
    EXPECT_EQ(sayings(sheet(), {}), Complaints{});
    said[1].place = 999;
    said[2].about = 999;
    said[3].when = sheets::When::named;
    EXPECT_EQ(sayings(sheet(), {}),
              (Complaints{"saying 2 has no place", "saying 3 is about what does not exist", "saying 4 is never said"}));
}

TEST_F(GrammarSayings, RejectOneLanguageUnlessThereIsAReason)
{
    said[1].text.en = "";
    EXPECT_EQ(sayings(sheet(), {}), Complaints{"saying 2 is not there in both languages"});
    constexpr OneLanguage told[] = {{"TemplateSheet", "Text1", "the other stays"}};
    EXPECT_EQ(sayings(sheet(), told), Complaints{});
}

TEST_F(GrammarSayings, RejectBoxesWithoutTitleAndEmptyFieldsWithoutAnswer)
{
    said[0].title.es = "";
    EXPECT_EQ(sayings(sheet(), {}), Complaints{"saying 1 is a box without a title in both languages"});
    said.erase(said.begin());
    EXPECT_EQ(sayings(sheet(), {}), Complaints{"Enter in an empty field is not answered"});
}

TEST_F(GrammarHelp, RejectsPagesOfNoFieldThereTwiceOrHalf)
{
    EXPECT_EQ(helpPages(sheet(), {}), Complaints{});
    pages[0].field = RL;
    pages[0].shortName = "";
    pages[1].page.es = "";
    pages.push_back(pages[1]);
    EXPECT_EQ(helpPages(sheet(), {}), (Complaints{"the help page of \"RL\" belongs to no field of the chain",
                                                  "the help page of \"RL\" has no short name",
                                                  "the help page of \"Text3\" is not there in both languages",
                                                  "the help page of \"Text3\" is there twice",
                                                  "the help page of \"Text3\" is not there in both languages"}));
}

TEST_F(GrammarHelp, RejectsAPageInOneLanguageUnlessThereIsAReason)
{
    pages[1].page.en = "";
    EXPECT_EQ(helpPages(sheet(), {}), Complaints{"the help page of \"Text3\" is not there in both languages"});
    constexpr OneLanguage told[] = {{"TemplateSheet", "Text3", "its page stands in Spanish"}};
    EXPECT_EQ(helpPages(sheet(), told), Complaints{});
}

TEST_F(GrammarHelp, RejectsBoxesInOneLanguageOrWithoutTheirTool)
{
    tables.helpBoxes.english = noControl;
    tables.tools.help = {};
    EXPECT_EQ(helpPages(sheet(), {}),
              (Complaints{"a help box is there in one language only", "the help boxes have no tool"}));
}

} // namespace grammar_test

} // namespace velmor::lint
