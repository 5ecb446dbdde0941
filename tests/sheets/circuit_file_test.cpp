// SPDX-License-Identifier: MIT
// Circuit files of a sheet: what is written, and what is made of files in order, of short, long, foreign and broken ones,
// and of saves that fail.
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "sheets/sheet_program.h"

namespace velmor::template_sheet {

namespace circuit_file_test {

using host::trueValue;

// Es 9 V, 75 degrees, 2 mA, Eq 4.5 V: RL = 4.5 V / 2 mA = 2.25 K, ERL = 4.5 V.
constexpr std::string_view designLines = "9\r\n75\r\n2 mA\r\n4.5\r\n2.25\r\n\r\n4.5 V\r\n2.25 K\r\n";

TemplateSheet& finishedSheet(SheetProgram& program)
{
    TemplateSheet& sheet = program.newSheet();
    program.engine.userText(sheet, Text1, "9");
    program.press(sheet, 13);
    program.press(sheet, 13);
    program.engine.userText(sheet, Text3, "2");
    program.press(sheet, 13);
    program.press(sheet, 13);
    program.press(sheet, 13);
    return sheet;
}

/// A changed sheet into which these bytes were opened as a file.
struct Opened {
    explicit Opened(std::string_view bytes) : sheet(program.newSheet())
    {
        sheet.setNombreArchivo(program.folder.put("file.RDC", bytes).string());
        open();
    }
    Opened() : sheet(program.newSheet()) {}
    void open()
    {
        program.press(sheet, '5');
        program.run([this] { sheet.Abrir(); });
        EXPECT_TRUE(program.screen.boxes.empty());
        EXPECT_TRUE(program.screen.failures.empty());
        EXPECT_EQ(program.sheetsOpen(), 1);
    }
    bool untouched() const
    {
        return sheet.text(Text1) == "125" && sheet.text(Text2) == "75" && sheet.modificado() == -1;
    }

    SheetProgram program;
    TemplateSheet& sheet;
};

TEST(CircuitFile, TheImageHoldsTextsAndCaptionsAsShownInTheSheetsOrder)
{
    SheetProgram program;
    EXPECT_EQ(finishedSheet(program).Datos(), designLines);
}

TEST(CircuitFile, TheFileIsTheImageAndOneLineEndMore)
{
    SheetProgram program;
    TemplateSheet& sheet = finishedSheet(program);
    sheet.setNombreArchivo(program.path("a.RDC"));
    program.run([&] { sheet.Guardar(); });
    EXPECT_EQ(program.folder.content("a.RDC"), std::string(designLines) + "\r\n");
    EXPECT_EQ(sheet.modificado(), 0);
}

TEST(CircuitFile, AFileComesBackWithItsUnitsAndMarksTheSheetAsItsOwn)
{
    Opened file(std::string(designLines) + "\r\n");
    EXPECT_EQ(file.sheet.text(Text3), "2 mA");
    EXPECT_EQ(file.sheet.text(ERL), "4.5 V");
    EXPECT_EQ(file.sheet.text(RL), "2.25 K");
    EXPECT_EQ(file.sheet.text(SSPanel1), "                   Circuito de Archivo");
    EXPECT_TRUE(file.sheet.visible(Line2));
    EXPECT_EQ(file.sheet.modificado(), 0);
    EXPECT_EQ(file.sheet.Datos(), designLines);
}

TEST(CircuitFile, ReadingShowsTheControlsThatSaySo)
{
    Opened file("1\r\n");
    file.sheet.hide(RL);
    file.program.folder.put("file.RDC", std::string(designLines));
    file.program.run([&] { file.sheet.Abrir(); });
    EXPECT_TRUE(file.sheet.visible(RL));
}

TEST(CircuitFile, OpeningRunsNoSlotOfAField)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    sheet.setNombreArchivo(program.folder.put("a.RDC", std::string(designLines)).string());
    int slots = 0;
    program.engine.onSlot = [&](const host::Window&, host::Handle, host::Event) { ++slots; };
    program.run([&] { sheet.Abrir(); });
    EXPECT_EQ(slots, 0);
    EXPECT_EQ(sheet.focus(), Text1);
}

TEST(CircuitFile, ALineThatCarriesNothingIsSkipped)
{
    Opened file("1\r\n2\r\n3\r\n4\r\n5\r\nanything\r\n7 V\r\n8 K\r\n");
    EXPECT_EQ(file.sheet.text(ERL), "7 V");
    EXPECT_EQ(file.sheet.text(RL), "8 K");
}

TEST(CircuitFile, AShortFileLeavesWhatItDoesNotReach)
{
    Opened file("9\r\n80\r\n3 mA\r\n");
    EXPECT_EQ(file.sheet.text(Text1), "9");
    EXPECT_EQ(file.sheet.text(Text2), "80");
    EXPECT_EQ(file.sheet.text(Text3), "3 mA");
    EXPECT_EQ(file.sheet.text(Text4), "Eq");
    EXPECT_EQ(file.sheet.modificado(), -1);
    EXPECT_NE(file.sheet.text(SSPanel1), "                   Circuito de Archivo");
}

TEST(CircuitFile, ALongFileIsReadAsFarAsTheSheetGoes)
{
    Opened file(std::string(designLines) + "more\r\nand more\r\n");
    EXPECT_EQ(file.sheet.text(RL), "2.25 K");
    EXPECT_EQ(file.sheet.modificado(), 0);
}

TEST(CircuitFile, ALastLineWithoutItsLineEndCounts)
{
    Opened file("1\r\n2\r\n3\r\n4\r\n5\r\n\r\n7 V\r\n8 K");
    EXPECT_EQ(file.sheet.text(RL), "8 K");
    EXPECT_EQ(file.sheet.modificado(), 0);
}

TEST(CircuitFile, AnEmptyFileChangesNothing)
{
    EXPECT_TRUE(Opened("").untouched());
}

TEST(CircuitFile, AFileWithLineFeedsAloneIsSplitAtThem)
{
    Opened file("1\n2\n3 mA\n4\n5\n\n7 V\n8 K\n");
    EXPECT_EQ(file.sheet.text(Text3), "3 mA");
    EXPECT_EQ(file.sheet.text(RL), "8 K");
}

TEST(CircuitFile, ALineBreakInsideACaptionComesBackWhole)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    sheet.setText(ERL, "two\nlines");
    sheet.setNombreArchivo(program.path("a.RDC"));
    program.run([&] { sheet.Guardar(); });
    sheet.setText(ERL, "");
    program.run([&] { sheet.Abrir(); });
    EXPECT_EQ(sheet.text(ERL), "two\nlines");
}

