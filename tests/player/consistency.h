// SPDX-License-Identifier: MIT
// What must hold of a program whenever no event is under way, whatever happened before.
#pragma once

#include <set>
#include <string>
#include <utility>

#include "host/engine.h"

namespace velmor::player {

/// What is wrong with the state of the engine and its windows; empty when nothing is.
std::string engineFault(host::Engine& engine);

/// What is wrong with the texts that changed since the last call; empty when nothing is. Takes the changes away.
std::string textFault(host::Engine& engine);

/// Two fields of a window that are seen upon each other; empty when there are none.
std::string fieldFault(const host::Engine& engine);

/// Watches the order in which slots run: a window loads before anything else, once; focus and lost focus of a control come in
/// pairs.
class SlotOrder {
public:
    /// What is wrong with this slot now; empty when nothing is.
    std::string note(const host::Window& window, host::Handle control, host::Event event);
    /// A window that was opened as it stood somewhere else, or led to another step: it is loaded, and its field counts as having
    /// had its focus slot.
    void adopt(const host::Window& window);

private:
    std::set<unsigned> loaded_;
    std::set<std::pair<unsigned, host::Handle>> focused_;
};

/// A number that is none, as a word of its own: "inf", "-nan".
bool namesNoNumber(std::string_view text);
bool isUtf8(std::string_view text);

} // namespace velmor::player
