// SPDX-License-Identifier: MIT
// The settings store as a small file of the user's own; what it lacks is looked for in one that whoever looks after the machine
// has put there for all. A file that cannot be read gives defaults, one that cannot be written is left alone; nobody is told.
#pragma once

#include <memory>

#include <QSettings>
#include <QString>

#include "host/settings_store.h"

namespace velmor::desktop {

class SettingsFile final : public host::SettingsStore {
public:
    explicit SettingsFile(const QString& path = usualPath(), const QString& forAll = pathForAll());

    std::optional<std::string> value(std::string_view section, std::string_view key) const override;
    void setValue(std::string_view section, std::string_view key, std::string_view value) override;

    /// The place that the platform gives to the settings of one user and program.
    static QString usualPath();
    /// The same for all users of the machine; empty when there is no such file.
    static QString pathForAll();

private:
    mutable QSettings file_;
    std::unique_ptr<QSettings> forAll_;
    bool readable_ = true;
};

} // namespace velmor::desktop
