// SPDX-License-Identifier: MIT
// Must not compile: the other table has no row of that field.
#include "sheets/rows.h"

namespace velmor::sheets {

constexpr auto other = std::to_array<ChainRow>({{1, 2}, {2}});
#if defined(OMITTED)
constexpr auto table = without(other, std::to_array<ChainRow>({{3}}));
#else
constexpr auto table = withRowsOf(other, std::to_array<ChainRow>({{3, 2}}));
#endif

} // namespace velmor::sheets
