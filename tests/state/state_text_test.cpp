// SPDX-License-Identifier: MIT
// The text of a state: what it looks like, that it is exact under any separator, and that damage is refused whole.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <cstdio>

#include "console/whole_program.h"
#include "designs/differential/form3.h"
#include "host/fixture.h"
#include "host/state_text.h"
#include "player/chance.h"
#include "player/player.h"
#include "state/twin_game.h"

namespace velmor::state_text_test {

using host::readState;
using host::stateText;
using host::WindowState;
using test::First;
using test::FixtureProgram;
using test::FixtureWindow;
using test::Second;

/// The seal as an independent sum: FNV-1a of 64 bits in hexadecimal digits.
std::string sealed(const std::string& body)
{
    std::uint64_t sum = 14695981039346656037u;
    for (const char letter : body) {
        sum ^= static_cast<std::uint8_t>(letter);
        sum *= 1099511628211u;
    }
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(sum));
    return body + "end " + digits + "\n";
}

std::string body(const std::string& text)
{
    return text.substr(0, text.rfind("end "));
}

struct StateText : testing::Test {
    FixtureProgram program;
    FixtureWindow& sheet = program.newSheet();
    host::Engine& engine = program.engine;

    std::optional<WindowState> read(const std::string& lines)
    {
        return readState(sealed("velmor-state 1 Sheet\n" + lines), engine);
    }
};

TEST_F(StateText, IsReadableAndNamesOnlyWhatDiffers)
{
    engine.userFocus(sheet, Second);
    engine.userText(sheet, Second, "1\"2\\\n\x01ñ");
    engine.userFocus(sheet, First);
    sheet.setCaption("Hoja");
    sheet.disable(Second);
    sheet.borrowDrawing(test::Photo, test::Still);
    const std::string text = stateText(*engine.stateOf(sheet));
    EXPECT_EQ(text, sealed("velmor-state 1 Sheet\n"
                           "Second.text \"1\\\"2\\\\\\n\\x01ñ\"\n"
                           "Second.asked \"1\\\"2\\\\\\n\\x01ñ\"\n"
                           "window.caption \"Hoja\"\n"
                           "Second.enabled 0\n"
                           "Photo.drawing Still\n"
                           "window.width 20250\n"
                           "window.height 10125\n"
                           "window.normalwidth 20250\n"
                           "window.normalheight 10125\n"
                           "window.loaded 1\n"
                           "window.shown 1\n"
                           "window.evershown 1\n"
                           "window.turn 1\n"
                           "window.current 1\n"
                           "window.active 1\n"
                           "window.focus First\n"));
    EXPECT_EQ(readState(text, engine), engine.stateOf(sheet));
}

TEST_F(StateText, RefusesWhatNoSuchWindowCouldHold)
{
    ASSERT_TRUE(read(""));
    ASSERT_TRUE(read("First.text \"1\"\nFirst.left -5\n"));
    for (const char* line : {
             "Fourth.text \"1\"\n", // no such control
             "first.text \"1\"\n",  // names to the letter
             "First.colour 1\n",    // no such attribute
             "own.QIc 1\n",         // no such value
             "window.text \"1\"\n",
             "First.text 1\n",   // no text
             "First.text \"1\n", // no end
             "First.text \"a\"b\"\n",
             "First.text \"\\q\"\n",
             "First.text \"\\x41\"\n", // one text, one spelling
             "First.text \"\\x0\"\n",
             "First.text \"\\\"\n",
             "First.left 1.5\n",
             "First.left 01\n",
             "First.left +1\n",
             "First.left 1e3\n",
             "First.left -0\n",
             "First.left\n",
             "First.left \n",
             "First.left 1 \n",
             "First.left 99999999999\n",
             "First.left 1e400\n",
             "First.left nan\n",
             "First.left inf\n",
             "First.fontsize 40000\n",
             "First.backcolor 16777216\n",
             "First.backcolor -2\n",
             "First.visible 2\n",
             "First.visible true\n",
             "First.drawing Fourth\n",
             "First.items \"a\\x00\"\n", // no list
             "First.slice \"a\"\n",      // no editor
             "First.font \"a\"\n",
             "Words.asked \"1\"\n",  // no field
             "window.focus Words\n", // takes no focus
             "window.windowstate 3\n",
             "window.shown 1\n", // without ever having been loaded
             "window.turn -1\n",
             "First.left 1\nFirst.left 2\n", // twice
             "First.text \"\"\nFirst.text \"1\"\n",
             "\n",
             "First.left 1\n\n",
             " First.left 1\n",
             "First\n",
             "velmor-state 1 Sheet\n",
         })
        EXPECT_FALSE(read(line)) << line;
}

