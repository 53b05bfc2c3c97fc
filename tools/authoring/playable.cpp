#include "authoring/playable.h"

#include "questions/question.h"
#include "questions/selection.h"
#include "questions/types.h"

namespace brindor::authoring {

std::vector<UnaskedKind> unaskedkinds()
{
    std::vector<UnaskedKind> unasked;
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        if (!canfill(type)) {
            unasked.push_back({std::string(kindof(type).name), kindof(type).of == ItemKind::person});
        }
    }
    return unasked;
}

} // namespace brindor::authoring
