// SPDX-License-Identifier: MIT
// Which folder may include which, as the link lines of the targets have it, and what in a tree of sources breaks that. Knows
// no folder by name: the rooms come from CMake (cmake/VelmorRooms.cmake).
#pragma once

#include <filesystem>
#include <istream>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmor::layers {

/// A target with its folder. Folders and files are told from the root of the tree, with slashes; Qt counts as a folder.
struct Room {
    std::string target;
    std::string type;
    std::string folder;
    std::set<std::string> sources;
    std::set<std::string> shows; ///< what its headers may include
    std::set<std::string> uses;  ///< what its sources may include
};

struct House {
    std::vector<Room> rooms;
    std::set<std::string> leftOut; ///< folders that this build does not compile
};

/// A header that is neither the standard library's nor Qt's, and why one file may include it nevertheless.
struct Allowance {
    std::string_view file;
    std::string_view header;
    std::string_view reason;
};

House readHouse(std::istream& in);

using Complaints = std::vector<std::string>;

/// What breaks the link lines in the tree: sorted, one line for each fault.
Complaints complaintsOf(const House& house, const std::filesystem::path& root,
                        std::span<const Allowance> allowances = {});

} // namespace velmor::layers
