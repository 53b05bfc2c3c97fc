#pragma once

#include <string_view>

namespace brindor {

inline constexpr std::string_view titletext = "Brindor History Trivia Game";

} // namespace brindor
