// SPDX-License-Identifier: MIT
// Writing and reading states. The reader builds a state that is all right or none: no window changes while it works.
#include "host/state_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <memory>
#include <unordered_map>
#include <utility>

#include "host/engine.h"
#include "host/text_store.h"

namespace velmor::host {

namespace state_text_detail {

constexpr std::string_view heading = "velmor-state 1 ";
constexpr std::string_view sealWord = "end ";
constexpr std::size_t sealDigits = 16;
constexpr std::string_view windowWord = "window";
constexpr std::string_view ownWord = "own";
constexpr std::string_view sliceWord = "slice";
constexpr std::string_view selectionStartWord = "selectionstart";
constexpr std::string_view selectionLengthWord = "selectionlength";
constexpr std::string_view hexadecimal = "0123456789abcdef";

bool isPlain(char letter)
{
    return static_cast<unsigned char>(letter) >= 0x20 && letter != '"' && letter != '\\' && letter != '\x7F';
}

/// Stretches of plain letters are copied whole: a long text has little else.
std::string quoted(std::string_view text)
{
    std::string result = "\"";
    result.reserve(text.size() + text.size() / 32 + 2);
    while (!text.empty()) {
        const auto plain = static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isPlain) - text.begin());
        result.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty())
            break;
        const auto code = static_cast<unsigned char>(text.front());
        if (text.front() == '"' || text.front() == '\\')
            result.append({'\\', text.front()});
        else if (text.front() == '\n')
            result.append("\\n");
        else
            result.append({'\\', 'x', hexadecimal[code / 16], hexadecimal[code % 16]});
        text.remove_prefix(1);
    }
    return result.append("\"");
}

std::string wholeWord(double value)
{
    return std::to_string(static_cast<long long>(value));
}

/// The shortest digits that read back as exactly this number.
std::string numberWord(double value)
{
    std::array<char, 32> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), end};
}

std::string_view nameOf(const WindowSpec& spec, double control)
{
    return spec.controls[static_cast<std::size_t>(control)].name;
}

std::string valueWord(const WindowSpec& spec, Form form, double value)
{
    switch (form) {
    case Form::number:
        return numberWord(value);
    case Form::control:
        return std::string(nameOf(spec, value));
    default:
        return wholeWord(value);
    }
}

void addLine(std::string& text, std::string_view owner, std::string_view attribute, std::string_view value)
{
    text.append(owner).append(".").append(attribute).append(" ").append(value).append("\n");
}

std::string_view ownerOf(const WindowState& state, const Key& key)
{
    if (key.attribute == Attribute::own)
        return ownWord;
    return key.control == noControl ? windowWord : state.spec->controls[key.control].name;
}

std::string_view attributeOf(const WindowState& state, const Key& key)
{
    return key.attribute == Attribute::own ? ownRow(state, key.own).name : attributeRow(key.attribute).name;
}

Form formOf(OwnKind kind)
{
    switch (kind) {
    case OwnKind::flag:
        return Form::flag;
    case OwnKind::whole:
        return Form::whole;
    case OwnKind::number:
        return Form::number;
    case OwnKind::text:
        break;
    }
    return Form::text;
}

// --- reading

/// What a line is about and how it is written.
struct Meaning {
    Key key{};
    Form form = Form::whole;
    double low = 0.0;
    double high = 1.0;
};

std::optional<std::string> unquoted(std::string_view word)
{
    if (word.size() < 2 || word.front() != '"' || word.back() != '"')
        return std::nullopt;
    const std::string_view inner = word.substr(1, word.size() - 2);
    std::string text;
    text.reserve(inner.size());
    for (std::size_t at = 0; at < inner.size(); ++at) {
        const std::size_t stroke = std::min(inner.find('\\', at), inner.size());
        text.append(inner.substr(at, stroke - at));
        at = stroke;
        if (at == inner.size())
            break;
        const char what = ++at < inner.size() ? inner[at] : '\0';
        if (what == 'n') {
            text.push_back('\n');
        } else if (what == 'x' && at + 2 < inner.size()) {
            const std::size_t high = hexadecimal.find(inner[++at]);
            const std::size_t low = hexadecimal.find(inner[++at]);
            text.push_back(static_cast<char>(high % 16 * 16 + low % 16));
        } else {
            text.push_back(what);
        }
    }
    // One text has one way to be written; anything else is damage.
    if (quoted(text) != word)
        return std::nullopt;
    return text;
}

