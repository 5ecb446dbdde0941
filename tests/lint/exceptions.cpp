// SPDX-License-Identifier: MIT
#include "lint/exceptions.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <stdexcept>

#include "places.h"

namespace velmor::lint {

namespace exceptions_detail {

std::vector<Exception> read()
{
    static const std::regex form(
        "(spot|no-symbol|late|otherwise|together|unreached|one-language) ([^ :]+)(?: ([^ :]+))?: (.+)");
    std::vector<Exception> all;
    for (const auto& file : std::filesystem::directory_iterator(places::source() + "/tests/lint/exceptions")) {
        std::ifstream lines(file.path());
        for (std::string line; std::getline(lines, line);) {
            std::smatch parts;
            if (line.empty() || line.front() == '#')
                continue;
            if (!std::regex_match(line, parts, form))
                throw std::runtime_error(file.path().filename().string() + ": " + line);
            all.push_back({file.path().stem().string(), parts[1], parts[2], parts[3], parts[4]});
        }
    }
    return all;
}

/// The lines of one kind as the rule wants them.
template <class Row, class Make>
std::vector<Row> ofKind(std::string_view kind, Make make)
{
    std::vector<Row> rows;
    for (const Exception& one : exceptions())
        if (one.kind == kind)
            rows.push_back(make(one));
    return rows;
}

Spot spotOf(const Exception& one)
{
    return {one.window, one.control};
}

} // namespace exceptions_detail

using namespace exceptions_detail;

const std::vector<Exception>& exceptions()
{
    static const std::vector<Exception> all = read();
    return all;
}

std::span<const Spot> spots()
{
    static const auto rows = ofKind<Spot>("spot", spotOf);
    return rows;
}

std::span<const Spot> withoutSymbol()
{
    static const auto rows = ofKind<Spot>("no-symbol", spotOf);
    return rows;
}

std::span<const Spot> reachedOtherwise()
{
    static const auto rows = ofKind<Spot>("otherwise", spotOf);
    return rows;
}

std::span<const Spot> lateTools()
{
    static const auto rows = ofKind<Spot>("late", spotOf);
    return rows;
}

std::span<const NeverTogether> neverTogether()
{
    static const auto rows = ofKind<NeverTogether>("together", [](const Exception& one) {
        return NeverTogether{one.window, one.control, one.other};
    });
    return rows;
}

std::span<const Unreached> unreached()
{
    static const auto rows = ofKind<Unreached>("unreached", [](const Exception& one) {
        return Unreached{one.window, one.control, one.reason};
    });
    return rows;
}

std::span<const OneLanguage> oneLanguage()
{
    static const auto rows = ofKind<OneLanguage>("one-language", [](const Exception& one) {
        return OneLanguage{one.window, one.control, one.reason};
    });
    return rows;
}

} // namespace velmor::lint
