// SPDX-License-Identifier: MIT
// The palette: pages, marking, clicks, the label button and the end of the program.
#include "frame/main_window_program.h"

#include <gtest/gtest.h>

#include "frame/design_pages.h"
#include "frame/palette_texts.h"

namespace velmor::main_window_test {

using host::Answer;
using main_window::element;

namespace palette_test {

host::Handle button(const host::Window& window, int index)
{
    return window.named("imgButton(" + std::to_string(index) + ")");
}

int picturesShown(const host::Window& main)
{
    int count = 0;
    for (std::size_t i = 0; i < 13; ++i)
        count += main.visible(element(main_window::Picture1, i)) ? 1 : 0;
    return count;
}

} // namespace palette_test

using namespace palette_test;

TEST(Palette, EachButtonLeavesExactlyItsOwnPictureVisible)
{
    Program program;
    program.show();
    for (const int index : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 1, 0, 11, 5}) {
        program.engine.userHover(program.palette(), button(program.palette(), index));
        EXPECT_EQ(picturesShown(program.main()), 1);
        EXPECT_TRUE(program.main().visible(element(main_window::Picture1, static_cast<std::size_t>(index))));
        EXPECT_TRUE(program.main().visible(main_window::Label1));
        EXPECT_TRUE(program.main().visible(main_window::Label21));
    }
}

TEST(Palette, HoveringAgainChangesNothing)
{
    Program program;
    program.show();
    for (int index = 0; index < 12; ++index) {
        program.engine.userHover(program.palette(), button(program.palette(), index));
        program.main().takeChanges();
        program.palette().takeChanges();
        program.main().takeWindowChanged();
        program.palette().takeWindowChanged();
        const std::size_t created = program.screen.created.size();
        for (int again = 0; again < 3; ++again)
            program.engine.userHover(program.palette(), button(program.palette(), index));
        EXPECT_TRUE(program.main().takeChanges().empty()) << index;
        EXPECT_TRUE(program.palette().takeChanges().empty()) << index;
        EXPECT_FALSE(program.main().takeWindowChanged()) << index;
        EXPECT_FALSE(program.palette().takeWindowChanged()) << index;
        EXPECT_EQ(program.screen.created.size(), created);
    }
}

TEST(Palette, ThePageStandsBesideThePanelAndKeepsItsHeadFree)
{
    Program program;
    program.show();
    host::Window& main = program.main();
    const host::Place panel = main.placeOf(main_window::SSPanel1);
    for (int index = 0; index < 12; ++index) {
        program.engine.userHover(program.palette(), button(program.palette(), index));
        const host::Place picture = main.placeOf(element(main_window::Picture1, static_cast<std::size_t>(index)));
        EXPECT_EQ(picture.left, panel.width + 50);
        EXPECT_EQ(picture.height, panel.height - 2600);
        EXPECT_EQ(main.placeOf(main_window::Label1).top, 20);
    }
    program.engine.userHover(program.palette(), button(program.palette(), 10));
    EXPECT_EQ(main.placeOf(main_window::Label21), (host::Place{100, 20, 3700, 2000}));
}

TEST(Palette, AMinimisedMainWindowIsNotLaidOut)
{
    Program program;
    program.show();
    host::Window& main = program.main();
    const int height = main.placeOf(main_window::Picture4).height;
    program.engine.userState(main, 1);
    program.engine.userHover(program.palette(), button(program.palette(), 3));
    EXPECT_TRUE(main.visible(main_window::Picture4));
    EXPECT_EQ(main.placeOf(main_window::Picture4).height, height);
    program.engine.userState(main, 2);
    program.engine.userHover(program.palette(), button(program.palette(), 3));
    EXPECT_NE(main.placeOf(main_window::Picture4).height, height);
}

TEST(Palette, OnlyTheButtonUnderTheMouseIsMarked)
{
    Program program;
    program.show();
    host::Window& palette = program.palette();
    for (const int index : {0, 7, 11, 3}) {
        program.engine.userHover(palette, button(palette, index));
        for (int other = 0; other < 13; ++other) {
            const host::Handle shape = palette.named("Shape1(" + std::to_string(other) + ")");
            EXPECT_EQ(palette.control(shape).backColor, other == index ? 0xFFFFFF : -1);
        }
    }
    program.engine.userHover(palette, palette.named("lblButton"));
    for (int other = 0; other < 13; ++other)
        EXPECT_EQ(palette.control(palette.named("Shape1(" + std::to_string(other) + ")")).backColor, -1);
}

TEST(Palette, APressedButtonHidesItsShapeUntilItIsReleased)
{
    Program program;
    program.show();
    host::Window& palette = program.palette();
    program.engine.userPress(palette, button(palette, 3), host::Button::right);
    EXPECT_TRUE(palette.visible(palette.named("Shape1(3)")));
    program.engine.userPress(palette, button(palette, 3), host::Button::left);
    EXPECT_FALSE(palette.visible(palette.named("Shape1(3)")));
    EXPECT_TRUE(palette.checked(button(palette, 3)));
    program.engine.userClick(palette, button(palette, 3));
    EXPECT_TRUE(palette.visible(palette.named("Shape1(3)")));
    EXPECT_FALSE(palette.checked(button(palette, 3)));
}