std::optional<double> numberOf(std::string_view word, Form form)
{
    double value = 0.0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size() || !std::isfinite(value))
        return std::nullopt;
    if (form != Form::number && (std::abs(value) > 1e15 || value != std::trunc(value)))
        return std::nullopt;
    if ((form == Form::number ? numberWord(value) : wholeWord(value)) != word)
        return std::nullopt;
    return value;
}

/// Reads one text into one state.
class Reader {
public:
    Reader(std::string_view text, Engine& engine) : rest_(text), engine_(engine) {}

    std::optional<WindowState> read();

private:
    bool openSeal();
    bool readHeading();
    bool readLine(std::string_view line);
    bool readLongText(Handle editor, std::string_view attribute, std::string_view word);
    std::optional<Meaning> meaningOf(std::string_view owner, std::string_view attribute) const;
    std::optional<Meaning> meaningOfOwn(std::string_view name) const;
    std::optional<double> value(const Meaning& meaning, std::string_view word) const;
    bool store(const Meaning& meaning, std::string_view word);
    LongText& longText(Handle editor);
    template <class Kept>
    static bool inOrder(std::vector<Kept>& list);
    bool longTextIsSound(const LongText& text) const;
    bool listsAreSound() const;
    bool windowIsSound() const;
    void leaveOutTheTable();

    std::string_view rest_;
    Engine& engine_;
    std::unique_ptr<Window> blank_; ///< knows the values of its own
    std::unordered_map<std::string_view, Handle> controls_;
    WindowState state_;
};

std::string_view takeLine(std::string_view& rest)
{
    const std::size_t end = rest.find('\n');
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return line;
}

bool Reader::openSeal()
{
    const std::size_t length = sealWord.size() + sealDigits + 1;
    if (rest_.size() < length ||
        rest_.substr(rest_.size() - length) != stateSeal(rest_.substr(0, rest_.size() - length)))
        return false;
    rest_.remove_suffix(length);
    return rest_.ends_with('\n');
}

bool Reader::readHeading()
{
    const std::string_view line = takeLine(rest_);
    if (!line.starts_with(heading))
        return false;
    state_.spec = engine_.specOf(line.substr(heading.size()));
    if (state_.spec == nullptr || state_.spec->name != line.substr(heading.size()))
        return false;
    blank_ = state_.spec->create(engine_.host());
    for (const OwnView& view : StateAccess::own(*blank_))
        state_.own.push_back(view.rows);
    for (const ControlRow& row : state_.spec->controls)
        controls_.emplace(row.name, row.id);
    return true;
}

std::optional<Meaning> Reader::meaningOfOwn(std::string_view name) const
{
    std::uint16_t index = 0;
    for (const std::span<const OwnRow> rows : state_.own)
        for (const OwnRow& row : rows) {
            const Key key{noControl, Attribute::own, index++};
            if (row.name != name)
                continue;
            const bool whole = row.kind == OwnKind::whole;
            const double low = whole ? std::numeric_limits<std::int16_t>::min() : 0.0;
            const double high = whole ? std::numeric_limits<std::int16_t>::max() : 1.0;
            return Meaning{key, formOf(row.kind), low, high};
        }
    return std::nullopt;
}

std::optional<Meaning> Reader::meaningOf(std::string_view owner, std::string_view attribute) const
{
    if (owner == ownWord)
        return meaningOfOwn(attribute);
    const auto control = controls_.find(owner);
    if (owner != windowWord && control == controls_.end())
        return std::nullopt;
    const AttributeRow* row = attributeNamed(attribute, owner == windowWord);
    if (row == nullptr)
        return std::nullopt;
    const Handle handle = owner == windowWord ? noControl : control->second;
    if (row->fits != nullptr && !row->fits(state_.spec->controls[handle].kind))
        return std::nullopt;
    return Meaning{{handle, row->id}, row->form, row->low, row->high};
}

