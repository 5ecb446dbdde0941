// SPDX-License-Identifier: MIT
// What desaco and ParcDesac do where a walk cannot go: when a design is finished, the wholly bypassed circuit of ParcDesac, which
// has no way in and is set here by the visibility of its picture, and its English report, which no editor ever receives.
#include <gtest/gtest.h>

#include "designs/common_emitter/desaco.h"
#include "designs/common_emitter/emitter_program.h"
#include "designs/common_emitter/parc_desac.h"

namespace velmor::parc_desac_test {

using namespace parc_desac;

struct DesacoProgram : test::EmitterProgram<desaco::Desaco, desaco::Control> {
    DesacoProgram() : EmitterProgram("desaco") { supply = "12"; }
};

struct ParcDesacProgram : test::EmitterProgram<ParcDesac, Controls> {
    explicit ParcDesacProgram(std::int16_t languageIsEnglish = host::trueValue)
        : EmitterProgram("ParcDesac", languageIsEnglish)
    {
        supply = "15";
    }
};

TEST(Desaco, ADesignIsFinishedWhenItsCurrentIsObtainedAndUntilAnEarlierFieldTakesAKey)
{
    DesacoProgram program;
    program.playTo(Text19);
    program.typeAndEnter("120");
    EXPECT_FALSE(program.sheet().quantities().passed);
    // (10.025 V / R - 1.975 V / 12 K) x 80 = 1 mA: 56.6 K
    program.typeAndEnter("56.6");
    EXPECT_TRUE(program.sheet().quantities().passed);
    EXPECT_EQ(program.focus(), "Text18");
    program.key('1');
    EXPECT_FALSE(program.sheet().quantities().passed);
}

TEST(Desaco, AnOddFileUnderALiveSheetEndsNothing)
{
    DesacoProgram program;
    program.playTo(Text19);
    for (const host::Handle field : {Text1, Text9, Text12, Text15, Text17, Text18})
        program.sheet().setText(field, "0");
    program.typeAndEnter("33");
    EXPECT_FALSE(program.engine.ended());
    EXPECT_FALSE(program.sheet().quantities().passed);
}

/// The wholly bypassed circuit from the drift of Vbe on.
struct Bypassed : ParcDesacProgram {
    Bypassed()
    {
        playTo(Text8);
        sheet().show(Picture1);
    }
};

TEST(ParcDesacBypassed, TheLoadIsThatOfTheJunction)
{
    Bypassed program;
    program.playTo(Text11);
    program.typeAndEnter("55");
    // 55 x 25
    EXPECT_EQ(program.sheet().text(statu18), " (Rlac)=           1375  ohms");
    EXPECT_EQ(program.focus(), "Text17");
}

TEST(ParcDesacBypassed, ASmallLoadAsksForMoreGainAndThenForLess)
{
    Bypassed program;
    program.playTo(Text11);
    program.typeAndEnter("10");
    ASSERT_EQ(program.screen.boxes.size(), 3u);
    EXPECT_EQ(program.screen.boxes[0].title, "Error ");
    EXPECT_EQ(program.screen.boxes[1].text, "It is advisable to elevate the value of the gain Vg ");
    EXPECT_EQ(program.screen.boxes[2].text, "It is advisable to diminish the value of the gain Vg or to elevate Qic");
    EXPECT_FALSE(program.sheet().visible(status40));
    EXPECT_EQ(program.focus(), "Text8");
}

TEST(ParcDesacBypassed, ItClosesWithoutRb1)
{
    Bypassed program;
    program.playTo(Text11);
    program.typeAndEnter("55");
    program.playTo(Text19);
    // 12 K beside 200 x 2750 ohm are 11743.77 ohm; (15 - 2.75 - 0.6) V x that / 3.35 V. Written after the hint of the field left.
    EXPECT_EQ(program.sheet().text(statu24), " Preset  Rb1= 40.8403 K  Put normalized value...");
    program.enter();
    EXPECT_TRUE(program.screen.boxes.empty());
    EXPECT_TRUE(program.sheet().visible(Text20));
    EXPECT_EQ(program.sheet().text(Text20), "318 microF");
    EXPECT_FALSE(program.sheet().visible(Picture1));
    EXPECT_EQ(program.sheet().text(STA70),
              "Bootstrapping can not be carried out\nExcept for indication, capacitors in microfarade");
    EXPECT_FALSE(program.sheet().visible(statu24));
    EXPECT_TRUE(program.sheet().visible(statu31));
}

TEST(ParcDesacBypassed, LeavingItsRb1GoesToBetaAndHidesThePictures)
{
    Bypassed program;
    program.playTo(Text11);
    program.typeAndEnter("55");
    program.playTo(Text19);
    program.click(Text18);
    EXPECT_EQ(program.focus(), "Text2");
    EXPECT_EQ(program.sheet().text(statu24),
              "Click pulses... and adjust the value of the preset until obtaining the wanted QIc...");
    EXPECT_EQ(program.sheet().text(Label24), "0 mA");
    for (const host::Handle picture :
         {host::Handle{Picture1}, host::Handle{Picture6}, host::Handle{Picture2}, host::Handle{Picture7}})
        EXPECT_FALSE(program.sheet().visible(picture));
    EXPECT_TRUE(program.sheet().quantities().passed);
}

TEST(ParcDesacBypassed, ThePictureOfTheBypassSetsTheGainAndItsOppositeStartsOver)
{
    ParcDesacProgram program;
    program.sheet().show(Picture6);
    program.click(Picture6);
    EXPECT_TRUE(program.sheet().visible(Picture1));
    EXPECT_FALSE(program.sheet().visible(Picture6));
    EXPECT_EQ(program.sheet().text(Text11), "55");
    EXPECT_EQ(program.focus(), "Text1");
    program.hover(Picture1);
    EXPECT_EQ(program.sheet().text(Boost), "Bypass");
    program.click(Picture1);
    EXPECT_TRUE(program.sheet().visible(Picture6));
    EXPECT_FALSE(program.sheet().visible(Picture1));
    EXPECT_EQ(program.sheet().text(STA70), "Pressing Bypass, you will obtain more gain..");
}

TEST(ParcDesacBypassed, LeavingTheFirstFieldTurnsTheOfferIntoTheChoice)
{
    ParcDesacProgram program;
    program.sheet().show(Picture6);
    program.enter();
    EXPECT_TRUE(program.sheet().visible(Picture1));
    EXPECT_FALSE(program.sheet().visible(Picture6));

    ParcDesacProgram both;
    both.sheet().show(Picture6, Picture11);
    both.sheet().host().SetFocus(both.sheet(), Picture8);
    for (const host::Handle picture :
         {host::Handle{Picture1}, host::Handle{Picture6}, host::Handle{Picture10}, host::Handle{Picture11}})
        EXPECT_FALSE(both.sheet().visible(picture));
}

TEST(ParcDesac, TheEnglishReportIsWrittenAndNotHandedOver)
{
    ParcDesacProgram program;
    const std::string report = program.sheet().reportText();
    EXPECT_NE(report.find("          Common Emitter, Feedback for Current, polarized for Base, Bypass\r\n\r\n"),
              std::string::npos);
    EXPECT_NE(report.find("                Make a design with predetermined data : \r\n                Then it varied "
                          "Rb1 until obtaining the "
                          "current Qic according to Circuit  Parameters... \r\n"),
              std::string::npos);
    EXPECT_NE(report.find("\tpolarized by Emitter..?\r\n"), std::string::npos);
    program.click(SSCommand3);
    EXPECT_EQ(program.engine.host().text("frmEdito3", "txtEdit"), "");
}

} // namespace velmor::parc_desac_test
