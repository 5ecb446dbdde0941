// SPDX-License-Identifier: MIT
#include "desktop/command_line.h"

#include <cstdlib>
#include <string_view>

#include "host/bitext.h"

namespace velmor::desktop {

namespace command_line_detail {

using host::BiText;

// clang-format off
constexpr BiText help{
    .es = "Velmor, diseño de etapas amplificadoras con transistores.\n"
          "\n"
          "Uso: velmor [ARCHIVO...]\n"
          "\n"
          "Cada circuito se abre en su hoja, cualquier otro texto en un editor.\n"
          "\n"
          "  --help      muestra esta ayuda y termina\n"
          "  --version   muestra la versión y termina\n",
    .en = "Velmor, design of transistor amplifier stages.\n"
          "\n"
          "Usage: velmor [FILE...]\n"
          "\n"
          "Each circuit opens in its sheet, any other text in an editor.\n"
          "\n"
          "  --help      shows this help and ends\n"
          "  --version   shows the version and ends\n"};
constexpr BiText unknown{.es = "velmor: no hay opción %1; vea velmor --help\n",
                         .en = "velmor: there is no option %1; see velmor --help\n"};
constexpr std::string_view version = "velmor " VELMOR_VERSION "\n";
// clang-format on

// The platform's own rule: the first of these that is set and not empty decides.
std::string_view machineLanguage()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char* value = std::getenv(name); value != nullptr && *value != '\0')
            return value;
    return {};
}

} // namespace command_line_detail

CommandLine readCommandLine(std::span<const char* const> words, bool english)
{
    using namespace command_line_detail;
    CommandLine line;
    bool options = true;
    for (const std::string_view word : words) {
        if (!options || !word.starts_with("-") || word == "-") {
            line.files.emplace_back(word);
        } else if (word == "--") {
            options = false;
        } else if (word == "--help") {
            line.answer = english ? help.en : help.es;
            return line;
        } else if (word == "--version") {
            line.answer = version;
            return line;
        } else {
            line.answer = english ? unknown.en : unknown.es;
            line.answer.replace(line.answer.find("%1"), 2, word);
            line.refused = true;
            return line;
        }
    }
    return line;
}

bool machineSpeaksEnglish()
{
    return !command_line_detail::machineLanguage().starts_with("es");
}

} // namespace velmor::desktop
