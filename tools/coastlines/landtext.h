#pragma once

#include <string_view>

namespace brindor {

// data/coastlines/land.txt, which the build puts into the programs.
extern const std::string_view landtext;

} // namespace brindor