TEST_F(StateText, RefusesOtherVersionsAndWindows)
{
    for (const char* start :
         {"velmor-state 2 Sheet\n", "velmor-state 1 sheet\n", "velmor-state 1 Form99\n", "velmor-state 1 \n",
          "velmor-state 1 Sheet", "", "\n", "velmor-state 11 Sheet\n", "Sheet\n"})
        EXPECT_FALSE(readState(sealed(start), engine)) << start;
    EXPECT_FALSE(readState("", engine));
    EXPECT_FALSE(readState("\n", engine));
    EXPECT_FALSE(readState(std::string(1'000'000, 'x'), engine));
}

TEST_F(StateText, RefusesTruncationAtEachByteAndEachFlippedBit)
{
    sheet.setText(First, "12");
    const std::string text = stateText(*engine.stateOf(sheet));
    ASSERT_TRUE(readState(text, engine));
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_FALSE(readState(text.substr(0, length), engine)) << length;
    for (std::size_t at = 0; at < text.size(); ++at)
        for (int bit = 0; bit < 8; ++bit) {
            std::string flipped = text;
            flipped[at] = static_cast<char>(static_cast<unsigned char>(flipped[at]) ^ (1U << bit));
            EXPECT_FALSE(readState(flipped, engine)) << at << " " << bit;
        }
}

// The line of the table is not kept when a later table says the same.
TEST_F(StateText, ForgetsWhatTheTableSays)
{
    const auto state = read("First.visible 1\nFirst.tag \"0\"\n");
    ASSERT_TRUE(state);
    EXPECT_TRUE(state->numbers.empty());
    EXPECT_TRUE(state->texts.empty());
}

struct Form3State : testing::Test {
    console::ConsoleScreen screen;
    host::MemorySettings settings;
    host::Engine engine{console::wholeProgram().catalogue, screen, settings};
    host::Window* sheet = nullptr;

    Form3State()
    {
        engine.loadMainWindow();
        console::wholeProgram().newSheet(engine, *engine.specOf("Form3"));
        sheet = engine.instance("Form3", 0);
    }
};

// Numbers that a decimal text of 15 digits would bend, under a comma in the program and in the process.
TEST_F(Form3State, IsExactWhateverTheDecimalSeparatorIs)
{
    const char* former = std::setlocale(LC_NUMERIC, nullptr);
    const std::string kept = former == nullptr ? "C" : former;
    ASSERT_NE(std::setlocale(LC_NUMERIC, "es_AR.UTF-8"), nullptr);
    engine.values().DecimalSeparator = ",";
    auto state = *engine.stateOf(*sheet);
    const double numbers[] = {0.1, 1.0 / 3.0, 5e-324, 1.7976931348623157e308, -0.0, 123456789.123456789, 1e-7};
    std::uint16_t index = 5; // behind the five values of the frame
    for (const double number : numbers)
        state.set({host::noControl, host::Attribute::own, index++}, number);
    const std::string text = stateText(state);
    const auto read = readState(text, engine);
    std::setlocale(LC_NUMERIC, kept.c_str());
    ASSERT_TRUE(read);
    EXPECT_TRUE(*read == state);
    EXPECT_NE(text.find("own.dQic 0.1\n"), std::string::npos);
    EXPECT_NE(text.find("own.RLw -0\n"), std::string::npos) << text;
    EXPECT_EQ(text.find(',', text.find("own.")), std::string::npos);
}

TEST_F(Form3State, RefusesOwnValuesOfAnotherKind)
{
    const auto read = [this](const std::string& line) {
        return readState(sealed("velmor-state 1 Form3\n" + line), engine).has_value();
    };
    EXPECT_TRUE(read("own.QIc 2.5\nown.passed 1\nown.modificado -1\nown.NombreArchivo \"a\"\n"));
    for (const char* line : {"own.QIc inf\n", "own.QIc nan\n", "own.QIc 1e999\n", "own.QIc 0x1p3\n", "own.QIc 2.50\n",
                             "own.QIc 2,5\n", "own.QIc \"2\"\n", "own.passed 2\n", "own.passed -1\n",
                             "own.modificado 32768\n", "own.modificado 0.5\n", "own.NombreArchivo a\n"})
        EXPECT_FALSE(read(line)) << line;
}

