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

// The comparison texts of the slots already drawn, and of the item looked at. Kept from call to call for their memory.
struct Texts {
    std::array<std::string, itemsasked> before;
    std::string item;

    // Whether an item's text is not blank and differs from the texts of the slots before `slot`. Where it is, `item`
    // holds it.
    bool accept(const TextPieces& compared, std::int16_t candidate, std::int16_t slot)
    {
        for (std::int16_t i = 0; i < slot; ++i) {
            if (piecesare(before[static_cast<std::size_t>(i)], compared, candidate)) {
                return false;
            }
        }
        item.clear();
        addpieces(item, compared, candidate);
        return item > " ";
    }
};
Texts texts;

// A type for which different items are being looked for.
struct Filling {
    std::int16_t type = 0;
    const TextPieces* compared = nullptr;
    Texts found{};
    std::int16_t count = 0;

    // Looks at one more item; true once there are enough.
    bool full(std::int16_t item)
    {
        if (found.accept(*compared, item, count)) {
            std::swap(found.before[static_cast<std::size_t>(count++)], found.item);
        }
        return count == itemsasked;
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
    const auto good = [&](std::int16_t item) { return texts.accept(compared, item, slot); };
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
    for (std::int16_t i = 0; i < slot; ++i) {
        std::string& text = texts.before[static_cast<std::size_t>(i)];
        text.clear();
        addpieces(text, compared, chosen[static_cast<std::size_t>(i)]);
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

// Goes through the items once, whatever number of types is still open, since memory is what it waits for.
ByType<bool> fillabletypes()
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

} // namespace brindor
