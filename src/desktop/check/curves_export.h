// SPDX-License-Identifier: MIT
// The curves of a check on one page, as SVG and PDF, with the painters of the screen in the colours of paper.
#pragma once

#include <vector>

#include <QString>

#include "desktop/check/plots.h"

namespace velmor::desktop {

struct CurvesPaper {
    QString title{};
    QString note{};                   ///< a line below the title; may be empty
    std::vector<const Plot*> plots{}; ///< one below the other
    bool english = false;
};

/// False when the file cannot be written whole.
bool exportCurvesSvg(const QString& path, const CurvesPaper& paper);
bool exportCurvesPdf(const QString& path, const CurvesPaper& paper);
bool exportText(const QString& path, const std::string& text);

} // namespace velmor::desktop
