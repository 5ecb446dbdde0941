// SPDX-License-Identifier: MIT
// Which slots and boxes a play has reached, window by window, and how the program ended meanwhile.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "host/engine.h"

namespace velmor::player {

using SlotName = std::pair<host::Handle, host::Event>;

/// What was reached of one window.
struct WindowCoverage {
    std::set<SlotName> all;
    std::set<SlotName> reached;
    std::set<std::string> boxes; ///< title and text of each box that came while a slot of this window ran

    bool enough() const { return reached.size() * 10 >= all.size() * 9; }
};

class Coverage {
public:
    explicit Coverage(host::Catalogue catalogue);

    void slotRan(const host::Window& window, host::Handle control, host::Event event);
    void boxShown(const host::MessageBox& box);
    /// Leaves out what cannot be reached of a window just loaded: items that it does without, and items and buttons that lead
    /// to windows which the program does not have.
    void leaveOut(const host::Window& window);
    /// The program ended by a failure of arithmetic in the slot that ran last, after these events.
    void programFailed(const std::string& kind, const std::string& events);
    void programEnded() { ++ends_; }
    void startAgain() { last_ = nullptr; }

    bool reached(const host::WindowSpec& window, const SlotName& slot) const;
    const WindowCoverage& of(std::string_view window) const;
    /// How often the program ended in one way, and the events before the first time.
    struct Failure {
        int count = 0;
        std::string events{};
    };
    /// By slot and kind: "Form2 Text8 lostFocus: Division by zero".
    const std::map<std::string, Failure>& failures() const { return failures_; }
    std::string lastSlot() const;

    /// One line a window, what was not reached below it, then the ends of the program.
    void print(std::ostream& out, bool inDetail) const;
    /// The windows of which less than nine in ten slots were reached.
    std::vector<std::string> shortOf(std::string_view onlyWindow) const;

private:
    std::vector<const host::WindowSpec*> specs_;
    std::map<const host::WindowSpec*, WindowCoverage> windows_;
    std::map<std::string, Failure> failures_;
    const host::WindowSpec* last_ = nullptr;
    SlotName lastSlot_{};
    int ends_ = 0;
};

std::string_view eventName(host::Event event);
std::string slotTitle(const host::WindowSpec& window, const SlotName& slot);

} // namespace velmor::player
