#include "questions/sortvalues.h"

#include "base/text.h"
#include "questions/types.h"
#include "timeline/timeline.h"
#include "toolkit/operations.h"

namespace brindor {

std::int32_t getsortval(std::int16_t item, std::int16_t type)
{
    const QuestionKind& kind = kindof(type);
    if (!kind.sorts) {
        toolkit::messagebox("getsortval not defined" + numbertext(type));
        return 0;
    }
    return kind.of == ItemKind::person ? personrec(item).date1 : eventrec(item).date1;
}

} // namespace brindor
