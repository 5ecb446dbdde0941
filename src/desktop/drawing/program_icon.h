// SPDX-License-Identifier: MIT
// The program's icon, as in packaging/velmor.svg, drawn here so that no picture file and no plugin is needed to start.
#pragma once

#include <QIcon>

namespace velmor::desktop {

QIcon programIcon();

} // namespace velmor::desktop
