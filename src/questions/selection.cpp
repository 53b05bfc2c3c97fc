#include "questions/selection.h"

#include "base/numbers.h"
#include "base/random.h"
#include "base/text.h"
#include "questions/marks.h"
#include "questions/question.h"
#include "questions/texts.h"
#include "questions/types.h"
#include "timeline/timeline.h"
#include "timeline/usedmarks.h"
#include "toolkit/operations.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace brindor {

namespace {

constexpr int triesperlevel = 1001;

bool playable(std::int16_t type)
{
    return type >= 1 && type <= lasttype;
}

bool ofpeople(std::int16_t type)
{
    return kindof(type).of == ItemKind::person;
}

std::int16_t itemcount(std::int16_t type)
{
    return ofpeople(type) ? peoplecount() : eventcount();
}

bool isblank(const std::string& text)
{
    return !(text > " ");
}

// The texts of the slots already drawn, which a candidate's text must differ from.
std::vector<std::string> textsbefore(std::int16_t slot)
{
    std::vector<std::string> texts;
    for (std::int16_t i = 0; i < slot; ++i) {
        texts.push_back(getpstr(chosen[static_cast<std::size_t>(i)], qtype));
    }
    return texts;
}

bool acceptable(std::int16_t candidate, const std::vector<std::string>& before)
{
    const std::string text = getpstr(candidate, qtype);
    if (isblank(text)) {
        return false;
    }
    for (const std::string& other : before) {
        if (text == other) {
            return false;
        }
    }
    return true;
}

// The lowest level at which an item can pass; 0 where none ever can.
int lowestlevel(std::int16_t count, const std::vector<std::string>& before)
{
    int lowest = 0;
    for (std::int16_t item = 0; item < count; ++item) {
        const int level = usedmarks[usedslot(isperson, item)] + 1;
        if ((lowest == 0 || level < lowest) && acceptable(item, before)) {
            lowest = level;
        }
    }
    return lowest;
}

// Blind tries: each is an independent draw over the whole array, and an item passes if its mark is below the level
// and its text is good. The levels at which nothing can pass are skipped, which leaves the odds as they are.
std::int16_t blinddraw(std::int16_t count, const std::vector<std::string>& before)
{
    std::int16_t result = -1;
    int tries = 0;
    int level = 1;
    bool skipped = false;
    while (result == -1) {
        const std::int16_t candidate = drawbelow(count);
        if (usedmarks[usedslot(isperson, candidate)] < level && acceptable(candidate, before)) {
            result = candidate;
        }
        if (++tries >= triesperlevel && result == -1) {
            ++level;
            tries = 0;
            if (!std::exchange(skipped, true)) {
                const int lowest = lowestlevel(count, before);
                if (lowest == 0) {
                    return -1;
                }
                level = std::max(level, lowest);
            }
        }
    }
    return result;
}

} // namespace

std::int16_t getitem(std::int16_t slot)
{
    if (!playable(qtype)) {
        toolkit::messagebox("No action for " + numbertext(qtype));
        return 0;
    }
    isperson = ofpeople(qtype) ? 1 : 0;
    const std::int16_t count = itemcount(qtype);
    const std::int16_t item = count > 0 ? blinddraw(count, textsbefore(slot)) : std::int16_t{-1};
    if (item == -1) {
        return 0;
    }
    chosen[static_cast<std::size_t>(slot)] = item;
    raisemark(usedslot(isperson, item), slot == 0 ? askedmark : shownmark);
    return item;
}

bool canfill(std::int16_t type)
{
    if (!playable(type)) {
        return false;
    }
    const std::int16_t count = itemcount(type);
    std::set<std::string> texts;
    for (std::int16_t item = 0; item < count && texts.size() < itemsasked; ++item) {
        std::string text = getpstr(item, type);
        if (!isblank(text)) {
            texts.insert(std::move(text));
        }
    }
    return texts.size() >= itemsasked;
}

} // namespace brindor
