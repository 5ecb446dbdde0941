// SPDX-License-Identifier: MIT
// A copy of everything that a window holds: what its table does not say already. Plain data, tied to no window: it may
// outlive it, be compared, and be written by another thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/state_attributes.h"

namespace velmor::host {

struct KeptNumber {
    Key key{};
    double value = 0.0;
    /// To the last bit: 0 and -0 differ.
    friend bool operator==(const KeptNumber& one, const KeptNumber& other);
};

struct KeptText {
    Key key{};
    std::string value{};
    friend bool operator==(const KeptText&, const KeptText&) = default;
};

/// The text of an editor, in slices of `sliceLength` characters (the last may be shorter).
struct LongText {
    static constexpr std::size_t sliceLength = 32768;

    Handle editor = noControl;
    std::vector<std::string> slices{};
    std::size_t selectionStart = 0;
    std::size_t selectionLength = 0;
    friend bool operator==(const LongText&, const LongText&) = default;
};

/// The state of a window. What is not listed is as the window's table has it; own values that are not listed are 0 or empty.
struct WindowState {
    const WindowSpec* spec = nullptr;
    std::vector<std::span<const OwnRow>> own{}; ///< tables of the window's own values
    std::vector<KeptNumber> numbers{};          ///< in the order of their keys
    std::vector<KeptText> texts{};              ///< likewise
    std::vector<LongText> longTexts{};          ///< by control; an editor that is missing is empty

    /// The number or text of this key, from the table where it is not listed.
    double number(const Key& key) const;
    std::string_view text(const Key& key) const;
    void set(const Key& key, double value);
    void set(const Key& key, std::string_view value);
};
/// Of one kind of window, and equal in everything.
bool operator==(const WindowState& one, const WindowState& other);

const OwnRow& ownRow(const WindowState& state, std::uint16_t index);

/// Copies a window, but for its place in the order of use, which the engine adds, and the long texts. To be called between
/// events only; `Engine::stateOf` sees to that.
WindowState copyOf(const Window& window);

/// The part of a copy that speaks of what one control has and few have, put behind what is there already.
void copyRare(const Window& window, Handle control, WindowState& state);

/// Makes a new window hold what the state says, but for its place in the order of use. Runs no slot.
void putInto(Window& window, const WindowState& state);

/// Takes the long text of an editor slice by slice, so that nobody waits for ten megabytes.
class LongTextCopy {
public:
    LongTextCopy(Window& window, Handle editor);

    /// Takes one more slice. False when there is none left, or when the text has been changed meanwhile.
    bool next();
    /// The text was changed since the first slice: what was taken is of no use.
    bool stale() const { return window_.textRevision() != revision_; }
    LongText take();

private:
    Window& window_;
    unsigned revision_;
    std::size_t at_ = 0;
    bool done_ = false;
    LongText text_;
};

/// The long texts of a window, whole.
std::vector<LongText> longTextsOf(Window& window);

} // namespace velmor::host
