// SPDX-License-Identifier: MIT
// The per-user settings store as the program sees it: section, key, text.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace velmor::host {

/// Keyed texts that outlive the program. Reading never fails (no value is an empty optional); a failed write is ignored.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual std::optional<std::string> value(std::string_view section, std::string_view key) const = 0;
    virtual void setValue(std::string_view section, std::string_view key, std::string_view value) = 0;
};

/// A store that lives in memory, for the console and for tests.
class MemorySettings final : public SettingsStore {
public:
    std::optional<std::string> value(std::string_view section, std::string_view key) const override
    {
        const auto found = values_.find({std::string(section), std::string(key)});
        if (found == values_.end())
            return std::nullopt;
        return found->second;
    }
    void setValue(std::string_view section, std::string_view key, std::string_view value) override
    {
        values_[{std::string(section), std::string(key)}] = value;
    }

private:
    std::map<std::pair<std::string, std::string>, std::string> values_;
};

} // namespace velmor::host
