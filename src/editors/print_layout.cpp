// SPDX-License-Identifier: MIT
// The line breaking of a print-out, character by character, in one pass over the text.
#include "editors/print_layout.h"

#include <algorithm>
#include <array>
#include <map>

#include "host/text_store.h"

namespace velmor::editors {

namespace print_layout_detail {

/// A line under construction that remembers the widths of its characters.
struct Line {
    std::u32string text;
    int width = 0;
};

class Breaker {
public:
    explicit Breaker(const std::function<int(char32_t)>& widthOf) : widthOf_(widthOf) {}

    std::string run(const std::u32string& text)
    {
        std::size_t position = 0;
        while (position < text.size()) {
            const char32_t next = text[position];
            if (next == U'\r') {
                line_.text.push_back(next);
                append();
                ++position;
            } else if (line_.width + width(next) > printedLineWidth && !line_.text.empty()) {
                position -= walkBack();
                line_.text.push_back(U'\r');
                append();
            } else {
                line_.text.push_back(next);
                line_.width += width(next);
                ++position;
            }
        }
        append();
        return host::toUtf8(result_);
    }

private:
    int width(char32_t character)
    {
        if (character == U'\n')
            return 0;
        const auto [at, isNew] = widths_.try_emplace(character, 0);
        if (isNew)
            at->second = widthOf_(character);
        return at->second;
    }

    // How many characters go over to the next line: those behind the last blank; none of a line without a blank, which
    // is cut at the limit.
    std::size_t walkBack()
    {
        const std::size_t blank = line_.text.rfind(U' ');
        if (blank == std::u32string::npos)
            return 0;
        const std::size_t over = line_.text.size() - blank - 1;
        line_.text.resize(blank + 1);
        return over;
    }

    void append()
    {
        result_ += line_.text;
        line_ = {};
    }

    const std::function<int(char32_t)>& widthOf_;
    std::map<char32_t, int> widths_;
    std::u32string result_;
    Line line_;
};

} // namespace print_layout_detail

std::string breakForPrinter(std::string_view text, const std::function<int(char32_t)>& widthOf)
{
    return print_layout_detail::Breaker(widthOf).run(host::toCodePoints(text));
}

bool isWordCharacter(int code)
{
    constexpr std::array accented{193, 225, 201, 233, 205, 237, 211, 243};
    const bool plain = (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z') || (code >= '0' && code <= '9');
    return plain || std::find(accented.begin(), accented.end(), code) != accented.end();
}

} // namespace velmor::editors