TEST(Palette, AClickSetsThePanelBeforeTheSheetIsThere)
{
    // The sheet's own activation hides the panel; what the button did before shows at the moment of its creation.
    const bool shows[] = {false, true, false, true, false, true, true, true, true, true, true};
    for (int index = 0; index <= 10; ++index) {
        for (const bool before : {false, true}) {
            Program program;
            program.show();
            program.engine.userRun([&] { program.main().setVisible(main_window::SSPanel1, before); });
            std::optional<bool> atCreation;
            program.engine.onSlot = [&](const host::Window& window, host::Handle, host::Event event) {
                if (window.role() == host::Role::sheet && event == host::Event::resize && !atCreation)
                    atCreation = program.main().visible(main_window::SSPanel1);
            };
            program.engine.userClick(program.palette(), button(program.palette(), index));
            EXPECT_EQ(atCreation, index == 2 ? before : shows[index]) << index;
        }
    }
}

TEST(Palette, EveryClickOpensOneMoreSheetWithItsTitle)
{
    const std::pair<std::string_view, std::string_view> opened[] = {
        {"Form3", "  Long Tail Pairs  -  Differential Amplifier"},
        {"Form13", "Long Tail Pairs Compound"},
        {"Form4", "  Common Base"},
        {"Form12", "  D.C. source"},
        {"Form9", "  Paraphase"},
        {"Form17", "  Common Collector"},
        {"form20", "  Power Amplifier. (Class A - Darlington)"},
        {"Form15", "  Power Amplifier Class A Simple"},
        {"Form10", "  Power Amplifier Class B"},
        {"Form11", "  Power Amplifier Class B Darlington"},
        {"Form2", "  Common Emitter, Feedback for Current"},
    };
    Program program;
    program.show();
    program.speakEnglish();
    for (int index = 0; index <= 10; ++index) {
        const auto& [sheet, title] = opened[index];
        program.engine.userClick(program.palette(), button(program.palette(), index));
        program.engine.userClick(program.palette(), button(program.palette(), index));
        EXPECT_EQ(program.count(sheet), 2);
        EXPECT_EQ(program.window(sheet)->caption(), title);
        EXPECT_EQ(program.engine.activeChild(), program.window(sheet));
        EXPECT_EQ(program.main().windowState(), 2);
    }
}

TEST(Palette, TheLastButtonOpensTheChooserAndNoSheet)
{
    Program program;
    program.show();
    program.engine.userClick(program.palette(), button(program.palette(), 11));
    EXPECT_EQ(program.count("Form7"), 1);
    EXPECT_EQ(program.engine.activeChild(), nullptr);
    program.engine.userRun([&] { palette::OpenDesign(program.engine.host(), 12); });
    EXPECT_EQ(program.engine.activeChild(), nullptr) << "beyond the buttons there is nothing";
}

TEST(Palette, ItsOwnWayToTheVoltageFeedbackSheetsSendsTheChooserAway)
{
    Program program;
    program.show();
    program.engine.userClick(program.palette(), button(program.palette(), 11));
    program.engine.userRun([&] { palette::OpenVoltageFeedback(program.engine.host(), false); });
    EXPECT_EQ(program.window("Form8")->caption(), "  Circuito Realimentado por Tensión Simple");
    EXPECT_EQ(program.count("Form7"), 0);
    program.engine.userRun([&] { palette::OpenVoltageFeedback(program.engine.host(), true); });
    EXPECT_EQ(program.window("Form18")->caption(), "  Circuito Realimentado por Tensión Estable");
}

TEST(Palette, ButtonsOfMissingSheetsTalkButOpenNothing)
{
    Program program({"Form3", "Form7"});
    program.show();
    for (const int index : {0, 11}) {
        program.engine.userHover(program.palette(), button(program.palette(), index));
        EXPECT_EQ(picturesShown(program.main()), 1);
        const bool panel = program.main().visible(main_window::SSPanel1);
        const std::size_t created = program.screen.created.size();
        program.engine.userClick(program.palette(), button(program.palette(), index));
        EXPECT_EQ(program.screen.created.size(), created);
        EXPECT_EQ(program.main().visible(main_window::SSPanel1), panel);
    }
}

TEST(Palette, TheLabelClearsThePanelAndBringsAMinimisedWindowBack)
{
    Program program;
    program.show();
    host::Window& main = program.main();
    host::Window& palette = program.palette();
    program.engine.userHover(palette, button(palette, 1));
    program.engine.userClick(palette, palette.named("lblButton"));
    EXPECT_FALSE(main.visible(main_window::SSPanel1));
    EXPECT_FALSE(main.visible(main_window::Label1));
    EXPECT_TRUE(palette.shown()) << "floating";
    program.engine.userState(main, 1);
    program.engine.userResized(palette, {500, 600, palette.place().width, palette.place().height});
    program.engine.userClick(palette, palette.named("lblButton"));
    EXPECT_EQ(main.windowState(), 2);
    EXPECT_TRUE(main.visible(main_window::SSPanel1));
    EXPECT_FALSE(main.visible(main_window::Label1));
    EXPECT_EQ(palette.place().left, 0);
    EXPECT_EQ(palette.place().top, 0);
    program.engine.userRun([&] { program.engine.host().setChecked("mnuFlotante", false); });
    program.engine.userClick(palette, palette.named("lblButton"));
    EXPECT_FALSE(palette.shown()) << "not floating: it hides itself";
}

