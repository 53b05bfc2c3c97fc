#include "timeline/catalogue.h"

namespace brindor {

const std::string& entryname(const Catalogue& catalogue, std::int16_t index)
{
    static const std::string none;
    const bool inside = index > 0 && static_cast<std::size_t>(index) < catalogue.size();
    return inside ? catalogue[static_cast<std::size_t>(index)].name : none;
}

} // namespace brindor
