#include "questions/texts.h"

#include "base/text.h"
#include "questions/question.h"
#include "questions/sortvalues.h"
#include "questions/types.h"
#include "toolkit/operations.h"

namespace brindor {

namespace {

std::string sorted(std::int16_t item)
{
    return getpstr(item, 0) + ' ' + numbertext(getsortval(item, qtype));
}

} // namespace

std::string paramname(std::int16_t kind, std::int16_t item, std::int16_t extra)
{
    const QuestionKind& type = kindof(qtype);
    std::string text;
    switch (kind) {
    case sortprompt:
        return "Sort " + std::string(type.name) + " with earliest date on top";
    case itemname:
        return getpstr(item, 0);
    case sortline:
        return sorted(item) + " > " + sorted(extra);
    case itemtext:
        addpieces(text, type.shown, item);
        return text;
    case questionline:
        text = type.question;
        addpieces(text, type.asked, item);
        return text;
    default:
        return text;
    }
}

std::string getpstr(std::int16_t item, std::int16_t type)
{
    const TextPieces& compared = kindof(type).compared;
    if (compared.all.front().text == nullptr) {
        toolkit::messagebox("No getpstr for " + numbertext(type));
    }
    std::string text;
    addpieces(text, compared, item);
    return text;
}

} // namespace brindor
