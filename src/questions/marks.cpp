#include "questions/marks.h"

#include "base/numbers.h"
#include "questions/question.h"
#include "timeline/usedmarks.h"

#include <algorithm>

namespace brindor {

void raisemark(std::size_t slot, std::int16_t delta)
{
    usedmarks[slot] = add16(usedmarks[slot], delta);
}

void markused(std::int16_t item, std::int16_t delta)
{
    const std::size_t slot = usedslot(isperson, item);
    raisemark(slot, delta);
    usedmarks[slot] = std::max<std::int16_t>(usedmarks[slot], 0);
}

} // namespace brindor
