// SPDX-License-Identifier: MIT
// The whole program with one `Form2` in it, played as a student would, without a screen.
#pragma once

#include "designs/common_emitter/emitter_program.h"
#include "designs/common_emitter/form2.h"

namespace velmor::test {

struct Form2Program : EmitterProgram<form2::Form2, form2::Control> {
    explicit Form2Program(std::int16_t languageIsEnglish = host::trueValue) : EmitterProgram("Form2", languageIsEnglish)
    {}
};

} // namespace velmor::test
