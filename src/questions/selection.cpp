#include "questions/selection.h"

#include "base/numbers.h"
#include "base/random.h"
#include "base/text.h"
#include "questions/marks.h"
#include "questions/question.h"
#include "questions/types.h"
#include "timeline/timeline.h"
#include "timeline/usedmarks.h"
#include "toolkit/operations.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace brindor {

namespace {

constexpr int triesperlevel = 1001;
constexpr int nomark = highest16 + 1; // above every mark

bool playable(std::int16_t type)
{
    return type >= 1 && type <= lasttype;
}

// Items with different comparison texts: those of the slots already drawn, or those that are being looked for. Kept
// from call to call for the memory of the texts.
struct Different {
    std::array<std::int16_t, itemsasked> items{};
    std::array<std::string, itemsasked> texts;
    std::size_t count = 0;
    std::string latest; // the text of the item looked at

    // Whether an item's text is not blank and differs from all of them. No text is put together for an item that a look
    // at its record refuses.
    bool accept(const TextPieces& compared, std::int16_t candidate)
    {
        const auto end = items.begin() + static_cast<std::ptrdiff_t>(count);
        if (std::any_of(items.begin(), end,
                        [&](std::int16_t item) { return samesources(compared, item, candidate); })) {
            return false;
        }
        latest.clear();
        addpieces(latest, compared, candidate);
        const auto textsend = texts.begin() + static_cast<std::ptrdiff_t>(count);
        return latest > " " && std::find(texts.begin(), textsend, latest) == textsend;
    }

    // Takes the item that was looked at last.
    void take(std::int16_t item)
    {
        items[count] = item;
        std::swap(texts[count], latest);
        ++count;
    }
};
Different different;

// A type for which different items are being looked for.
struct Filling {
    std::int16_t type = 0;
    const TextPieces* compared = nullptr;
    Different found{};

    // Looks at one more item; true once there are enough.
    bool full(std::int16_t item)
    {
        if (found.accept(*compared, item)) {
            found.take(item);
        }
        return found.count == itemsasked;
    }
};

// What is known of the items of a question once a few tries have failed: which of them no slot can take any more, since
// their text is blank or that of a slot already drawn, and which can be hit at the level in force.
struct Pool {
    std::vector<char> refused; // one flag an item; empty where nothing is known
    std::vector<std::int16_t> open;
    std::int16_t type = 0;  // of the question that this is known of
    std::int16_t drawn = 0; // its slots so far, with these items
    decltype(chosen) items{};

    // Forgets what belongs to another question than the one whose slots before this one were drawn as they stand.
    void begin(std::int16_t slot)
    {
        const bool goeson = slot > 0 && slot == drawn && qtype == type &&
                            std::equal(items.begin(), items.begin() + slot, chosen.begin());
        if (!goeson) {
            refused.clear();
        }
    }

    void end(std::int16_t slot)
    {
        type = qtype;
        drawn = index16(slot + 1);
        items = chosen;
    }

    // Opens the items with a mark below the level, and gives the lowest mark of the others.
    int admit(std::span<const std::int16_t> marks, int level)
    {
        int lowest = nomark;
        open.clear();
        for (std::size_t item = 0; item < refused.size(); ++item) {
            if (refused[item] != 0) {
                continue;
            }
            if (marks[item] < level) {
                open.push_back(index16(static_cast<std::int64_t>(item)));
            } else {
                lowest = std::min<int>(lowest, marks[item]);
            }
        }
        return lowest;
    }

