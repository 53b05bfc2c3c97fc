#include "timeline/usedmarks.h"

#include "timeline/timeline.h"

namespace brindor {

std::vector<std::int16_t> usedmarks(1);

std::size_t usedslot(double isperson, std::int16_t item)
{
    const std::int64_t slot = isperson != 0 ? std::int64_t{eventcount()} + item : std::int64_t{item};
    const bool inside = item >= 0 && static_cast<std::size_t>(slot) < usedmarks.size();
    return inside ? static_cast<std::size_t>(slot) : usedmarks.size() - 1;
}

void clearmarks()
{
    usedmarks.assign(static_cast<std::size_t>(peoplecount()) + static_cast<std::size_t>(eventcount()) + 1, 0);
}

void insertmark(double isperson, std::int16_t item)
{
    usedmarks.insert(usedmarks.begin() + static_cast<std::ptrdiff_t>(usedslot(isperson, item)), 0);
}

void removemark(double isperson, std::int16_t item)
{
    usedmarks.erase(usedmarks.begin() + static_cast<std::ptrdiff_t>(usedslot(isperson, item)));
}

} // namespace brindor
