// SPDX-License-Identifier: MIT
// The teaching panels where no walk goes: the analysis sheet before a design fills it, every chain of deeper pages, the
// chooser of circuits out of its usual order, and the general help in other sizes.
#include <gtest/gtest.h>

#include <set>

#include "program_desk.h"
#include "tools/form21_pages.h"

namespace velmor::panels_test {

using test::ProgramDesk;

TEST(AnalysisSheet, HasItsStoredVerdictAndNoPictureUntilADesignFillsIt)
{
    for (const bool english : {false, true}) {
        ProgramDesk desk;
        desk.engine.values().LanguageIsEnglish = english ? host::trueValue : std::int16_t{0};
        host::Window& sheet = desk.show("Form6");
        EXPECT_EQ(desk.text(sheet, "sspanel1"), english ? "Leaf of Analysis" : "Hoja de Análisis");
        EXPECT_EQ(desk.text(sheet, "Label1"), "                Sin datos...");
        EXPECT_EQ(desk.text(sheet, "Label2"), "");
        for (const auto picture : {"Image2", "Image3", "Image4", "Image5"}) {
            EXPECT_FALSE(desk.visible(sheet, picture));
            EXPECT_FALSE(sheet.drawing(sheet.named(picture)).empty());
        }
    }
}

TEST(AnalysisSheet, ShowsWhatADesignPutThereAndDoesNothingByItself)
{
    ProgramDesk desk;
    desk.engine.userRun([&] {
        host::SheetHost& program = desk.engine.host();
        program.Load("Form6"); // hidden at first, as a design that is still at work loads it
        program.setText("Form6", "Label1", "Aprobado");
        program.setVisible("Form6", "Image3", true);
    });
    EXPECT_FALSE(desk.engine.defaultInstance("Form6")->shown());
    host::Window& sheet = desk.show("Form6");
    EXPECT_EQ(desk.text(sheet, "Label1"), "Aprobado");
    EXPECT_TRUE(desk.visible(sheet, "Image3"));
    for (const host::ControlRow& row : sheet.spec().controls)
        desk.click(sheet, row.name);
    desk.engine.userClose(sheet);
    EXPECT_FALSE(desk.open("Form6"));
    EXPECT_TRUE(desk.screen.boxes.empty());
}

TEST(HelpPage, HasItsStoredTexts)
{
    ProgramDesk desk;
    host::Window& page = desk.show("Form21");
    EXPECT_EQ(page.caption(), "Ayuda");
    EXPECT_EQ(desk.text(page, "Label1"), "Not available");
    EXPECT_EQ(desk.text(page, "SSCommand1"), "Para saber mäs...");
    EXPECT_EQ(desk.text(page, "SSCommand2"), "mas...");
    EXPECT_TRUE(desk.visible(page, "SSCommand1"));
    EXPECT_FALSE(desk.visible(page, "SSCommand2"));
}

TEST(HelpPage, ACaptionWithoutADeeperPageDoesNothing)
{
    ProgramDesk desk;
    host::Window& page = desk.show("Form21");
    for (const auto caption : {"Para saber mäs...", "", "Delta QIc...", " Delta QIc", " delta qic..."}) {
        desk.write(page, "Text22", "página");
        page.setText(page.named("SSCommand1"), caption);
        desk.click(page, "SSCommand1");
        EXPECT_EQ(desk.text(page, "Text22"), "página") << caption;
        EXPECT_TRUE(desk.visible(page, "SSCommand1")) << caption;
        EXPECT_FALSE(desk.visible(page, "SSCommand2")) << caption;
    }
}

// From each caption on: never two buttons or none, never the same page again, and out in the end.
TEST(HelpPage, EveryChainOfPagesLeadsDeeperAndThenOut)
{
    for (const form21::DeepPage& first : form21::deepPages) {
        ProgramDesk desk;
        host::Window& page = desk.show("Form21");
        page.setText(page.named("SSCommand1"), first.caption);
        std::set<std::string> seen;
        for (int step = 0; step < 12 && desk.open("Form21"); ++step) {
            const bool deeper = desk.visible(page, "SSCommand1");
            ASSERT_NE(deeper, desk.visible(page, "SSCommand2")) << first.caption;
            desk.click(page, deeper ? "SSCommand1" : "SSCommand2");
            if (deeper && desk.open("Form21")) {
                EXPECT_TRUE(seen.insert(desk.text(page, "Text22")).second) << first.caption;
            }
        }
        EXPECT_FALSE(desk.open("Form21")) << first.caption;
        EXPECT_FALSE(seen.empty()) << first.caption;
    }
}

TEST(HelpPage, HidesBothButtonsInEnglish)
{
    ProgramDesk desk;
    desk.engine.values().LanguageIsEnglish = host::trueValue;
    host::Window& page = desk.show("Form21");
    EXPECT_FALSE(desk.visible(page, "SSCommand1"));
    EXPECT_FALSE(desk.visible(page, "SSCommand2"));
}

TEST(Chooser, LoadsNoSheetByItsChoices)
{
    for (const auto choice : {"Command2", "Command3"}) {
        ProgramDesk desk;
        desk.click(desk.show("Form7"), choice);
        EXPECT_FALSE(desk.open("Form8"));
        EXPECT_FALSE(desk.open("Form18"));
    }
}

TEST(Chooser, WithoutBothPicturesTheStableChoiceOffersTheFormulas)
{
    for (const bool english : {false, true})
        for (const auto gone : {"Picture1", "Picture2"}) {
            ProgramDesk desk;
            desk.engine.values().LanguageIsEnglish = english ? host::trueValue : std::int16_t{0};
            host::Window& panel = desk.show("Form7");
            panel.hide(panel.named(gone));
            desk.click(panel, "Command3");
            EXPECT_TRUE(desk.visible(panel, "Command4"));
            EXPECT_EQ(desk.text(panel, "Command4"), english ? "Formulate" : "Formulas");
            EXPECT_FALSE(desk.visible(panel, "Command1"));
            EXPECT_FALSE(desk.visible(panel, "Label3"));
        }
}

TEST(Chooser, StartsTheCircuitChosen)
{
    const struct {
        const char* choice;
        const char* begin;
        const char* sheet;
        const char* es;
        const char* en;
    } rows[] = {
        {"Command2", "Command4", "Form8", "  Circuito Realimentado por Tensión Simple",
         "  Feedback  Voltage Circuits Simple"},
        {"Command3", "Command1", "Form18", "  Circuito Realimentado por Tensión Estable",
         "  Feedback  Voltage Circuits Stable"},
    };
    for (const bool english : {false, true})
        for (const bool formulas : {false, true})
            for (const auto& row : rows) {
                ProgramDesk desk;
                desk.engine.values().LanguageIsEnglish = english ? host::trueValue : std::int16_t{0};
                host::Window& panel = desk.show("Form7");
                desk.click(panel, row.choice);
                if (formulas)
                    desk.click(panel, "Command5");
                EXPECT_TRUE(panel.enabled(panel.named(row.begin)));
                desk.click(panel, row.begin);
                ASSERT_TRUE(desk.open(row.sheet));
                EXPECT_FALSE(desk.open("Form7"));
                EXPECT_EQ(desk.engine.instance(row.sheet, 0)->caption(), english ? row.en : row.es);
                EXPECT_EQ(desk.engine.mainWindow().windowState(), 2);
            }
}

TEST(GeneralHelp, IsCentredAtItsLoadAndFillsItsWindowInEverySize)
{
    ProgramDesk desk;
    desk.engine.userRun([&] { desk.engine.host().Load("Form19"); });
    host::Window& help = *desk.engine.defaultInstance("Form19");
    EXPECT_EQ(help.place().left, (desk.engine.mainWindow().place().width - help.place().width) / 2);
    desk.show("Form19");
    for (const host::Place size : {host::Place{100, 100, 9000, 7000}, host::Place{0, 0, 3000, 2000}}) {
        desk.engine.userResized(help, size);
        for (const auto page : {"Text1", "Text2"})
            EXPECT_EQ(help.placeOf(help.named(page)), (host::Place{0, 0, size.width, size.height}));
    }
    // Activated again it takes its own size, and the pages with it.
    desk.engine.userActivate(desk.engine.mainWindow());
    desk.engine.userActivate(help);
    EXPECT_EQ(help.place().width, 6400);
    EXPECT_EQ(help.place().height, 3735);
    EXPECT_EQ(help.placeOf(help.named("Text1")), (host::Place{0, 0, 6400, 3735}));
}

} // namespace velmor::panels_test