std::optional<double> Reader::value(const Meaning& meaning, std::string_view word) const
{
    if (meaning.form == Form::control) {
        const auto named = controls_.find(word);
        if (named == controls_.end())
            return std::nullopt;
        if (meaning.key.attribute == Attribute::focus && !takesFocus(state_.spec->controls[named->second].kind))
            return std::nullopt;
        return named->second;
    }
    const std::optional<double> value = numberOf(word, meaning.form);
    const bool any = meaning.key.attribute == Attribute::own && meaning.form == Form::number;
    if (!value || (!any && (*value < meaning.low || *value > meaning.high)))
        return std::nullopt;
    return value;
}

bool Reader::store(const Meaning& meaning, std::string_view word)
{
    if (meaning.form == Form::text) {
        std::optional<std::string> text = unquoted(word);
        if (!text)
            return false;
        state_.texts.push_back({meaning.key, std::move(*text)});
        return true;
    }
    const std::optional<double> number = value(meaning, word);
    if (!number)
        return false;
    state_.numbers.push_back({meaning.key, *number});
    return true;
}

LongText& Reader::longText(Handle editor)
{
    if (state_.longTexts.empty() || state_.longTexts.back().editor != editor)
        state_.longTexts.push_back({.editor = editor});
    return state_.longTexts.back();
}

bool Reader::readLongText(Handle editor, std::string_view attribute, std::string_view word)
{
    LongText& text = longText(editor);
    if (attribute == sliceWord) {
        std::optional<std::string> slice = unquoted(word);
        if (!slice)
            return false;
        text.slices.push_back(std::move(*slice));
        return true;
    }
    const std::optional<double> number = numberOf(word, Form::whole);
    std::size_t& selection = attribute == selectionStartWord ? text.selectionStart : text.selectionLength;
    if (!number || *number < 1.0 || selection != 0)
        return false;
    selection = static_cast<std::size_t>(*number);
    return true;
}

bool Reader::readLine(std::string_view line)
{
    const std::size_t dot = line.find('.');
    const std::size_t blank = line.find(' ');
    if (dot == std::string_view::npos || blank == std::string_view::npos || blank < dot)
        return false;
    const std::string_view owner = line.substr(0, dot);
    const std::string_view attribute = line.substr(dot + 1, blank - dot - 1);
    const std::string_view word = line.substr(blank + 1);
    if (attribute == sliceWord || attribute == selectionStartWord || attribute == selectionLengthWord) {
        const auto editor = controls_.find(owner);
        return editor != controls_.end() && state_.spec->controls[editor->second].kind == Kind::editor &&
               readLongText(editor->second, attribute, word);
    }
    const std::optional<Meaning> meaning = meaningOf(owner, attribute);
    return meaning && store(*meaning, word);
}

template <class Kept>
bool Reader::inOrder(std::vector<Kept>& list)
{
    std::stable_sort(list.begin(), list.end(), [](const Kept& one, const Kept& other) { return one.key < other.key; });
    const auto twice = std::adjacent_find(list.begin(), list.end(),
                                          [](const Kept& one, const Kept& other) { return one.key == other.key; });
    return twice == list.end();
}

// A slice that the store would hold otherwise than it is written did not come out of one.
bool Reader::longTextIsSound(const LongText& text) const
{
    std::size_t length = 0;
    for (const std::string& slice : text.slices) {
        const std::u32string characters = toCodePoints(slice);
        const bool last = &slice == &text.slices.back();
        if (characters.empty() || characters.size() > LongText::sliceLength ||
            (!last && characters.size() != LongText::sliceLength) || toUtf8(characters) != slice ||
            characters.find(U'\r') != characters.npos || characters.find(U'\0') != characters.npos)
            return false;
        length += characters.size();
    }
    const auto sameEditor = [&](const LongText& other) { return other.editor == text.editor; };
    return length > 0 && text.selectionStart <= length && text.selectionLength <= length - text.selectionStart &&
           std::count_if(state_.longTexts.begin(), state_.longTexts.end(), sameEditor) == 1;
}

