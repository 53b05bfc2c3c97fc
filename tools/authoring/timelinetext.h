#pragma once

#include <string>

namespace brindor::authoring {

// The Timeline as the text of a timeline file. The same Timeline gives the same bytes.
std::string timelinetext();

} // namespace brindor::authoring
