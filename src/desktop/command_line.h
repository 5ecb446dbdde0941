// SPDX-License-Identifier: MIT
// What stands behind the program's name when it is started: files, or a question about the program itself. Knows no toolkit,
// so that the question is answered without a display.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace velmor::desktop {

struct CommandLine {
    std::vector<std::string> files;
    std::string answer;   ///< to be printed in place of a start, if there is any
    bool refused = false; ///< the answer is a complaint

    bool starts() const { return answer.empty(); }
};

/// Reads the words behind the program's name. "--help" and "--version" are all the options there are; behind "--" every word is a
/// file.
CommandLine readCommandLine(std::span<const char* const> words, bool english);

/// True unless the machine's language, as the environment tells it, is Spanish.
bool machineSpeaksEnglish();

} // namespace velmor::desktop
