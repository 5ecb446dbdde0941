// SPDX-License-Identifier: MIT
// Every command that does something, played on the fixture program.
#include "console/fixture_program.h"

namespace velmor::console::test {

namespace walk_deeds_test {

TEST(WalkDeeds, AWalkWithoutStartFindsTheMainWindowAlone)
{
    EXPECT_TRUE(holds("expect-active MDIForm1\n"
                      "expect-window MDIForm1\n"
                      "expect-window Form16 0\n"
                      "expect program.LanguageIsEnglish 0\n"
                      "expect program.ScreenMode 0\n"
                      "expect program.TemperaturaCompartida 75\n"
                      "expect program.DecimalSeparator .\n"
                      "expect program.ArchivoGuia \"\"\n"));
}

TEST(WalkDeeds, StartRunsTheStartSequence)
{
    EXPECT_TRUE(holds("setting Predeterminados fCastIng 1\n"
                      "start\n"
                      "expect program.LanguageIsEnglish -1\n"
                      "expect program.ScreenMode 1\n"
                      "expect-active Sheet1\n"
                      "expect-window Form16\n"));
}

TEST(WalkDeeds, LanguageSetsTheFlagAlone)
{
    EXPECT_TRUE(holds("language english\nexpect program.LanguageIsEnglish -1\n"
                      "language spanish\nexpect program.LanguageIsEnglish 0\n"));
}

TEST(WalkDeeds, NewMakesTheSheetCurrentAndGivesItItsTitle)
{
    EXPECT_TRUE(holds("new sheet1\n"
                      "expect ..caption \"  Hoja\"\n"
                      "expect ..visible true\n"
                      "expect-focus Text1\n"
                      "language english\n"
                      "new Sheet1\n"
                      "expect ..caption \"  Sheet\"\n"
                      "expect-window Sheet1 2\n"
                      "expect-in Sheet1#1 ..caption \"  Hoja\"\n"));
}

TEST(WalkDeeds, WindowMakesTheNumberedOrTheNewestInstanceCurrent)
{
    EXPECT_TRUE(holds("new Sheet1\nfill Text1 1\nnew Sheet1\nfill Text1 2\nnew Sheet1\nfill Text1 3\n"
                      "window Sheet1#2\nexpect Text1.text 2\n"
                      "window SHEET1#1\nexpect Text1.text 1\n"
                      "window Sheet1\nexpect Text1.text 3\n"
                      "window MDIForm1\nexpect-active MDIForm1\n"));
}

TEST(WalkDeeds, AHiddenWindowIsOpenButAClickOnItsTitleIsNotPossible)
{
    EXPECT_TRUE(holds("menu mnuHidden\nexpect-window Tool1\nwindow Tool1\nexpect-active MDIForm1\n"));
}

TEST(WalkDeeds, ThePaletteDoesNotBecomeCurrentByBeingShown)
{
    EXPECT_TRUE(holds("new Sheet1\nmenu mnuPalette\nexpect-window Form16\nexpect-active Sheet1\n"));
}

TEST(WalkDeeds, AfterTheCurrentWindowHasGoneTheOneBeforeIsCurrent)
{
    EXPECT_TRUE(holds("new Sheet1\nmenu mnuTool\nexpect-active Tool1\n"
                      "close\nexpect-active Sheet1\nexpect-window Tool1 0\n"
                      "answer no\nclose\nexpect-active MDIForm1\n"));
}

TEST(WalkDeeds, MenuClicksTheItemOfTheCurrentWindowFirst)
{
    EXPECT_TRUE(holds("menu mnuEditor\nmenu mnuTile\nexpect Changes.text \"own item\"\n"
                      "window MDIForm1\nmenu mnutile\nexpect-arranged 1\n"));
}

TEST(WalkDeeds, MenuOpensTheMenusOnTheWay)
{
    EXPECT_TRUE(holds("new Sheet1\nmenu mnuNew\nexpect-in MDIForm1 Said.text \"opens new\"\n"));
}

TEST(WalkDeeds, ADisabledMenuItemDoesNothing)
{
    EXPECT_TRUE(holds("menu mnuOff\nmenu mnuInOff\nexpect Said.text \"\"\n"
                      "menu mnuMark\nexpect mnuMark.checked true\n"
                      "menu mnuMark\nexpect mnuMark.checked false\n"));
}

TEST(WalkDeeds, FocusRunsBothSlotsAndIsRefusedOnADisabledOrHiddenField)
{
    EXPECT_TRUE(holds("new Sheet1\nfocus Text2\nexpect-focus Text2\n"
                      "focus Text3\nexpect-focus Text2\n"
                      "focus Hidden\nexpect-focus Text2\n"
                      "focus Result\nexpect-focus Text2\n"
                      "expect Log.text \"focus Text1;lost Text1;focus Text2;\"\n"));
}

TEST(WalkDeeds, TabGoesToTheNextFieldThatCanTakeTheFocus)
{
    EXPECT_TRUE(holds("new Sheet1\ntab\nexpect-focus Text2\ntab\nexpect-focus Command1\n"));
}

TEST(WalkDeeds, AClickMovesTheFocusFirst)
{
    EXPECT_TRUE(holds("new Sheet1\nfocus Text2\nclick Text1\n"
                      "expect Log.text \"focus Text1;lost Text1;focus Text2;lost Text2;focus Text1;down1+0 Text1;"
                      "up Text1;click Text1;\"\n"));
}

TEST(WalkDeeds, AClickOnADisabledOrHiddenControlDoesNothing)
{
    EXPECT_TRUE(holds("new Sheet1\nclick Text3\nclick Hidden\nexpect Log.text \"focus Text1;\"\nexpect-focus Text1\n"));
}

TEST(WalkDeeds, AClickOnThePointIsTheBackground)
{
    EXPECT_TRUE(holds("new Sheet1\nclick .\nhover .\npress . right\n"
                      "expect Log.text \"focus Text1;down1+0 .;click .;hover .;down2+0 .;\"\n"
                      "window MDIForm1\nclick .\nexpect Said.text background\n"));
}

TEST(WalkDeeds, AClickChecksOptionsAndCheckBoxes)
{
    EXPECT_TRUE(holds("new Sheet1\nclick Option(1)\nexpect option(1).checked true\n"
                      "click Check1\nexpect Check1.checked true\nclick Check1\nexpect Check1.checked false\n"));
}

TEST(WalkDeeds, ADoubleClickIsAClickAndThenTheSlot)
{
    EXPECT_TRUE(holds("new Sheet1\ndoubleclick Text1\n"
                      "expect Log.text \"focus Text1;down1+0 Text1;up Text1;click Text1;double Text1;\"\n"));
}

TEST(WalkDeeds, PressIsMouseDownAloneWithButtonAndShiftState)
{
    EXPECT_TRUE(
        holds("new Sheet1\npress Image1 right\npress Image1 right shift\npress Image1 left ctrl\n"
              "press Image1 right ctrl shift\n"
              "expect Log.text \"focus Text1;down2+0 Image1;down2+1 Image1;down1+2 Image1;down2+3 Image1;\"\n"));
}

TEST(WalkDeeds, OnlyALeftPressMovesTheFocus)
{
    EXPECT_TRUE(holds("new Sheet1\npress Text2 right\nexpect-focus Text1\npress Text2 left\nexpect-focus Text2\n"
                      "expect Log.text \"focus Text1;down2+0 Text2;lost Text1;focus Text2;down1+0 Text2;\"\n"));
}

TEST(WalkDeeds, HoverWorksOnADisabledFieldAndNotOnAHiddenOne)
{
    EXPECT_TRUE(holds("new Sheet1\nhover Text1\nhover Text3\nhover Hidden\n"
                      "expect Log.text \"focus Text1;hover Text1;hover Text3;\"\n"));
}

TEST(WalkDeeds, DragDropsOneControlOnAnother)
{
    EXPECT_TRUE(holds("new Sheet1\ndrag Image1 Text2\ndrag Picture1 .\n"
                      "expect-contains Log.text \"drop Image1 on Text2;\"\n"
                      "expect-contains Log.text \"drop Picture1 on .;\"\n"
                      "expect-focus Text2\n"));
}

TEST(WalkDeeds, TypeSendsEachCharacterThroughTheKeySlot)
{
    EXPECT_TRUE(holds("new Sheet1\ntype \"1,5\"\nexpect Text1.text 1.5\nexpect-beeps 0\n"
                      "type \" 2-/K\"\nexpect Text1.text 1.52\nexpect-beeps 2\n"
                      "expect sheet.modificado -1\n"));
}

TEST(WalkDeeds, TypeAddsAtTheEndOfTheText)
{
    EXPECT_TRUE(holds("new Sheet1\nfill Text1 12\nfocus Text2\nfocus Text1\ntype 3\nexpect Text1.text 123\n"));
}

TEST(WalkDeeds, KeysReachTheSlotAsCodesOfTheCodePage)
{
    EXPECT_TRUE(holds("new Sheet1\nfocus Text2\ntype \"ñ€\"\nexpect Text2.text ñ€\n"
                      "expect-contains Log.text \"key241;key128;\"\n"));
}

TEST(WalkDeeds, ACharacterBeyondTheCodePageIsALetter)
{
    EXPECT_TRUE(holds("new Sheet1\ntype Ω\nexpect Text1.text \"\"\nexpect-beeps 1\n"
                      "focus Text2\ntype Ω\nexpect Text2.text Ω\n"));
}

TEST(WalkDeeds, ALineBreakTypedIsTheEnterKey)
{
    EXPECT_TRUE(holds("new Sheet1\ntype \"1\\n2\"\nexpect-focus Text2\nexpect Text1.text 1\nexpect Text2.text 2\n"));
}

TEST(WalkDeeds, TypingFollowsTheFocus)
{
    EXPECT_TRUE(
        holds("new Sheet1\nfocus Command1\ntype x\nexpect-contains Log.text key120;\nexpect Command1.text Work\n"
              "window MDIForm1\ntype 1\nexpect-focus .\n"));
}

TEST(WalkDeeds, ClearRunsNoKeySlot)
{
    EXPECT_TRUE(holds("new Sheet1\nfocus Text2\ntype ab\nclear\nexpect Text2.text \"\"\n"
                      "expect Log.text \"focus Text1;lost Text1;focus Text2;key97;key98;\"\n"));
}

TEST(WalkDeeds, FillIsFocusClearType)
{
    EXPECT_TRUE(holds("new Sheet1\nfill Text2 abc\nfill Text2 d\nexpect Text2.text d\n"
                      "fill Text2 \"\"\nexpect Text2.text \"\"\nexpect-focus Text2\n"));
}

TEST(WalkDeeds, ARefusedFocusMakesTheWholeFillDoNothing)
{
    EXPECT_TRUE(holds("new Sheet1\nfill Text2 1\nfill Text3 2\nfill Hidden 3\n"
                      "expect Text2.text 1\nexpect Text3.text \"\"\nexpect Hidden.text \"\"\nexpect-focus Text2\n"));
}

TEST(WalkDeeds, KeysByNameAndByCode)
{
    EXPECT_TRUE(
        holds("new Sheet1\nfill Text1 5\nenter\nexpect-focus Text2\nesc\nbackspace\nenter\nkey 27\nkey -3\nkey 300\n"
              "expect-contains Log.text \"key27;key8;key13;key27;key-3;key300;\"\nexpect Text2.text \"\"\n"));
}

TEST(WalkDeeds, APrintableCodeActsAsTypeDoes)
{
    EXPECT_TRUE(holds("new Sheet1\nfocus Text2\nkey 65\nkey 241\nkey 128\nkey 127\nkey 32\nexpect Text2.text \"Añ€ \"\n"
                      "focus Text1\nkey 44\nkey 65\nexpect Text1.text .\nexpect-beeps 1\n"));
}

TEST(WalkDeeds, BackspaceTakesTheLastCharacter)
{
    EXPECT_TRUE(
        holds("new Sheet1\nfill Text2 añ\nbackspace\nexpect Text2.text a\nkey 8\nbackspace\nexpect Text2.text \"\"\n"));
}

TEST(WalkDeeds, EnterOnAButtonClicksIt)
{
    EXPECT_TRUE(holds("new Sheet1\nfocus Command1\nenter\nexpect Result.forecolor FF8000\n"));
}

TEST(WalkDeeds, AnEditorTakesTextAtItsEndAndInPlaceOfASelection)
{
    EXPECT_TRUE(holds("menu mnuEditor\nexpect-focus txtEdit\ntype \"uno\\r\\ndos\"\nexpect txtEdit.text \"uno\\ndos\"\n"
                      "expect Changes.text ccccccc\n"
                      "select 0 3\ntype Ω\nexpect txtEdit.text \"Ω\\ndos\"\n"
                      "type s\nenter\ntype \"\\t\"\nexpect txtEdit.text \"Ω\\ndoss\\n\\t\"\n"
                      "backspace\nbackspace\nexpect txtEdit.text \"Ω\\ndoss\"\n"
                      "select 1 100\nbackspace\nexpect txtEdit.text Ω\n"
                      "clear\nexpect txtEdit.text \"\"\n"));
}

TEST(WalkDeeds, NothingToDeleteChangesNothing)
{
    EXPECT_TRUE(holds("menu mnuEditor\nbackspace\nclear\nesc\nexpect Changes.text \"\"\n"));
}

TEST(WalkDeeds, ATimerFiresWhileItIsEnabledAndItsWindowThere)
{
    EXPECT_TRUE(holds("menu mnuTool\ntick Timer1 3\nexpect Ticks.text ttt\ntick Timer2 4\ntick Timer1 0\n"
                      "expect Ticks.text ttt\ntick Timer1 100\nexpect-window Tool1 0\n"));
}

TEST(WalkDeeds, TheUserChangesTheStateOfTheWindow)
{
    EXPECT_TRUE(holds("new Sheet1\nexpect ..windowstate 0\nmaximise\nexpect ..windowstate 2\n"
                      "minimise\nexpect ..windowstate 1\nrestore\nexpect ..windowstate 0\n"));
}

TEST(WalkDeeds, CloseMayBeRefused)
{
    EXPECT_TRUE(holds(
        "menu mnuTool\ntick Timer1 1\nclose\nexpect-active Tool1\ntick Timer1 1\nclose\nexpect-window Tool1 0\n"));
}

TEST(WalkDeeds, ClosingTheMainWindowEndsTheProgram)
{
    EXPECT_TRUE(holds("expect-running\nclose\nexpect-ended\n"));
}

TEST(WalkDeeds, ChooseSelectsAnEntry)
{
    EXPECT_TRUE(holds("new Sheet1\nexpect Fruit.text \"\"\nchoose Fruit apple\nexpect Fruit.text apple\n"
                      "expect-contains Log.text \"change Fruit;\"\n"));
    EXPECT_TRUE(failsWith("new Sheet1\nchoose Fruit plum\n", "w:2: choose Fruit plum: Fruit has no entry \"plum\""));
}

TEST(WalkDeeds, ASheetIsSavedAndReadBackByItsPublicOperations)
{
    EXPECT_TRUE(holds("new Sheet1\nset sheet.NombreArchivo circuits/one.HOJ\nfill Text1 7\nexpect sheet.modificado -1\n"
                      "write-file circuits/old.HOJ old\n"
                      "call Guardar\nexpect sheet.modificado 0\n"
                      "expect-file circuits/one.HOJ \"7\\r\\nTwo\\nlines\\r\\n\\r\\n\"\n"
                      "expect sheet.NombreArchivo circuits/one.HOJ\n"
                      "fill Text1 8\ncall Abrir\nexpect Text1.text 7\nexpect Result.caption \"Two\\nlines\"\n"
                      "file two.HOJ\ncall cdl_guardardatos\nexpect-dialog save \"Save Circuit\" Hoja|*.HOJ\n"
                      "expect sheet.NombreArchivo two.HOJ\n"
                      "file cancel\ncall CDL_GuardarDatos\nexpect sheet.nombrearchivo two.HOJ\n"
                      "expect sheet.OperCancelo 0\ncall CDL_AbrirDatos\nexpect-window Sheet1 0\n"));
}

TEST(WalkDeeds, OnceTheProgramHasEndedCommandsDoNothing)
{
    EXPECT_TRUE(
        holds("new Sheet1\nfill Text1 7\nmenu mnuExit\nexpect-ended\nfill Text1 8\nclick Nobody\nanswer ok\nstart\n"
              "expect Text1.text 7\nexpect-active Sheet1\n"));
}

TEST(WalkDeeds, AFailingCalculationEndsTheProgramWithoutABox)
{
    EXPECT_TRUE(holds("menu mnuFails\nexpect-ended\nexpect-no-box\nexpect Said.text \"\"\n"));
    EXPECT_NE(play("menu mnuFails\n", true).output.find("  message \"El programa debe terminar"), std::string::npos);
}

} // namespace walk_deeds_test

} // namespace velmor::console::test