TEST(Palette, TheMaximShowsTheNotesOfThePageOnly)
{
    Program program;
    program.show();
    host::Window& main = program.main();
    const std::pair<int, host::Handle> notes[] = {{10, main_window::Label20}, {0, main_window::Label22},
                                                  {2, main_window::Label24},  {5, main_window::Label25},
                                                  {7, main_window::Label26},  {11, main_window::Label33}};
    for (const auto& [index, note] : notes) {
        program.engine.userHover(program.palette(), button(program.palette(), index));
        for (const auto& [unused, other] : notes)
            EXPECT_FALSE(main.visible(other)) << "none before the maxim is touched";
        program.engine.userHover(main, main_window::Label21);
        for (const auto& [unused, other] : notes)
            EXPECT_EQ(main.visible(other), other == note) << index;
    }
    EXPECT_TRUE(main.text(main_window::Label20).starts_with("Simbologia\nhFE = ganancia de corriente sin señal\n"));
    program.engine.userHover(program.palette(), program.palette().named("lblButton"));
    EXPECT_FALSE(main.visible(main_window::Label33));
}

TEST(Palette, ThePoemStandsWithItsOwnPicture)
{
    Program program;
    program.show();
    program.speakEnglish();
    host::Window& main = program.main();
    program.engine.userClick(main, main_window::Label35);
    EXPECT_EQ(picturesShown(main), 1);
    EXPECT_TRUE(main.visible(main_window::Picture13));
    EXPECT_TRUE(main.text(main_window::Label1).starts_with("The sounds formed"));
    EXPECT_FALSE(main.text(main_window::Label21).empty());
    program.engine.values().LanguageIsEnglish = 0;
    program.engine.userHover(main, main_window::Label21);
    EXPECT_TRUE(main.text(main_window::Label1).starts_with("Los sonidos formaron "));
    program.engine.userHover(program.palette(), program.palette().named("lblButton"));
    EXPECT_EQ(picturesShown(main), 0);
    EXPECT_FALSE(main.visible(main_window::Label21));
}

TEST(Palette, ClosingItAsksNoSheetAndKeepsTheSeparator)
{
    Program program;
    program.show();
    program.menu("uno");
    program.engine.userHover(program.palette(), button(program.palette(), 6));
    program.screen.answers = {Answer::no, Answer::yes};
    program.engine.userClose(program.palette());
    EXPECT_FALSE(program.engine.ended());
    EXPECT_EQ(program.count("Form16"), 1);
    program.engine.userClose(program.palette());
    EXPECT_TRUE(program.engine.ended());
    ASSERT_EQ(program.screen.boxes.size(), 2U);
    EXPECT_EQ(program.screen.boxes[1].text, "¿Desea abandonar Velmor?");
    EXPECT_EQ(program.screen.boxes[1].title, " Potencia en Clase A mejorada...") << "its caption of the moment";
    EXPECT_EQ(program.screen.boxes[1].flags, 36);
    EXPECT_EQ(program.engine.values().DecimalSeparator, ".");
    EXPECT_EQ(program.settings.value("international", "sDecimal"), ".");
    EXPECT_EQ(program.settings.value("Predeterminados", "fCastIng"), "0");
    EXPECT_TRUE(program.settings.value("Predeterminados", "Pantalla").has_value());
}

TEST(Palette, AnotherInstanceIsWarnedOfAndNothingStops)
{
    Program program;
    program.screen.otherInstance = true;
    program.show();
    ASSERT_EQ(program.screen.boxes.size(), 1U);
    EXPECT_EQ(program.screen.boxes[0].text, "El programa velmor ya se esta ejecutando.");
    EXPECT_EQ(program.screen.boxes[0].flags, 48);
    EXPECT_TRUE(program.palette().shown());
    program.menu("mnuFija");
    program.menu("mnuFlotante");
    EXPECT_EQ(program.screen.boxes.size(), 1U) << "once, on its load";
}

TEST(Palette, ActivationGivesItItsCaptionBack)
{
    Program program;
    program.show();
    EXPECT_EQ(program.palette().caption(), "        Diseños posibles en Velmor");
    program.engine.userHover(program.palette(), button(program.palette(), 0));
    EXPECT_EQ(program.palette().caption(), " Amplificador Diferencial Simple");
    program.speakEnglish();
    program.engine.userActivate(program.palette());
    EXPECT_EQ(program.palette().caption(), "Designing...");
    EXPECT_EQ(program.palette().text(program.palette().named("lblButton")), "All");
}

} // namespace velmor::main_window_test
