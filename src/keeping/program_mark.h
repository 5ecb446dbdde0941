// SPDX-License-Identifier: MIT
// The mark of a running program: a file that is locked while it runs.
#pragma once

#include <string>

namespace velmor::keeping {

/// Takes the mark for this program, for as long as it lives, unless another one has it. The system drops the lock with its
/// program: what a crash leaves behind does not count. Where no file can be made or locked, no other program is found.
class ProgramMark {
public:
    explicit ProgramMark(std::string path);
    ~ProgramMark();
    ProgramMark(const ProgramMark&) = delete;
    ProgramMark& operator=(const ProgramMark&) = delete;

    bool isHeldElsewhere() const { return heldElsewhere_; }

private:
    bool take();

    std::string path_;
    int descriptor_ = -1;
    bool heldElsewhere_ = false;
};

} // namespace velmor::keeping
