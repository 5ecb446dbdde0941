// SPDX-License-Identifier: MIT
// Tells whether the same person runs the program a second time on this machine.
#pragma once

#include <QString>

namespace velmor::desktop {

/// Holds the mark of a running program as long as it lives. The system drops the lock with the program: what a crash leaves
/// behind does not count. Where no file can be made or locked, no other program is found.
class OtherInstance {
public:
    explicit OtherInstance(const QString& markFile = usualMark());
    ~OtherInstance();
    OtherInstance(const OtherInstance&) = delete;
    OtherInstance& operator=(const OtherInstance&) = delete;

    bool running() const { return running_; }
    static QString usualMark();

private:
    bool hold();

    QByteArray path_;
    int descriptor_ = -1;
    bool running_ = false;
};

} // namespace velmor::desktop
