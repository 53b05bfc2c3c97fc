#include "authoring/playable.h"

#include "questions/question.h"
#include "questions/selection.h"
#include "questions/types.h"

namespace brindor::authoring {

std::vector<UnaskedKind> unaskedkinds()
{
    std::vector<UnaskedKind> unasked;
    const ByType<bool> fillable = fillabletypes();
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        if (!fillable[static_cast<std::size_t>(type)]) {
            unasked.push_back({std::string(kindof(type).name), kindof(type).of == ItemKind::person});
        }
    }
    return unasked;
}

} // namespace brindor::authoring