TEST(CircuitFile, SpanishLettersAreWrittenInTheCodePageAndComeBack)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    sheet.setText(ERL, "tensión Ω");
    sheet.setNombreArchivo(program.path("a.RDC"));
    program.run([&] { sheet.Guardar(); });
    EXPECT_NE(program.folder.content("a.RDC").find("tensi\xF3n ?"), std::string::npos);
    program.run([&] { sheet.Abrir(); });
    EXPECT_EQ(sheet.text(ERL), "tensión ?");
}

TEST(CircuitFile, AnotherSheetsFileIsReadLineByLineWithoutACheck)
{
    Opened file("10\r\n100\r\n75\r\n2.5\r\n1.375\r\nEq\r\n100\r\nSi\r\n10 mA\r\n");
    EXPECT_EQ(file.sheet.text(Text1), "10");
    EXPECT_EQ(file.sheet.text(Text5), "1.375");
    EXPECT_EQ(file.sheet.text(ERL), "100");
    EXPECT_EQ(file.sheet.text(RL), "Si");
}

TEST(CircuitFile, BinaryBytesAreTakenAsTextAndDoNoHarm)
{
    using namespace std::string_literals;
    std::string bytes = "\0\x01\xFF\xFE\r\n"s;
    for (int i = 0; i < 60'000; ++i)
        bytes.push_back(static_cast<char>(i * 7 % 251));
    Opened file(bytes);
    EXPECT_EQ(file.sheet.text(Text1).substr(0, 2), "\0\x01"s);
    file.program.press(file.sheet, 13);
    file.program.press(file.sheet, 13);
    EXPECT_TRUE(file.program.screen.failures.empty());
}

TEST(CircuitFile, AUtf8FileIsReadInTheCodePage)
{
    Opened file("tensi\xC3\xB3n\r\n");
    EXPECT_EQ(file.sheet.text(Text1), "tensiÃ³n");
}

TEST(CircuitFile, AFileThatIsNotThereChangesNothing)
{
    Opened file;
    file.sheet.setNombreArchivo(file.program.path("none.RDC"));
    file.open();
    EXPECT_TRUE(file.untouched());
}

TEST(CircuitFile, AFolderOrAPipeInPlaceOfAFileChangesNothing)
{
    Opened file;
    file.sheet.setNombreArchivo(file.program.folder.path().string());
    file.open();
    EXPECT_TRUE(file.untouched());
    ASSERT_EQ(::mkfifo(file.program.path("pipe").c_str(), 0600), 0);
    file.sheet.setNombreArchivo(file.program.path("pipe"));
    file.program.run([&] { file.sheet.Abrir(); });
    EXPECT_TRUE(file.untouched());
}

TEST(CircuitFile, AFileOfAGigabyteIsRefusedAtOnce)
{
    Opened file;
    const std::filesystem::path path = file.program.folder.put("huge.RDC", "1\r\n2\r\n");
    std::filesystem::resize_file(path, std::uintmax_t{1} << 30);
    file.sheet.setNombreArchivo(path.string());
    const auto before = std::chrono::steady_clock::now();
    file.open();
    EXPECT_TRUE(file.untouched());
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(500));
}

