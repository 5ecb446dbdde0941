// SPDX-License-Identifier: MIT
// Why a greyed control waits, in one sentence for whoever points at it. Knows no widget.
#pragma once

#include <QString>

#include "host/window.h"

namespace velmor::desktop {

/// Empty for what can be used, and for what is of no use in its circuit at all.
QString whyItWaits(const host::Window& window, host::Handle control, bool english);

} // namespace velmor::desktop
