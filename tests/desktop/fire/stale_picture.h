// SPDX-License-Identifier: MIT
// Compares what a window shows, painted part by part as things changed, with what a painting of all of it would show.
#pragma once

#include <string>

class QWidget;

namespace velmor::test {

/// Where the picture of a window on the screen differs from a whole painting of it, in words; empty where it does not. What
/// is to be painted is painted first; the caller has let all that was posted happen.
std::string stalePictureOf(QWidget& window);

} // namespace velmor::test
