#pragma once

#include <string>
#include <vector>

namespace brindor::authoring {

// What is wrong with the words behind "timelinemaker", with the command line to write instead; empty where nothing is
// that is known to go wrong: a misspelt command, a file where its folder is meant, a name with blanks without quotes, a
// timeline's name without .bd3.
std::string commandadvice(const std::vector<std::string>& words);

// "3 warnings, 2 notes: timelinemaker check voyages"
std::string checkadvice(const std::string& folder, const std::string& warnings, const std::string& notes);

// A name as it stands in a command line: in quotes where it holds a blank or the like.
std::string inshell(const std::string& name);

} // namespace brindor::authoring
