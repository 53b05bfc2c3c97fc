#pragma once

#include <string_view>

namespace brindor {

// A file of data/coastlines, "land.txt", which the build puts into the programs; empty for a name that it has not put.
std::string_view builtin(std::string_view name);

} // namespace brindor