bool Reader::listsAreSound() const
{
    for (const ControlRow& row : state_.spec->controls) {
        if (row.kind != Kind::list)
            continue;
        const std::string_view items = state_.text({row.id, Attribute::items});
        const auto count = static_cast<double>(std::count(items.begin(), items.end(), '\0'));
        if ((!items.empty() && items.back() != '\0') || state_.number({row.id, Attribute::selected}) >= count)
            return false;
    }
    return true;
}

bool Reader::windowIsSound() const
{
    const auto flag = [this](Attribute attribute) { return state_.number({noControl, attribute}) != 0.0; };
    const bool shown = flag(Attribute::shown);
    return (!shown || flag(Attribute::everShown)) && (!flag(Attribute::everShown) || flag(Attribute::loaded));
}

// What another version of the program has in its table by now need not be said.
void Reader::leaveOutTheTable()
{
    std::erase_if(state_.numbers, [this](const KeptNumber& kept) {
        return kept == KeptNumber{kept.key, numberByTable(*state_.spec, kept.key)};
    });
    std::erase_if(state_.texts,
                  [this](const KeptText& kept) { return kept.value == textByTable(*state_.spec, kept.key); });
    std::sort(state_.longTexts.begin(), state_.longTexts.end(),
              [](const LongText& one, const LongText& other) { return one.editor < other.editor; });
}

std::optional<WindowState> Reader::read()
{
    if (!openSeal() || !readHeading())
        return std::nullopt;
    while (!rest_.empty())
        if (!readLine(takeLine(rest_)))
            return std::nullopt;
    const auto sound = [this](const LongText& text) { return longTextIsSound(text); };
    if (!inOrder(state_.numbers) || !inOrder(state_.texts) || !listsAreSound() || !windowIsSound() ||
        !std::all_of(state_.longTexts.begin(), state_.longTexts.end(), sound))
        return std::nullopt;
    leaveOutTheTable();
    return std::move(state_);
}

} // namespace state_text_detail

std::string stateSeal(std::string_view text)
{
    using namespace state_text_detail;
    std::uint64_t sum = 0xCBF29CE484222325U; // FNV-1a: any single byte changes it
    for (const char letter : text)
        sum = (sum ^ static_cast<unsigned char>(letter)) * 0x100000001B3U;
    std::string seal(sealWord);
    for (int shift = 60; shift >= 0; shift -= 4)
        seal.push_back(hexadecimal[(sum >> static_cast<unsigned>(shift)) & 0xFU]);
    return seal.append("\n");
}

std::string stateText(const WindowState& state)
{
    using namespace state_text_detail;
    std::string text;
    text.append(heading).append(state.spec->name).append("\n");
    for (const KeptText& kept : state.texts)
        addLine(text, ownerOf(state, kept.key), attributeOf(state, kept.key), quoted(kept.value));
    for (const KeptNumber& kept : state.numbers) {
        const bool own = kept.key.attribute == Attribute::own;
        const Form form = own ? formOf(ownRow(state, kept.key.own).kind) : attributeRow(kept.key.attribute).form;
        addLine(text, ownerOf(state, kept.key), attributeOf(state, kept.key), valueWord(*state.spec, form, kept.value));
    }
    for (const LongText& longText : state.longTexts) {
        const std::string_view editor = state.spec->controls[longText.editor].name;
        for (const std::string& slice : longText.slices)
            addLine(text, editor, sliceWord, quoted(slice));
        if (longText.selectionStart > 0)
            addLine(text, editor, selectionStartWord, std::to_string(longText.selectionStart));
        if (longText.selectionLength > 0)
            addLine(text, editor, selectionLengthWord, std::to_string(longText.selectionLength));
    }
    return text.append(stateSeal(text));
}

std::optional<WindowState> readState(std::string_view text, Engine& engine)
{
    return state_text_detail::Reader(text, engine).read();
}

} // namespace velmor::host
