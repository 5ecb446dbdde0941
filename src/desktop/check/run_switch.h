// SPDX-License-Identifier: MIT
// The switch between the two runs of a stage with a preset: the student's values, or the preset trimmed first.
#pragma once

#include <array>
#include <functional>

#include <QWidget>

#include "check/preset.h"

class QPushButton;

namespace velmor::desktop {

class RunSwitch final : public QWidget {
public:
    explicit RunSwitch(QWidget* parent = nullptr);

    /// Shows the run without a word to anyone.
    void follow(check::Run run, bool english);
    /// As if the other side were pressed; nothing while it cannot be.
    void turn();

    std::function<void(check::Run)> chosen{};

private:
    static constexpr std::array order{check::Run::yourValues, check::Run::trimmed};

    std::array<QPushButton*, order.size()> sides_{};
};

} // namespace velmor::desktop
