#include "questions/sortvalues.h"

#include "base/text.h"
#include "questions/catalogue.h"
#include "timeline/timeline.h"
#include "timeline/usedmarks.h"
#include "toolkit/operations.h"

#include <algorithm>

namespace brindor {

std::int32_t getsortval(std::int16_t item, std::int16_t type)
{
    switch (type) {
    case 1:
    case 6:
        return personrec(item).date1;
    case 7:
    case 13:
        return eventrec(item).date1;
    default:
        toolkit::messagebox("getsortval not defined" + numbertext(type));
        return 0;
    }
}

void markused(std::int16_t item, std::int16_t delta)
{
    const std::size_t slot = usedslot(isperson, item);
    raisemark(slot, delta);
    usedmarks[slot] = std::max<std::int16_t>(usedmarks[slot], 0);
}

} // namespace brindor
