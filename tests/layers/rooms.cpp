// SPDX-License-Identifier: MIT
#include "layers/rooms.h"

#include <algorithm>
#include <fstream>
#include <regex>

namespace velmor::layers {

namespace rooms_detail {

namespace fs = std::filesystem;

constexpr std::string_view compiled[] = {".cpp", ".cc", ".cxx", ".c"};
constexpr std::string_view included[] = {".h", ".hpp", ".hh", ".hxx", ".inc", ".inl"};

bool isOneOf(std::span<const std::string_view> endings, const fs::path& file)
{
    return std::find(endings.begin(), endings.end(), file.extension().string()) != endings.end();
}

std::string folderOf(const std::string& file)
{
    return fs::path(file).parent_path().generic_string();
}

/// One walk through a tree.
class Inspection {
public:
    Inspection(const House& house, const fs::path& root, std::span<const Allowance> allowances)
        : house_(house), root_(root), allowances_(allowances), asked_(allowances.size())
    {}

    Complaints complaints()
    {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root_))
            if (entry.is_regular_file() && (isOneOf(compiled, entry.path()) || isOneOf(included, entry.path())))
                readFile(entry.path().lexically_relative(root_).generic_string());
        for (std::size_t i = 0; i < allowances_.size(); ++i)
            if (!asked_[i])
                complain(allowances_[i].file,
                         "does not include <" + std::string(allowances_[i].header) + ">, which it is allowed to");
        return {found_.begin(), found_.end()};
    }

private:
    void complain(std::string_view where, const std::string& what) { found_.insert(std::string(where) + ": " + what); }

    bool isLeftOut(const std::string& file) const
    {
        return std::any_of(house_.leftOut.begin(), house_.leftOut.end(),
                           [&file](const std::string& folder) { return file.starts_with(folder + "/"); });
    }

    /// A source belongs to the target that lists it, a header to the library of its folder.
    const Room* roomOf(const std::string& file) const
    {
        const Room* found = nullptr;
        for (const Room& room : house_.rooms) {
            if (room.folder != folderOf(file))
                continue;
            if (room.sources.contains(file))
                return &room;
            if (!isOneOf(compiled, file) && (found == nullptr || room.type != "EXECUTABLE"))
                found = &room;
        }
        return found;
    }

    void readFile(const std::string& file)
    {
        if (isLeftOut(file))
            return;
        const std::string folder = folderOf(file);
        if (std::none_of(house_.rooms.begin(), house_.rooms.end(),
                         [&folder](const Room& room) { return room.folder == folder; })) {
            complain(folder, "belongs to no target");
            return;
        }
        const Room* room = roomOf(file);
        if (room == nullptr) {
            complain(file, "is listed by no target of its folder");
            return;
        }
        static const std::regex pattern(R"(\s*#\s*include(.*))");
        std::ifstream in(root_ / file);
        std::smatch match;
        for (std::string line; std::getline(in, line);)
            if (std::regex_match(line, match, pattern))
                readInclude(file, *room, match[1]);
    }

    void readInclude(const std::string& file, const Room& room, const std::string& what)
    {
        static const std::regex pattern(R"re(\s*(["<])([^">]+)[">].*)re");
        std::smatch match;
        if (!std::regex_match(what, match, pattern))
            complain(file, "includes" + what + ", which cannot be read");
        else if (match[1] == "<")
            readSystemInclude(file, room, match[2]);
        else if (!isWithin(file, room, folderOf(match[2])))
            complain(file, "may not include \"" + match[2].str() + "\" by the link line of " + room.target);
    }

    void readSystemInclude(const std::string& file, const Room& room, const std::string& header)
    {
        static const std::regex standard("[a-z0-9_]+");
        if (std::regex_match(header, standard))
            return;
        if (header.starts_with("Q")) {
            if (!isWithin(file, room, "Qt"))
                complain(file, "includes <" + header + "> without Qt in the link line of " + room.target);
            return;
        }
        for (std::size_t i = 0; i < allowances_.size(); ++i) {
            if (allowances_[i].file != file || allowances_[i].header != header)
                continue;
            asked_[i] = true;
            return;
        }
        complain(file, "includes <" + header + ">, which is not of the standard library");
    }

    static bool isWithin(const std::string& file, const Room& room, const std::string& folder)
    {
        return folder == room.folder || (isOneOf(compiled, file) ? room.uses : room.shows).contains(folder);
    }

    const House& house_;
    const fs::path& root_;
    std::span<const Allowance> allowances_;
    std::vector<bool> asked_;
    std::set<std::string> found_;
};

} // namespace rooms_detail

House readHouse(std::istream& in)
{
    House house;
    std::string key;
    for (std::string value; in >> key && std::getline(in >> std::ws, value);) {
        if (key == "left-out")
            house.leftOut.insert(value);
        else if (key == "target")
            house.rooms.emplace_back().target = value;
        else if (key == "type")
            house.rooms.back().type = value;
        else if (key == "folder")
            house.rooms.back().folder = value;
        else if (key == "source")
            house.rooms.back().sources.insert(value);
        else if (key == "shows")
            house.rooms.back().shows.insert(value);
        else if (key == "uses")
            house.rooms.back().uses.insert(value);
    }
    return house;
}

Complaints complaintsOf(const House& house, const std::filesystem::path& root, std::span<const Allowance> allowances)
{
    return rooms_detail::Inspection(house, root, allowances).complaints();
}

} // namespace velmor::layers
