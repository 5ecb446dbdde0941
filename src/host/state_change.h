// SPDX-License-Identifier: MIT
// What lies between two states of one window: small enough to keep hundreds, and good for both ways. Long texts are left
// out: an editor takes back its own.
#pragma once

#include <cstddef>
#include <vector>

#include "host/window_state.h"

namespace velmor::host {

struct ChangedNumber {
    Key key{};
    double before = 0.0;
    double after = 0.0;
};

struct ChangedText {
    Key key{};
    std::string before{};
    std::string after{};
};

/// Every attribute in which two states differ, with both values.
struct StateChange {
    std::vector<ChangedNumber> numbers{};
    std::vector<ChangedText> texts{};

    bool empty() const { return numbers.empty() && texts.empty(); }
    /// Bytes that it takes, the heap included.
    std::size_t size() const;
};

enum class Direction : std::uint8_t { back, forth };

/// From `before` to `after`, two states of one kind of window.
StateChange difference(const WindowState& before, const WindowState& after);

/// Leads a state through a change.
void apply(WindowState& state, const StateChange& change, Direction direction);
/// The same with a window. Runs no slot; to be called between events, see `Engine::apply`.
void apply(Window& window, const StateChange& change, Direction direction);

/// Follows a window from step to step by what its setters have noted, so that a step costs no more than what it changed.
/// A step holds what undo takes back: controls, focus, and own values that are not left alone. One watch a window.
class StepWatch {
public:
    explicit StepWatch(Window& window);

    /// What has changed since the last call.
    StateChange step();
    /// The same, which the next call of `step` tells once more.
    StateChange pending() const;
    /// Leads the window through a change, which is no step then.
    void lead(const StateChange& change, Direction direction);

private:
    void note(Handle control);
    void noteRare(const StateChange& change, Direction direction);
    void noteWindow();
    void addControls(const std::vector<Handle>& touched, StateChange& change) const;
    void addRare(Handle control, WindowState& now, StateChange& change) const;
    void addWindow(StateChange& change) const;

    static constexpr std::uint16_t asTable = 0xFFFF;

    Window& window_;
    std::vector<std::uint16_t> place_;  ///< by control: where it stands in `controls_`; `asTable` until it has been set
    std::vector<Control> controls_;     ///< as the last step left them
    WindowState rare_;                  ///< likewise what few controls have
    Handle focus_ = noControl;          ///< likewise
    std::vector<double> ownNumbers_;    ///< likewise, in the order of the tables; 0 for a text
    std::vector<std::string> ownTexts_; ///< the texts among them
};

} // namespace velmor::host
