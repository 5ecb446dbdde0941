// SPDX-License-Identifier: MIT
// No file takes a byte more while this stands: what a program meets on a full disk.
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace velmor::test {

class FullDisk {
public:
    FullDisk() : heard_(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit none{0, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, heard_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
    void (*heard_)(int);
};

} // namespace velmor::test