/// One small damage.
std::string mutated(player::Chance& chance, std::string text)
{
    static constexpr std::string_view pieces[] = {"\n",
                                                  "\"",
                                                  "\\",
                                                  "\\x00",
                                                  "\\x0a",
                                                  ".",
                                                  " ",
                                                  "-",
                                                  "0",
                                                  "1",
                                                  "9",
                                                  "99999999999999999999",
                                                  "1e308",
                                                  "window.",
                                                  "own.",
                                                  "turn",
                                                  "txtEdit.slice \"a\"\n",
                                                  "nan",
                                                  "\xFF",
                                                  "\xE0\x80\x80",
                                                  "end ",
                                                  "Text1",
                                                  "Text1.text",
                                                  ".focus",
                                                  "\r",
                                                  std::string_view("\0", 1)};
    const std::size_t at = chance.below(text.size() + 1);
    const std::string_view piece = chance.one(pieces);
    switch (chance.below(6)) {
    case 0:
        return text.insert(at, piece);
    case 1:
        return text.erase(at, chance.below(20));
    case 2:
        return text.replace(at, std::min(piece.size(), text.size() - at), piece);
    case 3: { // a line twice, or at another place
        const std::size_t from = text.rfind('\n', at);
        const std::size_t start = from == std::string::npos ? 0 : from + 1;
        const std::string line = text.substr(start, text.find('\n', start) - start + 1);
        return chance.in(50) ? text.insert(start, line) : text.append(line);
    }
    case 4:
        return text.substr(0, at) + text.substr(chance.below(text.size() + 1));
    default:
        if (at < text.size())
            text[at] = static_cast<char>(chance.below(256));
        return text;
    }
}

class DamagedTextOfEveryWindow : public testing::TestWithParam<const host::WindowSpec*> {};

// Damage with the right seal upon it: what is read all the same must be what the opened window then holds.
TEST_P(DamagedTextOfEveryWindow, IsRefusedWholeOrOpenedAsTheTextSays)
{
    player::Player player(console::wholeProgram(), {.seed = 3, .onlyWindow = std::string(GetParam()->name)});
    player::Chance chance(17);
    int refused = 0;
    int opened = 0;
    for (int round = 0; round < 60; ++round) {
        player.play(40);
        host::Window* window = player.engine().ended() ? nullptr : player.engine().instance(GetParam()->name, 0);
        if (window == nullptr)
            continue;
        WindowState state = *player.engine().stateOf(*window);
        state.longTexts = host::longTextsOf(*window);
        const std::string written = body(stateText(state));
        for (int damage = 0; damage < 15; ++damage) {
            const std::string text = sealed(mutated(chance, written));
            host::MemorySettings settings;
            console::ConsoleScreen screen;
            host::Engine engine(console::wholeProgram().catalogue, screen, settings);
            std::optional<WindowState> read = readState(text, engine);
            EXPECT_TRUE(engine.windows().empty());
            if (!read) {
                ++refused;
                continue;
            }
            ++opened;
            host::Window* copy = engine.open({&*read, 1}).front();
            ASSERT_NE(copy, nullptr);
            WindowState held = *engine.stateOf(*copy);
            held.longTexts = host::longTextsOf(*copy);
            // The order of use is the program's own.
            for (const auto ofProgram : {host::Attribute::turn, host::Attribute::current, host::Attribute::activeChild})
                read->set({host::noControl, ofProgram}, held.number({host::noControl, ofProgram}));
            EXPECT_TRUE(held == *read) << text << "\nagainst\n" << stateText(held);
        }
    }
    EXPECT_GT(refused, 50);
    EXPECT_GT(opened, 5);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, DamagedTextOfEveryWindow,
                         testing::ValuesIn(console::wholeProgram().catalogue.begin(),
                                           console::wholeProgram().catalogue.end()),
                         [](const auto& row) { return std::string(row.param->name); });

} // namespace velmor::state_text_test
