// SPDX-License-Identifier: MIT
// Playing walks command by command, with something more between the commands.
#include "replay/replay.h"

#include <charconv>
#include <fstream>
#include <optional>
#include <sstream>

#include "console/verbs.h"
#include "console/walk_lines.h"
#include "sheets/design_sheet.h"

namespace velmor::replay {

namespace replay_detail {

using console::Verb;
using console::VerbKind;
using console::Walk;
using host::Window;

std::vector<std::string> fieldsOf(Window& window)
{
    std::vector<std::string> fields;
    for (const host::ControlRow& row : window.spec().controls)
        if (row.kind == host::Kind::field)
            fields.push_back(std::string(row.name) + " = " + window.text(row.id));
    return fields;
}

class Player {
public:
    Player(const console::WalkedProgram& program, const std::string& file, Manner manner)
        : manner_(manner), walk_(program, file, out_, false)
    {}

    Outcome play(console::WalkLines& lines, console::Playing playing);

private:
    void playCommand(std::vector<std::string> words);
    void openBlankSheet(const std::string& sheet);
    void switchLanguageToAndFro();
    void collectTexts();
    bool leftToTheBlankSheet();

    Manner manner_;
    std::ostringstream out_;
    Walk walk_;
    Outcome outcome_;
    std::string sheet_;
    Window* blank_ = nullptr;
    std::vector<std::string> blankFields_;
};

// A named sheet that was not touched is not asked about at the end: the answers of the walk are for its own sheets.
void Player::openBlankSheet(const std::string& sheet)
{
    const host::WindowSpec& spec = walk_.specOf(sheet);
    walk_.program().newSheet(walk_.engine(), spec);
    sheet_ = spec.name;
    blank_ = walk_.engine().instance(spec.name, 0);
    if (auto* design = dynamic_cast<sheets::DesignSheet*>(blank_))
        design->setNombreArchivo("beside");
    blankFields_ = fieldsOf(*blank_);
}

// The items' own slots, without the menus that lead to them.
void Player::switchLanguageToAndFro()
{
    host::Engine& engine = walk_.engine();
    if (engine.ended() || engine.windows().empty())
        return;
    Window& main = engine.mainWindow();
    const bool english = engine.values().LanguageIsEnglish == host::trueValue;
    for (const std::string_view item : {english ? "mnuEsp" : "mnuIng", english ? "mnuIng" : "mnuEsp"})
        engine.userRun([&] {
            host::EventArgs args;
            args.control = main.named(item);
            main.runSlot(args.control, host::Event::click, args);
        });
}

bool Player::leftToTheBlankSheet()
{
    return blank_ != nullptr && (!walk_.engine().isLoaded(blank_) || walk_.engine().current() == blank_ ||
                                 walk_.engine().activeChild() == blank_);
}

void Player::playCommand(std::vector<std::string> words)
{
    const Verb* verb = console::verbOf(words.front());
    if (verb == nullptr || words.size() - 1 < verb->least || words.size() - 1 > verb->most)
        throw console::WalkError("the line cannot be played again");
    if (verb->kind != VerbKind::question && walk_.engine().ended())
        return;
    if (verb->kind != VerbKind::preparation)
        walk_.loadProgram();
    if (manner_ == Manner::besideASheet && blank_ == nullptr && verb->name == "new")
        openBlankSheet(words[1]);
    if (blank_ != nullptr)
        words = withOneSheetMore(std::move(words), sheet_);
    verb->run(walk_, console::Words(words).subspan(1));
    if (manner_ == Manner::languageToAndFro && verb->kind == VerbKind::deed)
        switchLanguageToAndFro();
}

void Player::collectTexts()
{
    for (Window* window : walk_.engine().windows()) {
        const host::Role role = window->role();
        if (window == blank_ || role == host::Role::mainWindow || role == host::Role::palette)
            continue;
        const std::string name(window->name());
        outcome_.texts.push_back(name + " \"" + walk_.screen().plain(window->caption()) + "\"");
        for (const host::ControlRow& row : window->spec().controls)
            outcome_.texts.push_back(name + "." + std::string(row.name) + " = " +
                                     walk_.screen().plain(window->wholeText(row.id)));
    }
    if (blank_ == nullptr)
        return;
    const std::vector<std::string> now = fieldsOf(*blank_);
    for (std::size_t i = 0; i < now.size(); ++i)
        if (now[i] != blankFields_[i])
            outcome_.disturbed = now[i];
}

Outcome Player::play(console::WalkLines& lines, console::Playing playing)
{
    walk_.playedIn(console::languageName(playing));
    lines.begin(playing);
    try {
        for (std::string line; !outcome_.cutShort && lines.next(line);) {
            walk_.atLine(lines.number(), line);
            for (const console::Command& command : lines.commands())
                if (!outcome_.cutShort) {
                    playCommand(command.words);
                    outcome_.cutShort = leftToTheBlankSheet();
                }
        }
    } catch (const std::exception& problem) {
        walk_.stop(problem.what());
    }
    if (!outcome_.cutShort)
        collectTexts();
    outcome_.result = walk_.result();
    outcome_.output = out_.str();
    return outcome_;
}

/// The number behind "NAME#" when the word names a window of that name, or a property of it.
std::optional<int> numberBehind(const std::string& word, std::string_view sheet, std::size_t& from, std::size_t& to)
{
    if (word.size() <= sheet.size() + 1 || word[sheet.size()] != '#' ||
        !host::sameName(word.substr(0, sheet.size()), sheet))
        return std::nullopt;
    int number = 0;
    from = sheet.size() + 1;
    const auto [end, error] = std::from_chars(word.data() + from, word.data() + word.size(), number);
    to = static_cast<std::size_t>(end - word.data());
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

} // namespace replay_detail

std::vector<std::string> withOneSheetMore(std::vector<std::string> words, std::string_view sheet)
{
    std::size_t from = 0;
    std::size_t to = 0;
    for (std::string& word : words)
        if (const auto number = replay_detail::numberBehind(word, sheet, from, to))
            word.replace(from, to - from, std::to_string(*number + 1));
    if (words.size() >= 2 && words[0] == "expect-window" && host::sameName(words[1], sheet)) {
        const int count = words.size() > 2 ? std::stoi(words[2]) : 1;
        words.resize(2);
        words.push_back(std::to_string(count + 1));
    }
    return words;
}

std::vector<Outcome> replayed(const console::WalkedProgram& program, const std::string& file, Manner manner)
{
    std::ifstream text(file, std::ios::binary);
    console::WalkLines lines(text);
    std::vector<Outcome> outcomes;
    for (const console::Playing playing : lines.playings())
        outcomes.push_back(replay_detail::Player(program, file, manner).play(lines, playing));
    return outcomes;
}

} // namespace velmor::replay
