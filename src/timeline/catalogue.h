#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace brindor {

struct CatalogueEntry {
    std::string name;
    std::int16_t catweight = 0; // a value of the file format; nothing reads it after the load
};

// A list of names addressed from 1 to its count. Index 0 exists and holds an empty text.
using Catalogue = std::vector<CatalogueEntry>;

// The one look-up: the name at `index`, and an empty text for 0 and for any index outside the Catalogue.
inline const std::string& entryname(const Catalogue& catalogue, std::int16_t index)
{
    static const std::string none;
    const bool inside = index > 0 && static_cast<std::size_t>(index) < catalogue.size();
    return inside ? catalogue[static_cast<std::size_t>(index)].name : none;
}

} // namespace brindor
