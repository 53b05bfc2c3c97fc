#include "questions/texts.h"

#include "base/text.h"
#include "questions/catalogue.h"
#include "questions/sortvalues.h"
#include "questions/types.h"
#include "toolkit/operations.h"

namespace brindor {

namespace {

std::string called(ItemText text, std::int16_t item)
{
    return text != nullptr ? text(item) : std::string();
}

std::string sorted(std::int16_t item)
{
    return getpstr(item, 0) + ' ' + numbertext(getsortval(item, qtype));
}

} // namespace

std::string paramname(std::int16_t kind, std::int16_t item, std::int16_t extra)
{
    const QuestionKind& type = kindof(qtype);
    switch (kind) {
    case sortprompt:
        return "Sort " + std::string(type.name) + " with earliest date on top";
    case itemname:
        return getpstr(item, 0);
    case sortline:
        return sorted(item) + " > " + sorted(extra);
    case itemtext:
        return called(type.shown, item);
    case questionline:
        return std::string(type.question) + called(type.asked, item);
    default:
        return {};
    }
}

std::string getpstr(std::int16_t item, std::int16_t type)
{
    const ItemText compared = kindof(type).compared;
    if (compared == nullptr) {
        toolkit::messagebox("No getpstr for " + numbertext(type));
        return {};
    }
    return compared(item);
}

} // namespace brindor
