// SPDX-License-Identifier: MIT
// A folder that a test may fill and that is gone after it.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdlib.h>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace velmor::rules {

class ScratchFolder {
public:
    ScratchFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "velmor-rules-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
        // Open to the other user as whom some tests act.
        ::chmod(path_.c_str(), 0755);
    }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

    std::filesystem::path put(std::string_view name, std::string_view bytes) const
    {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        return path_ / name;
    }
    std::string content(std::string_view name) const
    {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::ptrdiff_t entries() const
    {
        return std::distance(std::filesystem::directory_iterator(path_), std::filesystem::directory_iterator());
    }

private:
    std::filesystem::path path_;
};

} // namespace velmor::rules
