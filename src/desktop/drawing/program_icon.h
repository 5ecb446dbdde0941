// SPDX-License-Identifier: MIT
// The program's icon, as in packaging/velmor.svg, drawn here so that no picture file and no plugin is needed to start.
#pragma once

#include <QIcon>
#include <QPixmap>

namespace velmor::desktop {

QIcon programIcon();
/// The same as one picture of that many pixels in each direction.
QPixmap programPicture(int size);

} // namespace velmor::desktop
