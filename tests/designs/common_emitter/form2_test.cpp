// SPDX-License-Identifier: MIT
// What Form2 does where a walk cannot go: the bypassed circuit, which has no way in, visibility as state, other windows that
// are loaded or not, and damaged files. The chain itself is walked in tests/walks/form2.
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "designs/common_emitter/form2_program.h"
#include "places.h"

namespace velmor::form2_test {

using namespace form2;

constexpr std::int16_t spanish = 0;

/// A design that is bypassed and polarised by base from its temperature on.
struct Bypassed : test::Form2Program {
    Bypassed()
    {
        supply = "20";
        playTo(Text4);
        sheet().show(Picture1, Image2);
    }
};

TEST(Form2Bypassed, TheGainIsThatOfTheJunction)
{
    Bypassed program;
    program.playTo(Text11);
    program.typeAndEnter("100");
    EXPECT_EQ(program.sheet().text(statu18), " (Rlac)=           2500  ohms");
    EXPECT_EQ(program.sheet().text(statu19), "    3 K  "); // 10000 x 2500 / 7500 = 3333.3
}

TEST(Form2Bypassed, AnRLBelowHalfAKilohmAdvisesMoreGain)
{
    Bypassed program;
    program.playTo(Text11);
    program.typeAndEnter("10"); // RLac 250: 10000 x 250 / 9750 = 256 ohm
    ASSERT_EQ(program.screen.boxes.size(), 2u);
    EXPECT_EQ(program.screen.boxes[0].title, "Error ");
    EXPECT_EQ(program.screen.boxes[1].text, "It is advisable to elevate the value of the gain Vg");
    EXPECT_EQ(program.screen.boxes[1].title, " Error ");
    EXPECT_EQ(program.focus(), "Text8");
    EXPECT_FALSE(program.sheet().visible(status40));
    EXPECT_FALSE(program.sheet().visible(Text15));
    EXPECT_FALSE(program.sheet().visible(Text18));
}

TEST(Form2Bypassed, EnterInRb1ShowsTheCapacitorAndLeavesTheFocus)
{
    Bypassed program;
    program.playTo(Text11);
    program.typeAndEnter("100");
    program.playTo(Text19);
    ASSERT_EQ(program.focus(), "Text19");
    program.typeAndEnter("68");
    EXPECT_EQ(program.focus(), "Text19");
    EXPECT_EQ(program.sheet().text(Text20), "318 microF");
    EXPECT_TRUE(program.sheet().visible(Text20));
    EXPECT_FALSE(program.sheet().visible(Picture1));
    EXPECT_FALSE(program.sheet().enabled(Picture2));
    EXPECT_EQ(program.sheet().text(STA70),
              "Bootstrapping can not be carried out\nExcept for indication, capacitors in microfarade");
}

TEST(Form2Bypassed, LeavingRb1WhileBypassedEndsAtBeta)
{
    Bypassed program;
    program.playTo(Text11);
    program.typeAndEnter("100");
    program.playTo(Text19);
    ASSERT_EQ(program.focus(), "Text19");
    program.engine.userFocus(program.sheet(), Text18);
    EXPECT_EQ(program.focus(), "Text2");
    EXPECT_EQ(program.sheet().text(Text19), "");
    EXPECT_EQ(program.sheet().text(Text21), "- Ebias =1 Volts"); // 1375 x 1 / 1000 = 1.375
    EXPECT_EQ(program.sheet().placeOf(Text21).width, 1500);
    EXPECT_FALSE(program.sheet().visible(Picture1));
    EXPECT_FALSE(program.sheet().enabled(Text6));
}

TEST(Form2Bypassed, ThePictureLeadsBackToTheBeginning)
{
    Bypassed program;
    program.playTo(Text8);
    program.click(Picture1);
    EXPECT_EQ(program.focus(), "Text1");
    EXPECT_FALSE(program.sheet().visible(Image2));
    EXPECT_TRUE(program.sheet().visible(Picture6));
    EXPECT_FALSE(program.sheet().visible(Picture1));
    EXPECT_EQ(program.sheet().text(STA70), "Pressing Bypass, you will obtain more gain..");
}

TEST(Form2Modes, LeavingTheFirstFieldTurnsBypassIntoAChoice)
{
    test::Form2Program program;
    program.sheet().show(Picture1);
    program.sheet().hide(Picture11, Picture6);
    program.enter(); // Text1 has the focus
    EXPECT_TRUE(program.sheet().visible(Picture1));
    EXPECT_TRUE(program.sheet().visible(Image2));
}

TEST(Form2Modes, AGainThatAsksForAllOfRLwByEmitterLeavesNoCurrent)
{
    test::Form2Program program;
    program.click(Picture11);
    program.screen.boxes.clear();
    program.playTo(Text11);
    program.typeAndEnter("400"); // RLac 400 x 25 = 10000 ohm, all of RLw
    ASSERT_EQ(program.screen.boxes.size(), 1u);
    EXPECT_EQ(program.screen.boxes[0].title, "Error, RL is of very high value");
    EXPECT_EQ(program.focus(), "Text8");
}

TEST(Form2Help, APressOfTheRightButtonMarksItsFieldAndShowsThePageOfTheFirstMark)
{
    test::Form2Program program(spanish);
    program.engine.userPress(program.sheet(), Text8, host::Button::right);
    // Text1 has the focus, and with it the first mark.
    EXPECT_EQ(program.engine.host().text("Form21", "SSCommand1"), " Delta QIc...");
    EXPECT_EQ(program.sheet().tag(Text8), "1");
    program.playTo(Text8);
    program.engine.userPress(program.sheet(), Text8, host::Button::right);
    EXPECT_EQ(program.engine.host().text("Form21", "SSCommand1"), " QIc...");
    EXPECT_TRUE(program.engine.host().visible("Form21", "Text22"));
    EXPECT_FALSE(program.engine.host().visible("Form21", "Text23"));
    EXPECT_EQ(program.engine.defaultInstance("Form21")->caption(), " Ayuda");
}

TEST(Form2Help, TheEnglishPanelShowsTheEnglishPage)
{
    test::Form2Program program;
    program.engine.userPress(program.sheet(), Text1, host::Button::right);
    EXPECT_EQ(program.engine.defaultInstance("Form21")->caption(), " Help");
    EXPECT_TRUE(program.engine.host().visible("Form21", "Label1"));
    EXPECT_FALSE(program.engine.host().visible("Form21", "Text22"));
    EXPECT_TRUE(program.engine.host().visible("Form21", "Text23"));
    EXPECT_NE(program.engine.host().text("Form21", "Text23").find("Here you say"), std::string::npos);
}

TEST(Form2Drawing, ItGrowsWithTheChainAndStartsOverWithIt)
{
    test::Form2Program program;
    const auto drawn = [&](host::Handle part) { return program.sheet().visible(part); };
    EXPECT_FALSE(drawn(Line5));
    program.playTo(Text8);
    EXPECT_TRUE(drawn(Line5));
    EXPECT_FALSE(drawn(Line2));
    program.playTo(Text15);
    EXPECT_TRUE(drawn(Line2) && drawn(Line3));
    EXPECT_FALSE(drawn(Line4));
    program.playTo(Text19);
    EXPECT_TRUE(drawn(Line9) && drawn(Line10) && drawn(Line15) && drawn(Line16) && drawn(Shape4));
    program.typeAndEnter("186.5");
    program.click(Picture2);
    EXPECT_TRUE(drawn(Line20) && drawn(Picture3) && drawn(Picture5));
    EXPECT_FALSE(drawn(Line15) || drawn(Line16));
    program.click(Picture7);
    EXPECT_TRUE(drawn(Line15) && drawn(Line16));
    EXPECT_FALSE(drawn(Line20));
    program.click(Picture4);
    EXPECT_EQ(program.focus(), "Text1");
    for (const host::GrowthRow& row : growth)
        EXPECT_FALSE(drawn(row.part)) << program.sheet().row(row.part).name;
}

TEST(Form2Drawing, AStageWithANegativeSupplyStandsOnItsTerminal)
{
    test::Form2Program program;
    program.supply = "12";
    program.click(Picture11);
    program.playTo(Text19);
    ASSERT_EQ(program.focus(), "Text19");
    EXPECT_TRUE(program.sheet().visible(Line4));
    EXPECT_FALSE(program.sheet().visible(Line3));
    EXPECT_FALSE(program.sheet().visible(Line16));
}

TEST(Form2Drawing, TheWholeCircuitOfTheModeInForceStandsTherePaleFromTheStart)
{
    test::Form2Program program;
    const auto tone = [&](host::Handle control) { return host::toneOf(program.sheet(), control); };
    for (host::Handle part = Line1; part <= Line19; ++part)
        EXPECT_EQ(tone(part), part == Line4 ? host::Tone::away : host::Tone::pale) << program.sheet().row(part).name;
    EXPECT_EQ(tone(Shape3), host::Tone::pale);
    EXPECT_EQ(tone(Line20), host::Tone::away);
    program.playTo(Text8);
    EXPECT_EQ(tone(Shape3), host::Tone::ink);
    EXPECT_EQ(tone(Text17), host::Tone::pale);
    program.playTo(Text17);
    EXPECT_EQ(tone(Text17), host::Tone::ink);
}

TEST(Form2Drawing, PolarisedByEmitterItHasNoRb1ButATerminalAndABypass)
{
    test::Form2Program program;
    program.click(Picture11);
    const auto tone = [&](host::Handle control) { return host::toneOf(program.sheet(), control); };
    EXPECT_EQ(tone(Line16), host::Tone::away);
    EXPECT_EQ(tone(Line3), host::Tone::away);
    EXPECT_EQ(tone(Line4), host::Tone::pale);
    EXPECT_EQ(tone(Image2), host::Tone::pale);
    EXPECT_TRUE(host::isChosen(program.sheet(), Picture10));
}

TEST(Form2Drawing, BootstrappedItStartsOverWithBothResistorsInHalves)
{
    test::Form2Program program;
    program.playTo(Text19);
    program.typeAndEnter("186.5");
    program.click(Picture2);
    EXPECT_TRUE(host::isChosen(program.sheet(), Picture7));
    program.click(Picture4); // the focus goes to Text1
    const auto tone = [&](host::Handle control) { return host::toneOf(program.sheet(), control); };
    EXPECT_EQ(tone(Line20), host::Tone::pale);
    EXPECT_EQ(tone(Picture3), host::Tone::pale);
    EXPECT_EQ(tone(Line15), host::Tone::away);
    EXPECT_EQ(tone(Line16), host::Tone::away);
    program.playTo(Text18);
    EXPECT_EQ(tone(Line20), host::Tone::ink);
    EXPECT_EQ(tone(Line15), host::Tone::away);
}

// --- finished

TEST(Form2Finished, ADesignHasPassedWhenThePresetGivesItsCurrentUntilAnEarlierFieldTakesAKey)
{
    test::Form2Program program;
    program.playTo(Text19);
    program.typeAndEnter("120"); // 8.85 mA instead of 1
    EXPECT_FALSE(program.sheet().quantities().passed);
    EXPECT_EQ(program.focus(), "Text19");
    program.typeAndEnter("186.5");
    EXPECT_EQ(program.focus(), "Picture4");
    EXPECT_TRUE(program.sheet().quantities().passed);
    program.engine.userFocus(program.sheet(), Text18);
    EXPECT_TRUE(program.sheet().quantities().passed);
    program.key('x'); // the filter takes it away
    EXPECT_TRUE(program.sheet().quantities().passed);
    program.key('1');
    EXPECT_FALSE(program.sheet().quantities().passed);
}

TEST(Form2Finished, AStagePolarisedByEmitterHasPassedWhenRb1IsLeftAndAFileHasNot)
{
    test::Form2Program program;
    program.supply = "12";
    program.click(Picture11);
    program.playTo(Text19);
    EXPECT_FALSE(program.sheet().quantities().passed);
    program.typeAndEnter("1");
    EXPECT_TRUE(program.sheet().quantities().passed);
    program.sheet().CDL_AbrirDatos();
    EXPECT_FALSE(program.sheet().quantities().passed);
}

// --- files

struct Form2Files : testing::Test {
    Form2Files()
    {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    ~Form2Files() override { std::filesystem::remove_all(folder); }
    std::string write(const std::string& content)
    {
        const std::string path = folder + "/design.CEC";
        std::ofstream(path, std::ios::binary) << content;
        return path;
    }
    std::string folder =
        places::build() + "/form2_files_" + testing::UnitTest::GetInstance()->current_test_info()->name();
};

TEST_F(Form2Files, ADesignComesBackWithItsFieldsAndTheNeighboursOfItsLabels)
{
    test::Form2Program first;
    first.playTo(Text19);
    first.typeAndEnter("186.5");
    first.sheet().setNombreArchivo(folder + "/design.CEC");
    first.sheet().Guardar();
    EXPECT_EQ(first.sheet().modificado(), 0);

    test::Form2Program second;
    second.sheet().setModificado(host::trueValue);
    second.sheet().setNombreArchivo(folder + "/design.CEC");
    second.sheet().CDL_AbrirDatos();
    for (host::Handle field = Text1; field <= Text19; ++field)
        EXPECT_EQ(second.sheet().text(field), first.sheet().text(field)) << second.sheet().row(field).name;
    EXPECT_EQ(second.sheet().text(Voltaje), "1.375");
    EXPECT_EQ(second.sheet().text(Text21), "");           // what was saved of Text20
    EXPECT_EQ(second.sheet().text(res), "  - Es = 20 V"); // of Text21
    EXPECT_EQ(second.sheet().text(statu25), " Eq=  11.625 Volts");
    EXPECT_EQ(second.sheet().text(statu22), " Rb2= 13.75 K         comercial...");
    EXPECT_EQ(second.sheet().text(VRes), "1.375  Volt");
    EXPECT_EQ(second.sheet().text(ER), "22     Volts");
    EXPECT_EQ(second.sheet().text(Label24), "1375");         // of res
    EXPECT_EQ(second.sheet().text(statu32), "");             // the line of image2
    EXPECT_EQ(second.sheet().text(statu33), "0.9996 mA");    // of Label24
    EXPECT_EQ(second.sheet().text(statu61), "33.025 Volts"); // of statu30
    EXPECT_EQ(second.sheet().text(statu62), "");             // the empty line at the end
    EXPECT_TRUE(second.sheet().visible(Text20));
    EXPECT_TRUE(second.sheet().visible(statu62));
    EXPECT_EQ(second.sheet().modificado(), host::trueValue) << "the last read finds the end";
    EXPECT_EQ(second.sheet().OperCancelo(), 0);
    EXPECT_EQ(second.focus(), "Text1");
}

TEST_F(Form2Files, TheFileHasThirtyLinesAndAnEmptyOne)
{
    test::Form2Program program;
    program.sheet().setNombreArchivo(folder + "/design.CEC");
    program.sheet().Guardar();
    std::ifstream file(folder + "/design.CEC", std::ios::binary);
    const std::string content((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::string expected;
    for (const char* line : {"10", "80", "75", "2.5",  "", "25", "100", "0.6", "1", "10", "10",
                             "5",  "20", "1",  "0.35", "", "",   "",    "",    "",  "",   "  - Es = 20 V",
                             "",   "",   "",   "",     "", "",   "",    "",    ""})
        expected += std::string(line) + "\r\n";
    EXPECT_EQ(content, expected);
}

TEST_F(Form2Files, ALongerFileReachesTheClosingSteps)
{
    std::string content;
    for (int line = 1; line <= 31; ++line)
        content += std::to_string(line) + "\r\n";
    test::Form2Program program;
    program.sheet().show(Image2);
    program.sheet().setModificado(host::trueValue);
    program.sheet().setNombreArchivo(write(content + "\r\n"));
    program.sheet().Abrir();
    EXPECT_EQ(program.sheet().text(SSPanel1), "Archive Circuit : Common Emitter");
    EXPECT_FALSE(program.sheet().visible(Image2));
    EXPECT_FALSE(program.sheet().visible(Text21));
    EXPECT_EQ(program.sheet().modificado(), 0);
    program.sheet().setNombreArchivo(write(content + "318 microF\r\n"));
    program.sheet().Abrir();
    EXPECT_EQ(program.sheet().text(SSPanel1), "Archive Circuit : Emmiter polarized");
    EXPECT_TRUE(program.sheet().visible(Image2));
    EXPECT_EQ(program.sheet().text(Text20), "318 microF");
}

TEST_F(Form2Files, ATruncatedFileLeavesWhatWasReadAndSaysNothing)
{
    test::Form2Program program;
    program.sheet().setNombreArchivo(write("7\r\n90\r\n60\r\n"));
    program.sheet().Abrir();
    EXPECT_EQ(program.sheet().text(Text1), "7");
    EXPECT_EQ(program.sheet().text(Text3), "60");
    EXPECT_EQ(program.sheet().text(Text4), "2.5");
    EXPECT_FALSE(program.sheet().visible(Text15));
    EXPECT_TRUE(program.screen.boxes.empty());
}

TEST_F(Form2Files, NoFileAndNoNameDoNothingInSilence)
{
    test::Form2Program program;
    program.sheet().setModificado(host::trueValue);
    program.sheet().Guardar();
    program.sheet().Abrir();
    program.sheet().CDL_GuardarDatos();
    EXPECT_EQ(program.sheet().modificado(), host::trueValue);
    EXPECT_EQ(program.sheet().NombreArchivo(), "");
    EXPECT_TRUE(program.screen.dialogs.empty());
    program.sheet().setNombreArchivo(folder); // a folder is no file
    program.sheet().Abrir();
    program.sheet().Guardar();
    EXPECT_EQ(program.sheet().modificado(), host::trueValue);
    EXPECT_EQ(program.sheet().text(Text1), "10");
}

TEST_F(Form2Files, NonsenseInAFileIsTextAndNothingElse)
{
    std::string binary;
    for (int i = 0; i < 4096; ++i)
        binary.push_back(static_cast<char>(i * 37 % 256));
    test::Form2Program program;
    program.sheet().setNombreArchivo(write(binary));
    program.sheet().Abrir();
    EXPECT_TRUE(program.screen.failures.empty());
    program.click(Text1);
    program.enter();
    EXPECT_TRUE(program.screen.failures.empty());
}

} // namespace velmor::form2_test
