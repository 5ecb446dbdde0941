// SPDX-License-Identifier: MIT
// The English questionnaire of the common-emitter reports. The stabilised sheets go on with the line about polarisation.
#pragma once

#include <array>
#include <string_view>

namespace velmor::common_emitter {

inline constexpr auto englishQuestions = std::to_array<std::string_view>({
    "Answer the following questionnaire : ",
    "That parameters define the voltage of stability, ERes..?",
    "To that parameters influence the different load values Rlw..?",
    "To that parameters influence to elevate Vg..?",
    "To that parameters influence to rise ERes..?",
    "Does you mention and do justify which voltage  influence ",
    "in the cutting off the output sign Eopp..?",
    "Like bigger entrance impedance is obtained..?",
    "Which the advantages and disadvantages are of using ",
    "circuits Bypass..?",
    "Which the advantages and disadvantages are of using circuits",
});

} // namespace velmor::common_emitter
