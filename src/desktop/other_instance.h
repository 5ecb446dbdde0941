// SPDX-License-Identifier: MIT
// Tells whether the same person runs the program a second time on this machine.
#pragma once

#include <QString>

#include "keeping/program_mark.h"

namespace velmor::desktop {

/// Holds the mark of a running program as long as it lives. A mark left by a crash does not count.
class OtherInstance {
public:
    /// The toolkit's own lock of files would write to the disk and wait for it, before there is a window.
    explicit OtherInstance(const QString& markFile = usualMark());
    bool running() const { return mark_.isHeldElsewhere(); }
    static QString usualMark();

private:
    keeping::ProgramMark mark_;
};

} // namespace velmor::desktop