TEST(CircuitFile, ALineAbove64KibibytesEndsTheReading)
{
    Opened file("9\r\n" + std::string(64 * 1024 + 1, '7') + "\r\n3\r\n");
    EXPECT_EQ(file.sheet.text(Text1), "9");
    EXPECT_EQ(file.sheet.text(Text2), "75");
    EXPECT_EQ(file.sheet.text(Text3), "QIc");
}

TEST(CircuitFile, SavingWithoutANameDoesNothing)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.press(sheet, '5');
    program.run([&] { sheet.Guardar(); });
    EXPECT_EQ(sheet.modificado(), -1);
    EXPECT_EQ(program.folder.entries(), 0);
}

TEST(CircuitFile, ASaveIntoAFolderThatIsNotThereEndsInSilence)
{
    SheetProgram program;
    TemplateSheet& sheet = program.newSheet();
    program.press(sheet, '5');
    sheet.setNombreArchivo(program.path("no/such.RDC"));
    program.run([&] { sheet.Guardar(); });
    EXPECT_EQ(sheet.modificado(), -1);
    EXPECT_TRUE(program.screen.boxes.empty());
    EXPECT_EQ(sheet.NombreArchivo(), program.path("no/such.RDC"));
}

// True where an ordinary user, to whom permissions apply, sees the deed come out so; in a process of its own.
template <class Deed>
bool asOrdinaryUser(Deed deed)
{
    const pid_t child = ::fork();
    if (child == 0) {
        if (::geteuid() == 0 && ::seteuid(65534) != 0)
            ::_exit(2);
        ::_exit(deed() ? 0 : 1);
    }
    int state = -1;
    ::waitpid(child, &state, 0);
    return WIFEXITED(state) && WEXITSTATUS(state) == 0;
}

TEST(CircuitFile, AFileThatMayNotBeReadChangesNothing)
{
    Opened file;
    const std::filesystem::path path = file.program.folder.put("closed.RDC", designLines);
    std::filesystem::permissions(path, std::filesystem::perms::none);
    file.sheet.setNombreArchivo(path.string());
    file.program.press(file.sheet, '5');
    EXPECT_TRUE(asOrdinaryUser([&] {
        file.program.run([&] { file.sheet.Abrir(); });
        return file.untouched() && file.program.screen.boxes.empty();
    }));
}

TEST(CircuitFile, ASaveIntoAFolderThatMayNotBeWrittenEndsInSilence)
{
    SheetProgram program;
    TemplateSheet& sheet = finishedSheet(program);
    sheet.setNombreArchivo(program.folder.put("old.RDC", "the old design").string());
    std::filesystem::permissions(program.folder.path(),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec |
                                     std::filesystem::perms::others_read | std::filesystem::perms::others_exec);
    EXPECT_TRUE(asOrdinaryUser([&] {
        program.run([&] { sheet.Guardar(); });
        return sheet.modificado() == trueValue && program.screen.boxes.empty();
    }));
    std::filesystem::permissions(program.folder.path(), std::filesystem::perms::owner_all);
    EXPECT_EQ(program.folder.content("old.RDC"), "the old design");
    EXPECT_EQ(program.folder.entries(), 1);
}

// The disk takes no byte more: in a process of its own, since the limit holds for all of it.
TEST(CircuitFile, ASaveThatIsInterruptedLeavesTheOldFileWholeAndTheSheetChanged)
{
    SheetProgram program;
    TemplateSheet& sheet = finishedSheet(program);
    sheet.setNombreArchivo(program.folder.put("old.RDC", "the old design").string());
    const pid_t child = ::fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{10, 10};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        program.run([&] { sheet.Guardar(); });
        ::_exit(sheet.modificado() == trueValue && program.screen.boxes.empty() ? 0 : 1);
    }
    int state = -1;
    ::waitpid(child, &state, 0);
    EXPECT_TRUE(WIFEXITED(state) && WEXITSTATUS(state) == 0);
    EXPECT_EQ(program.folder.content("old.RDC"), "the old design");
    EXPECT_EQ(program.folder.entries(), 1);
}

TEST(CircuitFile, AWholeDesignGoesThroughTheMenusIntoAFileAndBack)
{
    EXPECT_EQ(faultsOf(R"(new TemplateSheet
fill Text1 9
enter
enter
fill Text3 2
enter
enter
enter
file diseño.RDC
menu mnuFile(1)
expect-dialog save "Save Circuit" "Resistor de carga (*.RDC)|*.RDC"
expect sheet.modificado 0
expect-file diseño.RDC "9\r\n75\r\n2 mA\r\n4.5\r\n2.25\r\n\r\n4.5 V\r\n2.25 K\r\n\r\n"
close
expect-window TemplateSheet 0
expect-no-box
new TemplateSheet
file diseño.RDC
call CDL_AbrirDatos
expect-dialog open "Abrir Circuito" "Resistor de carga (*.RDC)|*.RDC"
expect ..caption "diseño"
expect RL.caption "2.25 K"
expect sheet.OperCancelo 0
)"),
              "");
}

} // namespace circuit_file_test

} // namespace velmor::template_sheet
