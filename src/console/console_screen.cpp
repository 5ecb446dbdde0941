// SPDX-License-Identifier: MIT
// Answers from queues, and a record of everything shown.
#include "console/console_screen.h"

#include <random>
#include <system_error>
#include <utility>

#include "console/walk_text.h"
#include "host/window.h"
#include "rules/code_page.h"

namespace velmor::console {

namespace console_screen_detail {

namespace fs = std::filesystem;

constexpr int twipsOfACharacter = 120;

// Takes the oldest entry of a queue; `none` when nothing is queued.
template <class Entry>
Entry taken(std::deque<Entry>& queue, Entry none)
{
    if (queue.empty())
        return none;
    Entry first = std::move(queue.front());
    queue.pop_front();
    return first;
}

template <class Entry>
std::optional<Entry> oldest(std::deque<Entry>& queue)
{
    if (queue.empty())
        return std::nullopt;
    return taken(queue, Entry{});
}

} // namespace console_screen_detail

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    if (!path_.empty())
        std::filesystem::remove_all(path_, ignored);
}

const std::filesystem::path& TemporaryFolder::path()
{
    std::random_device chance;
    while (path_.empty()) {
        const std::filesystem::path wanted =
            std::filesystem::temp_directory_path() / ("velmor-walk-" + std::to_string(chance()));
        if (!std::filesystem::create_directory(wanted))
            continue;
        std::filesystem::permissions(wanted, std::filesystem::perms::owner_all);
        path_ = wanted;
    }
    return path_;
}

void ConsoleScreen::trace(const std::string& line) const
{
    if (onTrace)
        onTrace(line);
}

void ConsoleScreen::noteDialog(std::string kind, std::string title, std::string detail)
{
    trace("dialog " + kind + " " + inQuotes(title) + " " + inQuotes(detail));
    dialogs_.push_back({std::move(kind), std::move(title), std::move(detail)});
}

void ConsoleScreen::setClock(std::string date, std::string time)
{
    date_ = std::move(date);
    time_ = std::move(time);
}

void ConsoleScreen::setProgramFolder(const std::string& path)
{
    namespace fs = std::filesystem;
    const fs::path below = temporary_.path() / path;
    const fs::path here = fs::absolute(path);
    folder_ = (!fs::exists(below) && fs::exists(here) ? here : below).lexically_normal();
    if (!folder_->has_filename())
        folder_ = folder_->parent_path();
}

std::filesystem::path ConsoleScreen::resolved(const std::string& path)
{
    return (std::filesystem::path(programFolder()) / path).lexically_normal();
}

std::string ConsoleScreen::plain(std::string_view text)
{
    std::string result = withLineFeeds(text);
    if (result.find("velmor-walk-") == std::string::npos)
        return result;
    const std::string folder = temporary_.path().string() + "/";
    for (std::size_t at = result.find(folder); at != std::string::npos; at = result.find(folder, at))
        result.erase(at, folder.size());
    return result;
}

std::optional<host::MessageBox> ConsoleScreen::takeBox()
{
    return console_screen_detail::oldest(boxes_);
}

std::optional<ShownDialog> ConsoleScreen::takeDialog()
{
    return console_screen_detail::oldest(dialogs_);
}

host::Answer ConsoleScreen::messageBox(const host::MessageBox& box)
{
    boxes_.push_back(box);
    host::Answer answer = console_screen_detail::taken(answers_, box.escape());
    if (!box.offers(answer)) {
        if (onWrongAnswer)
            onWrongAnswer("the box " + inQuotes(plain(box.text)) + " does not offer " +
                          std::string(answerWord(answer)));
        answer = box.escape();
    }
    trace("answer " + std::string(answerWord(answer)));
    return answer;
}

std::optional<std::string> ConsoleScreen::fileDialog(const host::FileDialog& dialog)
{
    noteDialog(dialog.kind == host::DialogKind::open ? "open" : "save", dialog.title, dialog.filter);
    return console_screen_detail::taken(files_, std::optional<std::string>());
}

std::optional<std::string> ConsoleScreen::inputBox(const host::InputBox& box)
{
    noteDialog("input", box.title, box.prompt);
    return console_screen_detail::taken(inputs_, std::optional<std::string>());
}

std::optional<std::int32_t> ConsoleScreen::colourDialog(std::int32_t initial)
{
    (void)initial;
    noteDialog("colour", "", "");
    return console_screen_detail::taken(colours_, std::optional<std::int32_t>());
}

std::optional<host::Font> ConsoleScreen::fontDialog(const host::Font& initial)
{
    noteDialog("font", "", "");
    const std::optional<FontChoice> choice = console_screen_detail::taken(fonts_, std::optional<FontChoice>());
    if (!choice)
        return std::nullopt;
    host::Font font = initial;
    font.name = choice->name;
    font.size = choice->size;
    font.bold = choice->bold;
    font.italic = choice->italic;
    return font;
}

int ConsoleScreen::printedWidth(const host::Font& font, std::string_view text)
{
    (void)font;
    int characters = 0;
    for (std::size_t at = 0; at < text.size(); at += rules::codePointAt(text, at).length)
        if (text[at] != '\n' && text[at] != '\r')
            ++characters;
    return characters * console_screen_detail::twipsOfACharacter;
}

std::string ConsoleScreen::programFolder()
{
    return (folder_ ? *folder_ : temporary_.path()).string();
}

void ConsoleScreen::beep()
{
    ++beeps_;
    trace("beep");
}

void ConsoleScreen::print(const host::PrintJob& job)
{
    noteDialog("print", "", "");
    printed_ = job.text;
}

bool ConsoleScreen::run(const std::string& program, const std::string& argument)
{
    ran_ = program + (program.empty() || argument.empty() ? "" : " ") + argument;
    trace("run " + *ran_);
    return true;
}

void ConsoleScreen::popupMenu(host::Window& owner, host::Handle menu)
{
    popup_ = owner.row(menu).name;
}

void ConsoleScreen::programFailed(std::string_view text)
{
    trace("message " + inQuotes(text));
}

std::string_view answerWord(host::Answer answer)
{
    switch (answer) {
    case host::Answer::ok:
        return "ok";
    case host::Answer::cancel:
        return "cancel";
    case host::Answer::yes:
        return "yes";
    case host::Answer::no:
        return "no";
    }
    return "";
}

} // namespace velmor::console
