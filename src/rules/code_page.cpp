// SPDX-License-Identifier: MIT
// UTF-8 and Windows-1252 in both directions. Runs of ASCII are copied as they are, so that a document of many megabytes
// costs one pass.
#include "rules/code_page.h"

#include <algorithm>
#include <array>

namespace velmor::rules {

namespace code_page {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// The characters of the codes 80 to 9F; all other codes are their own character.
// clang-format off
constexpr std::array<char32_t, 32> upperRow = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,   // 80 to 87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,   // 88 to 8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,   // 90 to 97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,   // 98 to 9F
};
// clang-format on

constexpr unsigned char byteAt(std::string_view text, std::size_t offset)
{
    return static_cast<unsigned char>(text[offset]);
}

constexpr bool isAscii(char letter)
{
    return static_cast<unsigned char>(letter) < 0x80;
}

// What the first byte of a sequence says about the rest; length 0 for a byte that begins none. The range of the second
// byte is narrower where it would otherwise give an overlong form, a surrogate or too large a value.
struct Lead {
    std::size_t length;
    unsigned char secondFrom;
    unsigned char secondTo;
    unsigned char bits;
};

constexpr Lead leadOf(unsigned char byte)
{
    if (byte < 0x80)
        return {1, 0, 0, byte};
    if (byte < 0xC2)
        return {0, 0, 0, 0};
    if (byte < 0xE0)
        return {2, 0x80, 0xBF, static_cast<unsigned char>(byte & 0x1F)};
    if (byte < 0xF0) {
        const unsigned char from = byte == 0xE0 ? 0xA0 : 0x80;
        const unsigned char to = byte == 0xED ? 0x9F : 0xBF;
        return {3, from, to, static_cast<unsigned char>(byte & 0x0F)};
    }
    if (byte > 0xF4)
        return {0, 0, 0, 0};
    const unsigned char from = byte == 0xF0 ? 0x90 : 0x80;
    const unsigned char to = byte == 0xF4 ? 0x8F : 0xBF;
    return {4, from, to, static_cast<unsigned char>(byte & 0x07)};
}

// Copies the ASCII run at `offset` and moves past it; true when something else follows.
bool copyAscii(std::string_view text, std::size_t& offset, std::string& into)
{
    const auto begin = text.begin() + static_cast<std::ptrdiff_t>(offset);
    const auto end = std::find_if_not(begin, text.end(), isAscii);
    into.append(begin, end);
    offset = static_cast<std::size_t>(end - text.begin());
    return offset < text.size();
}

std::string withReplacements(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t offset = 0; copyAscii(text, offset, result);) {
        const CodePoint point = codePointAt(text, offset);
        appendUtf8(result, point.value);
        offset += point.length;
    }
    return result;
}

bool fitsWindows1252(std::string_view text)
{
    for (std::size_t offset = 0; offset < text.size();) {
        const CodePoint point = codePointAt(text, offset);
        if (!point.valid || !windows1252Code(point.value))
            return false;
        offset += point.length;
    }
    return true;
}

bool wouldReadAsUtf8(std::string_view bytes)
{
    if (bytes.starts_with(byteOrderMark))
        return true;
    return !std::all_of(bytes.begin(), bytes.end(), isAscii) && isValidUtf8(bytes);
}

} // namespace code_page

CodePoint codePointAt(std::string_view text, std::size_t offset) noexcept
{
    const code_page::Lead lead = code_page::leadOf(code_page::byteAt(text, offset));
    if (lead.length == 0)
        return {replacementCharacter, 1, false};
    char32_t value = lead.bits;
    for (std::size_t i = 1; i < lead.length; ++i) {
        const unsigned char from = i == 1 ? lead.secondFrom : 0x80;
        const unsigned char to = i == 1 ? lead.secondTo : 0xBF;
        if (offset + i >= text.size())
            return {replacementCharacter, i, false};
        const unsigned char byte = code_page::byteAt(text, offset + i);
        if (byte < from || byte > to)
            return {replacementCharacter, i, false};
        value = (value << 6) | (byte & 0x3Fu);
    }
    return {value, lead.length, true};
}

void appendUtf8(std::string& text, char32_t character)
{
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    const char32_t value = surrogate || character > 0x10FFFF ? replacementCharacter : character;
    const auto append = [&text](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (value < 0x80)
        return append(value);
    if (value < 0x800) {
        append(0xC0 | (value >> 6));
    } else {
        if (value < 0x10000) {
            append(0xE0 | (value >> 12));
        } else {
            append(0xF0 | (value >> 18));
            append(0x80 | ((value >> 12) & 0x3F));
        }
        append(0x80 | ((value >> 6) & 0x3F));
    }
    append(0x80 | (value & 0x3F));
}

bool isValidUtf8(std::string_view text) noexcept
{
    for (std::size_t offset = 0; offset < text.size();) {
        const CodePoint point = codePointAt(text, offset);
        if (!point.valid)
            return false;
        offset += point.length;
    }
    return true;
}

std::size_t codePointCount(std::string_view text) noexcept
{
    std::size_t count = 0;
    for (std::size_t offset = 0; offset < text.size(); offset += codePointAt(text, offset).length)
        ++count;
    return count;
}

std::optional<unsigned char> windows1252Code(char32_t character) noexcept
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<unsigned char>(character);
    const auto found = std::find(code_page::upperRow.begin(), code_page::upperRow.end(), character);
    if (found == code_page::upperRow.end())
        return std::nullopt;
    return static_cast<unsigned char>(0x80 + (found - code_page::upperRow.begin()));
}

char32_t windows1252Character(unsigned char code) noexcept
{
    return code >= 0x80 && code < 0xA0 ? code_page::upperRow[code - 0x80u] : code;
}

std::string fromWindows1252(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t offset = 0; code_page::copyAscii(bytes, offset, text); ++offset)
        appendUtf8(text, windows1252Character(code_page::byteAt(bytes, offset)));
    return text;
}

std::string toWindows1252(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t offset = 0; code_page::copyAscii(text, offset, bytes);) {
        const CodePoint point = codePointAt(text, offset);
        bytes += static_cast<char>(windows1252Code(point.value).value_or('?'));
        offset += point.length;
    }
    return bytes;
}

std::string decodeDocument(std::string_view bytes)
{
    if (bytes.starts_with(code_page::byteOrderMark))
        return code_page::withReplacements(bytes.substr(code_page::byteOrderMark.size()));
    return isValidUtf8(bytes) ? std::string(bytes) : fromWindows1252(bytes);
}

std::string encodeDocument(std::string_view text)
{
    if (code_page::fitsWindows1252(text)) {
        std::string bytes = toWindows1252(text);
        if (!code_page::wouldReadAsUtf8(bytes))
            return bytes;
    }
    return std::string(code_page::byteOrderMark) + code_page::withReplacements(text);
}

char32_t smallLetter(char32_t character) noexcept
{
    const bool plain = character >= U'A' && character <= U'Z';
    const bool accented = character >= 0xC0 && character <= 0xDE && character != 0xD7;
    if (plain || accented)
        return character + 0x20;
    if (character == 0x178)
        return 0xFF;
    const bool pairedWithNext = character == 0x160 || character == 0x152 || character == 0x17D;
    return pairedWithNext ? character + 1 : character;
}

std::string smallLetters(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const CodePoint point = codePointAt(text, offset);
        const char32_t character = point.valid ? point.value : windows1252Character(code_page::byteAt(text, offset));
        appendUtf8(result, smallLetter(character));
        offset += point.valid ? point.length : 1;
    }
    return result;
}

} // namespace velmor::rules
