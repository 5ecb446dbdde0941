// SPDX-License-Identifier: MIT
// Choosing one language out of two, and telling short forms at length.
#include "console/walk_lines.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmor::console {

namespace walk_lines_detail {

constexpr std::string_view bar = "|";
constexpr int longestRange = 1000;

bool isBar(const std::vector<Word>& words, std::size_t at)
{
    return at < words.size() && !words[at].quoted && words[at].text == bar;
}

/// Where `|` stands between two texts, the one of this language alone.
std::vector<std::string> inOneLanguage(const std::vector<Word>& words, Playing playing)
{
    std::vector<std::string> chosen;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool paired = isBar(words, i + 1);
        const bool oneTextBehind = !isBar(words, i + 2) && !isBar(words, i + 3);
        if (isBar(words, i) || (paired && (i == 0 || i + 2 == words.size() || !oneTextBehind)))
            throw WalkError("| must stand between two texts");
        chosen.push_back(paired && playing == Playing::inEnglish ? words[i + 2].text : words[i].text);
        i += paired ? 2 : 0;
    }
    return chosen;
}

/// "es:" or "en:", the mark of a line for one language alone; else Playing::asWritten.
Playing markOf(const std::vector<Word>& words)
{
    if (words.empty() || words[0].quoted)
        return Playing::asWritten;
    return words[0].text == "es:"   ? Playing::inSpanish
           : words[0].text == "en:" ? Playing::inEnglish
                                    : Playing::asWritten;
}

/// The words that the line has in this playing; none when it is for the other language.
std::vector<std::string> wordsIn(const std::vector<Word>& words, Playing playing)
{
    const Playing mark = markOf(words);
    if (mark == Playing::asWritten)
        return inOneLanguage(words, playing);
    if (mark != playing)
        return {};
    if (words.size() == 1)
        throw WalkError(words[0].text + " wants a command");
    std::vector<std::string> rest;
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (isBar(words, i))
            throw WalkError("a line for one language has no second text");
        rest.push_back(words[i].text);
    }
    return rest;
}

/// "Text1..Text4": the stem and both numbers of a range.
struct Range {
    std::string stem;
    int first = 0;
    int last = 0;
};

Range rangeOf(const std::string& word, std::size_t points)
{
    constexpr std::string_view digits = "0123456789";
    const std::string from = word.substr(0, points);
    const std::string to = word.substr(points + 2);
    const std::size_t stem = from.find_last_not_of(digits) + 1;
    if (stem == 0 || stem == from.size() || to.size() <= stem || to.substr(0, stem) != from.substr(0, stem))
        throw WalkError(inQuotes(word) + " is no range of controls");
    const Range range{from.substr(0, stem), wholeNumber(from.substr(stem), 0, longestRange),
                      wholeNumber(to.substr(stem), 0, longestRange)};
    if (range.first >= range.last)
        throw WalkError(inQuotes(word) + " is no range of controls");
    return range;
}

using Texts = std::span<const std::string>;

/// The controls of a list, each of its ranges told at length.
std::vector<std::string> controlsOf(Texts list)
{
    std::vector<std::string> names;
    for (const std::string& word : list) {
        const std::size_t points = word.find("..");
        if (points == std::string::npos) {
            names.push_back(word);
            continue;
        }
        const Range range = rangeOf(word, points);
        for (int number = range.first; number <= range.last; ++number)
            names.push_back(range.stem + std::to_string(number));
    }
    return names;
}

void tell(std::vector<Command>& commands, std::vector<std::string> words)
{
    std::string text = lineOf(words);
    commands.push_back({std::move(words), std::move(text)});
}

/// An expectation of the current window, or of the one named.
void tellExpectation(std::vector<Command>& commands, const std::string& window, std::string property, std::string value)
{
    if (window.empty())
        tell(commands, {"expect", std::move(property), std::move(value)});
    else
        tell(commands, {"expect-in", window, std::move(property), std::move(value)});
}

struct ListForm {
    std::string_view name; ///< behind "expect-", or behind the window of `expect-in`
    std::string_view property;
    std::string_view value;
};

// clang-format off
constexpr ListForm listForms[] = {
    {"shown",    "visible", "true"},
    {"hidden",   "visible", "false"},
    {"enabled",  "enabled", "true"},
    {"disabled", "enabled", "false"},
};
// clang-format on

const ListForm* listFormOf(std::string_view name)
{
    const auto found = std::find_if(std::begin(listForms), std::end(listForms),
                                    [name](const ListForm& form) { return form.name == name; });
    return found == std::end(listForms) ? nullptr : found;
}

std::vector<Command> listAtLength(const ListForm& form, const std::string& window, Texts list)
{
    if (list.empty())
        throw WalkError("expect-" + std::string(form.name) + " wants CONTROL ...");
    std::vector<Command> commands;
    for (const std::string& name : controlsOf(list))
        tellExpectation(commands, window, name + "." + std::string(form.property), std::string(form.value));
    return commands;
}

