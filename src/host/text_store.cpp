// SPDX-License-Identifier: MIT
// The text store in memory and the two UTF-8 conversions that it needs.
#include "host/text_store.h"

#include <algorithm>

namespace velmor::host {

namespace text_store_detail {

int continuationBytes(unsigned char lead)
{
    if (lead >= 0xC2 && lead <= 0xDF)
        return 1;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 2;
    if (lead >= 0xF0 && lead <= 0xF4)
        return 3;
    return 0;
}

bool hasContinuation(std::string_view text, std::size_t at, int count)
{
    if (at + static_cast<std::size_t>(count) >= text.size())
        return false;
    for (int i = 1; i <= count; ++i)
        if ((static_cast<unsigned char>(text[at + static_cast<std::size_t>(i)]) & 0xC0U) != 0x80U)
            return false;
    return true;
}

// Inside the program a line break is one line feed.
std::u32string withoutReturns(std::u32string text)
{
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
        if (text[i] == U'\r' && text[i + 1] == U'\n')
            text[i] = 0;
    std::erase(text, U'\0');
    return text;
}

} // namespace text_store_detail

std::u32string toCodePoints(std::string_view utf8)
{
    using namespace text_store_detail;
    std::u32string result;
    result.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        const int more = continuationBytes(lead);
        if (more == 0 || !hasContinuation(utf8, i, more)) {
            result.push_back(lead);
            continue;
        }
        char32_t code = lead & (0x3FU >> more);
        for (int k = 0; k < more; ++k)
            code = (code << 6U) | (static_cast<unsigned char>(utf8[++i]) & 0x3FU);
        result.push_back(code);
    }
    return result;
}

std::string toUtf8(std::u32string_view codePoints)
{
    std::string result;
    result.reserve(codePoints.size());
    const auto put = [&result](char32_t value) {
        result.push_back(static_cast<char>(static_cast<unsigned char>(value)));
    };
    for (const char32_t code : codePoints) {
        if (code < 0x80U) {
            put(code);
        } else if (code < 0x800U) {
            put(0xC0U | (code >> 6U));
            put(0x80U | (code & 0x3FU));
        } else if (code < 0x10000U) {
            put(0xE0U | (code >> 12U));
            put(0x80U | ((code >> 6U) & 0x3FU));
            put(0x80U | (code & 0x3FU));
        } else {
            put(0xF0U | (code >> 18U));
            put(0x80U | ((code >> 12U) & 0x3FU));
            put(0x80U | ((code >> 6U) & 0x3FU));
            put(0x80U | (code & 0x3FU));
        }
    }
    return result;
}

std::string PlainTextStore::slice(std::size_t from, std::size_t count) const
{
    if (from >= text_.size())
        return {};
    return toUtf8(std::u32string_view(text_).substr(from, count));
}

void PlainTextStore::setAll(std::string_view text)
{
    text_ = text_store_detail::withoutReturns(toCodePoints(text));
    start_ = 0;
    count_ = 0;
}

void PlainTextStore::select(std::size_t from, std::size_t count)
{
    start_ = std::min(from, text_.size());
    count_ = std::min(count, text_.size() - start_);
}

void PlainTextStore::replaceSelection(std::string_view text)
{
    const std::u32string inserted = text_store_detail::withoutReturns(toCodePoints(text));
    text_.replace(start_, count_, inserted);
    start_ += inserted.size();
    count_ = 0;
}

} // namespace velmor::host
