// SPDX-License-Identifier: MIT
// Reading lines, looking up their commands, totals over several walks.
#include "console/walk_player.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <istream>
#include <vector>

#include "console/verbs.h"

namespace velmor::console {

namespace walk_player_detail {

constexpr std::string_view usage = "velmor-walk [--trace] [FILE...]: plays each file in a fresh program; "
                                   "\"-\" or no file reads standard input";

void playLine(Walk& walk, std::string_view line)
{
    const std::vector<std::string> words = splitLine(line);
    if (words.empty())
        return;
    walk.trace("> " + std::string(line));
    const Verb* verb = verbOf(words.front());
    if (verb == nullptr)
        throw WalkError("unknown command " + inQuotes(words.front()));
    const Words arguments = Words(words).subspan(1);
    if (arguments.size() < verb->least || arguments.size() > verb->most)
        throw WalkError(std::string(verb->name) + " wants " + std::string(verb->usage));
    if (verb->kind != VerbKind::question && walk.engine().ended())
        return;
    if (verb->kind != VerbKind::preparation)
        walk.loadProgram();
    verb->run(walk, arguments);
}

bool cleanedLine(std::istream& text, std::string& line, bool first)
{
    if (!std::getline(text, line))
        return false;
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (first && line.starts_with(mark))
        line.erase(0, mark.size());
    return true;
}

void endWalk(Walk& walk, int lastLine)
{
    walk.atLine(lastLine, "");
    if (walk.screen().answersLeft() > 0)
        walk.fail("answers left over at the end: " + std::to_string(walk.screen().answersLeft()));
}

WalkResult playFile(const WalkedProgram& program, const std::string& name, std::istream& in, std::ostream& out,
                    bool trace)
{
    if (name == "-")
        return playWalk(program, in, name, out, trace);
    std::ifstream text(name, std::ios::binary);
    std::error_code ignored;
    if (!text || std::filesystem::is_directory(name, ignored)) {
        out << name << ": the file cannot be opened\n";
        return {.unreadable = true};
    }
    return playWalk(program, text, name, out, trace);
}

} // namespace walk_player_detail

const Verb* verbOf(std::string_view name)
{
    for (const std::span<const Verb> verbs : {preparations(), deeds(), questions()})
        for (const Verb& verb : verbs)
            if (verb.name == name)
                return &verb;
    return nullptr;
}

WalkResult playWalk(const WalkedProgram& program, std::istream& text, const std::string& name, std::ostream& out,
                    bool trace)
{
    using namespace walk_player_detail;
    Walk walk(program, name, out, trace);
    std::string line;
    try {
        int number = 0;
        while (cleanedLine(text, line, number == 0)) {
            walk.atLine(++number, line);
            playLine(walk, line);
        }
        endWalk(walk, number);
    } catch (const std::exception& problem) {
        walk.stop(problem.what());
    }
    return walk.result();
}

int runWalks(const WalkedProgram& program, std::span<const std::string> arguments, std::istream& in, std::ostream& out)
{
    using namespace walk_player_detail;
    std::vector<std::string> files;
    bool trace = false;
    for (const std::string& argument : arguments) {
        if (argument == "--trace") {
            trace = true;
        } else if (argument == "--help") {
            out << usage << '\n';
            return 0;
        } else if (argument.starts_with("-") && argument != "-") {
            out << "unknown option " << argument << "; " << usage << '\n';
            return 2;
        } else {
            files.push_back(argument);
        }
    }
    if (files.empty())
        files.emplace_back("-");
    WalkResult total;
    for (const std::string& file : files)
        total += playFile(program, file, in, out, trace);
    out << total.passed << " passed, " << total.failed << " failed" << std::endl;
    return total.exitStatus();
}

} // namespace velmor::console