/// Several properties, each with its value behind it.
std::vector<Command> valuesAtLength(const std::string& window, Texts list)
{
    if (list.size() % 2 != 0)
        throw WalkError("each CONTROL.PROPERTY wants its VALUE");
    std::vector<Command> commands;
    for (std::size_t i = 0; i < list.size(); i += 2) {
        propertyWord(list[i]); // a list that cannot be read asks nothing
        tellExpectation(commands, window, list[i], list[i + 1]);
    }
    return commands;
}

/// `enter FIELD VALUE`: the field has the focus, its text gives way to the value, and the key is pressed.
std::vector<Command> keyAtLength(const std::string& key, Texts list)
{
    if (list.size() > 2)
        throw WalkError(key + " wants nothing, FIELD, or FIELD VALUE");
    std::vector<Command> commands;
    tell(commands, {"expect-focus", list[0]});
    if (list.size() == 2) {
        tell(commands, {"clear"});
        tell(commands, {"type", list[1]});
    }
    tell(commands, {key});
    return commands;
}

std::vector<Command> enterEachAtLength(Texts list)
{
    if (list.empty())
        throw WalkError("enter-each wants FIELD ...");
    std::vector<Command> commands;
    for (const std::string& field : controlsOf(list)) {
        tell(commands, {"expect-focus", field});
        tell(commands, {"enter"});
    }
    return commands;
}

/// What a short form stands for; nothing for a plain command.
std::vector<Command> atLength(Texts words)
{
    constexpr std::string_view expectPrefix = "expect-";
    const std::string& verb = words[0];
    const Texts list = words.subspan(1);
    if (verb == "enter-each")
        return enterEachAtLength(list);
    if ((verb == "enter" || verb == "esc") && !list.empty())
        return keyAtLength(verb, list);
    if (verb == "expect" && list.size() > 2)
        return valuesAtLength("", list);
    if (verb.starts_with(expectPrefix))
        if (const ListForm* form = listFormOf(std::string_view(verb).substr(expectPrefix.size())))
            return listAtLength(*form, "", list);
    if (verb != "expect-in" || list.size() < 3)
        return {};
    if (const ListForm* form = listFormOf(list[1]))
        return listAtLength(*form, list[0], list.subspan(2));
    return list.size() > 3 ? valuesAtLength(list[0], list.subspan(1)) : std::vector<Command>();
}

} // namespace walk_lines_detail

std::string_view languageName(Playing playing)
{
    constexpr std::array<std::string_view, 3> names{"", "Spanish", "English"};
    return names[static_cast<std::size_t>(playing)];
}

std::span<const std::string_view> shortForms()
{
    static constexpr std::array<std::string_view, 5> names{"enter-each", "expect-shown", "expect-hidden",
                                                           "expect-enabled", "expect-disabled"};
    return names;
}

std::span<const Playing> WalkLines::playings()
{
    static constexpr Playing once[] = {Playing::asWritten};
    static constexpr Playing twice[] = {Playing::inSpanish, Playing::inEnglish};
    try {
        std::vector<Word> words;
        for (std::size_t line = 0; words.empty() && reaches(line); ++line)
            words = wordsOf(lines_[line]);
        const bool both = words.size() == 4 && words[0].text == "language" && words[1].text == "spanish" &&
                          walk_lines_detail::isBar(words, 2) && words[3].text == "english";
        return both ? std::span<const Playing>(twice) : once;
    } catch (const WalkError&) {
        return once; // the line is refused when it is played
    }
}

void WalkLines::begin(Playing playing)
{
    playing_ = playing;
    at_ = 0;
}

bool WalkLines::next(std::string& line)
{
    if (!reaches(at_))
        return false;
    line = lines_[at_++];
    return true;
}

std::vector<Command> WalkLines::commands() const
{
    using namespace walk_lines_detail;
    const std::string& line = lines_[at_ - 1];
    const bool plain = playing_ == Playing::asWritten;
    std::vector<std::string> words = plain ? splitLine(line) : wordsIn(wordsOf(line), playing_);
    if (words.empty())
        return {};
    std::vector<Command> commands = atLength(words);
    if (commands.empty()) {
        std::string text = plain ? line : lineOf(words);
        commands.push_back({std::move(words), std::move(text)});
    }
    return commands;
}

bool WalkLines::reaches(std::size_t line)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    std::string read;
    while (lines_.size() <= line && std::getline(text_, read)) {
        if (!read.empty() && read.back() == '\r')
            read.pop_back();
        if (lines_.empty() && read.starts_with(mark))
            read.erase(0, mark.size());
        lines_.push_back(read);
    }
    return line < lines_.size();
}

} // namespace velmor::console
