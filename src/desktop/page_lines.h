// SPDX-License-Identifier: MIT
// How a line of any length falls into lines of a page. It asks for the width of short stretches only, so that a line of
// ten megabytes takes a hundred times as long as one of a hundred kilobytes. Knows no printer and no font.
#pragma once

#include <functional>

#include <QString>
#include <QStringList>

namespace velmor::desktop {

/// Width of a text, in the unit of the page's width.
using WidthOf = std::function<double(const QString&)>;

/// Breaks what is wider than the page behind the last blank that fits, or in the word when there is none. What is carried
/// over stands under the line's beginning. Asks before each line of the page whether to go on; none when it was not to.
QStringList brokenLine(const QString& line, double width, const WidthOf& widthOf,
                       const std::function<bool()>& goesOn = {});

} // namespace velmor::desktop
