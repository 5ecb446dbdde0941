// SPDX-License-Identifier: MIT
// The text of an editor as a port: whoever shows it owns it, so that a long document costs nothing per key.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmor::host {

/// A long text with a selection. Positions and lengths count characters (code points), never bytes.
/// Texts go in and out as UTF-8; a line break is one line feed.
class TextStore {
public:
    virtual ~TextStore() = default;
    virtual std::size_t length() const = 0;
    virtual std::string slice(std::size_t from, std::size_t count) const = 0;
    virtual std::string all() const = 0;
    virtual void setAll(std::string_view text) = 0;
    virtual std::size_t selectionStart() const = 0;
    virtual std::size_t selectionLength() const = 0;
    virtual void select(std::size_t from, std::size_t count) = 0;
    /// Puts `text` in place of the selection and leaves the caret behind it.
    virtual void replaceSelection(std::string_view text) = 0;
};

/// A text store in memory, for the console and for tests.
class PlainTextStore final : public TextStore {
public:
    std::size_t length() const override { return text_.size(); }
    std::string slice(std::size_t from, std::size_t count) const override;
    std::string all() const override { return slice(0, text_.size()); }
    void setAll(std::string_view text) override;
    std::size_t selectionStart() const override { return start_; }
    std::size_t selectionLength() const override { return count_; }
    void select(std::size_t from, std::size_t count) override;
    void replaceSelection(std::string_view text) override;

private:
    std::u32string text_;
    std::size_t start_ = 0;
    std::size_t count_ = 0;
};

/// Decodes UTF-8; an invalid byte becomes the code point of the same number.
std::u32string toCodePoints(std::string_view utf8);
/// Encodes code points as UTF-8.
std::string toUtf8(std::u32string_view codePoints);

} // namespace velmor::host
