// SPDX-License-Identifier: MIT
// A table for a text that knows no columns but the stops of its tabs: as many tabs behind each cell as its column needs there.
#pragma once

#include <functional>

#include <QString>

namespace velmor::desktop {

/// Lines that stand together and hold tabs are one table; every column begins at a stop of its own. `widthOf` measures a text in
/// the unit of `stop`, the distance of the stops.
QString inColumns(const QString& text, const std::function<double(const QString&)>& widthOf, double stop);

} // namespace velmor::desktop
