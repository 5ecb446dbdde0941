// SPDX-License-Identifier: MIT
// The two encodings that the program meets: UTF-8, which all texts have inside the program, and Windows-1252, which
// circuit files, guide files and most documents have. Knows nothing of files. No text, however damaged, makes anything
// here fail.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velmor::rules {

/// What stands for a byte that is not part of valid UTF-8.
inline constexpr char32_t replacementCharacter = U'\uFFFD';

struct CodePoint {
    char32_t value = 0;     // replacementCharacter where `valid` is false
    std::size_t length = 0; // bytes taken, at least 1
    bool valid = false;
};

/// The code point that starts at `offset`, which must lie inside `text`. Overlong forms, surrogates and values above
/// U+10FFFF are invalid; an invalid sequence takes the bytes that could have begun a valid one, at least one.
CodePoint codePointAt(std::string_view text, std::size_t offset) noexcept;

/// Appends a code point as UTF-8; a surrogate or a value above U+10FFFF becomes replacementCharacter.
void appendUtf8(std::string& text, char32_t character);

bool isValidUtf8(std::string_view text) noexcept;

/// How many code points a text has, an invalid sequence counting as one.
std::size_t codePointCount(std::string_view text) noexcept;

/// The code of a character in Windows-1252, none when it has no code there. The five codes that the page leaves
/// undefined (81, 8D, 8F, 90, 9D) stand for the control characters of the same number.
std::optional<unsigned char> windows1252Code(char32_t character) noexcept;

/// The character of a code of Windows-1252; every code has one.
char32_t windows1252Character(unsigned char code) noexcept;

std::string fromWindows1252(std::string_view bytes);

/// A character that has no code is written "?".
std::string toWindows1252(std::string_view text);

/// A document's bytes as a text: UTF-8 behind a byte-order mark, else UTF-8 where the bytes are valid as such, else
/// Windows-1252. Invalid bytes behind a mark become replacementCharacter.
std::string decodeDocument(std::string_view bytes);

/// A text as a document's bytes: Windows-1252 while every character has a code and decodeDocument would take the bytes
/// for nothing else, otherwise UTF-8 with a byte-order mark.
std::string encodeDocument(std::string_view text);

/// The small letter of a Latin letter that Windows-1252 has, Spanish letters included; any other character as it is.
char32_t smallLetter(char32_t character) noexcept;

/// A text with smallLetter applied throughout. An invalid byte is taken as Windows-1252, as old file names have it.
std::string smallLetters(std::string_view text);

} // namespace velmor::rules
