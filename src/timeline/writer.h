#pragma once

#include <string>

namespace brindor {

// The Timeline as the text of a timeline file, which the reader reads back into the same Timeline. The same Timeline
// gives the same bytes. The caller sees to it that no text holds a line end. The game itself writes no timeline.
std::string timelinetext();

} // namespace brindor
