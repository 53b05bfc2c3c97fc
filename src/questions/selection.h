#pragma once

#include "questions/question.h"

#include <cstdint>

namespace brindor {

// Draws the item for one slot, 0 to 4, of a question of type qtype: stores it in chosen, raises its used mark, sets
// isperson and returns it. A screen asks for the slots in order, since a slot's item differs from those of the slots
// before it; a slot outside 0 to 4 must not be asked for. Ask fillabletypes first: where no item can pass, the result
// is item 0, and neither chosen nor a mark changes. A qtype outside 1 to lasttype shows a message, with the same
// result.
std::int16_t getitem(std::int16_t slot);

// By type: whether the loaded Timeline has five items of the type's family with pairwise different texts that are not
// blank. Found out once for each timelinestate where the Timeline is large.
ByType<bool> fillabletypes();

} // namespace brindor
