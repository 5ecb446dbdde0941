// SPDX-License-Identifier: MIT
// The circuit files that were opened or saved last, kept among the settings of the person. Each is remembered with its sheet,
// so that an ending that two sheets share is asked about once.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/engine.h"

namespace velmor::program {

struct RecentCircuit {
    std::string sheet;
    std::string path;
    friend bool operator==(const RecentCircuit&, const RecentCircuit&) = default;
};

class RecentCircuits {
public:
    static constexpr std::size_t most = 8;

    /// Notes from now on what the sheets of this program read and write; lives as long as it does so.
    explicit RecentCircuits(host::Engine& engine);
    ~RecentCircuits();
    RecentCircuits(const RecentCircuits&) = delete;
    RecentCircuits& operator=(const RecentCircuits&) = delete;

    /// The latest first. A file that is not there is left out; should it come back, with its stick, it is named again.
    std::vector<RecentCircuit> present() const;

private:
    std::vector<RecentCircuit> all() const;
    void note(const host::Window& window);

    host::Engine& engine_;
};

} // namespace velmor::program