    template <class Good>
    void refuseallbut(const Good& good)
    {
        std::erase_if(open, [this, &good](std::int16_t item) {
            return refused[static_cast<std::size_t>(item)] = good(item) ? 0 : 1;
        });
    }
};
Pool pool;

// How many of the tries that hit with the probability `hit` miss before the next one hits; no more than a level has.
int misses(double hit)
{
    const double number = hit < 1 ? std::log1p(-randomvalue()) / std::log1p(-hit) : 0;
    return static_cast<int>(std::min<double>(number, triesperlevel));
}

// The tries of a call for one slot. Each is an independent draw over the whole array, and an item passes if its mark
// is below the level and its text is good; a level has so many tries, the first level is 1. The first few are made as
// they come. Of the rest, with the same odds, only those are made that hit an open item; where one is refused, all
// that would be are sought out. Levels at which nothing can pass are skipped. -1 where nothing ever can.
std::int16_t draw(const TextPieces& compared, std::span<const std::int16_t> marks, std::int16_t slot)
{
    const std::int16_t count = index16(std::ssize(marks));
    const auto good = [&](std::int16_t item) { return different.accept(compared, item); };
    int level = 1;
    int tries = 0;
    pool.begin(slot);
    if (pool.refused.size() != marks.size()) {
        constexpr int plaintries = 16;
        for (; tries < plaintries; ++tries) {
            const std::int16_t item = drawbelow(count);
            if (marks[static_cast<std::size_t>(item)] < level && good(item)) {
                return item;
            }
        }
        pool.refused.assign(marks.size(), 0);
    }
    for (int lowest = pool.admit(marks, level);; tries = 0) {
        while (!pool.open.empty()) {
            const auto open = static_cast<double>(pool.open.size());
            tries += misses(open / count) + 1;
            if (tries > triesperlevel) {
                break;
            }
            const std::int16_t item = pool.open[static_cast<std::size_t>(drawbelow(roundtoint16(open)))];
            if (good(item)) {
                return item;
            }
            pool.refuseallbut(good);
        }
        if (pool.open.empty() && lowest == nomark) {
            return -1;
        }
        level = pool.open.empty() ? lowest + 1 : level + 1;
        if (level > lowest) {
            lowest = pool.admit(marks, level);
        }
    }
}

} // namespace

std::int16_t getitem(std::int16_t slot)
{
    if (!playable(qtype)) {
        toolkit::messagebox("No action for " + numbertext(qtype));
        return 0;
    }
    isperson = kindof(qtype).of == ItemKind::person ? 1 : 0;
    const std::int16_t count = isperson != 0 ? peoplecount() : eventcount();
    const TextPieces& compared = kindof(qtype).compared;
    different.count = 0;
    while (different.count < static_cast<std::size_t>(slot)) {
        const std::int16_t item = chosen[different.count];
        different.latest.clear();
        addpieces(different.latest, compared, item);
        different.take(item);
    }
    const std::int16_t item =
        count > 0
            ? draw(compared, std::span(usedmarks).subspan(usedslot(isperson, 0), static_cast<std::size_t>(count)), slot)
            : std::int16_t{-1};
    if (item != -1) {
        chosen[static_cast<std::size_t>(slot)] = item;
        raisemark(usedslot(isperson, item), slot == 0 ? askedmark : shownmark);
    }
    pool.end(slot);
    return std::max<std::int16_t>(item, 0);
}

namespace {

// Goes through the items once, whatever number of types is still open, since memory is what it waits for.
ByType<bool> findfillable()
{
    ByType<bool> fillable{};
    for (const ItemKind family : {ItemKind::person, ItemKind::event}) {
        std::vector<Filling> open;
        for (std::int16_t type = 1; type <= lasttype; ++type) {
            if (kindof(type).of == family) {
                open.push_back({type, &kindof(type).compared});
            }
        }
        const std::int16_t count = family == ItemKind::person ? peoplecount() : eventcount();
        for (std::int16_t item = 0; item < count && !open.empty(); ++item) {
            for (std::size_t i = open.size(); i-- > 0;) {
                if (open[i].full(item)) {
                    fillable[static_cast<std::size_t>(open[i].type)] = true;
                    open.erase(open.begin() + static_cast<std::ptrdiff_t>(i));
                }
            }
        }
    }
    return fillable;
}

} // namespace

ByType<bool> fillabletypes()
{
    static ByType<bool> fillable;
    static std::int64_t state = -1; // of the Timeline that this is known of
    constexpr int few = 2000;       // so few are looked at anew each time: it takes less than a millisecond
    if (state != timelinestate || npeople + nevents <= few) {
        fillable = findfillable();
        state = timelinestate;
    }
    return fillable;
}

} // namespace brindor
