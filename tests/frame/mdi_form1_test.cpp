// SPDX-License-Identifier: MIT
// The main window's items with stand-ins for all sheets: what each makes, opens, asks and leaves marked.
#include "frame/main_window_program.h"

#include <gtest/gtest.h>

#include "frame/mdi_form1_menus.h"

namespace velmor::main_window_test {

using host::Answer;

/// What the course's table of menus says, typed anew: new item, open item, sheet, window captions.
struct Told {
    std::string_view newItem;
    std::string_view openItem;
    std::string_view sheet;
    std::string_view english;
    std::string_view spanish;
};

// clang-format off
constexpr Told told[] = {
    {"uno",    "unoB",    "Form3",  "  Long Tail Pairs  -  Differential Amplifier", "  Diferencial Simple"},
    {"Dos",    "dosB",    "Form13", "Long Tail Pairs Compound",                     "  Diferencial Compuesto ó Cascode"},
    {"tres",   "tresB",   "Form4",  "  Common Base",                                "  Base Común"},
    {"cuatro", "cuatroB", "Form12", "  D.C. source",                                "  Fuente de Corriente Constante"},
    {"cinco",  "cincoB",  "Form9",  "  Paraphase",                                  "  Parafase"},
    {"seis",   "seisB",   "Form17", "  Common Collector",                           "  Colector Común"},
    {"siete",  "ochoB",   "form20", "  Power Amplifier. (Class A - Darlington)",    "  Clase A mejorada..."},
    {"ocho",   "sieteB",  "Form15", "  Power Amplifier Class A Simple",             "  Amplificador Clase A Simple"},
    {"nueve",  "nueveB",  "Form10", "  Power Amplifier Class B",                    "  Amplificador de Potencia Clase B"},
    {"diez",   "diezB",   "Form11", "  Power Amplifier Class B Darlington",         "  Amplificador de Potencia Clase B Mejorado"},
    {"once",   "onceB",   "Form2",  "  Common Emitter, Feedback for Current",       "  Emisor Común Realimentado por Corriente"},
    {"once",   "mnuEmisor", "Form2", "  Common Emitter, Feedback for Current",      "  Emisor Común Realimentado por Corriente"},
    {"doce",   "doceB",   "Form8",  "  Feedback  Voltage Circuits Simple",          "  Circuito Realimentado por Tensión Simple"},
    {"trece",  "treceB",  "Form18", "  Feedback  Voltage Circuits Stable",          "  Circuito Realimentado por Tensión Estable"},
    {"",       "mnuDesac", "desaco", "stored",                                      "stored"},
    {"",       "MnuParc", "ParcDesac", "  Common Emitter, Bypass",                  "  Emisor Común Parcialmente Desacoplado"},
};
// clang-format on

TEST(MainWindow, EveryNewItemMakesItsSheetWithItsCaptionInBothLanguages)
{
    for (const Told& row : told) {
        if (row.newItem.empty())
            continue;
        Program program;
        program.menu(row.newItem);
        ASSERT_NE(program.window(row.sheet), nullptr) << row.newItem;
        EXPECT_EQ(program.window(row.sheet)->caption(), row.spanish);
        EXPECT_EQ(program.engine.activeChild(), program.window(row.sheet));
        EXPECT_EQ(program.main().windowState(), 2);
        program.speakEnglish();
        program.menu(row.newItem);
        EXPECT_EQ(program.count(row.sheet), 2);
        EXPECT_EQ(program.window(row.sheet)->caption(), row.english);
    }
}

TEST(MainWindow, EveryOpenItemMakesTheSheetAndRunsItsOpenDialog)
{
    for (const Told& row : told) {
        Program program;
        program.screen.files.emplace_back("/there/Mi circuito.RPC");
        program.menu(row.openItem);
        ASSERT_EQ(program.count(row.sheet), 1) << row.openItem;
        const std::string sheet(row.sheet);
        EXPECT_EQ(program.takeLog(), (std::vector<std::string>{sheet + " CDL_AbrirDatos", sheet + " Abrir"}));
        EXPECT_EQ(program.window(row.sheet)->caption(), "Mi circuito");
    }
}

TEST(MainWindow, ACancelledOpenDialogTakesTheSheetAwayWithoutAQuestion)
{
    Program program;
    for (const Told& row : told) {
        program.menu(row.openItem);
        EXPECT_EQ(program.count(row.sheet), 0) << row.openItem;
    }
    EXPECT_TRUE(program.screen.boxes.empty());
}

TEST(MainWindow, ItemsOfSheetsThatTheProgramLacksAreDisabledAndDoNothing)
{
    Program program({"Form3", "Form19", "frmEdito1", "frmEdito3", "frmAbout"});
    for (const std::string_view item : {"uno", "unoB", "mnuayuda", "mnuEdit", "mnuProy", "mnuAcerca", "mnuvac"})
        EXPECT_FALSE(program.main().enabled(program.main().named(item))) << item;
    for (const std::string_view item : {"once", "onceB", "mnuEmisor", "mnuDesac", "MnuParc", "mnuImpor", "mnuActu"})
        EXPECT_TRUE(program.main().enabled(program.main().named(item))) << item;
    EXPECT_FALSE(program.main().enabled(main_window::Image29));
    const std::size_t before = program.screen.created.size();
    for (const std::string_view item : {"uno", "unoB", "mnuayuda", "mnuEdit", "mnuProy", "mnuAcerca", "mnuvac"})
        program.menu(item);
    EXPECT_EQ(program.screen.created.size(), before);
    EXPECT_EQ(program.engine.arrangement(), 0) << "mnuEdit would have tiled";
}

TEST(MainWindow, OneEditorLanguageIsEnoughToKeepTheGuideItem)
{
    Program program({"frmEdito3"});
    EXPECT_TRUE(program.main().enabled(main_window::mnuEdit));
}

TEST(MainWindow, TheVoltageFeedbackItemsSendTheChooserAway)
{
    for (const std::string_view item : {"doce", "trece"}) {
        Program program;
        program.engine.userRun([&] { program.engine.host().Show("Form7"); });
        ASSERT_EQ(program.count("Form7"), 1);
        program.menu("once");
        EXPECT_EQ(program.count("Form7"), 1);
        program.menu(item);
        EXPECT_EQ(program.count("Form7"), 0) << item;
    }
}

TEST(MainWindow, NewSheetServesThoseWithoutAnItem)
{
    Program program;
    program.engine.userRun([&] {
        program.main().newSheet("desaco");
        program.main().newSheet("parcdesac");
        program.main().newSheet("NoSuchSheet");
    });
    EXPECT_EQ(program.count("desaco"), 1);
    EXPECT_EQ(program.window("desaco")->caption(), "stored");
    EXPECT_EQ(program.window("ParcDesac")->caption(), "  Emisor Común Parcialmente Desacoplado");
    EXPECT_TRUE(program.takeLog().empty()) << "no dialog";
}

TEST(MainWindow, SaveAsksForAPathOnlyWhenThereIsNone)
{
    Program program;
    program.menu("uno");
    program.screen.files.emplace_back("/there/one.CDS");
    program.menu("mnuFile(1)");
    EXPECT_EQ(program.takeLog(), (std::vector<std::string>{"Form3 CDL_GuardarDatos", "Form3 Guardar"}));
    program.menu("mnuFile(1)");
    EXPECT_EQ(program.takeLog(), (std::vector<std::string>{"Form3 Guardar"}));
    EXPECT_EQ(program.screen.dialogs.size(), 1U);
}

TEST(MainWindow, SaveAsAsksEveryTimeAndSavesEvenAfterACancel)
{
    Program program;
    program.menu("uno");
    program.screen.files.emplace_back("/there/one.CDS");
    program.menu("mnuFile(2)");
    program.menu("mnuFile(2)");
    EXPECT_EQ(program.takeLog(), (std::vector<std::string>{"Form3 CDL_GuardarDatos", "Form3 Guardar",
                                                           "Form3 CDL_GuardarDatos", "Form3 Guardar"}));
    EXPECT_EQ(dynamic_cast<sheets::DesignSheet*>(program.window("Form3"))->NombreArchivo(), "/there/one.CDS");
}

TEST(MainWindow, FileActionsWithoutAnActiveChildDoNothing)
{
    Program program;
    for (const std::string_view item : {"mnuFile(0)", "mnuFile(1)", "mnuFile(2)", "mnuFile(3)"})
        program.menu(item);
    EXPECT_TRUE(program.screen.boxes.empty());
    EXPECT_TRUE(program.screen.dialogs.empty());
}

TEST(MainWindow, FileActionsOnAnEditorSaveNothingButCloseIt)
{
    Program program;
    program.menu("mnuEdit");
    ASSERT_EQ(program.count("frmEdito1"), 1);
    program.menu("mnuFile(1)");
    program.menu("mnuFile(2)");
    EXPECT_TRUE(program.screen.dialogs.empty());
    program.menu("mnuFile(3)");
    EXPECT_EQ(program.count("frmEdito1"), 0);
}

TEST(MainWindow, AnErrorInAFileActionEndsItInSilence)
{
    Program program;
    program.menu("uno");
    StandInSheet::fails = true;
    for (const std::string_view item : {"mnuFile(1)", "mnuFile(2)", "unoB"})
        program.menu(item);
    StandInSheet::fails = false;
    EXPECT_TRUE(program.screen.boxes.empty());
    EXPECT_TRUE(program.screen.failures.empty());
    EXPECT_FALSE(program.engine.ended());
    program.menu("Dos");
    EXPECT_EQ(program.count("Form13"), 1) << "the program goes on";
}

TEST(MainWindow, CloseAsksTheActiveSheetItsOwnQuestion)
{
    Program program;
    program.menu("uno");
    program.screen.answers = {Answer::cancel, Answer::no};
    program.menu("mnuFile(3)");
    EXPECT_EQ(program.count("Form3"), 1) << "Cancel keeps it";
    program.menu("mnuFile(3)");
    EXPECT_EQ(program.count("Form3"), 0);
    ASSERT_EQ(program.screen.boxes.size(), 2U);
    EXPECT_EQ(program.screen.boxes[0].flags, 67);
}

TEST(MainWindow, CloseTakesTheSheetThatIsActiveAmongSeveral)
{
    Program program;
    program.menu("uno");
    program.menu("Dos");
    program.engine.userActivate(*program.window("Form3"));
    program.screen.answers = {Answer::no};
    program.menu("mnuFile(3)");
    EXPECT_EQ(program.count("Form3"), 0);
    EXPECT_EQ(program.count("Form13"), 1);
}

TEST(MainWindow, ItOpensTheGuideOfTheMenuAndThatOfTheBar)
{
    Program program;
    program.menu("mnuEdit");
    EXPECT_EQ(program.engine.values().ArchivoGuia, "guia1.Lab");
    EXPECT_EQ(program.engine.arrangement(), 1) << "with no mark it tiles";
    EXPECT_TRUE(program.main().checked(main_window::mnuCas)) << "and marks the cascade";
    program.engine.userClick(program.main(), main_window::Image29);
    EXPECT_EQ(program.engine.values().ArchivoGuia, "guia2.Lab");
    EXPECT_EQ(program.engine.arrangement(), 0) << "now by the mark";
    EXPECT_EQ(program.count("frmEdito1"), 2) << "a new one each time";
    program.speakEnglish();
    program.menu("mnuEdit");
    EXPECT_EQ(program.engine.values().ArchivoGuia, "Feedback current.Lab");
    EXPECT_EQ(program.count("frmEdito3"), 1);
    program.engine.userClick(program.main(), main_window::Image29);
    EXPECT_EQ(program.engine.values().ArchivoGuia, "Feedback current.Lab");
}

TEST(MainWindow, TheGuideItemFollowsTheMarkOfTheArrangement)
{
    const std::pair<std::string_view, int> marks[] = {{"mnuCas", 0}, {"mnuHoriz", 1}, {"mnuVert", 2}};
    for (const auto& [item, kind] : marks) {
        Program program;
        program.menu(item);
        program.engine.userRun([&] { program.engine.host().Arrange(7); });
        program.menu("mnuEdit");
        EXPECT_EQ(program.engine.arrangement(), kind) << item;
    }
}

TEST(MainWindow, TheProjectOpensTheOneEditorMaximised)
{
    Program program;
    program.menu("mnuProy");
    EXPECT_EQ(program.engine.arrangement(), 0);
    EXPECT_TRUE(program.main().checked(main_window::mnuCas));
    EXPECT_EQ(program.engine.values().ArchivoGuia, "Proy.Lab");
    program.menu("mnuProy");
    EXPECT_EQ(program.engine.arrangement(), 2) << "with a mark set it tiles vertically, whichever it is";
    EXPECT_EQ(program.count("frmEdito1"), 1) << "the same one";
    EXPECT_EQ(program.window("frmEdito1")->windowState(), 2);
    program.speakEnglish();
    program.menu("mnuProy");
    EXPECT_EQ(program.window("frmEdito3")->windowState(), 2);
}

TEST(MainWindow, HelpShowsTheNoteOfTheLanguageAndRestoresIt)
{
    Program program;
    program.menu("mnuayuda");
    host::Window& help = *program.window("Form19");
    EXPECT_EQ(help.caption(), "Ayuda,(no necesito a nadie..)");
    EXPECT_TRUE(help.visible(help.named("Text1")));
    EXPECT_FALSE(help.visible(help.named("Text2")));
    program.engine.userState(help, 1);
    program.speakEnglish();
    program.menu("mnuayuda");
    EXPECT_EQ(help.caption(), "Help. (ain't got nobody)");
    EXPECT_FALSE(help.visible(help.named("Text1")));
    EXPECT_TRUE(help.visible(help.named("Text2")));
    EXPECT_EQ(help.windowState(), 0);
}

TEST(MainWindow, TheOtherHelpItemsOpenTheirWindows)
{
    Program program;
    program.menu("mnuActu");
    host::Window& contact = *program.window("infoform");
    EXPECT_TRUE(contact.visible(contact.named("Label1")));
    EXPECT_FALSE(contact.visible(contact.named("Label2")));
    program.menu("mnuvac");
    program.menu("mnuAcerca");
    EXPECT_EQ(program.count("frmAbout"), 1);
    program.menu("mnuImpor");
    EXPECT_EQ(program.count("frmDrag"), 1);
}

TEST(MainWindow, OpeningTheOptionsMarksTheScreenMode)
{
    Program program;
    const auto modeShown = [&](std::uint8_t mode) {
        program.engine.values().ScreenMode = mode;
        program.engine.userMenuOpens(program.main(), main_window::mnuOp);
        return program.main().checked(main_window::mnuScreen1);
    };
    EXPECT_FALSE(modeShown(0));
    EXPECT_TRUE(modeShown(1));
    EXPECT_NE(program.main().caption(), "NO anda");
    EXPECT_TRUE(modeShown(2)) << "left as it was";
    EXPECT_EQ(program.main().caption(), "NO anda");
}

TEST(MainWindow, ResizeMaximisedFitsThePanelBesideTheBar)
{
    Program program;
    program.show();
    host::Place larger = program.main().place();
    larger.width = 30000;
    program.engine.userResized(program.main(), larger);
    const int bar = program.main().placeOf(main_window::Picture14).width;
    EXPECT_EQ(program.main().placeOf(main_window::SSPanel1).width, 30000 - bar);
    program.engine.userState(program.main(), 0);
    larger.width = 12000;
    program.engine.userResized(program.main(), larger);
    EXPECT_EQ(program.main().placeOf(main_window::SSPanel1).width, 30000 - bar) << "not when it is not maximised";
}

TEST(MainWindow, ResizeSendsTheContactWindowAwayAndFollowsTheChoiceOfBar)
{
    Program program;
    program.show();
    EXPECT_TRUE(program.palette().shown());
    program.menu("mnuActu");
    program.menu("mnuFija");
    program.engine.userState(program.main(), 0);
    EXPECT_EQ(program.count("infoform"), 0);
    EXPECT_FALSE(program.palette().shown());
    EXPECT_TRUE(program.main().visible(main_window::Picture14));
    program.engine.userState(program.main(), 1);
    EXPECT_FALSE(program.main().visible(main_window::Picture14)) << "hidden while minimised";
    program.menu("mnuFlotante");
    program.engine.userRun([&] { program.engine.host().Hide("Form16"); });
    program.engine.userState(program.main(), 2);
    EXPECT_TRUE(program.palette().shown());
}

TEST(MainWindow, MaximisingFromMinimisedKeepsItsSize)
{
    Program program;
    program.show();
    const int width = program.main().place().width;
    program.engine.userState(program.main(), 1);
    program.engine.userState(program.main(), 2);
    EXPECT_EQ(program.main().place().width, width);
}

TEST(MainWindow, TheFixedBarLaysOutItsThirteenButtons)
{
    Program program;
    program.engine.userRun([&] {
        for (std::size_t i = 0; i < 13; ++i)
            program.main().hide(main_window::element(main_window::imgButton0, i));
        program.main().hide(main_window::SSPanel1);
    });
    program.menu("mnuFija");
    const int lefts[] = {30, 390, 750, 1110, 1470, 1860, 2250, 2550, 2910, 3270, 3630, 3990, 4350};
    for (std::size_t i = 0; i < 13; ++i) {
        const host::Handle button = program.main().named("imgButton(" + std::to_string(i) + ")");
        EXPECT_EQ(program.main().placeOf(button).left, lefts[i]);
        EXPECT_TRUE(program.main().visible(button));
    }
    EXPECT_EQ(program.main().placeOf(main_window::lblButton).top, 4350);
    EXPECT_TRUE(program.main().visible(main_window::SSPanel1));
    EXPECT_TRUE(program.main().visible(main_window::Picture14));
}

TEST(MainWindow, TheBarActsAsThePaletteButForItsLastButton)
{
    Program program;
    program.show();
    program.menu("mnuFija");
    host::Window& main = program.main();
    program.engine.userHover(main, main.named("imgButton(4)"));
    EXPECT_TRUE(main.visible(main_window::Picture5));
    EXPECT_EQ(main.control(main.named("Shape1(4)")).backColor, 0xFFFFFF);
    EXPECT_EQ(main.caption(), " Inversor de Fase");
    EXPECT_EQ(program.palette().caption(), " Inversor de Fase");
    program.engine.userClick(main, main.named("imgButton(4)"));
    EXPECT_EQ(program.count("Form9"), 1);
    EXPECT_EQ(program.window("Form9")->caption(), "  Parafase");
    const std::size_t before = program.screen.created.size();
    program.engine.userHover(main, main.named("imgButton(12)"));
    program.engine.userClick(main, main.named("imgButton(12)"));
    EXPECT_EQ(program.screen.created.size(), before);
    EXPECT_TRUE(main.visible(main_window::Picture5)) << "nothing has changed";
    program.engine.userHover(main, main.named("lblButton"));
    EXPECT_EQ(main.control(main.named("Shape1(4)")).backColor, -1);
    EXPECT_FALSE(main.visible(main_window::Picture5));
}

TEST(MainWindow, ARightPressOnTheBarOpensItsOwnMenu)
{
    Program program;
    program.show();
    program.menu("mnuFija");
    program.engine.userPress(program.main(), main_window::Picture14, host::Button::left);
    EXPECT_TRUE(program.screen.popups.empty());
    program.engine.userPress(program.main(), main_window::Picture14, host::Button::right);
    EXPECT_EQ(program.screen.popups, std::vector<std::string>{"mnuContexto"});
}

TEST(MainWindow, AnySheetReachesTheBarRoutineByTheItemsClick)
{
    Program program;
    program.show();
    program.menu("mnuFija");
    program.engine.userRun([&] { program.engine.host().Show("Form16"); });
    program.engine.userRun([&] { program.main().hide(main_window::Picture14); });
    program.engine.userRun([&] {
        host::Window& main = program.engine.host().mainWindow();
        host::EventArgs args;
        main.runSlot(main.named("mnudise"), host::Event::click, args);
    });
    EXPECT_TRUE(program.main().visible(main_window::Picture14));
    EXPECT_FALSE(program.palette().shown());
}

TEST(MainWindow, ActivationHidesTheTableOfStandardValues)
{
    Program program;
    program.show();
    program.engine.userRun([&] { program.engine.host().Show("Form14"); });
    EXPECT_TRUE(program.window("Form14")->shown());
    program.engine.userActivate(program.main());
    EXPECT_FALSE(program.window("Form14")->shown());
}

TEST(MainWindow, ExitAsksEverySheetAndOneCancelDropsItAll)
{
    Program program;
    program.show();
    program.menu("uno");
    program.menu("Dos");
    program.screen.answers = {Answer::yes, Answer::no, Answer::cancel};
    program.engine.userClose(program.main());
    EXPECT_FALSE(program.engine.ended());
    EXPECT_EQ(program.count("Form3"), 1);
    EXPECT_EQ(program.count("Form13"), 1);
    EXPECT_FALSE(program.settings.value("Predeterminados", "fCastIng").has_value());
    EXPECT_EQ(program.engine.values().DecimalSeparator, ".");
    program.screen.answers = {Answer::yes, Answer::no, Answer::no};
    program.engine.userClose(program.main());
    EXPECT_TRUE(program.engine.ended());
    EXPECT_EQ(program.settings.value("Predeterminados", "fCastIng"), "0");
    EXPECT_EQ(program.engine.values().DecimalSeparator, ",");
    EXPECT_FALSE(program.settings.value("international", "sDecimal").has_value());
}

TEST(MainWindow, ExitWithoutSavingAsksNoSheet)
{
    Program program;
    program.show();
    program.menu("uno");
    program.screen.answers = {Answer::no, Answer::yes};
    program.menu("mnuSalir2");
    EXPECT_FALSE(program.engine.ended());
    program.menu("mnuSalir2");
    EXPECT_TRUE(program.engine.ended());
    ASSERT_EQ(program.screen.boxes.size(), 2U);
    EXPECT_EQ(program.screen.boxes[0].text, "¿Desea abandonar Velmor? (sin salvar circuitos...)");
    EXPECT_EQ(program.screen.boxes[0].title, "Velmor");
    EXPECT_EQ(program.screen.boxes[0].flags, 36);
    EXPECT_TRUE(program.takeLog().empty());
    EXPECT_EQ(program.engine.values().DecimalSeparator, ",");
}

TEST(MainWindow, WithNeitherMarkTheNextStartIsEnglish)
{
    Program program;
    program.engine.userRun([&] {
        program.main().setChecked(main_window::mnuLenguaje0, false);
        program.main().setChecked(main_window::mnuLenguaje1, false);
        main_window::saveSettings(program.engine.host());
    });
    EXPECT_EQ(program.settings.value("Predeterminados", "fCastIng"), "1");
    EXPECT_EQ(program.settings.value("Predeterminados", "Pantalla"), "0");
}

} // namespace velmor::main_window_test
