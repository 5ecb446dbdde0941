// SPDX-License-Identifier: MIT
// The general help of `Form19`: its Spanish page `Text1` and its English page `Text2`. Texts only.
#pragma once

#include "host/bitext.h"

namespace velmor::form19 {

/// What the program is, how a design goes, the keys, and the modes: `es` is `Text1`, `en` is `Text2`.
extern const host::BiText generalHelp;

} // namespace velmor::form19
