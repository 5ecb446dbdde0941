// SPDX-License-Identifier: MIT
// The real windows know no window and no control by name: what they must know, a window's own table tells them.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "places.h"
#include "program/catalogue.h"

namespace velmor::lint::screen_literals_test {

using Texts = std::vector<std::string>;

std::string folded(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return result;
}

/// Where a comment or a literal that begins at `at` ends, one character behind it.
std::size_t endOf(std::string_view code, std::size_t at)
{
    if (code.substr(at, 2) == "//")
        return std::min(code.find('\n', at), code.size());
    if (code.substr(at, 2) == "/*")
        return std::min(code.find("*/", at + 2), code.size() - 2) + 2;
    const char quote = code[at];
    for (++at; at < code.size() && code[at] != quote; ++at)
        if (code[at] == '\\')
            ++at;
    return std::min(at + 1, code.size());
}

/// What stands between double quotes in C++ code, comments and the names of included files left out.
Texts literals(std::string_view code)
{
    Texts found;
    for (std::size_t at = 0; at < code.size();) {
        const bool separator = code[at] == '\'' && at > 0 && std::isalnum(static_cast<unsigned char>(code[at - 1]));
        const bool begins = code[at] == '"' || (code[at] == '\'' && !separator) || code.substr(at, 2) == "//" ||
                            code.substr(at, 2) == "/*";
        const std::size_t line = code.rfind('\n', at) + 1;
        if (!begins || code.substr(line).starts_with("#include")) {
            ++at;
            continue;
        }
        const std::size_t end = endOf(code, at);
        if (code[at] == '"')
            found.emplace_back(code.substr(at + 1, end - at - 2));
        at = end;
    }
    return found;
}

/// The names of all windows and their controls; an array's also without its index.
std::set<std::string> namesOf(host::Catalogue windows)
{
    std::set<std::string> names;
    for (const host::WindowSpec* window : windows) {
        names.insert(folded(window->name));
        for (const host::ControlRow& row : window->controls) {
            names.insert(folded(row.name));
            names.insert(folded(row.name.substr(0, row.name.find('('))));
        }
    }
    return names;
}

Texts namesIn(std::string_view code, const std::set<std::string>& names)
{
    Texts known;
    for (const std::string& literal : literals(code))
        if (names.contains(folded(literal)))
            known.push_back(literal);
    return known;
}

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(ScreenLiterals, AreFoundBetweenCommentsCharactersAndIncludes)
{
    EXPECT_EQ(literals("#include \"host/a.h\"\n// \"no\"\nf(\"a\\\"b\", '\"', 1'000, /* \"no\" */ u\"c\"); \"\""),
              (Texts{"a\\\"b", "c", ""}));
}

TEST(ScreenLiterals, RejectTheNameOfAWindowAndOfAControlInAnyCapitals)
{
    constexpr host::ControlRow rows[] = {{.id = 0, .name = "Picture14"}, {.id = 1, .name = "mnuFile(0)"}};
    const host::WindowSpec window{.name = "Form16", .controls = rows};
    const host::WindowSpec* const windows[] = {&window};
    const std::set<std::string> names = namesOf(windows);
    EXPECT_EQ(
        namesIn("find(\"form16\"); // \"Form16\"\nnamed(\"Picture14\"); named(\"mnuFile(0)\"); \"mnufile\"", names),
        (Texts{"form16", "Picture14", "mnuFile(0)", "mnufile"}));
    EXPECT_EQ(namesIn("#include \"Form16\"\nsay(\"Picture 14\");", names), Texts{});
}

TEST(ScreenLiterals, NameNoWindowAndNoControlOfTheProgram)
{
    const std::set<std::string> names = namesOf(program::catalogue());
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(places::source() + "/src/desktop")) {
        const std::string ending = entry.path().extension().string();
        if (ending != ".cpp" && ending != ".h")
            continue;
        ++files;
        EXPECT_EQ(namesIn(contentOf(entry.path()), names), Texts{}) << entry.path();
    }
    EXPECT_GT(files, 50U) << "the folder is found";
}

} // namespace velmor::lint::screen_literals_test
