#pragma once

#include <string_view>

// What the program calls itself.
namespace brindor {

inline constexpr std::string_view titletext = "Brindor History Trivia Game";
inline constexpr std::string_view quizcaption = "Quorvel Mind Tourney"; // of the windows of a question and its score
inline constexpr std::string_view applicationtitle =
    "Brindor Trivia Game";                 // of messages that have no title of their own
extern const std::string_view versiontext; // the version of the project in CMake

} // namespace brindor
