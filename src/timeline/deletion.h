#pragma once

#include <cstdint>

namespace brindor {

// Ask the user and, on Yes, remove record `k`, keeping the order of the others and taking its used mark out. The
// cursor goes down by 1 if it is above 0, whichever record was removed. An index outside the records removes
// nothing. The caller rebuilds its list.
void deleteperson(std::int16_t k);
void deleteevent(std::int16_t k);

} // namespace brindor
