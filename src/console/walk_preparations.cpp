// SPDX-License-Identifier: MIT
// The commands that prepare a walk: language, clock, folder, settings, files, and answers to questions to come.
#include <filesystem>
#include <fstream>
#include <limits>

#include "console/verbs.h"
#include "rules/code_page.h"

namespace velmor::console {

namespace preparations_detail {

constexpr std::size_t any = std::numeric_limits<std::size_t>::max();

void language(Walk& walk, Words words)
{
    if (words[0] != "english" && words[0] != "spanish")
        throw WalkError("unknown language " + inQuotes(words[0]));
    walk.engine().values().LanguageIsEnglish = words[0] == "english" ? host::trueValue : std::int16_t{0};
}

void secondInstance(Walk& walk, Words)
{
    walk.screen().setOtherInstanceRunning();
}

host::Answer answerOf(const std::string& word)
{
    for (const host::Answer answer : {host::Answer::ok, host::Answer::cancel, host::Answer::yes, host::Answer::no})
        if (answerWord(answer) == word)
            return answer;
    throw WalkError("unknown answer " + inQuotes(word));
}

void answer(Walk& walk, Words words)
{
    for (const std::string& word : words)
        answerOf(word);
    for (const std::string& word : words)
        walk.screen().queueAnswer(answerOf(word));
}

void file(Walk& walk, Words words)
{
    if (words[0] == "cancel")
        walk.screen().queueFile(std::nullopt);
    else
        walk.screen().queueFile(walk.screen().resolved(words[0]).string());
}

void input(Walk& walk, Words words)
{
    walk.screen().queueInput(words[0] == "cancel" ? std::nullopt : std::optional(words[0]));
}

void clock(Walk& walk, Words words)
{
    walk.screen().setClock(words[0], words[1]);
}

void folder(Walk& walk, Words words)
{
    walk.screen().setProgramFolder(words[0]);
}

void setting(Walk& walk, Words words)
{
    walk.settings().setValue(words[0], words[1], words[2]);
}

void writeFile(Walk& walk, Words words)
{
    const std::filesystem::path path = walk.screen().resolved(words[0]);
    std::error_code ignored;
    std::filesystem::create_directories(path.parent_path(), ignored);
    std::ofstream out(path, std::ios::binary);
    out << rules::toWindows1252(words[1]);
    out.close();
    if (!out)
        throw WalkError("the file " + inQuotes(words[0]) + " cannot be written");
}

void colour(Walk& walk, Words words)
{
    walk.screen().queueColour(words[0] == "cancel" ? std::nullopt : std::optional(colourNumber(words[0])));
}

void font(Walk& walk, Words words)
{
    if (words.size() == 1) {
        if (words[0] != "cancel")
            throw WalkError("font wants NAME SIZE [bold] [italic], or cancel");
        walk.screen().queueFont(std::nullopt);
        return;
    }
    FontChoice choice{words[0], realNumber(words[1])};
    for (const std::string& word : words.subspan(2)) {
        if (word != "bold" && word != "italic")
            throw WalkError("unknown style " + inQuotes(word));
        (word == "bold" ? choice.bold : choice.italic) = true;
    }
    walk.screen().queueFont(choice);
}

// clang-format off
constexpr Verb table[] = {
    {"language",        VerbKind::preparation, 1, 1,   language,       "english|spanish"},
    {"second-instance", VerbKind::preparation, 0, 0,   secondInstance, "nothing"},
    {"answer",          VerbKind::preparation, 1, any, answer,         "ok|cancel|yes|no ..."},
    {"file",            VerbKind::preparation, 1, 1,   file,           "PATH|cancel"},
    {"input",           VerbKind::preparation, 1, 1,   input,          "TEXT|cancel"},
    {"clock",           VerbKind::preparation, 2, 2,   clock,          "DATE TIME"},
    {"folder",          VerbKind::preparation, 1, 1,   folder,         "PATH"},
    {"setting",         VerbKind::preparation, 3, 3,   setting,        "SECTION KEY VALUE"},
    {"write-file",      VerbKind::preparation, 2, 2,   writeFile,      "PATH TEXT"},
    {"colour",          VerbKind::preparation, 1, 1,   colour,         "RRGGBB|cancel"},
    {"font",            VerbKind::preparation, 1, 4,   font,           "NAME SIZE [bold] [italic], or cancel"},
};
// clang-format on

} // namespace preparations_detail

std::span<const Verb> preparations()
{
    return preparations_detail::table;
}

} // namespace velmor::console
