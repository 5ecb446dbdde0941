// SPDX-License-Identifier: MIT
// Circuit files come back line by line as they were written; a damaged file gives the lines before the damage and no
// more.
#include "rules/circuit_lines.h"

#include "scratch_folder.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace velmor::rules::circuit_lines_test {

namespace fs = std::filesystem;
using namespace std::string_literals;
using Lines = std::vector<std::string>;

Lines linesOf(CircuitReader reader)
{
    Lines lines;
    while (auto line = reader.readLine())
        lines.push_back(*line);
    EXPECT_FALSE(reader.readLine()) << "nothing follows the last line, however often it is asked for";
    return lines;
}

TEST(CircuitReader, EndsALineAtCrLf)
{
    EXPECT_EQ(linesOf(CircuitReader("10 mA\r\n\r\n 12.5 V \r\n")), (Lines{"10 mA", "", " 12.5 V "}));
    EXPECT_EQ(linesOf(CircuitReader("")), Lines{});
    EXPECT_EQ(linesOf(CircuitReader("\r\n")), Lines{""});
}

TEST(CircuitReader, KeepsSingleLineFeedsAndReturnsInsideALine)
{
    EXPECT_EQ(linesOf(CircuitReader("Vg\n0.5 V\r\na\rb\r\n\nc\r\r\n")), (Lines{"Vg\n0.5 V", "a\rb", "\nc\r"}));
}

TEST(CircuitReader, TakesALastLineWithoutItsEnd)
{
    EXPECT_EQ(linesOf(CircuitReader("10\r\n12.")), (Lines{"10", "12."}));
    EXPECT_EQ(linesOf(CircuitReader("10\r\n12\r")), (Lines{"10", "12\r"}));
}

TEST(CircuitReader, SplitsAtLineFeedsWhereThereIsNoReturn)
{
    EXPECT_EQ(linesOf(CircuitReader("10\n\n12.5 V")), (Lines{"10", "", "12.5 V"}));
}

TEST(CircuitReader, JudgesTheLineEndsByTheFirst64KibibytesAlone)
{
    const std::string row(1023, 'x');
    std::string bytes;
    for (int rows = 0; rows < 64; ++rows)
        bytes += row + "\n";
    ASSERT_EQ(bytes.size(), 64u * 1024);
    // The return is the first byte behind that part, then the last byte of it.
    EXPECT_EQ(linesOf(CircuitReader(bytes + "\r\nend")).size(), 66u);
    bytes.back() = '\r';
    EXPECT_EQ(linesOf(CircuitReader(bytes + "\nend")), (Lines{bytes.substr(0, bytes.size() - 1), "end"}));
}

TEST(CircuitReader, ReadsWindows1252)
{
    EXPECT_EQ(linesOf(CircuitReader("Com\xFAn \x80\r\n\x81\r\n")), (Lines{"Común €", "\u0081"}));
    // UTF-8 is no circuit file: it is taken letter by letter, and does no harm.
    EXPECT_EQ(linesOf(CircuitReader("\xEF\xBB\xBF"
                                    "10\r\nñ\r\n")),
              (Lines{"ï»¿10", "Ã±"}));
}

TEST(CircuitReader, StopsAtALineThatIsTooLong)
{
    const std::string longest(longestCircuitLine, 'x');
    EXPECT_EQ(linesOf(CircuitReader("10\r\n" + longest + "\r\n12\r\n")), (Lines{"10", longest, "12"}));
    EXPECT_EQ(linesOf(CircuitReader("10\r\n" + longest + "y\r\n12\r\n")), (Lines{"10"}));
    EXPECT_EQ(linesOf(CircuitReader(longest + "y")), Lines{});
}

TEST(CircuitReader, OpensAFileUpToOneMebibyte)
{
    const ScratchFolder folder;
    const std::string line = "12.5 V\r\n";
    std::string bytes;
    while (bytes.size() < largestCircuitFile)
        bytes += line;
    ASSERT_EQ(bytes.size(), largestCircuitFile);
    EXPECT_EQ(linesOf(CircuitReader::open(folder.put("just.RPC", bytes)).value()).size(), bytes.size() / line.size());
    EXPECT_FALSE(CircuitReader::open(folder.put("over.RPC", bytes + "1")));
}

TEST(CircuitReader, RefusesAFileOfAGibibyteWithoutHoldingIt)
{
    const ScratchFolder folder;
    folder.put("huge.RPC", "10\r\n");
    fs::resize_file(folder / "huge.RPC", std::uintmax_t{1} << 30);
    rusage before{};
    rusage after{};
    ::getrusage(RUSAGE_SELF, &before);
    EXPECT_FALSE(CircuitReader::open(folder / "huge.RPC"));
    ::getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 4096) << "KiB";
}

TEST(CircuitReader, OpensNoFolderAndNothingAbsent)
{
    const ScratchFolder folder;
    EXPECT_FALSE(CircuitReader::open(folder.path()));
    EXPECT_FALSE(CircuitReader::open(folder / "absent.RPC"));
    EXPECT_FALSE(CircuitReader::open(""));
}

TEST(CircuitReader, SurvivesAnyBytes)
{
    std::mt19937_64 dice(99);
    for (int round = 0; round < 2'000; ++round) {
        std::string bytes(dice() % 300, ' ');
        std::string joined;
        for (char& byte : bytes)
            byte = static_cast<char>(dice() % 3 == 0 ? "\r\n"[dice() % 2] : static_cast<char>(dice() % 256));
        CircuitReader reader(bytes);
        std::size_t lines = 0;
        while (reader.readLine())
            ++lines;
        ASSERT_LE(lines, bytes.size());
    }
}

TEST(WriteCircuitFile, EndsEachLineAndThenTheFile)
{
    const ScratchFolder folder;
    const Lines lines = {"10 mA", "", "Común", "12 \u03A9"};
    EXPECT_TRUE(writeCircuitFile(folder / "new.RPC", joinCircuitLines(lines)));
    EXPECT_EQ(folder.content("new.RPC"), "10 mA\r\n\r\nCom\xFAn\r\n12 ?\r\n\r\n");
}

TEST(WriteCircuitFile, ComesBackLineByLineWithCaptionsOfSeveralLines)
{
    const ScratchFolder folder;
    const Lines lines = {"75", "Vg\n0.5 V", "", " ", "¿Eopp?", "\n", "2.5 "};
    ASSERT_TRUE(writeCircuitFile(folder / "new.RPC", joinCircuitLines(lines)));
    Lines read = linesOf(CircuitReader::open(folder / "new.RPC").value());
    ASSERT_EQ(read.size(), lines.size() + 1);
    EXPECT_EQ(read.back(), "");
    read.pop_back();
    EXPECT_EQ(read, lines);
}

TEST(WriteCircuitFile, SaysWhenItCouldNot)
{
    const ScratchFolder folder;
    EXPECT_FALSE(writeCircuitFile("", "10\r\n"));
    EXPECT_FALSE(writeCircuitFile(folder / "absent/new.RPC", "10\r\n"));
}

TEST(CircuitReader, GivesOfATruncatedFileTheLinesThatAreLeft)
{
    const Lines lines = {"10", "20", "30"};
    const std::string whole = joinCircuitLines(lines);
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const Lines read = linesOf(CircuitReader(whole.substr(0, size)));
        ASSERT_LE(read.size(), lines.size());
        for (std::size_t i = 0; i + 1 < read.size(); ++i)
            EXPECT_EQ(read[i], lines[i]);
    }
}

} // namespace velmor::rules::circuit_lines_test
