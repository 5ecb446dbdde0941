// SPDX-License-Identifier: MIT
// Tells whether the same person runs the program a second time on this machine.
#pragma once

#include <QLockFile>
#include <QString>

namespace velmor::desktop {

/// Holds the mark of a running program as long as it lives. A mark left by a crash does not count.
class OtherInstance {
public:
    explicit OtherInstance(const QString& markFile = usualMark());
    bool running() const { return running_; }
    static QString usualMark();

private:
    QLockFile mark_;
    bool running_ = false;
};

} // namespace velmor::desktop
