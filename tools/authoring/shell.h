#pragma once

#include <string>

namespace brindor::authoring {

// A name as it stands in a command line: in quotes where it holds a blank or the like.
inline std::string inshell(const std::string& name)
{
    const bool odd = name.empty() || name.find_first_of(" '\"$&()*;<>?[]`|~#!\\") != std::string::npos;
    return odd ? '"' + name + '"' : name;
}

} // namespace brindor::authoring
