// SPDX-License-Identifier: MIT
// Looking up commands, playing a walk in one language or in both, totals over several walks.
#include "console/walk_player.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <istream>
#include <vector>

#include "console/verbs.h"
#include "console/walk_lines.h"

namespace velmor::console {

namespace walk_player_detail {

constexpr std::string_view usage = "velmor-walk [--trace] [FILE...]: plays each file in a fresh program; "
                                   "\"-\" or no file reads standard input";

void playCommand(Walk& walk, const Command& command)
{
    walk.trace("> " + command.text);
    const Verb* verb = verbOf(command.words.front());
    if (verb == nullptr)
        throw WalkError("unknown command " + inQuotes(command.words.front()));
    const Words arguments = Words(command.words).subspan(1);
    if (arguments.size() < verb->least || arguments.size() > verb->most)
        throw WalkError(std::string(verb->name) + " wants " + std::string(verb->usage));
    if (verb->kind != VerbKind::question && walk.engine().ended())
        return;
    if (verb->kind != VerbKind::preparation)
        walk.loadProgram();
    verb->run(walk, arguments);
}

void endWalk(Walk& walk, int lastLine)
{
    walk.atLine(lastLine, "");
    if (walk.screen().answersLeft() > 0)
        walk.fail("answers left over at the end: " + std::to_string(walk.screen().answersLeft()));
}

WalkResult playOnce(const WalkedProgram& program, WalkLines& lines, Playing playing, const std::string& name,
                    std::ostream& out, bool trace)
{
    Walk walk(program, name, out, trace);
    walk.playedIn(languageName(playing));
    lines.begin(playing);
    std::string line;
    try {
        while (lines.next(line)) {
            walk.atLine(lines.number(), line);
            for (const Command& command : lines.commands()) {
                walk.atLine(lines.number(), command.text);
                playCommand(walk, command);
            }
        }
        endWalk(walk, lines.number());
    } catch (const std::exception& problem) {
        walk.stop(problem.what());
    }
    return walk.result();
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
    for (const std::span<const Verb> verbs : {preparations(), deeds(), questions(), checks()})
        for (const Verb& verb : verbs)
            if (verb.name == name)
                return &verb;
    return nullptr;
}

WalkResult playWalk(const WalkedProgram& program, std::istream& text, const std::string& name, std::ostream& out,
                    bool trace)
{
    WalkLines lines(text);
    WalkResult total;
    for (const Playing playing : lines.playings())
        if (!total.unreadable)
            total += walk_player_detail::playOnce(program, lines, playing, name, out, trace);
    return total;
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
