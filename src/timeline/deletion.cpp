#include "timeline/deletion.h"

#include "timeline/families.h"
#include "timeline/usedmarks.h"
#include "toolkit/operations.h"

#include <algorithm>
#include <string>

namespace brindor {

namespace {

template <class Family>
void deleteitem(std::int16_t k)
{
    if (!toolkit::askyesno("Delete this " + std::string(Family::word) + '?', "Delete")) {
        return;
    }
    double& count = Family::count();
    if (k < 0 || k >= count) {
        return;
    }
    // The slot behind the new last record keeps the old copy of the last one.
    const auto first = Family::records().begin();
    std::copy(first + k + 1, first + static_cast<std::ptrdiff_t>(count), first + k);
    removemark(Family::isperson, k);
    count -= 1;
    ++timelinestate;
    if (Family::cursor() > 0) {
        --Family::cursor();
    }
}

} // namespace

void deleteperson(std::int16_t k)
{
    deleteitem<PersonFamily>(k);
}

void deleteevent(std::int16_t k)
{
    deleteitem<EventFamily>(k);
}

} // namespace brindor
